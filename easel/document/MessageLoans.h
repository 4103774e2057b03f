#pragma once

#include "easel/document/HitTest.h"

#include <vector>

namespace easel {

/// What the plug-in was given for the running message only: characters of strings, and hits that
/// it need not release.
class MessageLoans {
public:
    explicit MessageLoans(Session& session) noexcept : session_(session) {}

    /// The characters of `text`, kept until the message ends. With the switch `entryStringsLast`
    /// off they stay until `dictionaryCalled`.
    [[nodiscard]] const char* characters(SharedText text);
    /// A dictionary function is running: overwrites the last characters when they are not to last.
    void dictionaryCalled() noexcept;
    /// The hit loses the reference it was made with, unless the plug-in has released it.
    void keep(Ref<Hit> hit);
    void clear();

private:
    Session& session_;
    std::vector<SharedText> texts_;
    std::vector<char> fleeting_;
    std::vector<Ref<Hit>> hits_;
};

} // namespace easel

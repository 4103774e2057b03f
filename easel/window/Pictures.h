#pragma once

#include "easel/runtime/Host.h"
#include "easel/window/Pixels.h"

#include <map>
#include <string_view>

namespace easel::window {

inline constexpr int kIconSide = 24;

/// One of the window's own icons; empty where there is none of that name.
[[nodiscard]] Pixels ownIcon(std::string_view name);
/// The icon that a plug-in has given its tool; an empty square when it has none.
[[nodiscard]] Pixels toolIcon(const Host& host, const Tool& tool);

/// The cursors of plug-ins, kept once they are loaded.
class Cursors {
public:
    Cursors() = default;
    ~Cursors();
    Cursors(const Cursors&) = delete;
    Cursors& operator=(const Cursors&) = delete;

    /// The one that was last set; the arrow when it cannot be had.
    [[nodiscard]] HCURSOR current(const Host& host);

private:
    std::map<std::pair<SPPluginRef, ai::int32>, HCURSOR> loaded_;
};

} // namespace easel::window

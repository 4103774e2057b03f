#pragma once

#include "host/Types.h"

#include <string>
#include <string_view>

namespace ai {

/// A string of the host: one pointer that only the host's string suite looks behind. Crosses the
/// interface by address. A null pointer is a valid empty string. Failing conversions throw `Error`.
///
/// Only the first eleven slots of the suite are used: they are the same in every generation of the
/// host.
class UnicodeString {
public:
    UnicodeString() noexcept = default;
    explicit UnicodeString(std::string_view utf8);
    explicit UnicodeString(std::u16string_view utf16);
    UnicodeString(const UnicodeString& other);
    UnicodeString(UnicodeString&& other) noexcept;
    UnicodeString& operator=(UnicodeString other) noexcept;
    ~UnicodeString();

    /// The whole text, read character by character.
    [[nodiscard]] std::u16string utf16() const;
    [[nodiscard]] std::string utf8() const;

private:
    void* impl_ = nullptr;
};

static_assert(sizeof(UnicodeString) == 8);

} // namespace ai

/// What a menu item is registered with. `groupName` must name an existing group.
struct AIPlatformAddMenuItemDataUS {
    const char* groupName;
    ai::UnicodeString itemText;
};

static_assert(sizeof(AIPlatformAddMenuItemDataUS) == 16);

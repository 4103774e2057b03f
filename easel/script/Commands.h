#pragma once

#include "easel/script/Player.h"

#include <functional>
#include <span>

/// The language of scripts as tables: what there is, how it is written, what it means, and the
/// function that reads it.

namespace easel::script {

/// Throws SessionError, svg::FileError or ai::Error when it cannot be done.
using Action = std::function<void(Player&)>;
using Check = std::function<Finding(Player&)>;

/// A modal dialog keeps the user from everything else, but not the host and the script.
enum class UnderDialog : std::uint8_t { Refused, Done };

struct CommandRow {
    const char* name;
    const char* arguments; ///< As documentation writes them: NAMES in capitals, [optional].
    const char* meaning;   ///< A sentence without its full stop.
    Action (*read)(Arguments&);
    UnderDialog underDialog = UnderDialog::Refused;
};

struct ExpectationRow {
    const char* name; ///< The word after "expect".
    const char* arguments;
    const char* meaning; ///< What is expected.
    Check (*read)(Arguments&);
};

[[nodiscard]] std::span<const CommandRow> commands();
[[nodiscard]] std::span<const ExpectationRow> expectations();

/// The menu item of that name or text; null when there is none.
[[nodiscard]] AIMenuItemHandle menuItemNamed(const Menus& menus, const std::string& name);

/// All tables as rows of Markdown, as docs/easel.md has them.
[[nodiscard]] std::string languageTables();

} // namespace easel::script

#pragma once

#include "easel/script/Commands.h"

namespace easel::script {

/// In what a user acts, or looks.
enum class Where : std::uint8_t { Panel, Dialog };

/// What is done in the panel or in the modal dialog in front; throws as an Action does.
using Deed = std::function<void(Player&, Where)>;

/// A command whose first word is "panel" or "dialog".
struct DeedRow {
    const char* name; ///< The second word.
    const char* arguments;
    const char* meaning;
    Deed (*read)(Arguments&);
    std::optional<Where> only = {}; ///< Nothing: in both.
};

[[nodiscard]] std::span<const DeedRow> deeds();

// What is seen of panel, dialog and menus, as rows of the expectations have it.
[[nodiscard]] Check readPanelState(Arguments& arguments);
[[nodiscard]] Check readDialogTitle(Arguments& arguments);
template <Where place> [[nodiscard]] Check readItemState(Arguments& arguments);
extern template Check readItemState<Where::Panel>(Arguments& arguments);
extern template Check readItemState<Where::Dialog>(Arguments& arguments);
[[nodiscard]] Check readFlyoutEntry(Arguments& arguments);
[[nodiscard]] Check readMenuEntry(Arguments& arguments);

} // namespace easel::script

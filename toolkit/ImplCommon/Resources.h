#pragma once

#include "host/Handles.h"
#include "toolkit/ImplCommon/ResourceFile.h"

#include <optional>
#include <string>
#include <vector>

namespace NRDM {

/// The kinds of resources that the toolkit reads.
enum class ResourceKind {
    Menu,
    StringTable,
    Layout,               ///< type NREV: a layout text
    Picture,              ///< type PNGI: a picture in PNG
    PictureAtThreeHalves, ///< type PNG3: the same at one and a half times its size
    CursorMap,            ///< type XML_: where a cursor's hot spot is, and its pictures
};

/// The library that holds the resources of `plugin`, as the host says. Null is that of the running
/// program: a plug-in that is part of it. Throws `ai::Error`.
[[nodiscard]] SPPlatformAccessRef resourceLibrary(SPPluginRef plugin);

/// A resource of `library`, valid while it stays loaded; empty when there is none. Whatever the
/// toolkit is linked into brings this function along with its resources: the toolkit has none of
/// its own. A native build has one set of them, whatever the library.
[[nodiscard]] Bytes findResource(SPPlatformAccessRef library, ResourceKind kind, int id);

/// String `id` of the string tables; nothing when it is missing or empty, which the tables cannot
/// tell apart. Lists have no form of their own: string n of list 18000, n from 1, is 18000 + n.
[[nodiscard]] std::optional<std::u16string> readString(SPPlatformAccessRef library, int id);

/// One line of a menu resource.
struct MenuLine {
    std::u16string text; ///< empty for a separator
    int id = 0;
    bool separator = false;
    bool enabled = true;
    bool checked = false;
};

/// Menu `id`, without the lines of submenus; nothing when it is missing or damaged.
[[nodiscard]] std::optional<std::vector<MenuLine>> readMenu(SPPlatformAccessRef library, int id);

// What the two above make of a resource's bytes.
[[nodiscard]] std::optional<std::u16string> stringInTable(Bytes table, int id);
[[nodiscard]] std::optional<std::vector<MenuLine>> parseMenu(Bytes menu);

/// Strings lie sixteen to a table.
constexpr int kStringsInTable = 16;

/// The number of the table that holds string `id`.
[[nodiscard]] constexpr int tableOfString(int id) { return id / kStringsInTable + 1; }

} // namespace NRDM

#include "toolkit/ImplCommon/Resources.h"

#include "host/Error.h"
#include "host/SuiteHolder.h"
#include "host/suites/SPAccessSuite.h"
#include "toolkit/ImplCommon/ByteReader.h"

namespace NRDM {
namespace {

// Flags of a menu's lines, as the system has them.
constexpr unsigned kGrayed = 0x1;
constexpr unsigned kDisabled = 0x2;
constexpr unsigned kChecked = 0x8;
constexpr unsigned kPopup = 0x10;
constexpr unsigned kLastLine = 0x80;
constexpr unsigned kSeparator = 0x800;

/// Reads the lines of one level, and of the levels below it only to get past them.
/// `depth` ends damaged menus that nest for ever.
std::vector<MenuLine> readLevel(ByteReader& reader, int depth) {
    constexpr int kDeepest = 8;
    std::vector<MenuLine> lines;
    for (bool last = depth > kDeepest; !last && !reader.failed();) {
        const unsigned flags = reader.word();
        last = (flags & kLastLine) != 0;
        MenuLine line;
        if ((flags & kPopup) == 0) line.id = reader.word();
        line.text = reader.text();
        line.separator = (flags & kSeparator) != 0 ||
                         ((flags & kPopup) == 0 && line.id == 0 && line.text.empty());
        line.enabled = (flags & (kGrayed | kDisabled)) == 0;
        line.checked = (flags & kChecked) != 0;
        if ((flags & kPopup) != 0) readLevel(reader, depth + 1);
        lines.push_back(std::move(line));
    }
    return lines;
}

} // namespace

SPPlatformAccessRef resourceLibrary(SPPluginRef plugin) {
    ai::SuiteLease<SPAccessSuite> access;
    ai::check(access.acquire());
    SPPlatformAccessRef library = nullptr;
    ai::check(access->GetPluginResourceAccess(plugin, &library));
    return library;
}

std::optional<std::u16string> stringInTable(Bytes table, int id) {
    ByteReader reader(table);
    for (int i = 0; i < id % kStringsInTable; ++i)
        reader.take(reader.word() * sizeof(char16_t));
    std::u16string text = reader.text(reader.word());
    if (text.empty()) return std::nullopt;
    return text;
}

std::optional<std::vector<MenuLine>> parseMenu(Bytes menu) {
    ByteReader reader(menu);
    const unsigned version = reader.word();
    reader.take(reader.word()); // room for a longer head
    std::vector<MenuLine> lines = readLevel(reader, 0);
    if (version != 0 || reader.failed()) return std::nullopt;
    return lines;
}

std::optional<std::u16string> readString(SPPlatformAccessRef library, int id) {
    if (id < 0) return std::nullopt;
    return stringInTable(findResource(library, ResourceKind::StringTable, tableOfString(id)), id);
}

std::optional<std::vector<MenuLine>> readMenu(SPPlatformAccessRef library, int id) {
    return parseMenu(findResource(library, ResourceKind::Menu, id));
}

} // namespace NRDM

/// check_resources
///
/// Looks through the compiled resources that this program carries, the plug-in's, and says what is
/// wrong with them. Exit status 0 when nothing is, 1 when anything is.

#include "resources/Embedded.h"
#include "toolkit/ImplCommon/CursorMap.h"
#include "toolkit/ImplCommon/Resources.h"
#include "toolkit/layout/Layout.h"

#include <algorithm>
#include <array>
#include <cstdio>
#include <exception>
#include <set>
#include <string>
#include <utility>

namespace {

using namespace NRDM;

constexpr SPPlatformAccessRef kThisProgram = nullptr;
/// Buffers of the dialog interface hold this many characters and a zero.
constexpr std::size_t kLongestText = 255;

/// What is wrong, told as it is found.
class Findings {
public:
    void require(bool holds, const std::string& what) {
        if (holds) return;
        std::fprintf(stderr, "resources: %s\n", what.c_str());
        flawless_ = false;
    }
    [[nodiscard]] bool flawless() const noexcept { return flawless_; }

private:
    bool flawless_ = true;
};

std::string text(Bytes data) { return {reinterpret_cast<const char*>(data.data()), data.size()}; }

void checkMenusOf(const layout::Element& element, const std::string& name, Findings& findings) {
    if (const auto menu = layout::integerOf(element, layout::Key::MenuId))
        findings.require(readMenu(kThisProgram, *menu).has_value(),
                         name + ": no menu " + std::to_string(*menu));
    for (const layout::Element& child : element.children)
        checkMenusOf(child, name, findings);
}

void checkLayout(int id, Bytes data, Findings& findings) {
    const std::string name = "layout " + std::to_string(id);
    const std::string content = text(data);
    for (std::size_t at = content.find('\n'); at != std::string::npos;
         at = content.find('\n', at + 1))
        findings.require(at > 0 && content[at - 1] == '\r', name + ": a line without CR LF");
    const layout::Parsed parsed = layout::parse(content);
    for (const layout::Message& message : parsed.messages)
        findings.require(false, layout::format(message, std::to_string(id)));
    if (parsed.layout) checkMenusOf(parsed.layout->dialog, name, findings);
}

void checkMenu(int id, Bytes data, Findings& findings) {
    const std::string name = "menu " + std::to_string(id);
    const auto lines = parseMenu(data);
    findings.require(lines.has_value(), name + " cannot be read");
    std::set<int> ids;
    for (const MenuLine& line : lines.value_or(std::vector<MenuLine>{})) {
        if (line.separator) continue;
        findings.require(!line.text.empty() && line.text.size() <= kLongestText,
                         name + ": a text that is empty or too long");
        findings.require(ids.insert(line.id).second,
                         name + ": two lines with id " + std::to_string(line.id));
    }
}

void checkStrings(int table, Bytes data, Findings& findings) {
    for (int i = 0; i < kStringsInTable; ++i) {
        const int id = (table - 1) * kStringsInTable + i;
        const auto string = stringInTable(data, id);
        findings.require(!string || string->size() <= kLongestText,
                         "string " + std::to_string(id) + " is too long");
    }
}

void checkPicture(int id, Bytes data, Findings& findings) {
    findings.require(text(data).starts_with("\x89PNG\r\n\x1a\n"),
                     "picture " + std::to_string(id) + " is no PNG");
}

void checkCursor(int id, Bytes data, Findings& findings) {
    const std::string name = "cursor " + std::to_string(id);
    const CursorMap map = readCursorMap(text(data));
    findings.require(!map.pictures.empty(), name + " has no pictures");
    for (const CursorMap::Picture& picture : map.pictures)
        findings.require(!findResource(kThisProgram, ResourceKind::Picture, picture.id).empty(),
                         name + ": no picture " + std::to_string(picture.id));
}

struct Check {
    ResourceName type;
    void (*check)(int id, Bytes data, Findings& findings);
};
const Check kChecks[] = {
    {4, checkMenu},          {6, checkStrings},       {u"NREV", checkLayout},
    {u"PNGI", checkPicture}, {u"PNG3", checkPicture}, {u"XML_", checkCursor},
};

bool resourcesAreFlawless() {
    Findings findings;
    std::set<std::pair<ResourceName, ResourceName>> seen;
    ResourceFile file(facetta::embeddedResources());
    while (const auto resource = file.next()) {
        const int* const id = std::get_if<int>(&resource->name);
        const auto check = std::ranges::find(kChecks, resource->type, &Check::type);
        findings.require(seen.insert({resource->type, resource->name}).second,
                         "two resources of one kind with id " + std::to_string(id ? *id : 0));
        if (id != nullptr && check != std::end(kChecks))
            check->check(*id, resource->data, findings);
    }
    for (const Check& check : kChecks)
        findings.require(
            std::ranges::any_of(seen, [&](const auto& each) { return each.first == check.type; }),
            "nothing of one of the kinds there should be");
    return findings.flawless();
}

} // namespace

int main() {
    try {
        return resourcesAreFlawless() ? 0 : 1;
    } catch (const std::exception& wrong) {
        std::fprintf(stderr, "resources: %s\n", wrong.what());
        return 1;
    }
}

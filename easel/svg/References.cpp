#include "easel/svg/References.h"

namespace easel::svg {

bool References::contain(const std::string& id) {
    if (id.empty()) return false;
    if (!known_) find();
    return ids_.contains(id);
}

void References::find() {
    known_ = true;
    const std::string_view text = tree_.text();
    for (std::size_t at = text.find('#'); at != std::string_view::npos;
         at = text.find('#', at + 1)) {
        std::string_view before = text.substr(0, at);
        if (before.ends_with("&quot;")) before.remove_suffix(6);
        if (before.ends_with('"') || before.ends_with('\'')) before.remove_suffix(1);
        if (!before.ends_with("url(") && !before.ends_with("href=")) continue;
        const std::string_view id = text.substr(at + 1);
        ids_.emplace(id.substr(0, id.find_first_of("\"')& \t\r\n")));
    }
}

std::string withoutIds(const XmlTree& tree, NodeIndex node, std::size_t from, std::size_t to) {
    std::string text;
    for (NodeIndex each = node + 1; each < tree.size() && tree.at(each).start < to; ++each) {
        if (tree.at(each).kind != XmlTree::Kind::Element) continue;
        for (const XmlAttribute& attribute : tree.attributes(each)) {
            if (attribute.name != "id") continue;
            const auto at = static_cast<std::size_t>(attribute.source.data() - tree.text().data());
            text += tree.slice(from, at);
            from = at + attribute.source.size();
        }
    }
    return text += tree.slice(from, to);
}

} // namespace easel::svg

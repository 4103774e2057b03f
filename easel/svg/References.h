#pragma once

#include "easel/svg/XmlTree.h"

#include <set>
#include <string>

namespace easel::svg {

/// What the elements of a text refer to by name.
class References {
public:
    explicit References(const XmlTree& tree) noexcept : tree_(tree) {}

    [[nodiscard]] bool contain(const std::string& id);

private:
    void find();

    const XmlTree& tree_;
    bool known_ = false; ///< Looked for when they are first asked for.
    std::set<std::string> ids_;
};

/// A part of the element's text without the names of what is inside it.
[[nodiscard]] std::string withoutIds(const XmlTree& tree, NodeIndex node, std::size_t from,
                                     std::size_t to);

} // namespace easel::svg

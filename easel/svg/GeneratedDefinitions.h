#pragma once

#include "easel/svg/Content.h"
#include "easel/svg/References.h"

#include <set>
#include <string>
#include <vector>

namespace easel::svg {

/// The one <defs> of a drawing that holds what saving it has made, now and at former times, and the
/// elements that others refer to and that stand nowhere else any more.
class GeneratedDefinitions {
public:
    GeneratedDefinitions(const DrawingSource& source, References& references)
        : source_(source), tree_(*source.tree), references_(references) {}

    void keep(NodeIndex element) { kept_.insert(element); }
    /// Keeps what others refer to in elements of art that are not `written` (by node).
    void keepLost(const std::vector<bool>& written) { keepLostIn(tree_.root(), written); }

    /// `added` are new elements, `content` all that stands between the root's tags but for the
    /// <defs>, whose place in it is `at`. What nothing refers to any more is left out. Empty: none
    /// is needed.
    [[nodiscard]] std::string text(std::string added, std::string_view content,
                                   std::size_t at) const;
    [[nodiscard]] bool empty() const noexcept { return kept_.empty(); }

private:
    void keepLost(NodeIndex node);
    void keepLostIn(NodeIndex container, const std::vector<bool>& written);
    [[nodiscard]] NodeIndex former() const;
    [[nodiscard]] bool isAllAsRead(NodeIndex generated, std::string_view content,
                                   std::size_t at) const;

    const DrawingSource& source_;
    const XmlTree& tree_;
    References& references_;
    std::set<NodeIndex> kept_;
};

} // namespace easel::svg

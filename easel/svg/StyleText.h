#pragma once

#include "easel/svg/Content.h"
#include "easel/svg/PathText.h"

#include <functional>
#include <map>
#include <string>
#include <vector>

namespace easel::svg {

/// Makes definitions for art that has a gradient or pattern otherwise than the element says,
/// because it was copied or transformed.
class DerivedServers {
public:
    DerivedServers(const XmlTree& tree, const Document& document, Point offset)
        : tree_(tree), document_(document), offset_(offset) {}

    /// What a paint property says of art in that user space: "url(#id)".
    [[nodiscard]] std::string reference(const Definition& definition, const AIRealMatrix& matrix,
                                        const UserSpace& space);
    /// The elements for all references given out so far, one a line.
    [[nodiscard]] const std::string& elements() const { return elements_; }

    /// The next id of that family that the drawing neither gives nor refers to.
    [[nodiscard]] std::string newId(const std::string& family, int& counter) const;

private:
    const XmlTree& tree_;
    const Document& document_;
    Point offset_;
    std::string elements_;
    int counter_ = 0;
    std::map<std::string, std::string> ids_; ///< By what the element says.
};

struct PropertyText {
    const char* name;
    std::string text;
    int kind; ///< Those of one kind depend on each other.
};

/// How a reference to a gradient or pattern is written.
using ServerText = std::function<std::string(const Definition&, const AIRealMatrix&)>;

/// The fill, stroke and opacity of a shape in that user space, without what is kept as text; always
/// the same properties in the same order.
[[nodiscard]] std::vector<PropertyText> styleText(const ArtStyle& style, const UserSpace& space,
                                                  const ServerText& server);

} // namespace easel::svg

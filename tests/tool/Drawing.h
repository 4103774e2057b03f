#pragma once

#include "tests/tool/ToolInHand.h"

#include "easel/document/ArtTree.h"
#include "easel/document/Dump.h"

namespace facetta::tests {

/// A straight path from `from` to `to` on the current layer, selected or not.
inline easel::Art& drawLine(easel::Document& document, AIRealPoint from, AIRealPoint to,
                            bool selected) {
    easel::Art& path =
        easel::createArt(document, kPathArt, easel::onTopOf(*document.state().currentLayer));
    easel::ArtContent& content = path.write();
    content.segments.write() = {{from, from, from, 1}, {to, to, to, 1}};
    if (selected) content.attributes |= kArtSelected | kArtFullySelected;
    return path;
}

inline int countPaths(const easel::Document& document, bool lockedOnes) {
    int count = 0;
    for (const easel::Art* art = &document.root(); art != nullptr;
         art = easel::nextInPreorder(*art, document.root()))
        count += art->type() == kPathArt && art->has(kArtLocked) == lockedOnes ? 1 : 0;
    return count;
}

/// A drawing of one line inside one sector of three axes, with pending axes above it.
class Drawing : public ToolInHand {
public:
    explicit Drawing(bool selected, const Licensing& licence = {}) : ToolInHand(licence) {
        host.edit("Draw", [&](easel::Document& document) {
            drawLine(document, {300, -170}, {340, -160}, selected);
        });
        host.selectTool(nullptr);
        host.selectTool(thePlugin->toolHandle);
        press(200, -200);
        release(200, -200);
    }
    [[nodiscard]] easel::Document& document() const { return *host.documents().front(); }
    [[nodiscard]] std::string text() const { return easel::dump(document()); }
};

} // namespace facetta::tests

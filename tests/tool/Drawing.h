#pragma once

#include "tests/tool/ToolInHand.h"

#include "easel/document/ArtTree.h"
#include "easel/document/Dump.h"
#include "easel/document/Layers.h"
#include "symmetry/AxisGuides.h"

#include <algorithm>
#include <sstream>

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
    explicit Drawing(bool selected, TestLicence terms = {}) : ToolInHand(std::move(terms)) {
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
    /// Without the stamp that a live layer has noted: a change taken back leaves a later one.
    [[nodiscard]] std::string textButStamp() const {
        std::istringstream lines(text());
        std::string kept;
        for (std::string line; std::getline(lines, line);)
            if (line.find("\"ts\"") == std::string::npos) kept += line + '\n';
        return kept;
    }
    easel::Art& newLayer() {
        easel::Art* made = nullptr;
        host.edit("New Layer", [&](easel::Document& page) {
            made = &easel::createLayer(page, "Layer 2", easel::onTopOf(page.root()));
            easel::setCurrentLayer(page, *made);
        });
        return *made;
    }
    /// Inside the current layer; it holds one line.
    void newSublayer() {
        host.edit("New Sublayer", [](easel::Document& page) {
            easel::Art& top = *page.state().currentLayer;
            easel::setCurrentLayer(page, easel::createLayer(page, "Inner", easel::onTopOf(top)));
            drawLine(page, {320, -150}, {350, -140}, /*selected*/ false);
        });
    }
    void chooseLayer(easel::Art& layer) {
        host.edit(
            "Choose Layer", [&](easel::Document& page) { easel::setCurrentLayer(page, layer); },
            kSilentUndoContext);
    }
    /// Attaches the pending axes to the layer, with guides along them if these are wanted.
    void makeLive(bool withGuides = false) {
        host.editToolOptions();
        if (withGuides)
            host.edit("Guides", [](easel::Document&) { addAxisGuides(thePlugin->tool.axes); });
    }
    /// The directions of the guides along axes, in degrees from 0 to 180, sorted.
    [[nodiscard]] std::vector<int> guideAngles() const;
};

inline std::vector<int> Drawing::guideAngles() const {
    std::vector<int> angles;
    const easel::Art& root = document().root();
    for (const easel::Art* art = &root; art != nullptr; art = easel::nextInPreorder(*art, root)) {
        if (!art->content().guide) continue;
        const Vector along = widen(art->segments()[1].p) - widen(art->segments()[0].p);
        const double degrees = std::atan2(along.y, along.x) * 180 / kPi;
        angles.push_back((static_cast<int>(std::lround(degrees)) + 360) % 180);
    }
    std::ranges::sort(angles);
    return angles;
}

} // namespace facetta::tests

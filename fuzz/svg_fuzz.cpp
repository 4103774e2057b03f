/// Any bytes as a drawing: reading ends, limits hold, an untouched drawing is saved as the same
/// bytes, a changed one as a drawing, and painting ends.

#include "easel/document/ArtTree.h"
#include "easel/document/Session.h"
#include "easel/document/TransformArt.h"
#include "easel/paint/PaintDocument.h"
#include "easel/svg/SvgFile.h"
#include "fuzz/Require.h"

#include <cstdint>
#include <string>
#include <vector>

namespace {

using namespace easel;
using facetta::fuzz::require;

/// Paints nothing: what is tried is the way to the painter, and libraries have fuzzers of their
/// own.
class NoPainter : public paint::Painter {
public:
    void save() override { ++depth; }
    void restore() override { --depth; }
    void transform(const paint::Matrix&) override {}
    void clip(const paint::Outline&, paint::FillRule) override {}
    void fill(const paint::Outline&, paint::FillRule, const paint::Ink&) override {}
    void stroke(const paint::Outline&, const paint::Pen&, const paint::Ink&) override {}
    void beginGroup() override { ++groups; }
    void endGroup(double) override { --groups; }
    void text(const std::string&, const svg::Font&, paint::Point, const paint::Ink&) override {}
    double textWidth(const std::string& text, const svg::Font& font) override {
        return static_cast<double>(text.size()) * font.size;
    }
    void image(std::span<const std::byte>, paint::Point, paint::Point) override {}

    int depth = 0;
    int groups = 0;
};

void saveAndReopen(const Document& document) {
    const std::string saved = svg::svgText(document);
    try {
        const svg::OpenedDrawing again = svg::readSvgText(easel::session(), saved, "saved.svg");
        const std::string second = svg::svgText(*again.document);
        require(saved == second, "the second save is another text",
                saved + "\n--- other\n" + second);
    } catch (const svg::FileError& error) {
        require(false, "what was saved cannot be opened", saved + '\n' + error.what());
    }
}

/// Does to each object what its place in the walk says; what was saved must still be a drawing.
void changeArt(Document& document) {
    document.undo().open(); // what is removed lives on
    std::vector<Art*> all;
    Art& root = document.root();
    for (Art* art = nextInPreorder(root, root); art != nullptr && all.size() < 200;
         art = nextInPreorder(*art, root))
        if (!art->isLayer() && layerOf(*art) != nullptr) all.push_back(art);
    constexpr ai::int32 kAll = kTransformObjects | kTransformChildren | kTransformFillGradients |
                               kTransformFillPatterns | kTransformStrokeGradients |
                               kTransformStrokePatterns;
    for (std::size_t i = 0; i < all.size(); ++i) {
        Art& art = *all[i];
        if (!art.isAlive() || art.parent()->type() == kCompoundPathArt) continue;
        switch (i % 5) {
        case 0:
            transformArt(duplicateArt(art, onTopOf(*art.parent())), {-1, 0, 0, 1, 100, 0}, 1, kAll);
            break;
        case 1:
            art.write().attributes |= kArtLocked | kArtHidden;
            break;
        case 2:
            transformArt(art, {0, 1, -1, 0, 5, 5}, 1, kAll);
            break;
        case 3:
            moveArt(art, onTopOf(*art.parent()));
            break;
        default:
            disposeArt(art);
        }
    }
    document.undo().close();
}

} // namespace

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size) {
    constexpr std::size_t kLargestInput = std::size_t{256} * 1024;
    if (size > kLargestInput) return 0;
    try {
        const svg::OpenedDrawing opened = svg::readSvgText(
            easel::session(), {reinterpret_cast<const char*>(data), size}, "fuzz.svg");
        const std::string text{reinterpret_cast<const char*>(data), size};
        const std::string saved = svg::svgText(*opened.document);
        require(saved == text, "an untouched drawing is saved otherwise",
                text + "\n--- other\n" + saved);
        NoPainter painter;
        paint::paintArt(*opened.document, painter);
        require(painter.depth == 0 && painter.groups == 0, "saved states are left");
        changeArt(*opened.document);
        saveAndReopen(*opened.document);
    } catch (const svg::FileError&) {
        // Most inputs are no drawings.
    }
    return 0;
}

/// Any bytes as a drawing: reading ends, limits hold, what is written reads back as the same, and
/// painting ends.

#include "easel/document/Dump.h"
#include "easel/paint/PaintDocument.h"
#include "easel/svg/SvgFile.h"

#include <cstdint>
#include <cstdio>
#include <cstdlib>

namespace {

using namespace easel;

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
    paint::Point imageSize(std::span<const std::byte>) override { return {1, 1}; }

    int depth = 0;
    int groups = 0;
};

void require(bool holds, const char* what, const std::string& one, const std::string& other) {
    if (holds) return;
    std::fprintf(stderr, "broken: %s\n--- one\n%s\n--- other\n%s\n", what, one.c_str(),
                 other.c_str());
    std::abort();
}

void saveAndReopen(const Document& document) {
    const std::string saved = svg::svgText(document);
    try {
        const svg::OpenedDrawing again = svg::readSvgText(saved, "saved.svg");
        const std::string dumped = dump(document);
        const std::string reopened = dump(*again.document);
        require(dumped == reopened, "the reopened drawing is another one", dumped, reopened);
        const std::string second = svg::svgText(*again.document);
        require(saved == second, "the second save is another text", saved, second);
    } catch (const svg::FileError& error) {
        require(false, "what was saved cannot be opened", saved, error.what());
    }
}

} // namespace

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size) {
    constexpr std::size_t kLargestInput = std::size_t{256} * 1024;
    if (size > kLargestInput) return 0;
    try {
        const svg::OpenedDrawing opened =
            svg::readSvgText({reinterpret_cast<const char*>(data), size}, "fuzz.svg");
        saveAndReopen(*opened.document);
        NoPainter painter;
        paint::paintArt(*opened.document, painter);
        require(painter.depth == 0 && painter.groups == 0, "saved states are left", {}, {});
    } catch (const svg::FileError&) {
        // Most inputs are no drawings.
    }
    return 0;
}

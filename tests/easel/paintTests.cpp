#include "easel/document/ArtTree.h"
#include "easel/document/Session.h"
#include "easel/document/TransformArt.h"
#include "easel/paint/PaintDocument.h"
#include "easel/paint/Raster.h"
#include "easel/svg/SvgFile.h"

#include <doctest/doctest.h>

#include <cmath>
#include <cstdlib>
#include <filesystem>
#include <fstream>

using namespace easel;
using namespace easel::paint;

namespace {

svg::OpenedDrawing open(const std::string& content) {
    return svg::readSvgText(easel::session(), "<svg viewBox='0 0 40 40'>" + content + "</svg>",
                            "x");
}

Picture painted(const std::string& content) { return paintDocument(*open(content).document); }

/// "rgba" with each channel 0 to 9.
std::string pixel(const Picture& picture, int x, int y) {
    const Colour colour = picture.at(x, y);
    std::string text;
    for (const float channel : {colour.red, colour.green, colour.blue, colour.alpha})
        text += std::to_string(std::lround(channel * 9.0F));
    return colour.alpha == 0 ? "none" : text;
}

struct Probe {
    int x;
    int y;
    const char* colour;
};

void check(const Picture& picture, std::initializer_list<Probe> probes) {
    for (const auto& probe : probes) {
        CAPTURE(probe.x);
        CAPTURE(probe.y);
        CHECK(pixel(picture, probe.x, probe.y) == std::string{probe.colour});
    }
}

} // namespace

TEST_CASE("a square fills exactly its pixels") {
    const Picture picture = painted("<rect x='10' y='5' width='10' height='20' fill='red'/>");
    REQUIRE(picture.width == 40);
    int filled = 0;
    for (int y = 0; y < 40; ++y)
        for (int x = 0; x < 40; ++x) {
            const bool inside = x >= 10 && x < 20 && y >= 5 && y < 25;
            if (pixel(picture, x, y) == (inside ? "9009" : "none")) ++filled;
        }
    CHECK(filled == 1600);
}

TEST_CASE("pictures show what the drawing says") {
    struct Row {
        const char* what;
        const char* content;
        std::initializer_list<Probe> probes;
    };
    const Row rows[] = {
        {"a layer's clip path cuts its members",
         "<clipPath id='c'><rect x='10' y='10' width='10' height='10'/></clipPath>"
         "<g inkscape:groupmode='layer' clip-path='url(#c)' transform='translate(5 0)'>"
         "<rect width='40' height='40' fill='red'/></g>",
         {{12, 15, "none"}, {17, 15, "9009"}, {27, 15, "none"}}},
        {"even-odd leaves a hole",
         "<path fill-rule='evenodd' d='M0 0H40V40H0ZM10 10H30V30H10Z'/>",
         {{5, 5, "0009"}, {20, 20, "none"}}},
        {"non-zero does not", "<path d='M0 0H40V40H0ZM10 10H30V30H10Z'/>", {{20, 20, "0009"}}},
        {"a clip path cuts",
         "<clipPath id='c'><rect width='20' height='40'/></clipPath><g clip-path='url(#c)'>"
         "<rect width='40' height='40' fill='lime'/></g><rect x='30' width='5' height='5'/>",
         {{10, 10, "0909"}, {25, 20, "none"}, {32, 2, "0009"}}},
        {"a group's opacity covers all of it as one",
         "<g opacity='.33333'><rect width='20' height='20' fill='red'/><rect x='10' width='20' "
         "height='20' fill='blue'/></g>",
         {{5, 5, "9003"}, {15, 5, "0093"}}},
        {"fill and stroke of a shape fade as one",
         "<rect x='10' y='10' width='20' height='20' fill='red' stroke='blue' stroke-width='8' "
         "opacity='.33333'/>",
         {{20, 20, "9003"}, {12, 20, "0093"}, {8, 20, "0093"}, {4, 20, "none"}}},
        {"a stroke has its width and cap",
         "<path d='M10 20H30' stroke='red' stroke-width='10' stroke-linecap='square'/>",
         {{6, 20, "9009"}, {20, 16, "9009"}, {20, 14, "none"}, {4, 20, "none"}}},
        {"dashes begin on",
         "<path d='M0 20H40' stroke='red' stroke-width='10' stroke-dasharray='10 10'/>",
         {{5, 20, "9009"}, {15, 20, "none"}, {25, 20, "9009"}}},
        {"a gradient runs over the bounds",
         "<linearGradient id='g'><stop offset='.5' stop-color='red'/><stop offset='.5' "
         "stop-color='blue'/></linearGradient><rect width='40' height='40' fill='url(#g)'/>",
         {{10, 20, "9009"}, {30, 20, "0099"}}},
        {"a radial gradient has rings",
         "<radialGradient id='g'><stop offset='.5' stop-color='red'/><stop offset='.5' "
         "stop-color='blue'/></radialGradient><rect width='40' height='40' fill='url(#g)'/>",
         {{20, 20, "9009"}, {14, 20, "9009"}, {7, 20, "0099"}, {2, 2, "0099"}}},
        {"a pattern repeats",
         "<pattern id='p' width='10' height='10' patternUnits='userSpaceOnUse'><rect width='5' "
         "height='10' fill='red'/></pattern><rect width='40' height='40' fill='url(#p)'/>",
         {{2, 20, "9009"}, {7, 20, "none"}, {22, 20, "9009"}}},
        {"tiles too small and far away to tell one from the next come to an end",
         "<pattern id='p' x='1e9' width='1e-8' height='10' patternUnits='userSpaceOnUse'><rect "
         "width='10' height='10'/></pattern><rect width='1e-6' height='40' fill='url(#p)'/>"
         "<rect width='40' height='40' fill='red'/>",
         {{20, 20, "9009"}}},
        {"a symbol is fitted in",
         "<symbol id='s' viewBox='0 0 2 2'><rect width='1' height='2'/></symbol>"
         "<use href='#s' x='10' y='10' width='20' height='20' fill='red'/>",
         {{15, 20, "9009"}, {25, 20, "none"}, {5, 20, "none"}}},
        {"nor are guides",
         "<rect width='40' height='40' easel:guide='true' display='none'/>",
         {{0, 0, "none"}}},
    };
    for (const auto& row : rows) {
        INFO(std::string{row.what});
        check(painted(row.content), row.probes);
    }
}

TEST_CASE("a mirrored copy shows its gradient mirrored") {
    const auto opened =
        open("<linearGradient id='g'><stop offset='.3' stop-color='red'/><stop offset='.3' "
             "stop-color='blue'/></linearGradient><rect width='20' height='40' fill='url(#g)'/>");
    Art& art = *opened.document->root().firstChild()->firstChild();
    transformArt(duplicateArt(art, onTopOf(*art.parent())), {-1, 0, 0, 1, 40, 0}, 1,
                 kTransformObjects | kTransformFillGradients);
    check(paintDocument(*opened.document),
          {{3, 20, "9009"}, {10, 20, "0099"}, {30, 20, "0099"}, {37, 20, "9009"}});
}

TEST_CASE("mirrored text is painted mirrored") {
    const auto leftAndRight = [](const std::string& transform) {
        const Picture picture = painted("<text y='36' font-size='48' " + transform + ">L</text>");
        int low[2] = {}; // the foot of an L points to the right
        for (int y = 0; y < 20; ++y)
            for (int x = 0; x < 40; ++x)
                if (picture.at(x, y).alpha > 0.5F) ++low[x < 20 ? 0 : 1];
        return low[0] > low[1];
    };
    CHECK(leftAndRight(""));
    CHECK_FALSE(leftAndRight("transform='matrix(-1 0 0 1 40 0)'"));
}

TEST_CASE("an image held in the drawing is shown") {
    const std::string red = "iVBORw0KGgoAAAANSUhEUgAAAAEAAAABCAIAAACQd1PeAAAADElEQVR4nGP4z8AAAAMBAQ"
                            "DJ/pLvAAAAAElFTkSuQmCC";
    const Picture picture = painted("<image x='10' y='10' width='20' height='20' "
                                    "href='data:image/png;base64," +
                                    red + "'/>");
    check(picture, {{20, 20, "9009"}, {5, 20, "none"}});
    check(
        painted("<image x='10' y='10' width='20' height='20' href='data:image/png;base64,QUJD'/>"),
        {{20, 20, "none"}}); // a frame
}

TEST_CASE("scale, background, guides and overlay as the options say") {
    PaintOptions options;
    options.scale = 2;
    options.background = Colour{1, 1, 1, 1};
    options.guides = true;
    options.overlay = [](Painter& painter) { // soft coordinates: y upwards
        painter.fill({{{svg::cornerAt({0, 0}), svg::cornerAt({5, 0}), svg::cornerAt({5, -5}),
                        svg::cornerAt({0, -5})},
                       true}},
                     FillRule::NonZero, {{0, 1, 0, 1}, nullptr, {}});
    };
    const auto opened = open("<path d='M20 0V40' easel:guide='true'/>");
    const Picture picture = paintDocument(*opened.document, options);
    CHECK(picture.width == 80);
    check(picture, {{4, 4, "0909"}, {70, 70, "9999"}});
    CHECK(picture.at(40, 60).red < 0.9F);
}

TEST_CASE("deep groups and multiplying symbols end") {
    const auto opened = open("<path d='M0 0H40V40Z'/>");
    Document& document = *opened.document;
    Art* parent = document.root().firstChild();
    for (int i = 0; i < 20'000; ++i)
        parent = &createArt(document, kGroupArt, onTopOf(*parent));
    duplicateArt(*document.root().firstChild()->lastChild(), onTopOf(*parent));
    check(paintDocument(document), {{30, 10, "0009"}});
    CHECK(svg::svgText(document).size() > 20'000);
}

TEST_CASE("a picture beyond the limits is refused") {
    PaintOptions options;
    options.scale = 1e6;
    CHECK_THROWS_AS(static_cast<void>(paintDocument(*open("").document, options)),
                    std::length_error);
}

TEST_CASE("a raster covers as much of each pixel as the shape does") {
    constexpr int kSide = 16;
    constexpr std::uint32_t kBlack = 0xFF000000;
    const PixelRect all[] = {{0, 0, kSide, kSide}};
    const PixelRect corner[] = {{0, 0, 8, 3}, {0, 3, 4, 8}};
    using Points = std::vector<Point>;
    const Points square{{2, 2}, {12, 2}, {12, 12}, {2, 12}};
    const Points inner{{4, 4}, {8, 4}, {8, 8}, {4, 8}};
    const Points backwards{{4, 4}, {4, 8}, {8, 8}, {8, 4}};
    struct Row {
        const char* what;
        std::vector<Points> figures;
        double width; ///< Of a line; 0: a shape.
        FillRule rule;
        std::span<const PixelRect> clip;
        double area;
    };
    const Row rows[] = {
        {"a square", {square}, 0, FillRule::NonZero, all, 100},
        {"two that overlap", {square, inner}, 0, FillRule::NonZero, all, 100},
        {"one within the other", {square, inner}, 0, FillRule::EvenOdd, all, 84},
        {"a hole", {square, backwards}, 0, FillRule::NonZero, all, 84},
        {"edges within pixels",
         {{{2.25, 2.5}, {5, 2.5}, {5, 4}, {2.25, 4}}},
         0,
         FillRule::NonZero,
         all,
         4.125},
        {"flat and steep edges", {{{1, 1}, {15, 2.5}, {3, 14}}}, 0, FillRule::NonZero, all, 89.5},
        {"beyond all sides",
         {{{-1e7, -1e7}, {1e7, -1e7}, {1e7, 1e7}, {-1e7, 1e7}}},
         0,
         FillRule::NonZero,
         all,
         256},
        {"no number", {{{std::nan(""), 1}, {5, 9}, {1, 9}}}, 0, FillRule::NonZero, all, 0},
        {"within a clip", {square}, 0, FillRule::NonZero, corner, 16},
        {"a line with a corner", {{{2, 3}, {12, 3}, {12, 13}}}, 1, FillRule::NonZero, all, 20},
    };
    Raster raster(kSide, kSide); // each shape is forgotten before the next
    for (const Row& row : rows) {
        CAPTURE(row.what);
        std::vector<std::uint32_t> pixels(kSide * kSide);
        for (const Points& figure : row.figures)
            if (row.width > 0)
                raster.addLine(figure, row.width);
            else
                for (std::size_t i = 0; i < figure.size(); ++i)
                    raster.addEdge(figure[i], figure[(i + 1) % figure.size()]);
        raster.paint(pixels.data(), row.clip, row.rule, kBlack);
        double area = 0;
        for (const std::uint32_t pixel : pixels)
            area += (pixel >> 24) / 255.0;
        CHECK(area == doctest::Approx(row.area).epsilon(0.005));
    }
    CHECK(composed(0xFF0000FF, 0x80800000, 255) == 0xFF80007F);
    CHECK(composed(0xFF0000FF, 0x80800000, 0) == 0xFF0000FF);
}

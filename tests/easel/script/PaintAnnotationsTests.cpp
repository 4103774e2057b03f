#include "easel/paint/PaintAnnotations.h"

#include "easel/document/Session.h"
#include "easel/paint/PaintView.h"

#include <doctest/doctest.h>

#include <cmath>
#include <fstream>
#include <iterator>

using namespace easel;
using namespace easel::paint;

namespace {

using Kind = DrawCommand::Kind;

constexpr AIRGBColor kRed{65535, 0, 0};

/// Painted over white, at `scale` pixels to one of the view, which is `view` pixels wide and high.
Picture painted(const DisplayList& list, double scale = 1.0, int view = 40) {
    const int side = static_cast<int>(view * scale);
    return render(side, side, [&](Painter& painter) {
        const auto size = static_cast<double>(side);
        painter.fill({{{svg::cornerAt({0, 0}), svg::cornerAt({size, 0}),
                        svg::cornerAt({size, size}), svg::cornerAt({0, size})},
                       true}},
                     FillRule::NonZero, {{1, 1, 1, 1}, nullptr, {}});
        painter.transform({scale, 0, 0, scale, 0, 0});
        paintAnnotations(list, painter);
    });
}

/// How much red there is, 0 to 100: 100 minus what is left of green.
int red(const Picture& picture, int x, int y) {
    return static_cast<int>(std::lround(100 - 100 * picture.at(x, y).green));
}

DrawCommand shape(Kind kind, std::vector<AIPoint> points, bool fill = false) {
    DrawCommand command{.kind = kind, .style = {}, .points = std::move(points), .fill = fill};
    command.style.colour = kRed;
    return command;
}

} // namespace

TEST_CASE("lines a pixel wide fill pixels, at every density") {
    for (const int scale : {1, 2}) {
        INFO(scale);
        const Picture picture =
            painted({shape(Kind::Line, {{10, 20}, {30, 20}})}, static_cast<double>(scale));
        for (int row = 0; row < 40 * scale; ++row)
            CHECK(red(picture, 20 * scale, row) == (row / scale == 20 ? 100 : 0));
    }
}

TEST_CASE("each kind is painted where it lies") {
    struct Probe {
        int x;
        int y;
        int red;
    };
    struct Row {
        std::string what;
        DrawCommand command;
        std::vector<Probe> probes;
    };
    DrawCommand dashed = shape(Kind::Line, {{4, 10}, {36, 10}});
    dashed.style.dashed = true;
    DrawCommand pale = shape(Kind::Rect, {{5, 5}, {35, 35}}, true);
    pale.style.opacity = 0.5F;
    const Row rows[] = {
        {"the outline of a rect",
         shape(Kind::Rect, {{5, 5}, {35, 30}}),
         {{5, 20, 100}, {20, 5, 100}, {35, 20, 100}, {20, 20, 0}, {4, 5, 0}, {36, 30, 0}}},
        {"a filled rect",
         shape(Kind::Rect, {{5, 5}, {35, 30}}, true),
         {{20, 20, 100}, {6, 6, 100}, {37, 20, 0}, {20, 32, 0}}},
        {"half opaque", pale, {{20, 20, 50}}},
        {"a polygon",
         shape(Kind::Polygon, {{5, 5}, {35, 5}, {5, 35}}, true),
         {{10, 10, 100}, {30, 30, 0}}},
        {"the last side of an outline closes it",
         shape(Kind::Polygon, {{5, 5}, {35, 5}, {35, 35}, {5, 35}}),
         {{5, 20, 100}, {20, 20, 0}}},
        {"an ellipse",
         shape(Kind::Ellipse, {{5, 10}, {35, 30}}, true),
         {{20, 20, 100}, {7, 20, 100}, {6, 11, 0}, {34, 29, 0}}},
        {"a curve",
         shape(Kind::Bezier, {{0, 20}, {10, 20}, {30, 20}, {39, 20}}),
         {{20, 20, 100}, {20, 22, 0}}},
        {"four on, four off",
         dashed,
         {{5, 10, 100}, {7, 10, 100}, {9, 10, 0}, {11, 10, 0}, {13, 10, 100}}},
    };
    for (const auto& row : rows) {
        INFO(row.what);
        const Picture picture = painted({row.command});
        for (const Probe& probe : row.probes) {
            INFO(probe.x << ',' << probe.y);
            CHECK(std::abs(red(picture, probe.x, probe.y) - probe.red) <= 7);
        }
    }
}

TEST_CASE("a clip is all that is drawn between its marks, and ends when it is cleared") {
    const DisplayList list = {
        shape(Kind::ClipStart, {}),
        shape(Kind::Rect, {{0, 0}, {20, 20}}, true),
        shape(Kind::Polygon, {{10, 10}, {10, 30}, {30, 30}, {30, 10}}, true), // the other way round
        shape(Kind::ClipEnd, {}),
        shape(Kind::Rect, {{-10, -10}, {60, 60}}, true),
        shape(Kind::ClipClear, {}),
        shape(Kind::Rect, {{36, 0}, {38, 4}}, true),
    };
    const Picture picture = painted(list);
    CHECK(red(picture, 5, 5) == 100);
    CHECK(red(picture, 15, 15) == 100); // in both
    CHECK(red(picture, 25, 25) == 100);
    CHECK(red(picture, 25, 5) == 0);
    CHECK(red(picture, 35, 35) == 0);
    CHECK(red(picture, 37, 2) == 100);
}

TEST_CASE("a text is as wide as it is told to be") {
    for (const char32_t* const words : {U"Constrain Angle", U"Specify Number of Axes", U"Illill"}) {
        DrawCommand text = shape(Kind::Text, {{10, 25}});
        text.text = words;
        const Picture picture = painted({text}, 1.0, 200);
        int end = 0;
        for (int x = 0; x < 200; ++x)
            for (int y = 0; y < 40; ++y)
                if (red(picture, x, y) > 30) end = x + 1;
        constexpr double kBearing = 2.0; // the last letter's own, and the start's half pixel
        CHECK(std::abs(end - 10 - annotationWidth(text.text, text.style)) <= kBearing);
    }
}

TEST_CASE(
    "the window shows pasteboard, paper and art where the view says, and annotations over them") {
    Document document(easel::session(), AISize{100, 100});
    DocumentView view{};
    view.document = &document;
    view.centre = {50, -50};
    view.width = 120;
    view.height = 80;
    setZoom(view, 0.5F); // the paper is 50 by 50 pixels in the middle
    const Picture picture = paintView(view, {shape(Kind::Rect, {{100, 5}, {110, 15}}, true)});
    CHECK(picture.width == 120);
    CHECK(picture.height == 80);
    CHECK(red(picture, 60, 40) == 0); // paper is white
    CHECK(red(picture, 36, 16) == 0);
    CHECK(red(picture, 10, 40) > 10); // the pasteboard is grey
    CHECK(red(picture, 105, 10) == 100);
    const Picture dense = paintView(view, {}, {.scale = 2, .darkTheme = true});
    CHECK(dense.width == 240);
    CHECK(red(dense, 120, 80) == 0);
    CHECK(red(dense, 20, 80) > red(picture, 10, 40));
}

TEST_CASE("a picture that is written and read again is the same; a moved shape is a difference") {
    const Picture picture = painted({shape(Kind::Ellipse, {{5, 5}, {30, 30}}, true)});
    const auto file = std::filesystem::temp_directory_path() / "easel-picture.png";
    writePng(picture, file);
    std::ifstream stream(file, std::ios::binary);
    const std::string content{std::istreambuf_iterator<char>(stream), {}};
    stream.close();
    std::filesystem::remove(file);
    const auto read = readPng(std::as_bytes(std::span{content}));
    REQUIRE(read);
    CHECK(difference(picture, *read) == 0);
    const Picture moved = painted({shape(Kind::Ellipse, {{8, 5}, {33, 30}}, true)});
    CHECK(difference(picture, moved) > 0.02);
    CHECK(difference(picture, moved) < 0.2);
    CHECK_FALSE(readPng(std::as_bytes(std::span{content}.first(20))));
    CHECK(difference(picture, painted({}, 2)) == 1);
}

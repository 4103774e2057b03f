#include "easel/svg/Colour.h"
#include "easel/svg/Numbers.h"
#include "easel/svg/PathData.h"
#include "easel/svg/StyleSheet.h"
#include "easel/svg/Transform.h"

#include <doctest/doctest.h>

#include <cmath>

using namespace easel::svg;

namespace {

std::string text(Point p) {
    const auto rounded = [](double value) { return formatNumber(std::round(value * 1e4) / 1e4); };
    return rounded(p.x) + ',' + rounded(p.y);
}

/// Every curve with all its points: "0,0 [1,1 2,2] 3,3", straight pieces without handles, "z" for
/// closed.
std::string text(const Outline& outline) {
    std::string result;
    for (const Subpath& subpath : outline) {
        if (!result.empty()) result += " | ";
        const auto& anchors = subpath.anchors;
        result += text(anchors.front().p);
        for (std::size_t i = 1; i < anchors.size() + (subpath.closed ? 1 : 0); ++i) {
            const Anchor& from = anchors[i - 1];
            const Anchor& to = anchors[i % anchors.size()];
            const bool straight = from.out == from.p && to.in == to.p;
            if (!straight) result += " [" + text(from.out) + ' ' + text(to.in) + ']';
            if (i < anchors.size()) result += ' ' + text(to.p);
        }
        if (subpath.closed) result += " z";
    }
    return result;
}

} // namespace

TEST_CASE("path data draws what its grammar says") {
    struct Row {
        const char* data;
        const char* curves;
    };
    const Row rows[] = {
        {"M1 2L3 4", "1,2 3,4"},
        {"m1,2 3,4", "1,2 4,6"},
        {"M1 2 3 4 5 6", "1,2 3,4 5,6"},
        {"M0 0H5V5h-5z", "0,0 5,0 5,5 0,5 z"},
        {"M.5.5-1-1", "0.5,0.5 -1,-1"},
        {"M1e1+2L3-4", "10,2 3,-4"},
        {"M0 0c1 0 2 1 2 2s1 2 2 2", "0,0 [1,0 2,1] 2,2 [2,3 3,4] 4,4"},
        {"M0 0S1 1 2 0", "0,0 [0,0 1,1] 2,0"},
        {"M0 0Q3 3 6 0T12 0", "0,0 [2,2 4,2] 6,0 [8,-2 10,-2] 12,0"},
        {"M0 0L1 1T3 3", "0,0 1,1 [1,1 1.6667,1.6667] 3,3"},
        {"M0 0zl1 1", "0,0 z | 0,0 1,1"},
        {"M0 0L2 0L2 2L0 0Z", "0,0 2,0 2,2 z"},
        {"M0 0L2 0m1 1l1 0", "0,0 2,0 | 3,1 4,1"},
        {"M2 0A2 2 0 0 1 0 2", "2,0 [2,1.1046 1.1046,2] 0,2"},
        {"M2 0a2 2 0 01-2 2", "2,0 [2,1.1046 1.1046,2] 0,2"},
        {"M0 0A0 5 0 0 1 4 0", "0,0 4,0"},
        {"M1 1A5 5 0 0 1 1 1", "1,1"},
    };
    for (const auto& row : rows) {
        INFO(std::string{row.data});
        const PathData read = parsePathData(row.data);
        CHECK(read.error.empty());
        CHECK(text(read.outline) == row.curves);
    }
}

TEST_CASE("a mistake in path data keeps what comes before it") {
    struct Row {
        const char* data;
        const char* error;
        std::size_t anchors;
    };
    const Row rows[] = {
        {"L1 1", "M or m", 0},         {"M1 1L2", "a number", 1},
        {"M1 1L2 2x", "a command", 2}, {"M0 0A1 1 0 2 0 5 5", "flags", 1},
        {"M0 0L1e999 0", "number", 1}, {"M0 0L2e9 0", "beyond 1e9", 1},
        {"M0 0L nan 0", "number", 1},  {"M0 0H0x10", "command", 2},
    };
    for (const auto& row : rows) {
        INFO(std::string{row.data});
        const PathData read = parsePathData(row.data);
        CHECK(read.error.find(row.error) != std::string::npos);
        CHECK((read.outline.empty() ? 0 : read.outline.front().anchors.size()) == row.anchors);
    }
}

TEST_CASE("an arc's points lie on its ellipse, on the side that its flags say") {
    for (const bool large : {false, true}) {
        for (const bool sweep : {false, true}) {
            CAPTURE(large);
            CAPTURE(sweep);
            Subpath arc{{cornerAt({10, 0})}, false};
            appendArc(arc, {10, 5}, 0, large, sweep, {0, 5});
            const Point centre = large == sweep ? Point{10, 5} : Point{0, 0};
            for (const Anchor& anchor : arc.anchors)
                CHECK(std::hypot((anchor.p.x - centre.x) / 10, (anchor.p.y - centre.y) / 5) ==
                      doctest::Approx(1.0));
            CHECK(arc.anchors.size() == (large ? 4 : 2));
            CHECK(arc.anchors.back().p == Point{0, 5});
        }
    }
}

TEST_CASE("an ellipse that is too small is drawn as large as need be") {
    Subpath arc{{cornerAt({0, 0})}, false};
    appendArc(arc, {1, 1}, 0, false, true, {10, 0});
    const Box box = boundsOf({arc});
    CHECK(box.min.y == doctest::Approx(-5).epsilon(0.001));
    CHECK(box.max.x == doctest::Approx(10));
}

TEST_CASE("bounds are those of the curve, not of its handles") {
    const Box box = boundsOf(parsePathData("M0 0C0 4 4 4 4 0").outline);
    CHECK(box.max.y == doctest::Approx(3));
    CHECK(box.min.x == doctest::Approx(0));
}

TEST_CASE("transforms are applied from the right to the left") {
    struct Row {
        const char* transform;
        Point image; ///< Of (1, 2).
    };
    const Row rows[] = {
        {"translate(10)", {11, 2}},
        {"scale(2 -1)", {2, -2}},
        {"rotate(90)", {-2, 1}},
        {"rotate(90 1 1)", {0, 1}},
        {"skewX(45)", {3, 2}},
        {"skewY(45)", {1, 3}},
        {"matrix(1 2 3 4 5 6)", {12, 16}},
        {"translate(10 0) scale(2)", {12, 4}},
        {"scale(2),translate(10 0)", {22, 4}},
        {" translate ( 1 , 1 ) ", {2, 3}},
    };
    for (const auto& row : rows) {
        INFO(std::string{row.transform});
        const auto matrix = parseTransform(row.transform);
        REQUIRE(matrix);
        const Point result = *matrix * Point{1, 2};
        CHECK(result.x == doctest::Approx(row.image.x));
        CHECK(result.y == doctest::Approx(row.image.y));
    }
    for (const char* bad : {"turn(3)", "scale()", "rotate(1 2)", "translate(1", "matrix(1 2 3)",
                            "translate(1) x", "scale(inf)"}) {
        INFO(std::string{bad});
        CHECK_FALSE(parseTransform(bad));
    }
}

TEST_CASE("a matrix and its inverse cancel, and a flat one has none") {
    const Matrix matrix = *parseTransform("translate(3 4) rotate(30) skewX(10) scale(2 -3)");
    const Point back = *inverse(matrix) * (matrix * Point{5, 7});
    CHECK(back.x == doctest::Approx(5));
    CHECK(back.y == doctest::Approx(7));
    CHECK(*parseTransform(formatTransform(matrix)) == matrix);
    CHECK_FALSE(inverse(Matrix{1, 2, 2, 4, 0, 0}));
}

TEST_CASE("colours in all their spellings") {
    struct Row {
        const char* text;
        const char* hex; ///< Empty: no colour.
        float alpha;
    };
    const Row rows[] = {
        {"red", "#ff0000", 1},
        {" RebeccaPurple ", "#663399", 1},
        {"#abc", "#aabbcc", 1},
        {"#1238", "#112233", 136.0F / 255.0F},
        {"#11223344", "#112233", 68.0F / 255.0F},
        {"rgb(100%, 0%, 20%)", "#ff0033", 1},
        {"rgb(300 -5 0)", "#ff0000", 1},
        {"rgba(0,0,255,.5)", "#0000ff", 0.5},
        {"rgb(0 0 255 / 50%)", "#0000ff", 0.5},
        {"hsl(120,100%,50%)", "#00ff00", 1},
        {"transparent", "#000000", 0},
        {"#12", "", 0},
        {"rgb(1,2,3", "", 0},
        {"reddish", "", 0},
    };
    for (const auto& row : rows) {
        INFO(std::string{row.text});
        const auto colour = parseColour(row.text);
        CHECK(colour.has_value() == (row.hex[0] != '\0'));
        if (!colour) continue;
        CHECK(formatColour(*colour) == row.hex);
        CHECK(colour->alpha == doctest::Approx(row.alpha));
    }
}

TEST_CASE("a colour between bytes keeps all its digits") {
    const Colour colour{0.1F, 1.0F / 3.0F, 0.7F, 1.0F};
    CHECK(*parseColour(formatColour(colour)) == colour);
}

TEST_CASE("lengths and fractions") {
    CHECK(*parseLength("1in", 0) == 96);
    CHECK(*parseLength("72pt", 0) == doctest::Approx(96));
    CHECK(*parseLength("25.4mm", 0) == doctest::Approx(96));
    CHECK(*parseLength("50%", 80) == 40);
    CHECK(*parseLength("2em", 0, 10) == 20);
    CHECK_FALSE(parseLength("5 parsecs", 0));
    CHECK_FALSE(parseLength("", 0));
    CHECK(*parseFraction("150%") == 1);
    CHECK(*parseFraction("-1") == 0);
}

TEST_CASE("numbers read back as they were, however they are written") {
    for (const float value : {0.1F, -1e-20F, 16777217.0F, 3.4e38F, 1.0F / 3.0F, -0.0F}) {
        CAPTURE(value);
        CHECK(static_cast<float>(*parseNumber(formatNumber(value))) == value);
    }
    CHECK(formatNumber(-0.0F) == "0");
    for (const char* none : {"", "inf", "nan", "0x10", "1e400", "--1", "1 2", "."}) {
        INFO(std::string{none});
        CHECK_FALSE(parseNumber(none));
    }
}

TEST_CASE("the stronger, then the later rule of a style sheet wins") {
    StyleSheet sheet;
    sheet.add("/* note */ @import url(x.css); @media print { path { fill: none } }\n"
              "path { fill: black; stroke: red } .a { fill: green } #i { fill: blue }"
              "g > path.b { fill: white } svg .deep { fill: gray } path:hover { fill: pink }"
              "circle, ellipse { fill: gold !important }");
    struct Row {
        std::vector<ElementName> path;
        const char* fill; ///< Empty: no rule says.
    };
    const Row rows[] = {
        {{{"path", "", ""}}, "black"},
        {{{"path", "", "x a"}}, "green"},
        {{{"path", "i", "a"}}, "blue"},
        {{{"g", "", ""}, {"path", "", "a b"}}, "white"},
        {{{"svg", "", ""}, {"path", "", "b"}}, "black"},
        {{{"svg", "", ""}, {"g", "", ""}, {"rect", "", "deep"}}, "gray"},
        {{{"rect", "", ""}}, ""},
    };
    for (const auto& row : rows) {
        INFO(std::string{row.fill});
        std::string found;
        for (const Declaration* declaration : sheet.matching(row.path, false))
            if (declaration->property == "fill") found = declaration->value;
        CHECK(found == row.fill);
    }
    CHECK(sheet.matching({{"circle", "", ""}}, true).front()->value == "gold");
    CHECK(sheet.matching({{"circle", "", ""}}, false).empty());
}

TEST_CASE("declarations may hold semicolons in quotes and parentheses") {
    const auto declarations =
        parseDeclarations("fill: url(data:x;y) ; font-family:'a;b';; stroke :red!important");
    REQUIRE(declarations.size() == 3);
    CHECK(declarations[0].value == "url(data:x;y)");
    CHECK(declarations[1].value == "'a;b'");
    CHECK(declarations[2].property == "stroke");
    CHECK(declarations[2].important);
}

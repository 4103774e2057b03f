#include "easel/script/ShownAxes.h"

#include <doctest/doctest.h>

#include <cmath>
#include <numbers>

using namespace easel;
using namespace easel::script;

namespace {

using Kind = DrawCommand::Kind;

constexpr double kPi = std::numbers::pi;

AIPoint pixel(double x, double y) {
    return {static_cast<ai::int32>(std::lround(x)), static_cast<ai::int32>(std::lround(y))};
}

/// Axes as an annotator draws them in a window of 1280 by 800, at `degrees` counter-clockwise.
DisplayList drawnAxes(int count, double degrees, double x, double y) {
    DisplayList list;
    const double angle = degrees * kPi / 180;
    const auto at = [&](double direction, double along, double across) {
        return pixel(x + along * std::cos(direction) - across * std::sin(direction),
                     y - along * std::sin(direction) - across * std::cos(direction));
    };
    for (int i = 0; i < count; ++i) {
        const double direction = angle + i * kPi / count;
        list.push_back({.kind = Kind::Line,
                        .style = {},
                        .points = {at(direction, -300, 0), at(direction, 300, 0)}});
    }
    for (const double side : {1.0, -1.0}) {
        const double direction = side > 0 ? angle : angle + kPi / count;
        list.push_back(
            {.kind = Kind::Polygon,
             .style = {},
             .points = {at(direction, 72, 0), at(direction, 76, 6 * side), at(direction, 80, 0)}});
    }
    list.push_back(
        {.kind = Kind::Ellipse, .style = {}, .points = {pixel(x - 4, y - 4), pixel(x + 4, y + 4)}});
    return list;
}

} // namespace

TEST_CASE("axes are read off what is drawn, whatever their number and angle") {
    for (const int count : {1, 2, 3, 5, 12, 72}) {
        for (const double degrees : {0.0, 10.0, 45.0, 100.0, 181.0, 275.5, 359.0}) {
            INFO(count << " at " << degrees);
            const auto axes = shownAxes(drawnAxes(count, degrees, 640, 400));
            REQUIRE(axes);
            CHECK(axes->count == count);
            CHECK(std::hypot(axes->origin.x - 640, axes->origin.y - 400) <= 0.5);
            REQUIRE(axes->angleDegrees);
            CHECK(std::abs(std::remainder(*axes->angleDegrees - degrees, 360.0)) < 0.25);
        }
    }
}

TEST_CASE("without the mark of the origin it is where lines cross; other drawing does not count") {
    DisplayList list = drawnAxes(3, 20, 300, 200);
    list.pop_back();
    list.push_back({.kind = Kind::Line, .style = {}, .points = {{0, 0}, {500, 20}}});
    list.push_back({.kind = Kind::Line, .style = {}, .points = {{0, 200}, {500, 200}}});
    list.back().style.dashed = true;
    const auto axes = shownAxes(list);
    REQUIRE(axes);
    CHECK(axes->count == 3);
    CHECK(std::hypot(axes->origin.x - 300, axes->origin.y - 200) < 1.5);
}

TEST_CASE("no lines, no axes; no triangles, no first axis") {
    CHECK_FALSE(shownAxes({}));
    DisplayList list = drawnAxes(2, 0, 100, 100);
    std::erase_if(list, [](const DrawCommand& each) { return each.kind == Kind::Polygon; });
    const auto axes = shownAxes(list);
    REQUIRE(axes);
    CHECK_FALSE(axes->angleDegrees);
}

TEST_CASE("a broader line below an axis is no axis of its own") {
    const DisplayList axes = drawnAxes(5, 12, 640, 400);
    DisplayList list;
    for (const DrawCommand& command : axes) {
        if (command.kind != Kind::Line) continue;
        list.push_back(command);
        list.back().style.lineWidth = 3;
    }
    list.insert(list.end(), axes.begin(), axes.end());
    const auto found = shownAxes(list);
    REQUIRE(found);
    CHECK(found->count == 5);
}

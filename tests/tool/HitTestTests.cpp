#include "tool/HitTest.h"

#include <doctest/doctest.h>

using namespace facetta;

namespace {

constexpr double kTolerance = 18.0;

PageAxes axesAt(double x, double y, int count, double angle = 0.0) {
    return {.origin = {x, y}, .angle = angle, .axisCount = count};
}

Point polar(const PageAxes& axes, double sectors, double radius) {
    return axes.origin + radius * direction(axes.angle + sectors * sectorAngle(axes));
}

} // namespace

TEST_CASE("a cursor on the drawn line of a ray grabs that ray") {
    for (const int count : {2, 3, 5, 12}) {
        const PageAxes axes = axesAt(100, -40, count, 0.3);
        for (int ray = 0; ray < 2 * count; ++ray) {
            INFO("N = ", count, ", ray ", ray);
            const ZoneUnder under = zoneUnder(axes, polar(axes, ray, 500), kTolerance);
            CHECK(under.zone == ToolZone::Axis);
            CHECK(under.grabIndex == ray);
            CHECK_FALSE(under.onSectorHandle);
        }
    }
}

TEST_CASE("what lies under the cursor") {
    struct Row {
        const char* where;
        PageAxes axes;
        Point cursor;
        ToolZone zone;
        double grabIndex;
    };
    const PageAxes three = axesAt(0, 0, 3);
    const PageAxes one = axesAt(0, 0, 1);
    const Row rows[] = {
        {"two lines within reach", three, {5, 5}, ToolZone::Origin, 1},
        {"just within reach of the first line", three, {300, 17.9}, ToolZone::Axis, 0},
        {"just out of reach", three, {300, -18}, ToolZone::Sector, 0},
        {"the bisector of the active sector", three, polar(three, 0.5, 200), ToolZone::Axis, 0.5},
        {"the bisector's other end is no handle", three, polar(three, 3.5, 200), ToolZone::Sector,
         0},
        {"the bisector of another sector", three, polar(three, 1.5, 200), ToolZone::Sector, 0},
        {"one axis: near the origin", one, {12, 12}, ToolZone::Origin, 0},
        {"one axis: on the line, off the origin", one, {18, 0}, ToolZone::Axis, 0},
        {"one axis: the other half-line", one, {-200, 3}, ToolZone::Axis, 1},
        {"one axis: its handle is upright", one, {0, 200}, ToolZone::Axis, 0.5},
        {"one axis: below", one, {0, -200}, ToolZone::Sector, 0},
    };
    for (const auto& row : rows) {
        INFO(row.where);
        const ZoneUnder under = zoneUnder(row.axes, row.cursor, kTolerance);
        CHECK(under.zone == row.zone);
        CHECK(under.grabIndex == row.grabIndex);
        CHECK(under.onSectorHandle == (under.grabIndex == 0.5));
    }
}

#include "tool/drawing/HintDrawing.h"

#include "tests/tool/Annotated.h"

using namespace facetta;
using namespace facetta::tests;

namespace {

constexpr ai::uint64 kShown = 10'000; ///< when the hints here are shown, in milliseconds

easel::DisplayList hintDrawn(const ToolState& state, ai::uint64 now, const PixelRect& visible) {
    AIAnnotatorDrawer drawer;
    ViewMap view;
    view.toPixels = {.d = -1.0}; // pixels are points, y turned over
    view.visible = visible;
    drawHint({&drawer, view, colours::kLight}, state, u"Constrain Angle", now);
    return drawer.list;
}

} // namespace

TEST_CASE("a hint stands right of the cursor and above it, moved as far as the view asks for") {
    struct Row {
        const char* where;
        AIPoint cursor;
        AIPoint text; // its bottom left
    };
    const PixelRect view{0, 0, 800, 600};
    const Row rows[] = {
        // the text is 100 by 13, its box 5 wider and 3 higher on every side,
        // and 3 lower for what letters have below their line
        {"anywhere", {400, 300}, {412, 291}},
        {"as far right as it goes", {683, 300}, {695, 291}},
        {"too far right", {790, 300}, {695, 291}},
        {"as high as it goes", {400, 22}, {412, 13}},
        {"too high", {400, 3}, {412, 13}},
        {"below the view", {400, 900}, {412, 594}},
        {"left of the view", {-300, 300}, {5, 291}},
        {"a corner", {800, 0}, {695, 13}},
    };
    for (const auto& row : rows) {
        INFO(row.where);
        const AIPoint placed = hintTextAt(row.cursor, 100, 13, view);
        CHECK(placed.h == row.text.h);
        CHECK(placed.v == row.text.v);
    }
    const AIPoint cramped = hintTextAt({10, 10}, 100, 13, {0, 0, 50, 8});
    CHECK(cramped.h == 5);
    CHECK(cramped.v == 13);
}

TEST_CASE("the hint is a text in a box, inside the view, whole at first and fading at its end") {
    Session session; // texts are the host's
    session.host.start();
    ToolState state;
    state.cursor = {790, -4};
    showHint(state.hint, HintId::ConstrainAngle, kShown);
    const PixelRect view{0, 0, 800, 600};
    struct Row {
        ai::uint64 age;
        double opacity;
    };
    for (const auto& row : {Row{0, 1}, Row{1000, 1}, Row{1125, 0.5}, Row{1249, 0.004}}) {
        INFO(row.age);
        const easel::DisplayList list = hintDrawn(state, kShown + row.age, view);
        REQUIRE(list.size() == 3);
        CHECK(list[0].fill);
        CHECK_FALSE(list[1].fill);
        CHECK(list[2].text == U"Constrain Angle");
        for (const easel::DrawCommand& each : list) {
            CHECK(each.style.opacity == doctest::Approx(row.opacity));
            for (const AIPoint point : each.points)
                CHECK(contains(view, at(point)));
        }
    }
    CHECK(hintDrawn(state, kShown + kHintLifetime, view).empty());
    CHECK(hintDrawn(state, kShown + 99'999, view).empty());

    // None while cancelled new axes wait for the release.
    state.gesture.emplace().cancelled = true;
    state.zone = ToolZone::Canvas;
    CHECK(hintDrawn(state, kShown, view).empty());
    state.zone = ToolZone::Axis;
    CHECK_FALSE(hintDrawn(state, kShown, view).empty());
}

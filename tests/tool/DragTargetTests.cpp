#include "tool/snapping/DragTarget.h"

#include "tests/tool/Drawing.h"
#include "tool/CurrentAxes.h"

#include <initializer_list>
#include <string>

using namespace facetta;
using namespace facetta::tests;
using platform::Key;

namespace {

constexpr AIRealPoint kOrigin{200, -200};
constexpr double kDegree = kPi / 180.0;

/// Three axes at `kOrigin`, pressed there and being dragged, over an upright line at x = 300.
class Chain : public ToolInHand {
public:
    explicit Chain(ToolZone zone)
        : tool{thePlugin->tool, thePlugin->preferences, thePlugin->hostPreferences,
               thePlugin->view, thePlugin->licence,     thePlugin->dialogs,
               keys_,           thePlugin->mirroring()} {
        host.edit("Draw", [](easel::Document& page) {
            drawLine(page, {300, -300}, {300, -100}, /*selected*/ false);
        });
        ToolState& state = tool.state;
        state.axes = {.axisCount = 3, .provisional = zone != ToolZone::Canvas};
        moveOriginTo(state, kOrigin);
        state.zone = zone;
        state.mouseDown = state.cursor = state.anchor = state.snapped = state.originStart = kOrigin;
        state.snapDistance = 12.0;
        state.dragging = true;
        host.cursorSnap.calls.clear();
    }
    ~Chain() { dropAxes(tool.state); }

    void hold(std::initializer_list<Key> held) {
        keys_ = {};
        for (const Key key : held)
            keys_.down.at(static_cast<unsigned char>(key)) = true;
    }
    void dragTo(AIReal x, AIReal y) {
        tool.state.cursor = {x, y};
        findDragTarget(tool, message());
    }
    [[nodiscard]] AIToolMessage message() const {
        AIToolMessage message{};
        message.cursor = tool.state.cursor;
        return message;
    }
    [[nodiscard]] Point target() const { return widen(tool.state.target); }
    /// `None` once it is hidden.
    [[nodiscard]] HintId hint() const {
        return tool.state.hint.shown ? tool.state.hint.id : HintId::None;
    }

private:
    platform::KeyState keys_;

public:
    ToolSession tool;
};

} // namespace

TEST_CASE("a dragged axis snaps to perpendiculars; Ctrl turns that about, Shift ends it") {
    const struct {
        std::string what;
        ToolZone zone;
        bool preferred;
        bool initialDragMovesOrigin;
        std::initializer_list<Key> keys;
        bool snaps;
    } rows[] = {
        {"an axis", ToolZone::Axis, true, false, {}, true},
        {"new axes", ToolZone::Canvas, true, false, {}, true},
        {"new axes whose origin is dragged", ToolZone::Canvas, true, true, {}, false},
        {"the origin", ToolZone::Origin, true, false, {}, false},
        {"with Ctrl", ToolZone::Axis, true, false, {Key::Control}, false},
        {"with Shift", ToolZone::Axis, true, false, {Key::Shift}, false},
        {"not preferred", ToolZone::Axis, false, false, {}, false},
        {"not preferred, with Ctrl", ToolZone::Axis, false, false, {Key::Control}, true},
        {"not preferred, both keys",
         ToolZone::Axis,
         false,
         false,
         {Key::Control, Key::Shift},
         false},
    };
    for (const auto& row : rows) {
        INFO(row.what);
        Chain chain(row.zone);
        chain.tool.preferences.snapPerpendicular = row.preferred;
        chain.tool.preferences.initialDragMovesOrigin = row.initialDragMovesOrigin;
        chain.hold(row.keys);
        chain.dragTo(306, -205);
        CHECK(chain.tool.state.perpendicularSnapFound == row.snaps);
        if (row.snaps) CHECK(near(chain.target(), {300, -200}));
        chain.dragTo(400, -205); // and lets go again
        CHECK_FALSE(chain.tool.state.perpendicularSnapFound);
    }
}

TEST_CASE("where no perpendicular attracts, the path under the cursor does") {
    Chain chain(ToolZone::Axis);
    chain.dragTo(301.5, -150);
    CHECK(near(chain.target(), {300, -150}));
    chain.dragTo(320, -150);
    CHECK(chain.target() == Point{320, -150});
}

TEST_CASE("elsewhere than on axes the target is the cursor, and the host is not asked") {
    for (const ToolZone zone : {ToolZone::Sector, ToolZone::SectorPicked, ToolZone::DialogTitle,
                                ToolZone::DialogButton, ToolZone::LayerLocked}) {
        INFO(static_cast<int>(zone));
        Chain chain(zone);
        chain.hold({Key::Shift});
        chain.dragTo(301, -200);
        CHECK(chain.target() == Point{301, -200});
        CHECK(chain.host.cursorSnap.calls.empty());
        CHECK(chain.hint() == HintId::None);
    }
}

TEST_CASE("Space takes new axes, or the origin of those there are, along with the cursor") {
    for (const ToolZone zone : {ToolZone::Canvas, ToolZone::Axis}) {
        INFO(static_cast<int>(zone));
        Chain chain(zone);
        chain.dragTo(250, -100);
        chain.hold({Key::Space});
        chain.dragTo(260, -105);
        chain.dragTo(255, -85);
        const ToolState& state = chain.tool.state;
        const Point place = zone == ToolZone::Canvas ? widen(state.anchor) : chain.origin();
        CHECK(near(place, {205, -185}));
        chain.hold({});
        chain.dragTo(300, -50);
        CHECK(near(zone == ToolZone::Canvas ? widen(state.anchor) : chain.origin(), {205, -185}));
    }
    Chain chain(ToolZone::Origin);
    chain.hold({Key::Space});
    chain.dragTo(260, -105);
    CHECK(near(chain.origin(), {200, -200})); // the origin has its own drag
    CHECK(chain.hint() == HintId::None);
}

TEST_CASE("the origin that Space moves stays on the canvas") {
    Chain chain(ToolZone::Axis);
    chain.hold({Key::Space});
    chain.dragTo(-30000, 30000);
    CHECK(hardOriginOf(chain.axes()) == Point{0, 0});
    chain.dragTo(30000, -30000);
    CHECK(hardOriginOf(chain.axes()) == Point{kCanvasSize, kCanvasSize});
}

TEST_CASE("Shift holds a dragged line to steps from the constrain angle, half-way up") {
    const struct {
        std::string what;
        double constrainDegrees;
        double dragged; ///< degrees
        double held;
    } rows[] = {
        {"near the constrain angle", 10, 30, 10}, {"nearer the next", 10, 40, 55},
        {"exactly half-way", -22.5, 0, 22.5},     {"below the constrain angle", 10, 355, 10},
        {"in the last step", 10, 320, 325},
    };
    for (const ToolZone zone : {ToolZone::Canvas, ToolZone::Axis}) {
        for (const auto& row : rows) {
            INFO(row.what, ", zone ", static_cast<int>(zone));
            Chain chain(zone);
            chain.tool.host.constrainAngle = row.constrainDegrees;
            chain.hold({Key::Shift});
            const Point to = widen(kOrigin) + 64.0 * direction(row.dragged * kDegree);
            chain.dragTo(narrow(to.x), narrow(to.y));
            const double held = chain.tool.state.constrainedAngle;
            CHECK(std::abs(std::remainder(held - row.held * kDegree, kTwoPi)) < 1e-6);
            // The point goes as far as the projection, in the direction counted from the constrain
            // angle.
            const double reach = 64.0 * std::cos((row.dragged - row.held) * kDegree);
            const double counted = (row.dragged - row.constrainDegrees) * kDegree;
            CHECK(near(chain.target(), widen(kOrigin) + reach * direction(counted)));
        }
    }
}

TEST_CASE("Shift moves the origin along the same directions, by the true projection") {
    for (const bool isNew : {false, true}) {
        INFO("new axes: ", isNew);
        Chain chain(isNew ? ToolZone::Canvas : ToolZone::Origin);
        chain.tool.preferences.initialDragMovesOrigin = isNew;
        chain.tool.host.constrainAngle = 10;
        chain.hold({Key::Shift});
        const Point to = widen(kOrigin) + 64.0 * direction(30 * kDegree);
        chain.dragTo(narrow(to.x), narrow(to.y));
        const double reach = 64.0 * std::cos(20 * kDegree);
        CHECK(near(chain.target(), widen(kOrigin) + reach * direction(10 * kDegree)));
        CHECK(chain.hint() == HintId::ConstrainOrigin);
    }
}

TEST_CASE("hints tell what the keys do, once a press, and what is still held when one comes up") {
    struct Step {
        std::initializer_list<Key> keys;
        HintId hint;
    };
    Chain chain(ToolZone::Axis);
    const Step steps[] = {
        {{}, HintId::None},
        {{Key::Space}, HintId::MoveOrigin},
        {{Key::Space, Key::Shift}, HintId::ConstrainAngle},
        {{Key::Shift}, HintId::ConstrainAngle},
        {{}, HintId::None},
        {{Key::Shift}, HintId::ConstrainAngle},
        {{Key::Shift, Key::Space}, HintId::MoveOrigin},
        {{Key::Space}, HintId::MoveOrigin},
        {{}, HintId::None},
        {{Key::Control}, HintId::OverrideSnapping},
        {{Key::Control, Key::Shift}, HintId::ConstrainAngle},
        {{}, HintId::None},
    };
    for (const Step& step : steps) {
        CAPTURE(&step - steps);
        chain.hold(step.keys);
        chain.dragTo(250, -100);
        CHECK(chain.hint() == step.hint);
    }
    chain.hold({Key::Shift});
    chain.dragTo(250, -100);
    hideHint(chain.tool.state.hint); // as its time goes by
    chain.dragTo(251, -100);
    CHECK(chain.hint() == HintId::None);
}

TEST_CASE("U suppresses the host's smart guides once a press, where it counts") {
    Chain chain(ToolZone::Axis);
    chain.host.cursorSnap.enabled = true;
    const auto press = [&](std::initializer_list<Key> keys) {
        chain.hold(keys);
        toggleSmartGuides(chain.tool, chain.message());
    };
    press({Key::U});
    press({Key::U}); // still held
    CHECK(chain.tool.state.smartGuidesSuppressed);
    CHECK(chain.hint() == HintId::SmartGuidesDisabled);
    const std::size_t calls = chain.host.cursorSnap.calls.size();
    CHECK(chain.host.cursorSnap.calls.back().control.empty());
    CHECK(widen(chain.host.cursorSnap.calls.back().point) == Point{16384, 16384});
    chain.dragTo(301, -100.5F);
    CHECK(chain.host.cursorSnap.calls.size() == calls); // not asked meanwhile
    press({});
    press({Key::U});
    CHECK_FALSE(chain.tool.state.smartGuidesSuppressed);
    CHECK(chain.hint() == HintId::SmartGuidesEnabled);
    chain.dragTo(301, -100.5F);
    CHECK(chain.host.cursorSnap.calls.back().control == "ATFGPLM v i o f");
    CHECK(near(chain.target(), {300, -100}));

    for (const ToolZone zone : {ToolZone::Sector, ToolZone::DialogTitle, ToolZone::DialogButton}) {
        INFO(static_cast<int>(zone));
        press({});
        chain.tool.state.zone = zone;
        press({Key::U});
        CHECK_FALSE(chain.tool.state.smartGuidesSuppressed);
    }
    press({});
    chain.tool.state.zone = ToolZone::Canvas;
    chain.host.cursorSnap.enabled = false; // the user has none
    press({Key::U});
    CHECK_FALSE(chain.tool.state.smartGuidesSuppressed);
}

TEST_CASE("A makes the grabbed line's direction the host's constrain angle") {
    const struct {
        double angle; ///< degrees, of the first of three axes
        double grabIndex;
        double degrees;
    } rows[] = {{0, 0, 0}, {20, 1, 80}, {20, 4, 260}, {350, 1, 50}, {20, 0.5, 50}};
    for (const auto& row : rows) {
        INFO(row.angle, " and ", row.grabIndex);
        Chain chain(ToolZone::Axis);
        chain.tool.state.axes.angle = row.angle * kDegree;
        chain.tool.state.grabIndex = row.grabIndex;
        setConstrainAngle(chain.tool);
        const auto stored = [&](const char* name) {
            return chain.host.preferences.number("", name).value_or(NAN);
        };
        CHECK(near(stored("constrain/angle"), row.degrees));
        CHECK(near(stored("constrain/cos"), std::cos(row.degrees * kDegree)));
        CHECK(near(stored("constrain/sin"), std::sin(row.degrees * kDegree)));
        CHECK(near(thePlugin->hostPreferences.constrainAngle, row.degrees));
        CHECK(chain.hint() == HintId::SetConstrainAngle);
    }
}

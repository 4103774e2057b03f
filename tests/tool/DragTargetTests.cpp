#include "tool/snapping/DragTarget.h"

#include "tests/tool/Drawing.h"

#include <initializer_list>
#include <string>

using namespace facetta;
using namespace facetta::tests;
using platform::Key;

namespace {

constexpr AIRealPoint kOrigin{200, -200};
constexpr double kDegree = kPi / 180.0;

enum class Dragged { NewAxes, Axis, Origin };

/// A drag that began at `kOrigin`, over an upright line at x = 300.
class Chain : public ToolInHand {
public:
    explicit Chain(Dragged what) {
        host.edit("Draw", [](easel::Document& page) {
            drawLine(page, {300, -300}, {300, -100}, /*selected*/ false);
        });
        drag.turns = what != Dragged::Origin;
        drag.movesPivot = what != Dragged::NewAxes;
    }

    void hold(std::initializer_list<Key> held) {
        keys_ = {};
        for (const Key key : held)
            keys_.down.at(static_cast<unsigned char>(key)) = true;
    }
    /// One message, with what the one before it has left.
    void dragTo(AIReal x, AIReal y) {
        const CursorSnap snap{SnapPointForm::Reference, host.currentView(), nullptr};
        found = findDragTarget(drag, {x, y}, snap, keys_);
        drag.previousSnapped = found.snapped;
        drag.latches = found.latches;
        drag.pivot = found.pivot;
        if (found.hint) hint = *found.hint;
    }

    Drag drag{.turns = true,
              .movesPivot = true,
              .pivot = widen(kOrigin),
              .originStart = widen(kOrigin),
              .previousSnapped = widen(kOrigin),
              .latches = {},
              .snapDistance = 12.0,
              .constrainAngle = 0.0,
              .snapToPerpendiculars = true,
              .suppressed = false};
    DragTarget found;
    HintId hint = HintId::None; ///< `None` once it is hidden

private:
    platform::KeyState keys_;
};

} // namespace

TEST_CASE("a dragged axis snaps to perpendiculars; Ctrl turns that about, Shift ends it") {
    const struct {
        std::string what;
        Dragged dragged;
        bool preferred;
        std::initializer_list<Key> keys;
        bool snaps;
    } rows[] = {
        {"an axis", Dragged::Axis, true, {}, true},
        {"new axes", Dragged::NewAxes, true, {}, true},
        {"the origin", Dragged::Origin, true, {}, false},
        {"with Ctrl", Dragged::Axis, true, {Key::Control}, false},
        {"with Shift", Dragged::Axis, true, {Key::Shift}, false},
        {"not preferred", Dragged::Axis, false, {}, false},
        {"not preferred, with Ctrl", Dragged::Axis, false, {Key::Control}, true},
        {"not preferred, both keys", Dragged::Axis, false, {Key::Control, Key::Shift}, false},
    };
    for (const auto& row : rows) {
        INFO(row.what);
        Chain chain(row.dragged);
        chain.drag.snapToPerpendiculars = row.preferred;
        chain.hold(row.keys);
        chain.dragTo(306, -205);
        CHECK(chain.found.perpendicularSnapFound == row.snaps);
        if (row.snaps) CHECK(near(chain.found.target, {300, -200}));
        chain.dragTo(400, -205); // and lets go again
        CHECK_FALSE(chain.found.perpendicularSnapFound);
    }
}

TEST_CASE("the origin that Space moves stays on the canvas") {
    Chain chain(Dragged::Axis);
    const auto onCanvas = [&] {
        const Point hard = harden(chain.found.pivot);
        return near(hard, clampToCanvas(hard));
    };
    chain.hold({Key::Space});
    chain.dragTo(-30000, 30000);
    CHECK(onCanvas());
    chain.dragTo(30000, -30000);
    CHECK(onCanvas());
}

TEST_CASE("Shift holds a dragged line to steps from the constrain angle, half-way up") {
    const struct {
        std::string what;
        double constrainDegrees;
        double dragged; ///< degrees
        double held;
    } rows[] = {
        {"near the constrain angle", 10, 30, 10},     {"nearer the next", 10, 40, 55},
        {"exactly half-way", -22.5, 0, 22.5},         {"below the constrain angle", 10, 355, 10},
        {"in the last step", 10, 320, 325},           {"in the step round zero", 0, 359, 0},
        {"a constrain angle below zero", -90, 10, 0}, {"one of more than a turn", 450, 80, 90},
    };
    for (const Dragged what : {Dragged::NewAxes, Dragged::Axis}) {
        for (const auto& row : rows) {
            INFO(row.what, ", drag ", static_cast<int>(what));
            Chain chain(what);
            chain.drag.constrainAngle = row.constrainDegrees;
            chain.hold({Key::Shift});
            const Point to = widen(kOrigin) + 64.0 * direction(row.dragged * kDegree);
            chain.dragTo(narrow(to.x), narrow(to.y));
            const double held = chain.found.constrainedAngle.value_or(NAN);
            CHECK(std::abs(std::remainder(held - row.held * kDegree, kTwoPi)) < 1e-6);
            // The point goes as far as the projection, in the direction counted from the constrain
            // angle.
            const double reach = 64.0 * std::cos((row.dragged - row.held) * kDegree);
            const double counted = (row.dragged - row.constrainDegrees) * kDegree;
            CHECK(near(chain.found.target, widen(kOrigin) + reach * direction(counted)));
        }
    }
}

TEST_CASE("hints tell what the keys do, once a press, and what is still held when one comes up") {
    struct Step {
        std::initializer_list<Key> keys;
        HintId hint;
    };
    Chain chain(Dragged::Axis);
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
        CHECK(chain.hint == step.hint);
    }
    chain.hold({Key::Shift});
    chain.dragTo(250, -100);
    chain.hint = HintId::None; // as its time goes by
    chain.dragTo(251, -100);
    CHECK(chain.hint == HintId::None);
}

#include "tests/tool/Drawing.h"
#include "tests/tool/KeysHeld.h"

using namespace facetta;
using namespace facetta::tests;
using platform::Key;

namespace {

enum class Axes { None, Pending, OnLayer, Edited };

/// A drawing with guides on its layer whose axes are in the state asked for.
class Prepared : public Drawing {
public:
    explicit Prepared(Axes state) : Drawing(/*selected*/ true) {
        if (state == Axes::None) click(onButton(DialogItem::Cancel));
        if (state == Axes::OnLayer || state == Axes::Edited) makeLive(/*withGuides*/ true);
        if (state == Axes::Edited) dragFrom(onRay(1, 200), onRay(1.5, 200));
    }
};

/// What a gesture finds and must leave behind.
struct Found {
    explicit Found(const Drawing& session)
        : text(session.text()), axes(session.axes()), committed(axesOnLayer(session.tool())),
          layerEdit(layerEditInProgress(session.tool())), defaults(thePlugin->preferences) {}

    void check(const Drawing& session) const {
        CHECK(session.text() == text);
        CHECK(session.axes() == axes);
        CHECK(axesOnLayer(session.tool()) == committed);
        CHECK(layerEditInProgress(session.tool()) == layerEdit);
        CHECK_FALSE(repositionMode(session.tool()));
        CHECK_FALSE(session.tool().repositionArt);
        CHECK(thePlugin->preferences.angle == defaults.angle);
        CHECK(thePlugin->preferences.count == defaults.count);
    }

    std::string text;
    SymmetryAxes axes;
    bool committed;
    bool layerEdit;
    Preferences defaults;
};

} // namespace

TEST_CASE("Escape takes a drag back, from whatever was dragged, and lasts until the release") {
    struct Row {
        const char* what;
        Axes state;
        double grabbed; ///< sectors; at the origin when negative
        bool alt;
    };
    const Row rows[] = {
        {"an axis of pending axes", Axes::Pending, 1, false},
        {"the origin of pending axes", Axes::Pending, -1, false},
        {"an axis of a layer's axes", Axes::OnLayer, 4, false},
        {"the origin of a layer's axes", Axes::OnLayer, -1, false},
        {"the handle of their active sector", Axes::OnLayer, 0.5, false},
        {"an axis of axes taken off their layer", Axes::Edited, 1, false},
        {"the origin of axes taken off their layer", Axes::Edited, -1, false},
        {"a layer's axes with its art", Axes::OnLayer, 1, true},
        {"a layer's origin with its art", Axes::OnLayer, -1, true},
    };
    for (const auto& row : rows) {
        INFO(row.what);
        Prepared session(row.state);
        const AIRealPoint from =
            row.grabbed < 0 ? narrow(session.origin()) : session.onRay(row.grabbed, 200);
        session.host.track({.at = from});
        const Found found(session);
        {
            const KeysHeld held(row.alt ? std::initializer_list<Key>{Key::Alt}
                                        : std::initializer_list<Key>{});
            session.press(from.h, from.v);
        }
        session.drag(from.h + 40, from.v + 30);
        session.drag(from.h + 60, from.v + 70);
        CHECK_FALSE(session.axes() == found.axes);
        {
            const KeysHeld held({Key::Escape});
            session.drag(from.h + 61, from.v + 70);
        }
        found.check(session);
        session.drag(from.h + 80, from.v + 10); // no more
        found.check(session);
        session.release(from.h + 80, from.v + 10);
        found.check(session);
        // The next drag works.
        session.dragFrom(session.onRay(1, 200), session.onRay(1.25, 200));
        CHECK(near(session.axes().angle, normaliseAngle(found.axes.angle + kPi / 12)));
    }
}

TEST_CASE("Escape drops axes that are being made; where none are dragged it does nothing") {
    const KeysHeld held({Key::Escape});
    {
        Prepared session(Axes::None);
        session.host.track({.at = {300, -300}});
        const Found found(session);
        session.press(300, -300);
        session.drag(350, -280);
        found.check(session);
        session.release(350, -280);
        CHECK_FALSE(hasAxes(session.tool()));
        CHECK(near(session.origin(), {350, -280})); // they follow the cursor again
    }
    {
        Prepared session(Axes::Pending);
        const AIRealPoint button = session.onButton(DialogItem::Cancel);
        session.press(button.h, button.v);
        session.drag(button.h + 1, button.v);
        session.release(button.h + 1, button.v);
        CHECK_FALSE(hasAxes(session.tool())); // the button was pressed all the same
    }
    {
        Prepared session(Axes::Pending);
        const DialogPosition before = session.tool().dialog;
        const AIRealPoint title = session.onDialog(50, 7);
        session.press(title.h, title.v);
        session.drag(title.h + 25, title.v);
        session.release(title.h + 25, title.v);
        CHECK(session.tool().dialog.x == before.x + 25);
    }
}

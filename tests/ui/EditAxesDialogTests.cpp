#include "tests/tool/Drawing.h"
#include "tests/tool/KeysHeld.h"
#include "tests/ui/DialogUser.h"

#include "symmetry/LayerAxesStore.h"

using namespace facetta;
using namespace facetta::tests;
using platform::Key;

namespace {

constexpr int kOriginX = 4;
constexpr int kOriginY = 6;
constexpr int kAngle = 8;
constexpr int kCountLabel = 10;
constexpr int kCount = 11;

/// Three axes about (200, -200), pending, or on the layer; the user knows nothing yet of what
/// comes.
class NumericEdit : public Drawing {
public:
    NumericEdit() : Drawing(/*selected*/ false) {}

    /// Clicks twice on an axis, and acts in the dialog.
    void edit(DialogUser::Act act) {
        user.act = std::move(act);
        for (int count = 0; count < 2; ++count)
            click(onRay(0, 200));
    }
    void reposition(DialogUser::Act act) {
        const KeysHeld held({Key::Alt});
        edit(std::move(act));
    }
    [[nodiscard]] static const Preferences& preferences() { return thePlugin->preferences; }

    DialogUser user;
};

/// The first anchor of the line that the drawing began with.
AIRealPoint lineStart(const NumericEdit& session) {
    const easel::Art& root = session.document().root();
    for (const easel::Art* art = &root; art != nullptr; art = easel::nextInPreorder(*art, root))
        if (art->type() == kPathArt && !art->has(kArtLocked)) return art->segments().front().p;
    return {};
}

} // namespace

TEST_CASE("the dialog shows the axes in numbers") {
    NumericEdit session;
    session.dragFrom(session.onRay(0, 200), session.onRay(0.5, 200));
    session.edit([](DialogUser& user) {
        CHECK(user.title() == "Edit Symmetry Axes");
        CHECK(user.text(kOriginX) == "200.000 pt");
        CHECK(user.text(kOriginY).ends_with("200.000 pt"));
        CHECK(user.text(kAngle) == "30.000");
        CHECK(user.text(kCount) == "3");
        CHECK(user.item(kCount).enabled);
    });
    CHECK(session.user.met == 1);
}

TEST_CASE("each field changes the axes at once, and what new axes get") {
    struct Row {
        const char* what;
        int field;
        const char* typed;
        const char* shown;
        double angle; ///< degrees, of the axes
        int count;
        double moved; ///< points, of the origin to the right
    };
    const Row rows[] = {
        {"x", kOriginX, "250", "250.000 pt", 0, 3, 50},
        {"x in another unit", kOriginX, "10p0", "120.000 pt", 0, 3, -80},
        {"x beyond the canvas", kOriginX, "99999", "200.000 pt", 0, 3, 0},
        {"an angle of more than a turn", kAngle, "450", "90.000", 90, 3, 0},
        {"an angle the other way", kAngle, "-90", "270.000", 270, 3, 0},
        {"a whole turn", kAngle, "360", "0.000", 0, 3, 0},
        {"count", kCount, "12", "12", 0, 12, 0},
        {"the most", kCount, "72", "72", 0, 72, 0},
        {"no axes", kCount, "0", "3", 0, 3, 0},
        {"too many", kCount, "73", "3", 0, 3, 0},
    };
    for (const Row& row : rows) {
        INFO(std::string(row.what));
        NumericEdit session;
        thePlugin->preferences.angle = 0.125;
        thePlugin->preferences.count = 40;
        const SymmetryAxes before = session.axes();
        session.edit([&](DialogUser& user) {
            user.enter(row.field, row.typed);
            CHECK(user.text(row.field) == row.shown);
            CHECK(near(session.axes().angle, row.angle * kPi / 180));
            CHECK(session.axes().axisCount == row.count);
            CHECK(near(session.axes().originX, before.originX + row.moved));
            CHECK(session.axes().originY == before.originY);
            user.ok();
        });
        CHECK(near(session.axes().angle, row.angle * kPi / 180));
        CHECK(session.axes().axisCount == row.count);
        // The clicks have made the axes' own what new ones get; a field changes its own alone.
        CHECK(near(session.preferences().angle, row.angle * kPi / 180));
        CHECK(session.preferences().count == row.count);
        CHECK(session.axes().provisional);
    }
}

TEST_CASE("the list beside the number of axes has the smallest six") {
    for (const char* const number : {"1", "6"}) {
        NumericEdit session;
        session.edit([&](DialogUser& user) {
            user.choose(kCount, number);
            CHECK(user.text(kCount) == number);
            user.ok();
        });
        CHECK(session.axes().axisCount == std::stoi(number));
        CHECK(session.preferences().count == std::stoi(number));
    }
}

TEST_CASE("y is typed in the sense in which the rulers count") {
    for (const bool downwards : {false, true}) {
        NumericEdit session;
        thePlugin->hostPreferences.isRulerIn4thQuad = downwards;
        const double before = session.origin().y;
        session.edit([&](DialogUser& user) {
            user.enter(kOriginY, downwards ? "300" : "-300");
            user.ok();
        });
        CHECK(near(before, -200));
        CHECK(near(session.origin(), {200, -300}));
    }
}

TEST_CASE("Cancel, Escape and the close box bring the axes back, and leave what new ones get") {
    const DialogUser::Act ways[] = {
        [](DialogUser& user) { user.cancel(); },
        [](DialogUser& user) { user.press(door::Key::Escape); },
        [](DialogUser&) {}, // closed from outside
    };
    for (const DialogUser::Act& leave : ways) {
        NumericEdit session;
        const SymmetryAxes before = session.axes();
        session.edit([&](DialogUser& user) {
            user.enter(kOriginX, "250");
            user.enter(kOriginY, "-120");
            user.enter(kAngle, "45");
            user.enter(kCount, "5");
            user.enter(kAngle, "60");
            leave(user);
        });
        CHECK(session.axes() == before);
        CHECK(near(session.preferences().angle, kPi / 3));
        CHECK(session.preferences().count == 5);
    }
}

TEST_CASE("what is typed and not taken over yet counts for OK, and not for Cancel") {
    for (const bool ok : {true, false}) {
        NumericEdit session;
        session.edit([&](DialogUser& user) {
            user.enter(kCount, "4");
            user.click(kAngle);
            user.type("30");
            ok ? user.ok() : user.cancel();
        });
        CHECK(near(session.axes().angle, ok ? kPi / 6 : 0));
        CHECK(session.axes().axisCount == (ok ? 4 : 3));
    }
}

TEST_CASE("a layer's axes are edited apart from it, as one step") {
    for (const bool ok : {true, false}) {
        NumericEdit session;
        session.makeLive(/*withGuides*/ true);
        const SymmetryAxes before = session.axes();
        const std::string text = session.textButStamp();
        session.edit([&](DialogUser& user) {
            user.enter(kAngle, "15");
            user.enter(kCount, "4");
            CHECK_FALSE(session.axes().onLayer);
            ok ? user.ok() : user.cancel();
        });
        CHECK(layerEditInProgress(session.tool()) == ok);
        CHECK((session.textButStamp() == text) == !ok);
        CHECK((session.axes() == before) == !ok);
        if (!ok) continue;
        CHECK(session.host.undoText() == "Undo Edit Symmetry Axes");
        CHECK(session.guideAngles() == std::vector{15, 60, 105, 150});
        session.host.undo();
        CHECK(session.textButStamp() == text);
        CHECK(session.axes() == before);
    }
}

TEST_CASE("repositioned axes take the layer's art from where it lay, however often they change") {
    for (const bool ok : {true, false}) {
        NumericEdit session;
        session.makeLive();
        const std::string text = session.textButStamp();
        const SymmetryAxes before = session.axes();
        const AIRealPoint start = lineStart(session);
        session.reposition([&](DialogUser& user) {
            CHECK(user.title() == "Reposition Symmetry Axes");
            CHECK_FALSE(user.item(kCount).enabled);
            CHECK_FALSE(user.item(kCountLabel).enabled);
            user.enter(kOriginX, "250");
            CHECK(near(lineStart(session).h, start.h + 50));
            user.enter(kOriginY, "230"); // downwards
            user.enter(kOriginX, "240");
            CHECK(near(lineStart(session).h, start.h + 40));
            CHECK(near(lineStart(session).v, start.v - 30));
            // A quarter turn about the new origin.
            const Vector arm = widen(lineStart(session)) - Point{240, -230};
            user.enter(kAngle, "90");
            const Vector turned = widen(lineStart(session)) - Point{240, -230};
            CHECK(near(turned.x, -arm.y));
            CHECK(near(turned.y, arm.x));
            CHECK(session.axes().onLayer);
            ok ? user.ok() : user.cancel();
        });
        CHECK_FALSE(repositionMode(session.tool()));
        CHECK((session.textButStamp() == text) == !ok);
        if (!ok) {
            CHECK(session.axes() == before);
            continue;
        }
        CHECK(session.host.undoText() == "Undo Reposition Symmetry Axes");
        SymmetryAxes stored;
        session.host.edit("Look",
                          [&](easel::Document&) { CHECK(LayerAxesStore::read(nullptr, stored)); });
        CHECK(near(stored.angle, kPi / 2));
        CHECK(near(hardOriginOf(stored), hardOriginOf(session.axes())));
        session.host.undo();
        CHECK(session.textButStamp() == text);
    }
}

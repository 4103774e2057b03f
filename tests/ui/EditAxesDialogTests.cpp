#include "tests/tool/Drawing.h"
#include "tests/ui/DialogUser.h"

using namespace facetta;
using namespace facetta::tests;

namespace {

constexpr int kOriginX = 4;
constexpr int kOriginY = 6;
constexpr int kAngle = 8;
constexpr int kCount = 11;

/// Three axes about (200, -200), pending; the user knows nothing yet of what comes.
class NumericEdit : public Drawing {
public:
    NumericEdit() : Drawing(/*selected*/ false) {}

    /// Clicks twice on an axis, and acts in the dialog.
    void edit(DialogUser::Act act) {
        user.act = std::move(act);
        for (int count = 0; count < 2; ++count)
            click(onRay(0, 200));
    }
    [[nodiscard]] static const Preferences& preferences() { return thePlugin->preferences; }

    DialogUser user;
};

} // namespace

TEST_CASE("each field changes the axes at once, and what new axes get") {
    struct Row {
        std::string what;
        int field;
        const char* typed;
        const char* shown;
        double angle; ///< degrees, of the axes
        int count;
        double moved; ///< points, of the origin to the right
    };
    const Row rows[] = {
        {"x in another unit", kOriginX, "10p0", "120.000 pt", 0, 3, -80},
        {"x beyond the canvas", kOriginX, "99999", "200.000 pt", 0, 3, 0},
        {"an angle the other way", kAngle, "-90", "270.000", 270, 3, 0},
        {"a whole turn", kAngle, "360", "0.000", 0, 3, 0},
        {"the most", kCount, "72", "72", 0, 72, 0},
        {"too many", kCount, "73", "3", 0, 3, 0},
    };
    for (const Row& row : rows) {
        INFO(row.what);
        NumericEdit session;
        thePlugin->preferences.angle = 0.125;
        thePlugin->preferences.count = 40;
        const SymmetryAxes before = session.axes();
        const auto checkAxes = [&] {
            CHECK(near(session.axes().angle, row.angle * kPi / 180));
            CHECK(session.axes().axisCount == row.count);
            CHECK(near(session.axes().originX, before.originX + row.moved));
            CHECK(session.axes().originY == before.originY);
        };
        session.edit([&](DialogUser& user) {
            user.enter(row.field, row.typed);
            CHECK(user.text(row.field) == row.shown);
            checkAxes();
            user.ok();
        });
        checkAxes();
        // The clicks have made the axes' own what new ones get; a field changes its own alone.
        CHECK(near(session.preferences().angle, row.angle * kPi / 180));
        CHECK(session.preferences().count == row.count);
    }
}

TEST_CASE("y is typed in the sense in which the rulers count") {
    for (const bool downwards : {false, true}) {
        NumericEdit session;
        thePlugin->hostPreferences.isRulerIn4thQuad = downwards;
        session.edit([&](DialogUser& user) {
            user.enter(kOriginY, downwards ? "300" : "-300");
            user.ok();
        });
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

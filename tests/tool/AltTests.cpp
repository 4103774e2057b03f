#include "tests/tool/FaultSweep.h"
#include "tests/tool/KeysHeld.h"

#include "symmetry/LayerAxesStore.h"

using namespace facetta;
using namespace facetta::tests;
using platform::Key;

namespace {

using Line = std::pair<Point, Point>;

/// Every line of the drawing, copies included.
std::vector<Line> linesOf(const Drawing& session) {
    std::vector<Line> lines;
    const easel::Art& root = session.document().root();
    for (const easel::Art* art = &root; art != nullptr; art = easel::nextInPreorder(*art, root))
        if (art->type() == kPathArt)
            lines.emplace_back(widen(art->segments()[0].p), widen(art->segments()[1].p));
    return lines;
}

bool same(const Line& a, const Line& b) {
    return (near(a.first, b.first) && near(a.second, b.second)) ||
           (near(a.first, b.second) && near(a.second, b.first));
}

/// The same lines in any order.
void checkSame(const std::vector<Line>& lines, const std::vector<Line>& expected) {
    REQUIRE(lines.size() == expected.size());
    for (const Line& line : expected)
        CHECK(std::ranges::count_if(lines, [&](const Line& l) { return same(l, line); }) == 1);
}

SymmetryAxes storedAxes(Drawing& session) {
    SymmetryAxes stored;
    session.host.edit("Look",
                      [&](easel::Document&) { CHECK(LayerAxesStore::read(nullptr, stored)); });
    return stored;
}

} // namespace

TEST_CASE("with Alt the art of a layer moves and turns with its axes") {
    struct Row {
        const char* what;
        double grabbed; // sectors; at the origin when negative
        AIRealPoint by;
        double degrees;
    };
    const Row rows[] = {{"moved by the origin", -1, {60, 35}, 0},
                        {"turned by an axis", 1, {}, 30},
                        {"turned by the handle of the active sector", 0.5, {}, 30}};
    for (const auto& row : rows) {
        INFO(row.what);
        Drawing session(/*selected*/ false);
        session.makeLive();
        const std::vector<Line> lines = linesOf(session);
        const Point centre = session.origin();
        const bool moves = row.grabbed < 0;
        const AIRealPoint from = moves ? narrow(centre) : session.onRay(row.grabbed, 200);
        const AIRealPoint to = moves ? AIRealPoint{from.h + row.by.h, from.v + row.by.v}
                                     : session.onRay(row.grabbed + row.degrees / 60, 200);
        {
            const KeysHeld held({Key::Alt});
            session.dragFrom(from, to);
        }
        std::vector<Line> moved;
        for (const auto& [start, end] : lines) {
            const auto map = [&](Point p) {
                return rotateAbout(p, centre, -row.degrees * kPi / 180) + (widen(row.by) - Point{});
            };
            moved.emplace_back(map(start), map(end));
        }
        checkSame(linesOf(session), moved);
        CHECK(session.host.undoText() == "Undo Reposition Symmetry Axes");
        CHECK(session.axes().onLayer);
        CHECK_FALSE(layerEditInProgress(session.tool()));
        CHECK_FALSE(session.tool().repositionArt);
        CHECK(countPaths(session.document(), /*lockedOnes*/ true) == 5);
        const std::string calm = session.text();
        session.host.notify("AI Art Selection Changed Notifier");
        CHECK(session.text() == calm); // nothing was to be mirrored anew
        const SymmetryAxes stored = storedAxes(session);
        CHECK(near(stored.angle, row.degrees * kPi / 180));
        CHECK(near(hardOriginOf(stored), hardOriginOf(session.axes())));
        CHECK(session.host.undo());
        checkSame(linesOf(session), lines);
    }
}

TEST_CASE("an Alt-click makes another sector the active one; the layer looks as before") {
    for (const int count : {1, 2, 3, 4}) {
        for (int sector = 1; sector < 2 * count; ++sector) {
            INFO("N = ", count, ", sector ", sector);
            Drawing session(/*selected*/ false);
            session.host.track({.at = {100, -100}});
            session.tool().axes.axisCount = count;
            session.makeLive();
            const std::vector<Line> lines = linesOf(session);
            REQUIRE(lines.size() == static_cast<std::size_t>(2 * count));
            const AIRealPoint place = session.onRay(sector + 0.3, 150);
            {
                const KeysHeld held({Key::Alt});
                session.click(place);
            }
            CHECK(session.host.undoText() == "Undo Change Symmetry Axes Active Sector");
            CHECK(near(session.axes().angle, sector * kPi / count));
            CHECK(near(storedAxes(session).angle, session.axes().angle));
            checkSame(linesOf(session), lines);
            CHECK(countPaths(session.document(), /*lockedOnes*/ false) == 1);
        }
    }
}

TEST_CASE("whichever host call fails with Alt or Escape held, the tool goes on") {
    constexpr auto makeLive = [](Drawing& session) { session.makeLive(/*withGuides*/ true); };
    const FaultAction actions[] = {
        {"reposition", makeLive,
         [](Drawing& session) {
             const KeysHeld held({Key::Alt});
             session.dragFrom({300, -26.8F}, {200, 0});
         }},
        {"change the active sector", makeLive,
         [](Drawing& session) {
             const KeysHeld held({Key::Alt});
             session.click({88, -100});
         }},
        {"cancel an edit", makeLive,
         [](Drawing& session) {
             session.press(300, -26.8F);
             session.drag(330, -26.8F);
             {
                 const KeysHeld held({Key::Escape});
                 session.drag(331, -26.8F);
             }
             session.release(331, -26.8F);
         }},
    };
    sweepFaults(actions);
}

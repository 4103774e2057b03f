#include "easel/document/Attributes.h"
#include "easel/document/Dump.h"
#include "easel/document/Layers.h"
#include "easel/document/Session.h"
#include "host/Error.h"
#include "symmetry/ArtSpace.h"
#include "symmetry/ImageCopies.h"
#include "symmetry/geometry/Crossings.h"
#include "symmetry/geometry/Geometry.h"
#include "tests/Seed.h"
#include "tests/symmetry/EngineFixture.h"

#include <doctest/doctest.h>

#include <algorithm>
#include <cmath>
#include <random>

using namespace facetta;
using easel::Art;
using facetta::tests::EngineFixture;

namespace {

constexpr int kAxisCounts[] = {1, 2, 3, 5, 6, 7, 12, 36, 71, 72};

std::vector<const Art*> objectsIn(const Art& parent) {
    std::vector<const Art*> objects;
    for (const Art* art = parent.firstChild(); art != nullptr; art = art->next())
        objects.push_back(art);
    return objects;
}

/// A path of pieces that are straight or bent, open or closed, anywhere in the drawing.
Art& addRandomPath(EngineFixture& fixture, std::mt19937_64& random) {
    std::uniform_real_distribution<double> coordinate{-300.0, 300.0};
    std::uniform_real_distribution<double> bend{-60.0, 60.0};
    std::vector<Point> anchors(2 + random() % 6);
    for (Point& anchor : anchors)
        anchor = {coordinate(random), coordinate(random)};
    Art& path = fixture.addPath(fixture.layer(), anchors, random() % 2 == 0);
    if (random() % 2 == 0) return path;
    for (AIPathSegment& segment : path.write().segments.write()) {
        segment.in.h += static_cast<AIReal>(bend(random));
        segment.out.v += static_cast<AIReal>(bend(random));
    }
    return path;
}

} // namespace

TEST_CASE("what is mirrored whole keeps its source and turns its matrix") {
    EngineFixture fixture;
    fixture.build(fixture.layer(), "t");
    fixture.setAxes(2, 0.0, {10, 20});
    fixture.attach();
    const std::vector<const Art*> objects = objectsIn(fixture.layer());
    REQUIRE(objects.size() == 4);
    const auto matrixIs = [&](std::size_t i, const Matrix& expected) {
        const AIRealMatrix& m = objects[i]->details().matrix;
        const double difference = std::abs(m.a - expected.a) + std::abs(m.b - expected.b) +
                                  std::abs(m.c - expected.c) + std::abs(m.d - expected.d) +
                                  std::abs(m.tx - expected.tx) + std::abs(m.ty - expected.ty);
        return difference < 1e-4;
    };
    CHECK(matrixIs(0, {}));
    CHECK(matrixIs(1, {1, 0, 0, -1, 0, 40}));
    CHECK(matrixIs(2, {-1, 0, 0, -1, 20, 40}));
    CHECK(matrixIs(3, {-1, 0, 0, 1, 20, 0}));
}

TEST_CASE(
    "an open path between the bounding axes becomes one closed path in the style of its source") {
    EngineFixture fixture;
    fixture.step([&] {
        fixture.build(fixture.layer(), "front");
        Art& source = fixture.addPath(fixture.layer(), {{100, 0}, {80, 30}, {0, 100}}, false);
        source.write().details.write().name = "source";
        source.write().details.write().note = "Mind the gap";
        source.dictionary().set(easel::internKey("FTMirroredv1"), easel::Value{ai::int32{2}});
        source.dictionary().set(easel::internKey("another's"), easel::Value{ai::int32{5}});
        source.write().style.write().path.stroke.width = 7;
        source.write().style.write().path.strokePaint = true;
        easel::select(source, true);
        fixture.build(fixture.layer(), "back");
    });
    fixture.setAxes(2);
    fixture.mirrorSelection();

    CHECK(fixture.notationOf(fixture.layer()) == "front ^source back");
    const Art& whole = *objectsIn(fixture.layer())[1];
    CHECK(whole.content().closed);
    CHECK(whole.segments().size() == 8);
    CHECK(whole.style().path.stroke.width == 7);
    CHECK(whole.details().note == "Mind the gap");
    CHECK(whole.dictionaryIfAny()->find(easel::internKey("another's")) != nullptr);
    CHECK(whole.has(kArtFullySelected));
}

TEST_CASE("what was selected of a path is selected of its mirrored form") {
    EngineFixture fixture;
    fixture.step([&] {
        Art& source = fixture.addPath(fixture.layer(), {{100, 0}, {80, 30}, {60, 50}}, false);
        easel::setSegmentSelection(source, 1, kSegmentPointSelected);
    });
    fixture.setAxes(1);
    fixture.mirrorSelection();

    const std::vector<const Art*> objects = objectsIn(fixture.layer());
    REQUIRE(objects.size() == 1); // joined with its reflection
    std::vector<int> selected;
    for (std::size_t i = 0; i < objects[0]->segments().size(); ++i)
        selected.push_back(easel::segmentSelection(*objects[0], i));
    CHECK(selected == std::vector<int>{0, 1, 0, 1, 0});
}

TEST_CASE("copies of a mirrored selection are selected as their source, whatever the host does") {
    for (const bool hostSelects : {true, false}) {
        INFO("duplicates keep their selection: ", hostSelects);
        easel::Switches switches;
        switches.duplicatesKeepSelection = hostSelects;
        EngineFixture fixture{switches};
        fixture.build(fixture.layer(), "@a b t");
        fixture.step([&] {
            easel::select(*fixture.layer().lastChild(), true);
            easel::setSegmentSelection(*fixture.layer().firstChild()->next(), 1,
                                       kSegmentPointSelected);
        });
        fixture.setAxes(1);
        fixture.mirrorSelection();
        const std::vector<const Art*> objects = objectsIn(fixture.layer());
        REQUIRE(objects.size() == 6);
        for (const std::size_t whole : {0, 1, 4, 5})
            CHECK(objects[whole]->has(kArtFullySelected));
        for (const std::size_t part : {2, 3})
            for (const std::size_t anchor : {0, 1, 2})
                CHECK(easel::segmentSelection(*objects[part], anchor) == (anchor == 1 ? 1 : 0));
    }
}

TEST_CASE("a closed path that comes out in several parts is one compound path") {
    EngineFixture fixture;
    fixture.step([&] {
        // An arch whose legs cross the axis: its outer and its inner line close with their
        // reflections.
        Art& arch = fixture.addPath(
            fixture.layer(),
            {{0, 50}, {0, -20}, {10, -20}, {10, 40}, {30, 40}, {30, -20}, {40, -20}, {40, 50}},
            true);
        arch.write().details.write().name = "arch";
        arch.write().style.write().path.stroke.width = 7;
        easel::select(arch, true);
    });
    fixture.setAxes(1);
    fixture.mirrorSelection();

    const std::vector<const Art*> objects = objectsIn(fixture.layer());
    REQUIRE(objects.size() == 1);
    CHECK(objects[0]->type() == kCompoundPathArt);
    CHECK(objects[0]->details().name == "arch");
    CHECK(objects[0]->style().path.stroke.width == 7);
    const std::vector<const Art*> members = objectsIn(*objects[0]);
    REQUIRE(members.size() == 2);
    for (const Art* member : members) {
        CHECK(member->content().closed);
        CHECK(member->segments().size() == 6);
        CHECK(member->has(kArtFullySelected));
    }
}

TEST_CASE("a compound path is cut and joined member by member and stays the same object") {
    easel::Switches switches;
    switches.membersShareStyle = false;
    EngineFixture fixture{switches};
    fixture.step([&] {
        Art& ring = easel::createArt(fixture.document(), kCompoundPathArt,
                                     easel::atBottomOf(fixture.layer()));
        fixture.addPath(ring, {{0, -30}, {40, -30}, {40, 30}, {0, 30}}, true);
        fixture.addPath(ring, {{10, -20}, {10, 20}, {30, 20}, {30, -20}}, true);
        for (Art* member = ring.firstChild(); member != nullptr; member = member->next())
            member->write().style.write().path.stroke.width = 7;
        ring.dictionary().set(easel::internKey("ours"), easel::Value{ai::int32{5}});
        easel::select(*ring.lastChild(), true);
    });
    const AIArtHandle ring = fixture.layer().firstChild()->handle();
    fixture.setAxes(1, 0.0, {0, 10});
    fixture.mirrorSelection();

    const std::vector<const Art*> objects = objectsIn(fixture.layer());
    REQUIRE(objects.size() == 1);
    CHECK(objects[0]->handle() == ring);
    CHECK(objects[0]->dictionaryIfAny()->find(easel::internKey("ours")) != nullptr);
    const std::vector<const Art*> members = objectsIn(*objects[0]);
    REQUIRE(members.size() == 2);
    CHECK_FALSE(members[0]->has(kArtSelected));
    CHECK(members[1]->has(kArtFullySelected));
    for (const Art* member : members) {
        CHECK(member->segments().size() == 6); // with the two anchors on the axis
        CHECK(member->style().path.stroke.width == 7);
    }
}

TEST_CASE("a clip group shows in each sector its own part of what it clips") {
    for (const int axisCount : {1, 3, 6}) {
        INFO("N = ", axisCount);
        EngineFixture fixture;
        const Point origin{200, -200};
        fixture.step([&] {
            Art& group =
                easel::createArt(fixture.document(), kGroupArt, easel::atBottomOf(fixture.layer()));
            group.write().clipped = true;
            Art& mask =
                fixture.addPath(group, {{350, -180}, {150, -180}, {150, -300}, {350, -300}}, true);
            mask.write().attributes |= kArtIsClipMask | kArtLocked;
            fixture.addPath(group, {{100, -100}, {400, -400}}, false);
        });
        const std::string before = easel::dump(fixture.document());
        fixture.setAxes(axisCount, 0.1, origin);
        fixture.attach();

        const PageAxes axes = pageAxes(fixture.axes);
        const std::vector<const Art*> groups = objectsIn(fixture.layer());
        REQUIRE(groups.size() == static_cast<std::size_t>(sectorCount(axes)));
        CHECK(groups[0]->lastChild()->segments()[1].p.h == 400);
        CHECK(groups[0]->firstChild()->has(kArtLocked));
        std::vector<int> sectors;
        for (const Art* group : groups) {
            Vector sum{};
            for (const AIPathSegment& segment : group->firstChild()->segments())
                sum = sum + (widen(segment.p) - origin);
            sectors.push_back(sectorIndexOf(axes, origin + sum));
            const PageAxes turned{
                origin, normaliseAngle(axes.angle + sectors.back() * sectorAngle(axes)), axisCount};
            for (const AIPathSegment& segment : group->firstChild()->segments())
                CHECK(Wedge{turned}.margin(widen(segment.p)) > -0.01);
        }
        std::ranges::sort(sectors);
        CHECK(std::ranges::adjacent_find(sectors) == sectors.end());

        fixture.document().undo().undo();
        CHECK(easel::dump(fixture.document()) == before);
    }
}

TEST_CASE("a clip group with a mask of islands in several sectors becomes one for each") {
    EngineFixture fixture;
    fixture.step([&] {
        Art& group =
            easel::createArt(fixture.document(), kGroupArt, easel::atBottomOf(fixture.layer()));
        group.write().clipped = true;
        group.write().details.write().name = "k";
        Art& mask =
            easel::createArt(fixture.document(), kCompoundPathArt, easel::atBottomOf(group));
        mask.write().details.write().name = "c";
        mask.write().attributes |= kArtIsClipMask;
        fixture.addPath(mask, {{0, 50}, {0, -10}, {40, -10}, {40, 50}}, true);
        fixture.addPath(mask, {{60, -30}, {90, -30}, {90, -60}}, true);
        fixture.build(group, "t");
        easel::selectAll(fixture.document());
    });
    fixture.setAxes(1);
    fixture.attach();
    const std::string expected = "k(!c() t) k'(!c() t) k(!c() t) k'(!c() t)";
    CHECK(fixture.notationOf(fixture.layer()) == expected);
    for (const Art* group : objectsIn(fixture.layer()))
        CHECK(objectsIn(*group->firstChild()).size() == 1);
    fixture.regenerate();
    CHECK(fixture.notationOf(fixture.layer()) == expected);
}

TEST_CASE("art drawn in another sector is folded with its gradient") {
    EngineFixture fixture;
    fixture.step([&] {
        Art& free = fixture.addPath(fixture.layer(), {{20, -20}, {35, -20}, {30, -40}}, true);
        Art& joined = fixture.addPath(fixture.layer(), {{50, 0}, {60, -30}, {70, -40}}, false);
        easel::Definition& gradient =
            fixture.document().addDefinition(easel::Definition::Kind::Gradient, "sunset");
        for (Art* path : {&free, &joined}) {
            easel::ArtStyle& style = path->write().style.write();
            style.fillDefinition = &gradient;
            style.path.fillPaint = true;
        }
    });
    const AIArtHandle source = fixture.layer().firstChild()->handle();
    fixture.setAxes(1);
    fixture.attach();

    const std::vector<const Art*> objects = objectsIn(fixture.layer());
    REQUIRE(objects.size() == 3);
    CHECK(objects[0]->handle() == source); // nothing was cut, so it stays the same object
    const struct {
        double v;
        AIReal d;
    } expected[] = {{20, -1}, {-20, 1}, {40, -1}};
    for (std::size_t i = 0; i < objects.size(); ++i) {
        INFO("object ", i);
        CHECK(objects[i]->segments()[0].p.v == doctest::Approx(expected[i].v));
        CHECK(objects[i]->style().fillMatrix.d == expected[i].d);
    }
}

TEST_CASE("a path that would grow too long is left as it was, and the run goes on") {
    EngineFixture fixture;
    Art* longPath = nullptr;
    fixture.step([&] {
        longPath = &fixture.addTooLongPath();
        fixture.addPath(fixture.layer(), {{2000, 50}, {2100, 80}}, false);
        easel::selectAll(fixture.document());
    });
    const std::string before = fixture.text();
    const std::size_t anchors = longPath->segments().size();
    fixture.setAxes(1);
    fixture.mirrorSelection();

    CHECK(objectsIn(fixture.layer()).size() == 3);
    CHECK(longPath->segments().size() == anchors);
    CHECK(fixture.messages.size() == 1);
    fixture.document().undo().undo();
    CHECK(fixture.text() == before);
}

TEST_CASE("anchors left on the axes go only when a selection is mirrored and the user wants it") {
    const struct {
        bool removePoints;
        bool selection;
        std::size_t anchors;
    } rows[] = {{false, true, 3}, {true, true, 2}, {true, false, 3}, {false, false, 3}};
    for (const auto& row : rows) {
        INFO("removing points: ", row.removePoints, ", selection: ", row.selection);
        EngineFixture fixture;
        fixture.step([&] {
            fixture.addPath(fixture.layer(), {{100, 0}, {100, 50}}, false);
            easel::selectAll(fixture.document());
        });
        fixture.setAxes(1);
        fixture.removePoints = row.removePoints;
        row.selection ? fixture.mirrorSelection() : fixture.attach();
        REQUIRE(objectsIn(fixture.layer()).size() == 1);
        CHECK(fixture.layer().firstChild()->segments().size() == row.anchors);
    }
}

TEST_CASE("open ends within 12 pixels of an axis are moved onto it") {
    const struct {
        float zoom;
        double gap;
        bool joined;
    } rows[] = {{1, 11.9, true}, {1, 12.1, false}, {2, 5.9, true},
                {2, 6.1, false}, {0, 1000, true},  {0.01F, 1201, false}};
    for (const auto& row : rows) {
        INFO("zoom ", row.zoom, ", gap ", row.gap);
        EngineFixture fixture;
        EngineFixture::shellSide().zoom = row.zoom;
        fixture.step([&] {
            fixture.addPath(fixture.layer(), {{0, row.gap}, {0, row.gap + 3000}}, false);
            easel::selectAll(fixture.document());
        });
        fixture.setAxes(1);
        fixture.mirrorSelection();
        CHECK(objectsIn(fixture.layer()).size() == (row.joined ? 1 : 2));
    }
}

TEST_CASE("an angle of any size mirrors as the one in a turn that it stands for") {
    const auto drawingWith = [](double angle) {
        EngineFixture fixture;
        std::mt19937_64 random{1};
        fixture.step([&] {
            for (int i = 0; i < 8; ++i)
                addRandomPath(fixture, random);
            easel::selectAll(fixture.document());
        });
        fixture.setAxes(5, angle, {17.25, -8.5});
        fixture.removePoints = true;
        fixture.mirrorSelection();
        return fixture.text();
    };
    for (const double angle : {1e15, -7e11, 12'345.0, -0.5}) {
        const bool same = drawingWith(angle) == drawingWith(normaliseAngle(angle));
        CHECK_MESSAGE(same, angle);
    }
}

TEST_CASE("the pen starts afresh after a run, no other tool does") {
    using Names = std::vector<std::string>;
    const struct {
        std::string tool;
        Names chosen;
    } rows[] = {{"Adobe Pen Tool", {"own", "Adobe Pen Tool"}},
                {"Adobe Pen Tool 2", {}},
                {"Adobe Select Tool", {}}};
    for (const auto& row : rows) {
        INFO(row.tool);
        EngineFixture fixture;
        EngineFixture::shellSide().currentTool = row.tool;
        int own = 0;
        fixture.ownTool = reinterpret_cast<AIToolHandle>(&own);
        fixture.setAxes(1);
        fixture.mirrorSelection();
        CHECK(EngineFixture::shellSide().chosenTools == row.chosen);
    }
}

TEST_CASE("a run neither keeps nor needs more than it is given") {
    EngineFixture fixture;
    fixture.build(fixture.layer(), "@a b");
    fixture.setAxes(0);
    const std::string before = fixture.text();
    fixture.mirrorSelection();
    fixture.regenerate();
    CHECK(fixture.text() == before); // no axes

    fixture.setAxes(4, 0.5);
    fixture.attach();
    fixture.axes = {.originX = 1, .originY = 2, .angle = 3, .axisCount = 4, .provisional = true};
    const SymmetryAxes current = fixture.axes;
    fixture.regenerate(); // with the layer's axes
    CHECK(fixture.axes == current);
}

TEST_CASE("mirroring an unchanged layer again changes nothing, nor does it after reopening") {
    std::mt19937_64 random{tests::seed()};
    for (const int axisCount : kAxisCounts) {
        INFO("N = ", axisCount);
        EngineFixture fixture;
        fixture.step([&] {
            for (int i = 0; i < 6; ++i)
                addRandomPath(fixture, random);
            fixture.build(fixture.layer(), "g(a k(!b d)) c(e f) l(h)");
        });
        fixture.setAxes(axisCount, 0.1 * axisCount, {17.25, -8.5});
        fixture.attach();
        const std::string once = fixture.text();
        fixture.regenerate();
        const bool calm = fixture.text() == once;
        CHECK(calm); // not the texts: they run to megabytes

        fixture.reopen();
        const std::string opened = fixture.text();
        fixture.regenerate();
        const bool calmAfterReopening = fixture.text() == opened;
        CHECK(calmAfterReopening);
    }
}

TEST_CASE("objects are reflected and rotated in place or as copies that shed their marks") {
    EngineFixture fixture;
    fixture.build(fixture.layer(), "^a t");
    fixture.setAxes(2);
    std::vector<AIArtHandle> set;
    for (const Art* art : objectsIn(fixture.layer()))
        set.push_back(art->handle());
    fixture.step([&] {
        const PageAxes axes = pageAxes(fixture.axes);
        CHECK(reflectCopies(set, axes, 0, Duplicate::Yes).size() == 2);
        CHECK(rotateCopies(set, axes, kPi / 2, Duplicate::No).empty());
    });
    CHECK(fixture.notationOf(fixture.layer()) == "^a a t t");
    const AIRealPoint turned = easel::session().artOf(set[0]).segments()[0].p;
    CHECK(turned.h == doctest::Approx(-20)); // (20, 20) a quarter turn counter-clockwise
    CHECK(turned.v == doctest::Approx(20));
}

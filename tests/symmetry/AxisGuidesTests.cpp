#include "symmetry/AxisGuides.h"

#include "easel/document/Attributes.h"
#include "easel/document/Layers.h"
#include "easel/document/Session.h"
#include "symmetry/ArtSpace.h"
#include "symmetry/ArtTree.h"
#include "symmetry/GuideTag.h"
#include "symmetry/MirrorTag.h"
#include "tests/symmetry/EngineFixture.h"

#include <doctest/doctest.h>

#include <algorithm>
#include <cmath>
#include <string>

using namespace facetta;
using easel::Art;
using facetta::tests::EngineFixture;

namespace {

constexpr double kDegree = kPi / 180.0;

std::vector<Art*> taggedOn(const Art& layer) {
    std::vector<Art*> tagged;
    for (Art* art = layer.firstChild(); art != nullptr; art = art->next())
        if (GuideTag::has(art->handle())) tagged.push_back(art);
    return tagged;
}

bool isCorner(const AIPathSegment& segment) {
    const Point at = widen(segment.p);
    return segment.corner != 0 && widen(segment.in) == at && widen(segment.out) == at;
}

bool isOnCanvasEdge(Point point) {
    const Point hard = harden(point);
    const auto isEdge = [](double c) {
        return std::min(std::abs(c), std::abs(c - kCanvasSize)) < 0.02;
    };
    return isEdge(hard.x) || isEdge(hard.y);
}

} // namespace

TEST_CASE("each axis becomes one guide from edge to edge, in front of the layer's art") {
    for (const int count : {1, 2, 3, 5, 72}) {
        INFO(count, " axes");
        EngineFixture fixture;
        fixture.build(fixture.layer(), "a");
        const Point origin{120.0, 80.0};
        fixture.setAxes(count, 0.4, origin);
        CHECK_FALSE(layerHasAxisGuides());
        fixture.step([&] { addAxisGuides(fixture.axes); });
        CHECK(layerHasAxisGuides());

        const std::vector<Art*> guides = taggedOn(fixture.layer());
        REQUIRE(guides.size() == static_cast<std::size_t>(count));
        CHECK(fixture.layer().lastChild()->details().name == "a");
        for (int i = 0; i < count; ++i) {
            CAPTURE(i);
            const Art& guide = *guides[guides.size() - 1 - static_cast<std::size_t>(i)];
            CHECK(guide.content().guide);
            CHECK_FALSE(guide.content().closed);
            REQUIRE(guide.segments().size() == 2);
            const Vector along = direction(0.4 + i * kPi / count);
            for (const AIPathSegment& segment : guide.segments()) {
                CHECK(isCorner(segment));
                CHECK(isOnCanvasEdge(widen(segment.p)));
                CHECK(std::abs(cross(along, widen(segment.p) - origin)) < 0.05);
            }
            const Point ends[] = {widen(guide.segments()[0].p), widen(guide.segments()[1].p)};
            CHECK(dot(along, ends[1] - ends[0]) > 0.0);
        }
    }
}

TEST_CASE("an axis that misses the canvas gets no guide") {
    const struct {
        std::string what;
        Point hardOrigin;
        int axes;
        double degrees;
        std::size_t guides;
    } rows[] = {
        {"no axes", {100, 100}, 0, 0, 0},
        {"past a corner, as an origin beyond it is brought to the corner", {-500, -500}, 1, 45, 0},
        {"through that corner", {-500, -500}, 1, -45, 1},
        {"one of two through it", {-500, -500}, 2, 45, 1},
    };
    for (const auto& row : rows) {
        INFO(row.what);
        EngineFixture fixture;
        const SymmetryAxes axes{.originX = row.hardOrigin.x,
                                .originY = row.hardOrigin.y,
                                .angle = row.degrees * kDegree,
                                .axisCount = row.axes};
        fixture.step([&] { addAxisGuides(axes); });
        CHECK(taggedOn(fixture.layer()).size() == row.guides);
        CHECK(layerHasAxisGuides() == (row.guides > 0));
    }
}

TEST_CASE("removing takes guides that are still guides; what the user made of them stays") {
    const struct {
        std::string what;
        void (*change)(Art&);
        bool untagOnly;
        bool stays;
    } rows[] = {
        {"untouched", [](Art&) {}, false, false},
        {"untouched, to be kept", [](Art&) {}, true, true},
        {"moved", [](Art& art) { art.write().segments.write()[0].p.h += 5; }, false, false},
        {"locked", [](Art& art) { easel::setUserAttributes(art, kArtLocked, kArtLocked); }, false,
         false},
        {"longer by a point",
         [](Art& art) {
             auto& segments = art.write().segments.write();
             segments.push_back(segments.back());
         },
         false, true},
        {"released", [](Art& art) { art.write().guide = false; }, false, true},
    };
    for (const auto& row : rows) {
        INFO(row.what);
        EngineFixture fixture;
        fixture.setAxes(1);
        fixture.build(fixture.layer(), "~own");
        fixture.step([&] { addAxisGuides(fixture.axes); });
        fixture.step([&] { row.change(*fixture.layer().firstChild()); });
        fixture.step([&] { CHECK(removeAxisGuides(nullptr, row.untagOnly)); });
        CHECK(taggedOn(fixture.layer()).empty());
        CHECK_FALSE(layerHasAxisGuides());
        const bool stayed = fixture.layer().firstChild() != fixture.layer().lastChild();
        CHECK(stayed == row.stays);
        CHECK(fixture.layer().lastChild()->details().name == "own"); // the user's own guide
        fixture.step([&] { CHECK_FALSE(removeAxisGuides(nullptr, row.untagOnly)); });
    }
}

TEST_CASE("guides belong to the top-level layer, and mirroring makes no copies of them") {
    EngineFixture fixture;
    fixture.build(fixture.layer(), "l(a)");
    fixture.step(
        [&] { easel::setCurrentLayer(fixture.document(), *fixture.layer().firstChild()); });
    fixture.setAxes(3);
    fixture.attach();
    fixture.step([&] { addAxisGuides(fixture.axes); });
    CHECK(taggedOn(fixture.layer()).size() == 3);
    CHECK(layerHasAxisGuides());
    fixture.regenerate();
    CHECK(taggedOn(fixture.layer()).size() == 3);
    for (const Art* guide : taggedOn(fixture.layer()))
        CHECK(MirrorTag::get(guide->handle()) == MirrorTag::kSource);
    CHECK(fixture.notationOf(fixture.layer()) == "~ ~ ~ l(a a' a' a' a' a')");
}

TEST_CASE("a guide inside what is mirrored whole leaves no mark in the copies") {
    for (const char* art : {"k(!a ~b)", "k(!a g(k(!b ~d)))", "p(b ~a)", "p(k(!a ~b))"}) {
        for (const bool live : {true, false}) {
            INFO(std::string(art), live ? ", live" : ", selected");
            EngineFixture fixture;
            fixture.build(fixture.layer(), art);
            fixture.setAxes(2);
            const AIArtHandle layer = fixture.layer().handle();
            fixture.step([&] {
                easel::selectAll(fixture.document());
                for (const AIArtHandle path : pathsInside(layer))
                    if (isGuide(path)) GuideTag::set(path);
            });
            REQUIRE(GuideTag::marksInside(layer).size() == 1);
            live ? fixture.attach() : fixture.mirrorSelection();
            CHECK(std::ranges::count_if(pathsInside(layer), isGuide) == 4);
            CHECK(GuideTag::marksInside(layer).size() == 1);
        }
    }
}

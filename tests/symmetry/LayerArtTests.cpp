#include "symmetry/LayerArt.h"

#include "easel/document/Art.h"
#include "symmetry/ArtSpace.h"
#include "symmetry/AxisGuides.h"
#include "symmetry/GuideTag.h"
#include "symmetry/LayerAxesStore.h"
#include "symmetry/LiveLayers.h"
#include "tests/symmetry/EngineFixture.h"

#include <doctest/doctest.h>

#include <algorithm>
#include <cmath>

using namespace facetta;
using easel::Art;
using facetta::tests::EngineFixture;

namespace {

constexpr Point kOrigin{310.0, 240.0};
constexpr double kAngle = 0.35;

/// The anchors and handles of a path, in no order: what it looks like, wherever it begins.
using Outline = std::vector<Point>;

/// The outlines of the paths in `parent` itself.
std::vector<Outline> outlinesIn(const Art& parent) {
    std::vector<Outline> outlines;
    for (const Art* art = parent.firstChild(); art != nullptr; art = art->next()) {
        Outline& outline = outlines.emplace_back();
        for (const AIPathSegment& segment : art->segments())
            for (const AIRealPoint point : {segment.p, segment.in, segment.out})
                outline.push_back(widen(point));
    }
    return outlines;
}

bool looksLike(const Outline& a, const Outline& b) {
    constexpr double kInvisible = 0.01;
    return a.size() == b.size() && std::ranges::all_of(a, [&](Point p) {
               return std::ranges::any_of(b, [&](Point q) { return distance(p, q) < kInvisible; });
           });
}

/// Whether `now` shows the same outlines as `before`, each once.
bool sameDrawing(const std::vector<Outline>& before, std::vector<Outline> now) {
    for (const Outline& outline : before) {
        const auto same = std::ranges::find_if(now, [&](auto& o) { return looksLike(outline, o); });
        if (same == now.end()) return false;
        now.erase(same);
    }
    return now.empty();
}

/// A place given by its distance from the origin and its direction in sectors from the first
/// axis: 0 to 1 is the active sector.
Point placeIn(const SymmetryAxes& axes, double away, double sectors) {
    return kOrigin + away * direction(axes.angle + sectors * sectorAngle(axes.axisCount));
}

/// A live layer with a path inside the active sector, one across its first axis and one from side
/// to side.
void drawLiveLayer(EngineFixture& fixture, int axisCount) {
    fixture.setAxes(axisCount, kAngle, kOrigin);
    const auto at = [&](double away, double sectors) {
        return placeIn(fixture.axes, away, sectors);
    };
    fixture.step([&] {
        fixture.addPath(fixture.layer(), {at(50, 0.2), at(90, 0.3), at(70, 0.7)}, true);
        fixture.addPath(fixture.layer(), {at(110, -0.2), at(120, 0.4), at(140, 0.5)}, false);
        fixture.addPath(fixture.layer(), {at(160, -0.1), at(170, 0.6), at(180, 1.1)}, false);
    });
    fixture.attach();
}

/// Paths of the layer that were not generated.
std::vector<const Art*> sourcesIn(const Art& layer) {
    std::vector<const Art*> sources;
    for (const Art* art = layer.firstChild(); art != nullptr; art = art->next())
        if (!art->has(kArtLocked)) sources.push_back(art);
    return sources;
}

} // namespace

TEST_CASE("whichever sector becomes the active one, the drawing stays where it was seen") {
    for (const int axisCount : {1, 3, 4}) {
        for (int picked = 1; picked < 2 * axisCount; ++picked) {
            INFO(axisCount, " axes, sector ", picked);
            EngineFixture fixture;
            drawLiveLayer(fixture, axisCount);
            fixture.step([&] { addAxisGuides(fixture.axes); });
            const std::vector<Outline> before = outlinesIn(fixture.layer());
            const std::size_t sources = sourcesIn(fixture.layer()).size();

            fixture.axes.angle =
                normaliseAngle(fixture.axes.angle + picked * sectorAngle(axisCount));
            fixture.step([&] { changeActiveSector(fixture.environment(), picked); });
            CHECK(sameDrawing(before, outlinesIn(fixture.layer())));
            CHECK(sourcesIn(fixture.layer()).size() == sources);

            SymmetryAxes stored;
            REQUIRE(LayerAxesStore::read(nullptr, stored));
            CHECK(std::abs(stored.angle - fixture.axes.angle) < 1e-14); // 15 decimals
            const PageAxes axes = pageAxes(stored);
            for (const Art* source : sourcesIn(fixture.layer()))
                if (!GuideTag::has(source->handle()) && source->segments().size() == 3)
                    CHECK(sectorIndexOf(axes, widen(source->segments()[0].p)) == 0);
            CHECK(regenerateChangedLayers(fixture.environment()).layers == 0);
            CHECK(fixture.document().undo().undo());
            CHECK(outlinesIn(fixture.layer()) == before); // in one step
        }
    }
}

TEST_CASE("art moves with the axes: sources, copies and the axes' guides; locked art stays") {
    EngineFixture fixture;
    fixture.build(fixture.layer(), "a g(b) #d -e ~x");
    fixture.setAxes(2, kAngle, kOrigin);
    fixture.attach();
    fixture.step([&] { addAxisGuides(fixture.axes); });
    const std::string before = fixture.notationOf(fixture.layer());
    CHECK(before == "~ ~ a a' a' a' g(b b' b' b') #d -e ~x");
    const std::vector<Outline> outlines = outlinesIn(fixture.layer());
    const Art& group =
        *fixture.layer().firstChild()->next()->next()->next()->next()->next()->next();
    const std::vector<Outline> members = outlinesIn(group);

    const Matrix motion = compose(rotationAbout(kOrigin, 0.5), {.tx = 30.0, .ty = -12.0});
    fixture.step([&] { moveArt(collectLayerArt(), motion); });
    CHECK(fixture.notationOf(fixture.layer()) == before);
    const auto moved = [&](Outline outline) {
        for (Point& point : outline)
            point = apply(motion, point);
        return outline;
    };
    const std::vector<Outline> after = outlinesIn(fixture.layer());
    for (std::size_t i = 0; i < outlines.size(); ++i) {
        INFO("object ", i);
        const bool stays = i >= 7;
        CHECK(looksLike(stays ? outlines[i] : moved(outlines[i]), after[i]));
    }
    for (std::size_t i = 0; i < members.size(); ++i)
        CHECK(looksLike(moved(members[i]), outlinesIn(group)[i]));
}

#include "tests/tool/Drawing.h"

#include "easel/document/Attributes.h"
#include "easel/document/Layers.h"
#include "tool/snapping/PerpendicularSnap.h"
#include "tool/snapping/SegmentSnap.h"

#include <functional>
#include <optional>

using namespace facetta;
using namespace facetta::tests;
using easel::Art;

namespace {

constexpr Point kOrigin{200, -200};

/// The page with one upright line at x = 300: its foot from `kOrigin` is (300, -200).
class Page : public ToolInHand {
public:
    Page() {
        draw([&](easel::Document& page) {
            line = &drawLine(page, {300, -300}, {300, -100}, /*selected*/ false);
        });
    }
    void draw(const std::function<void(easel::Document&)>& change) { host.edit("Draw", change); }

    Art* line = nullptr;
};

Art& drawPath(easel::Document& page, const std::vector<AIPathSegment>& segments, bool closed) {
    Art& path = easel::createArt(page, kPathArt, easel::onTopOf(*page.state().currentLayer));
    path.write().segments.write() = {segments.begin(), segments.end()};
    path.write().closed = closed;
    return path;
}

AIPathSegment corner(AIReal h, AIReal v) { return {{h, v}, {h, v}, {h, v}, 1}; }

} // namespace

TEST_CASE("an axis snaps to a perpendicular nearer than the reach") {
    const struct {
        std::string what;
        Point cursor;
        double reach;
        bool snaps;
    } rows[] = {
        {"on it", {300, -200}, 12, true},
        {"beside it", {306, -205}, 12, true},
        {"just near enough", {311.75, -200}, 12, true},
        {"exactly as far as the reach", {312, -200}, 12, false},
        {"exactly as far the other way", {300, -188}, 12, false},
        {"farther, at the corner of the box around it", {310, -190}, 12, false},
        {"zoomed out", {340, -240}, 60, true},
        {"on the line, far from the foot", {300, -120}, 12, false},
    };
    for (const auto& row : rows) {
        INFO(row.what);
        Page page;
        const auto snap = findPerpendicular(kOrigin, row.cursor, row.reach);
        REQUIRE(snap.point.has_value() == row.snaps);
        if (row.snaps) CHECK(near(*snap.point, {300, -200}));
    }
}

TEST_CASE("only art that can be worked on attracts") {
    static constexpr auto lock = [](Art& art) {
        easel::setUserAttributes(art, kArtLocked, kArtLocked);
    };
    static constexpr auto hide = [](Art& art) {
        easel::setUserAttributes(art, kArtHidden, kArtHidden);
    };
    static constexpr auto inGroups = [](Page& page) -> Art& {
        easel::Document& document = *page.host.documents().front();
        Art& outer = easel::createArt(document, kGroupArt, easel::onTopOf(*page.line->parent()));
        Art& inner = easel::createArt(document, kGroupArt, easel::onTopOf(outer));
        easel::moveArt(*page.line, easel::onTopOf(inner));
        return outer;
    };
    const struct {
        std::string what;
        void (*change)(Page&);
        bool snaps;
    } rows[] = {
        {"locked", [](Page& page) { lock(*page.line); }, false},
        {"hidden", [](Page& page) { hide(*page.line); }, false},
        {"a guide", [](Page& page) { page.line->write().guide = true; }, true},
        {"in a group in a group", [](Page& page) { inGroups(page); }, true},
        {"in a group in a locked group", [](Page& page) { lock(inGroups(page)); }, false},
        {"in a group in a hidden group", [](Page& page) { hide(inGroups(page)); }, false},
        {"on a locked layer", [](Page& page) { lock(*page.line->parent()); }, false},
        {"on a hidden layer", [](Page& page) { hide(*page.line->parent()); }, false},
    };
    for (const auto& row : rows) {
        INFO(row.what);
        Page page;
        page.draw([&](easel::Document&) { row.change(page); });
        CHECK(findPerpendicular(kOrigin, {303, -203}, 12).point.has_value() == row.snaps);
    }
}

TEST_CASE("of several places the nearest wins, and curves far away are not looked at") {
    Page page;
    page.draw([](easel::Document& document) {
        drawLine(document, {308, -300}, {308, -100}, false);
        std::vector<AIPathSegment> zigzag;
        for (int i = 0; i < 100; ++i)
            zigzag.push_back(corner(static_cast<AIReal>(400 + i), i % 2 == 0 ? -100.0F : -300.0F));
        drawPath(document, zigzag, false);
    });
    const auto left = findPerpendicular(kOrigin, {303, -200}, 12);
    REQUIRE(left.point);
    CHECK(near(*left.point, {300, -200}));
    CHECK(left.examined == 2);
    const auto right = findPerpendicular(kOrigin, {305, -200}, 12);
    REQUIRE(right.point);
    CHECK(near(*right.point, {308, -200}));
    CHECK(findPerpendicular(kOrigin, {600, -200}, 12).examined == 0);
}

TEST_CASE("a closed path has one more side to snap to, a lone anchor none") {
    for (const bool closed : {true, false}) {
        INFO("closed: ", closed);
        Page page;
        page.draw([&](easel::Document& document) {
            drawPath(document, {corner(500, -260), corner(560, -200), corner(500, -140)}, closed);
            drawPath(document, {corner(504, -200)}, closed);
        });
        const auto snap = findPerpendicular(kOrigin, {502, -200}, 12);
        REQUIRE(snap.point.has_value() == closed);
        if (closed) CHECK(near(*snap.point, {500, -200}));
    }
}

TEST_CASE("what is dragged onto a path stays on it") {
    const struct {
        std::string what;
        Point point;
        std::optional<Point> place;
    } rows[] = {
        {"on the line", {300, -150}, Point{300, -150}},
        {"beside it", {301.5, -150}, Point{300, -150}},
        {"too far from it", {304, -150}, std::nullopt},
        {"on an anchor", {300, -100}, std::nullopt},
        {"on the first side of the square", {500, -120}, Point{500, -120}},
        {"on the side that closes it", {520, -100}, Point{520, -100}},
        {"inside it", {550, -150}, std::nullopt},
        {"on nothing", {700, -500}, std::nullopt},
    };
    Page page;
    page.draw([](easel::Document& document) {
        Art& square = drawPath(
            document, {corner(500, -100), corner(500, -200), corner(600, -200), corner(600, -100)},
            true);
        easel::select(square, true); // filled or not, selected art is looked at first
    });
    for (const auto& row : rows) {
        INFO(row.what);
        const auto place = findPlaceOnPath(row.point);
        REQUIRE(place.has_value() == row.place.has_value());
        if (place) CHECK(near(*place, *row.place));
    }
}

TEST_CASE("zoomed out the host hits from afar; nothing attracts from more than 3 points away") {
    const struct {
        AIReal away;
        bool attracts;
    } rows[] = {{0.5F, true}, {2.9F, true}, {3.1F, false}, {15.0F, false}};
    Page page;
    easel::setZoom(page.host.view(nullptr), 0.1F);
    for (const auto& row : rows) {
        INFO(row.away);
        const Point point{300.0 + static_cast<double>(row.away), -150};
        CHECK(findPlaceOnPath(point).has_value() == row.attracts);
    }
}

#include "tests/easel/document/Plugin.h"

#include <cmath>

namespace easel::tests {
namespace {

struct Found {
    bool hit;
    ai::int32 type;
    AIArtHandle art;
    ai::int16 segment;
    AIReal t;
};

Found test(AIRealPoint point, ai::int32 request) {
    AIHitRef ref = nullptr;
    REQUIRE(hit().HitTest(nullptr, &point, request, &ref) == kNoErr);
    const Found found{hit().IsHit(ref) != 0, hit().GetType(ref), hit().GetArt(ref),
                      hit().GetPathSegment(ref), hit().GetPathParameter(ref)};
    CHECK(hit().Release(ref) == 0);
    return found;
}

TEST_CASE("a hit on a curve names the anchor at its end, round the corner of a closed path too") {
    const Drawing drawing;
    const AIArtHandle square = drawing.makePath({{0, 0}, {100, 0}, {100, 100}, {0, 100}});
    REQUIRE(path().SetPathClosed(square, 1) == kNoErr);
    struct Row {
        AIRealPoint point;
        ai::int32 type;
        ai::int16 segment;
    };
    const Row rows[] = {
        {{50, 1}, kSegmentHit, 1},  {{101, 50}, kSegmentHit, 2},
        {{50, 99}, kSegmentHit, 3}, {{1, 50}, kSegmentHit, 0}, // from the last anchor to the first
        {{99, 99}, kAnchorHit, 2},  {{50, 50}, kFillHit, 0},
    };
    for (const auto& [point, type, segment] : rows) {
        const Found found = test(point, kAllHitRequest);
        CHECK(found.hit);
        CHECK(found.art == square);
        CHECK(found.type == type);
        CHECK(found.segment == segment);
    }
    CHECK(test({50, 1}, kAllHitRequest).t == doctest::Approx(0.5));
    CHECK_FALSE(test({150, 50}, kAllHitRequest).hit);
}

TEST_CASE("each request finds what it asks for and nothing else") {
    const Drawing drawing;
    const AIArtHandle line = drawing.makePath({{0, 0}, {50, 0}, {100, 0}});
    const AIArtHandle guide = drawing.makePath({{0, 50}, {100, 50}});
    REQUIRE(path().SetPathGuide(guide, 1) == kNoErr);
    const AIArtHandle locked = drawing.makePath({{0, -50}, {100, -50}});
    REQUIRE(art().SetArtUserAttr(locked, kArtLocked, kArtLocked) == kNoErr);
    const AIArtHandle hidden = drawing.makePath({{0, -90}, {100, -90}});
    REQUIRE(art().SetArtUserAttr(hidden, kArtHidden, kArtHidden) == kNoErr);
    const AIArtHandle chosen = drawing.makePath({{0, 90}, {100, 90}});
    REQUIRE(art().SetArtUserAttr(chosen, kArtSelected, kArtSelected) == kNoErr);
    struct Row {
        const char* what;
        ai::int32 request;
        AIRealPoint point;
        AIArtHandle expected;
    };
    const Row rows[] = {
        {"an anchor", kAnchorHitRequest, {50, 1}, line},
        {"no curve among anchors", kAnchorHitRequest, {25, 0}, nullptr},
        {"an end", kEndAnchorHitRequest, {100, 0}, line},
        {"a middle anchor is no end", kEndAnchorHitRequest, {50, 0}, nullptr},
        {"a guide", kGuideHitRequest, {30, 50}, guide},
        {"no path among guides", kGuideHitRequest, {30, 0}, nullptr},
        {"a guide is on paths", kPathHitRequest, {30, 50}, guide},
        {"a guide is not painted", kPaintHitRequest, {30, 50}, nullptr},
        {"the selected", kSelectionHitRequest, {30, 90}, chosen},
        {"not the unselected", kSelectionHitRequest, {30, 0}, nullptr},
        {"locked art", kAllHitRequest, {30, -50}, locked},
        {"no locked art", 11, {30, -50}, nullptr},
        {"hidden art never", kAllHitRequest, {30, -90}, nullptr},
    };
    for (const auto& row : rows) {
        INFO(row.what);
        CHECK(test(row.point, row.request).art == row.expected);
    }
    AIHitRef ref = nullptr;
    const AIRealPoint point{0, 0};
    CHECK(hit().HitTest(nullptr, &point, 15, &ref) == kBadParameterErr);
}

TEST_CASE("the closest curve wins, and of equals the one in front") {
    const Drawing drawing;
    const AIArtHandle near = drawing.makePath({{0, 1}, {100, 1}});
    const AIArtHandle front = drawing.makePath({{0, 0}, {100, 0}});
    const AIArtHandle back = drawing.makePath({{0, 0}, {100, 0}});
    CHECK(test({50, 0.1F}, kPathHitRequest).art == front);
    CHECK(test({50, 0.9F}, kPathHitRequest).art == near);
    CHECK(back != front);
}

TEST_CASE("pixels of tolerance shrink as the view zooms in") {
    Drawing drawing;
    const AIArtHandle line = drawing.makePath({{0, 0}, {100, 0}});
    CHECK(test({50, 1.5F}, kPathHitRequest).art == line);
    drawing.document.viewZoom = 4;
    CHECK(test({50, 1.5F}, kPathHitRequest).art == nullptr);
    CHECK(test({50, 0.4F}, kPathHitRequest).art == line);
}

TEST_CASE("a hit left to the host ends with the message") {
    const Drawing drawing;
    const AIRealPoint point{0, 0};
    AIHitRef left = nullptr;
    CHECK(hit().HitTest(nullptr, &point, kAllHitRequest, &left) == kNoErr);
    CHECK(session().ledger.count(Lent::Hit) == 1);
    session().messageLoans.clear();
    CHECK(session().ledger.count(Lent::Hit) == 0);
    CHECK(hit().IsHit(nullptr) == 0);
}

} // namespace
} // namespace easel::tests

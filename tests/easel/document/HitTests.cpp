#include "tests/easel/document/Plugin.h"

namespace easel::tests {
namespace {

struct Found {
    bool hit;
    ai::int32 type;
    AIArtHandle art;
    ai::int16 segment;
    AIReal t;
};

Found test(AIRealPoint point, ai::int32 request = kAllHitRequest) {
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
        const Found found = test(point);
        CHECK(found.hit);
        CHECK(found.art == square);
        CHECK(found.type == type);
        CHECK(found.segment == segment);
    }
    CHECK(test({50, 1}).t == doctest::Approx(0.5));
    CHECK_FALSE(test({150, 50}).hit);
    CHECK_FALSE(test({50, 50}, kAllNoFillHitRequest).hit);
}

TEST_CASE("of what is near the closest wins, then what is in front; hidden art is not there") {
    Drawing drawing;
    const AIArtHandle near = drawing.makePath({{0, 1}, {100, 1}});
    const AIArtHandle front = drawing.makePath({{0, 0}, {100, 0}});
    drawing.makePath({{0, 0}, {100, 0}});
    CHECK(test({50, 0.1F}).art == front);
    CHECK(test({50, 0.9F}).art == near);
    CHECK(test({50, 2.5F}).art == near);
    drawing.document.viewZoom = 4; // pixels of tolerance are smaller now
    CHECK(test({50, 2.5F}).art == nullptr);
    CHECK(test({50, 1.4F}).art == near);

    CHECK(test({50, 0}, kSelectionHitRequest).art == nullptr);
    REQUIRE(art().SetArtUserAttr(near, kArtSelected, kArtSelected) == kNoErr);
    CHECK(test({50, 0.6F}, kSelectionHitRequest).art == near);
    REQUIRE(art().SetArtUserAttr(front, kArtLocked, kArtLocked) == kNoErr);
    CHECK(test({50, 0}).art == front);
    REQUIRE(art().SetArtUserAttr(front, kArtHidden, kArtHidden) == kNoErr);
    CHECK(test({50, 0}).art != front);
}

TEST_CASE("a hit left to the host ends with the message") {
    const Drawing drawing;
    const AIRealPoint point{0, 0};
    AIHitRef left = nullptr;
    CHECK(hit().HitTest(nullptr, &point, kAllHitRequest, &left) == kNoErr);
    CHECK(session().ledger.count(Lent::Hit) == 1);
    session().messageLoans.clear();
    CHECK(session().ledger.count(Lent::Hit) == 0);
}

} // namespace
} // namespace easel::tests

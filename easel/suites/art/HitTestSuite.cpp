#include "host/suites/AIHitTestSuite.h"

#include "easel/core/Arguments.h"
#include "easel/core/Expose.h"
#include "easel/document/HitTest.h"
#include "easel/document/Session.h"
#include "easel/suites/art/ArtSuites.h"

namespace easel {
namespace {

/// How far from the point things are hit when the plug-in does not say, in pixels.
constexpr AIReal kUsualTolerance = 2;

Hit& hitOf(AIHitRef hit) { return static_cast<Hit&>(counted(HandleKind::Hit, Lent::Hit, hit)); }

/// Null asks about nothing, as a miss does.
HitResult resultOf(AIHitRef hit) { return hit != nullptr ? hitOf(hit).result : HitResult{}; }

AIArtHandle artIn(AIHitRef hit) { return hit != nullptr ? hitOf(hit).art : nullptr; }

AIErr hitTestEx(AIArtHandle root, const AIRealPoint* point, AIReal tolerance, ai::int32 request,
                AIHitRef* hit) {
    required(hit) = nullptr;
    Art& searched = root != nullptr ? artOf(root) : currentDocument().root();
    const double reach = double{tolerance} / searched.document().viewZoom;
    const HitResult found = hitTest(searched, required(point), reach, request);
    if (found.art == nullptr && !switches().missIsHitObject) return kNoErr;
    // What the plug-in leaves is dropped when the message ends, so that no term runs out before.
    ledger().setTerm(Lent::Hit, LoanTerm::Life);
    Ref<Hit> object(new Hit(found));
    *hit = static_cast<AIHitRef>(object->lend());
    session().messageLoans.keep(std::move(object));
    return kNoErr;
}

AIErr hitTestUsual(AIArtHandle root, const AIRealPoint* point, ai::int32 request, AIHitRef* hit) {
    return hitTestEx(root, point, kUsualTolerance, request, hit);
}

ai::int32 addRef(AIHitRef handle) {
    if (handle == nullptr) return 0;
    Hit& hit = hitOf(handle);
    static_cast<void>(hit.lend());
    ++hit.added;
    return static_cast<ai::int32>(hit.lent());
}

ai::int32 release(AIHitRef handle) {
    if (handle == nullptr) return 0;
    Hit& hit = hitOf(handle);
    const auto left = static_cast<ai::int32>(hit.lent() - 1);
    hit.takeBack();
    return left;
}

AIBoolean isHit(AIHitRef hit) { return artIn(hit) != nullptr ? 1 : 0; }
ai::int32 getType(AIHitRef hit) { return resultOf(hit).type; }
AIArtHandle getArt(AIHitRef hit) { return artIn(hit); }
AIRealPoint getPoint(AIHitRef hit) { return realPoint(resultOf(hit).point); }
ai::int16 getPathSegment(AIHitRef hit) { return resultOf(hit).segment; }
AIReal getPathParameter(AIHitRef hit) { return static_cast<AIReal>(resultOf(hit).t); }

/// The outermost group that holds what was hit, below its layer; null when there is none.
AIArtHandle getGroup(AIHitRef hit) {
    const Art* art = findArt(artIn(hit));
    AIArtHandle group = nullptr;
    for (const Art* up = art; up != nullptr && !up->isLayer(); up = up->parent())
        if (up != art && up->parent() != nullptr) group = up->handle();
    return group;
}

AIErr getHitData(AIHitRef hit, AIToolHitData* data) {
    const HitResult result = resultOf(hit);
    required(data) = {isHit(hit),
                      static_cast<ai::int16>(result.type),
                      result.segment,
                      artIn(hit),
                      getGroup(hit),
                      realPoint(result.point),
                      static_cast<AIReal>(result.t)};
    return kNoErr;
}

} // namespace

void installHitTestSuite(SuiteServer& server) {
    using S = AIHitTestSuite;
    auto table = server.table<S>(kAIHitTestSuite, kAIHitTestSuiteVersion);
    expose<&S::HitTest, hitTestUsual>(table);
    expose<&S::HitTestEx, hitTestEx>(table);
    expose<&S::AddRef, addRef>(table);
    expose<&S::Release, release>(table);
    expose<&S::GetHitData, getHitData>(table);
    expose<&S::IsHit, isHit>(table);
    expose<&S::GetType, getType>(table);
    expose<&S::GetArt, getArt>(table);
    expose<&S::GetGroup, getGroup>(table);
    expose<&S::GetPoint, getPoint>(table);
    expose<&S::GetPathSegment, getPathSegment>(table);
    expose<&S::GetPathParameter, getPathParameter>(table);
}

} // namespace easel

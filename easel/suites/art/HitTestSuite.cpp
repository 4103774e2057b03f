#include "host/suites/AIHitTestSuite.h"

#include "easel/core/Expose.h"
#include "easel/document/HitTest.h"
#include "easel/document/Session.h"
#include "easel/suites/art/ArtSuites.h"

namespace easel {
namespace {

/// How far from the point things are hit, in pixels.
constexpr AIReal kTolerance = 2;

Hit& hitOf(AIHitRef hit) {
    return static_cast<Hit&>(session().counted(HandleKind::Hit, Lent::Hit, hit));
}

/// Null asks about nothing, as a miss does.
HitResult resultOf(AIHitRef hit) { return hit != nullptr ? hitOf(hit).result : HitResult{}; }

AIArtHandle artIn(AIHitRef hit) { return hit != nullptr ? hitOf(hit).art : nullptr; }

AIHitRef hitTestAt(AIArtHandle root, const AIRealPoint* point, ai::int32 request) {
    Art& searched = root != nullptr ? session().artOf(root) : session().document().root();
    const double reach = double{kTolerance} / searched.document().viewZoom;
    const HitResult found = hitTest(searched, required(point), reach, request);
    if (found.art == nullptr && !session().switches.missIsHitObject) return nullptr;
    // What the plug-in leaves is dropped when the message ends, so that no term runs out before.
    session().ledger.setTerm(Lent::Hit, LoanTerm::Life);
    Ref<Hit> object(new Hit(found));
    const auto hit = static_cast<AIHitRef>(object->lend(session()));
    session().messageLoans.keep(std::move(object));
    return hit;
}

ai::int32 release(AIHitRef handle) {
    if (handle == nullptr) return 0;
    Hit& hit = hitOf(handle);
    const auto left = static_cast<ai::int32>(hit.lent() - 1);
    hit.takeBack(session());
    return left;
}

bool isHit(AIHitRef hit) { return artIn(hit) != nullptr; }
ai::int32 getType(AIHitRef hit) { return resultOf(hit).type; }
AIArtHandle getArt(AIHitRef hit) { return artIn(hit); }
ai::int16 getPathSegment(AIHitRef hit) { return resultOf(hit).segment; }
AIReal getPathParameter(AIHitRef hit) { return static_cast<AIReal>(resultOf(hit).t); }

} // namespace

void installHitTestSuite(SuiteServer& server) {
    using S = AIHitTestSuite;
    expose<&S::HitTest, hitTestAt>(server);
    expose<&S::Release, release>(server);
    expose<&S::IsHit, isHit>(server);
    expose<&S::GetType, getType>(server);
    expose<&S::GetArt, getArt>(server);
    expose<&S::GetPathSegment, getPathSegment>(server);
    expose<&S::GetPathParameter, getPathParameter>(server);
}

} // namespace easel

#pragma once

#include "easel/document/Art.h"
#include "easel/document/Bezier.h"

namespace easel {

/// What lies under a point.
struct HitResult {
    Art* art = nullptr; ///< Null: nothing was hit.
    AIHitType type = kAnchorHit;
    /// Of an anchor or handle its number; of a curve the number of the anchor at which it ENDS,
    /// which on a closed path may be 0.
    ai::int16 segment = 0;
    double t = 0; ///< Along the curve, from its start.
    CurvePoint point;
    double distance = 0; ///< In points.
};

/// Searches `root` for what `request` (`AIHitRequest`) asks for within `reach` points of `point`.
/// Anchors win over handles, handles over curves, curves over fills; among equals the closest,
/// then the one in front. Hidden art is never hit. Throws 'PARM' for an unknown request.
[[nodiscard]] HitResult hitTest(Art& root, AIRealPoint point, double reach, ai::int32 request);

/// A result in the plug-in's hands. It starts with one reference, which the plug-in may release or
/// leave to the end of the message.
class Hit final : public Counted {
public:
    explicit Hit(const HitResult& found) noexcept
        : Counted(HandleKind::Hit, Lent::Hit), result(found),
          art(found.art != nullptr ? found.art->handle() : nullptr) {}

    const HitResult result;
    const AIArtHandle art; ///< The art may be gone when it is asked for.
};

} // namespace easel

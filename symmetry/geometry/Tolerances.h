#pragma once

/// Every tolerance and limit of the mirror geometry, in one place.

namespace facetta {

/// Points. An anchor this close to an axis counts as lying on it, and two places this close count
/// as one: several times the spacing of 32-bit reals at 16,383 points, far below what is visible.
constexpr double kOnAxisDistance = 0.005;

/// Points. An anchor beside an axis counts as lying on it and as its own image; its reflection is
/// twice as far off. So images of what mirroring has made lie this close, with rounding.
constexpr double kImagesApart = 3.0 * kOnAxisDistance;

/// Path positions (segment index plus parameter). Two crossings on different segments closer than
/// this are a touch at the anchor between them.
constexpr double kTouchParameter = 0.0001;

/// Points. A sharp tip that pokes through an axis by no more than this, with its two crossings as
/// close as the two limits above, is a touch; one that reaches farther was drawn across.
constexpr double kTouchDepth = 0.05;

/// Path positions. A crossing this close to an anchor on the axis is that anchor's own, found twice
/// because the stored anchor is off the axis by rounding.
constexpr double kAnchorParameter = 0.001;

/// Points. A closed path that lies within this of its first anchor is a dot, which is not cut. Of
/// what is cut, parts on both sides must reach farther than a touch does, with as much again left
/// between the two where the path runs; then a part is told from a touch whatever rounding does.
constexpr double kSmallestCut = 5.0 * kTouchDepth;

/// Points. Where a sector is narrower than this nothing is cut either: touches of both its rays
/// would fill it.
constexpr double kSmallestSectorWidth = 2.0 * kTouchDepth;

/// Points. Removing an anchor may move the curve by this much, invisible at any zoom.
constexpr double kRemovalDistance = 0.01;

/// The sine of the largest bend at which two handles still count as one smooth tangent: 0.06
/// degrees, above what rounding does to a handle of a tenth of a point at 1,000 points.
constexpr double kSmoothSine = 0.001;

/// Relative spacing of 32-bit reals. A stored point is off the place it stands for by up to 0.71
/// times this, relative to its larger coordinate.
constexpr double kStorageSpacing = 1.0 / 8388608.0;

/// Points. Length of a ray where it is drawn, hit and snapped to; longer than any artboard.
constexpr double kRayLength = 16000.0;

/// Radians. Angles beyond this are reduced by the remainder before the steps of 2 pi, of which
/// there are then at most about 1,600.
constexpr double kLargestSteppedAngle = 10000.0;

/// Path parameter of the sample that tells the active sector, 1/pi: irrational, so that on no drawn
/// curve it meets an anchor, a crossing or an axis by construction.
constexpr double kSampleParameter = 0.3183098861837907;

} // namespace facetta

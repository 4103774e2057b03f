#pragma once

/// The two fields that hold the origin of the axes, in the panel and in the dialog.
///
/// They show where the origin lies on the document's rulers: in their unit, from their zero point,
/// y in the sense in which they count. The record of the axes keeps the origin on the canvas, so
/// what the fields accept is the canvas as seen from the ruler's zero point.

#include "ui/Adm.h"

#include "symmetry/SymmetryAxes.h"
#include "tool/Preferences.h"

namespace facetta {

/// The items that hold X and Y.
struct OriginItems {
    ADMItemRef x = nullptr;
    ADMItemRef y = nullptr;
};

/// Gives the fields the unit of the rulers, its decimals, and the canvas as their limits. Without a
/// document the ruler's zero point is taken to be the canvas's.
void followRulers(const Adm& adm, const OriginItems& items, const HostPreferences& host);

/// Shows the origin of `axes`; zero for none.
void showOrigin(const Adm& adm, const OriginItems& items, const SymmetryAxes& axes,
                const HostPreferences& host);

/// The origin of `axes` moved to what one field holds; the other coordinate keeps all its digits.
/// Both throw `ai::Error`, as without a document.
[[nodiscard]] SymmetryAxes withOriginX(const Adm& adm, ADMItemRef x, SymmetryAxes axes);
[[nodiscard]] SymmetryAxes withOriginY(const Adm& adm, ADMItemRef y, SymmetryAxes axes,
                                       const HostPreferences& host);

} // namespace facetta

#include "ui/OriginFields.h"

#include "symmetry/ArtSpace.h"
#include "tool/CurrentView.h"
#include "ui/DisplayUnits.h"

#include <algorithm>

namespace facetta {
namespace {

/// On the rulers, in points.
struct RulerPoint {
    double x = 0.0;
    double y = 0.0;
};

double sense(const HostPreferences& host) { return host.isRulerIn4thQuad ? -1.0 : 1.0; }

RulerPoint onRulers(Point hard, const HostPreferences& host) {
    const Point soft = documentIsOpen() ? soften(hard) : Point{hard.x, -hard.y};
    return {soft.x, sense(host) * soft.y};
}

void setLimits(const Adm& adm, ADMItemRef item, double one, double other) {
    const auto [smallest, largest] = std::minmax(one, other);
    adm.item->SetMinFloatValue(item, static_cast<float>(smallest));
    adm.item->SetMaxFloatValue(item, static_cast<float>(largest));
}

void setUnit(const Adm& adm, ADMItemRef item, DisplayUnit unit) {
    const bool isLarge = unit == DisplayUnit::Inch || unit == DisplayUnit::Centimetre;
    adm.item->SetUnits(item, static_cast<ADMUnits>(unit));
    adm.item->SetPrecision(item, isLarge ? 4 : 3);
    adm.item->SetAllowUnits(item, 1);
    adm.item->SetAllowMath(item, 1);
    adm.item->ShowUnits(item, 1);
}

} // namespace

void followRulers(const Adm& adm, const OriginItems& items, const HostPreferences& host) {
    const DisplayUnit unit = displayUnit();
    const RulerPoint corner = onRulers({0.0, 0.0}, host);
    const RulerPoint opposite = onRulers({kCanvasSize, kCanvasSize}, host);
    setUnit(adm, items.x, unit);
    setUnit(adm, items.y, unit);
    setLimits(adm, items.x, corner.x, opposite.x);
    setLimits(adm, items.y, corner.y, opposite.y);
}

void showOrigin(const Adm& adm, const OriginItems& items, const SymmetryAxes& axes,
                const HostPreferences& host) {
    const RulerPoint shown =
        axes.axisCount != 0 ? onRulers(hardOriginOf(axes), host) : RulerPoint{};
    showNumber(adm, items.x, shown.x);
    showNumber(adm, items.y, shown.y);
}

SymmetryAxes withOriginX(const Adm& adm, ADMItemRef x, SymmetryAxes axes) {
    const Point soft{static_cast<double>(adm.item->GetFloatValue(x)), 0.0};
    axes.originX = clampToCanvas(harden(soft)).x;
    return axes;
}

SymmetryAxes withOriginY(const Adm& adm, ADMItemRef y, SymmetryAxes axes,
                         const HostPreferences& host) {
    const Point soft{0.0, sense(host) * static_cast<double>(adm.item->GetFloatValue(y))};
    axes.originY = clampToCanvas(harden(soft)).y;
    return axes;
}

} // namespace facetta

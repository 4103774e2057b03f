#include "easel/runtime/Host.h"

#include "host/MessageNames.h"

#include <cmath>
#include <numbers>

namespace easel {

void Host::noteViewMoved() {
    redrawLater();
    queue("AI Document View Changed Notifier");
}

void Host::zoom(AIReal factor) {
    setZoom(view(nullptr), factor);
    noteViewMoved();
    idle();
}

void Host::centreOn(AIRealPoint centre) {
    view(nullptr).centre = centre;
    noteViewMoved();
    idle();
}

void Host::resizeView(ai::int32 width, ai::int32 height) {
    DocumentView& window = view(nullptr);
    window.width = width;
    window.height = height;
    noteViewMoved();
    idle();
}

void Host::setDarkTheme(bool dark) {
    user.darkTheme = dark;
    redrawLater();
    queue("AI UI Brightness Changed Notifier");
    idle();
}

void Host::setConstrainAngle(double degrees) {
    const double angle = degrees * std::numbers::pi / 180.0;
    preferences.put("", "constrain/angle", degrees);
    preferences.put("", "constrain/cos", std::cos(angle));
    preferences.put("", "constrain/sin", std::sin(angle));
    queue(kPreferenceChangedNotifier);
    idle();
}

} // namespace easel

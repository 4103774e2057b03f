#include "easel/core/Expose.h"
#include "easel/suites/runtime/RunningHost.h"
#include "easel/suites/runtime/RuntimeSuites.h"
#include "host/suites/AICursorSnapSuite.h"

#include <bit>

namespace easel {
namespace {

CursorSnap& snapping() { return host().cursorSnap; }

bool useSmartGuides(AIDocumentViewHandle view) {
    static_cast<void>(host().view(view));
    return snapping().enabled;
}

/// Where hosts take the point by value, its two floats stand in the register that otherwise holds
/// its address.
AIRealPoint pointOf(const AIRealPoint& argument) {
    if (session().switches.snapPointByReference) return argument;
    return std::bit_cast<AIRealPoint>(reinterpret_cast<std::uintptr_t>(&argument));
}

AIRealPoint track(AIDocumentViewHandle view, const AIRealPoint& argument, const AIEvent* /*event*/,
                  const char* control) {
    const AIRealPoint point = pointOf(argument);
    const char& letters = required(control);
    snapping().calls.push_back({point, &letters});
    return snapping().enabled ? snapTo(host().view(view), point, &letters) : point;
}

} // namespace

void installCursorSnapSuite(SuiteServer& server) {
    expose<&AICursorSnapSuite::UseSmartGuides, useSmartGuides>(server);
    expose<&AICursorSnapSuite::Track, track>(server);
}

} // namespace easel

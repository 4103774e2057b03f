#include "easel/core/Arguments.h"
#include "easel/core/Expose.h"
#include "easel/runtime/Host.h"
#include "easel/suites/runtime/RuntimeSuites.h"
#include "host/suites/AICursorSnapSuite.h"

#include <bit>

namespace easel {
namespace {

CursorSnap& snapping() { return host().cursorSnap; }

AIBoolean useSmartGuides(AIDocumentViewHandle view) {
    return snapping().enabled && !host().view(view).showGrid ? 1 : 0;
}

AIErr clearCustom() {
    snapping().custom.clear();
    return kNoErr;
}

AIErr setCustom(ai::int32 count, const AICursorConstraint* constraints) {
    if (count < 0) throw ai::Error{kBadParameterErr};
    if (count == 0) return clearCustom();
    snapping().custom.assign(&required(constraints), constraints + count);
    return kNoErr;
}

/// Where hosts take the point by value, its two floats stand in the register that otherwise holds
/// its address.
AIRealPoint pointOf(const AIRealPoint& argument) {
    if (switches().snapPointByReference) return argument;
    return std::bit_cast<AIRealPoint>(reinterpret_cast<std::uintptr_t>(&argument));
}

AIErr track(AIDocumentViewHandle view, const AIRealPoint& argument, const AIEvent* /*event*/,
            const char* control, AIRealPoint* result) {
    const AIRealPoint point = pointOf(argument);
    const char& letters = required(control);
    snapping().calls.push_back({point, &letters});
    required(result) = snapping().enabled ? snapTo(host().view(view), point, &letters) : point;
    return kNoErr;
}

AIErr hitTrack(AIDocumentViewHandle view, const AIRealPoint& point, const AIEvent* event,
               const char* control, AIRealPoint* result, AIBoolean /*magnify*/) {
    return track(view, point, event, control, result);
}

} // namespace

void installCursorSnapSuite(SuiteServer& server) {
    auto table = server.table<AICursorSnapSuite>(kAICursorSnapSuite, kAICursorSnapSuiteVersion);
    expose<&AICursorSnapSuite::UseSmartGuides, useSmartGuides>(table);
    expose<&AICursorSnapSuite::Reset, clearCustom>(table);
    expose<&AICursorSnapSuite::ClearCustom, clearCustom>(table);
    expose<&AICursorSnapSuite::SetCustom, setCustom>(table);
    expose<&AICursorSnapSuite::Track, track>(table);
    expose<&AICursorSnapSuite::HitTrack, hitTrack>(table);
}

} // namespace easel

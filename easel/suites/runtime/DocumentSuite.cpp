#include "easel/core/Expose.h"
#include "easel/suites/runtime/RunningHost.h"
#include "easel/suites/runtime/RuntimeSuites.h"
#include "host/suites/AIDocumentSuite.h"

#include <algorithm>

namespace easel {
namespace {

ai::int16 getRulerUnits() { return session().document().rulerUnits; }

/// The painting comes later, when the message has been answered.
void redraw() {
    static_cast<void>(session().document());
    host().redrawLater();
}

AIDocumentHandle getDocument() { return session().document().handle(); }

AIRealRect getMaxArtboardBounds() { return session().document().canvas(); }

bool documentExists(AIDocumentHandle handle) {
    return std::ranges::any_of(host().documents(),
                               [&](const auto& open) { return open->handle() == handle; });
}

} // namespace

void installDocumentSuite(SuiteServer& server) {
    expose<&AIDocumentSuite::GetDocumentRulerUnits, getRulerUnits>(server);
    expose<&AIDocumentSuite::RedrawDocument, redraw>(server);
    expose<&AIDocumentSuite::GetDocument, getDocument>(server);
    expose<&AIDocumentSuite::GetDocumentMaxArtboardBounds, getMaxArtboardBounds>(server);
    expose<&AIDocumentSuite::DocumentExists, documentExists>(server);
}

} // namespace easel

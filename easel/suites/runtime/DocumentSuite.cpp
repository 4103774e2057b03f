#include "easel/core/Arguments.h"
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
    const auto& open = host().documents();
    const bool found = std::any_of(open.begin(), open.end(), [&](const auto& document) {
        return document->handle() == handle;
    });
    return found;
}

} // namespace

void installDocumentSuite(SuiteServer& server) {
    auto table = server.table<AIDocumentSuite>(kAIDocumentSuite, kAIDocumentSuiteVersion);
    expose<&AIDocumentSuite::GetDocumentRulerUnits, getRulerUnits>(table);
    expose<&AIDocumentSuite::RedrawDocument, redraw>(table);
    expose<&AIDocumentSuite::GetDocument, getDocument>(table);
    expose<&AIDocumentSuite::GetDocumentMaxArtboardBounds, getMaxArtboardBounds>(table);
    expose<&AIDocumentSuite::DocumentExists, documentExists>(table);
}

} // namespace easel

#include "easel/core/Arguments.h"
#include "easel/core/Expose.h"
#include "easel/suites/runtime/RunningHost.h"
#include "easel/suites/runtime/RuntimeSuites.h"
#include "host/suites/AIDocumentSuite.h"

#include <algorithm>

namespace easel {
namespace {

AIErr getRulerUnits(ai::int16* units) {
    required(units) = session().document().rulerUnits;
    return kNoErr;
}

/// The painting comes later, when the message has been answered.
AIErr redraw() {
    static_cast<void>(session().document());
    host().redrawLater();
    return kNoErr;
}

AIErr getDocument(AIDocumentHandle* document) {
    required(document) = session().document().handle();
    return kNoErr;
}

AIErr getMaxArtboardBounds(AIRealRect* bounds) {
    required(bounds) = session().document().canvas();
    return kNoErr;
}

AIErr documentExists(AIDocumentHandle handle, AIBoolean* exists) {
    const auto& open = host().documents();
    const bool found = std::any_of(open.begin(), open.end(), [&](const auto& document) {
        return document->handle() == handle;
    });
    required(exists) = found ? 1 : 0;
    return kNoErr;
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

#include "easel/core/Arguments.h"
#include "easel/core/Expose.h"
#include "easel/core/HostPath.h"
#include "easel/runtime/Host.h"
#include "easel/suites/runtime/RuntimeSuites.h"
#include "host/suites/AIDocumentSuite.h"

#include <algorithm>

namespace easel {
namespace {

/// `AIVersion` of this generation.
constexpr ai::int32 kFileVersion = 16;

/// The lower left corner of the artboard in soft coordinates, from which the interface counts the
/// ruler origin.
AIRealPoint pageCorner(const Document& document) {
    const AIRealRect board = document.artboard();
    return {board.left, board.bottom};
}

AIErr getFile(ai::FilePath& path) {
    writePath(path, currentDocument().path);
    return kNoErr;
}

AIErr getPageOrigin(AIRealPoint* origin) {
    required(origin) = pageCorner(currentDocument());
    return kNoErr;
}

AIErr setRulerOrigin(AIRealPoint* origin) {
    Document& document = currentDocument();
    const AIRealPoint corner = pageCorner(document);
    const AIRealPoint hard = document.state().rulerOrigin;
    // Where the new origin lies now, in soft coordinates; on the canvas y runs the other way.
    const AIRealPoint soft = {corner.h + required(origin).h, corner.v + origin->v};
    document.setRulerOrigin({hard.h + soft.h, hard.v - soft.v});
    return kNoErr;
}

AIErr getRulerOrigin(AIRealPoint* origin) {
    const AIRealPoint corner = pageCorner(currentDocument());
    required(origin) = {-corner.h, -corner.v};
    return kNoErr;
}

AIErr getRulerUnits(ai::int16* units) {
    required(units) = currentDocument().rulerUnits;
    return kNoErr;
}

AIErr setRulerUnits(ai::int16 units) {
    if (units < kUnknownUnits || units > kQUnits) throw ai::Error{kBadParameterErr};
    currentDocument().rulerUnits = units;
    host().queue("AI Document Ruler Unit Changed Notifier");
    return kNoErr;
}

AIErr getSetup(AIDocumentSetup* setup) {
    required(setup) = currentDocument().state().setup;
    return kNoErr;
}

AIErr setSetup(AIDocumentSetup* setup) {
    currentDocument().writeState().setup = required(setup);
    return kNoErr;
}

AIErr getModified(AIBoolean* modified) {
    required(modified) = currentDocument().isModified() ? 1 : 0;
    return kNoErr;
}

AIErr setModified(AIBoolean modified) {
    currentDocument().setModified(modified != 0);
    return kNoErr;
}

/// The painting comes later, when the message has been answered.
AIErr redraw() {
    static_cast<void>(currentDocument());
    host().redrawLater();
    return kNoErr;
}

AIErr getDocument(AIDocumentHandle* document) {
    required(document) = currentDocument().handle();
    return kNoErr;
}

AIErr getZoomLimit(AIReal* least, AIReal* most) {
    required(least) = kLeastZoom;
    required(most) = kMostZoom;
    return kNoErr;
}

AIErr getMaxArtboardBounds(AIRealRect* bounds) {
    required(bounds) = currentDocument().canvas();
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

AIErr getDictionary(AIDictionaryRef* dictionary) {
    required(dictionary) =
        static_cast<AIDictionaryRef>(currentDocument().recordedDictionary().lend());
    return kNoErr;
}

AIErr getNonRecordedDictionary(AIDictionaryRef* dictionary) {
    required(dictionary) = static_cast<AIDictionaryRef>(currentDocument().otherDictionary().lend());
    return kNoErr;
}

AIErr getColorModel(ai::int16* model) {
    required(model) = currentDocument().colorModel;
    return kNoErr;
}

/// Selection of containers is computed when it is asked for, never stored.
AIErr sync() {
    static_cast<void>(currentDocument());
    return kNoErr;
}

ai::int32 getVersion() { return kFileVersion; }

AIErr noFocus(AIBoolean* focus) {
    required(focus) = 0;
    return kNoErr;
}

/// While a plug-in answers a message its own record is open, and there is nothing to step over.
AIErr undoOrRedo(bool (UndoLog::*step)()) {
    if (host().contexts.depth() != 0) throw ai::Error{kSelectorClashErr};
    if (!(currentDocument().undo().*step)()) throw ai::Error{kUndoRedoErr};
    return kNoErr;
}
AIErr undo() { return undoOrRedo(&UndoLog::undo); }
AIErr redo() { return undoOrRedo(&UndoLog::redo); }

} // namespace

void installDocumentSuite(SuiteServer& server) {
    auto table = server.table<AIDocumentSuite>(kAIDocumentSuite, kAIDocumentSuiteVersion);
    expose<&AIDocumentSuite::GetDocumentFileSpecification, getFile>(table);
    expose<&AIDocumentSuite::GetDocumentPageOrigin, getPageOrigin>(table);
    expose<&AIDocumentSuite::SetDocumentRulerOrigin, setRulerOrigin>(table);
    expose<&AIDocumentSuite::GetDocumentRulerUnits, getRulerUnits>(table);
    expose<&AIDocumentSuite::SetDocumentRulerUnits, setRulerUnits>(table);
    expose<&AIDocumentSuite::GetDocumentSetup, getSetup>(table);
    expose<&AIDocumentSuite::SetDocumentSetup, setSetup>(table);
    expose<&AIDocumentSuite::GetDocumentModified, getModified>(table);
    expose<&AIDocumentSuite::SetDocumentModified, setModified>(table);
    expose<&AIDocumentSuite::RedrawDocument, redraw>(table);
    expose<&AIDocumentSuite::GetDocument, getDocument>(table);
    expose<&AIDocumentSuite::GetDocumentRulerOrigin, getRulerOrigin>(table);
    expose<&AIDocumentSuite::GetDocumentZoomLimit, getZoomLimit>(table);
    expose<&AIDocumentSuite::GetDocumentMaxArtboardBounds, getMaxArtboardBounds>(table);
    expose<&AIDocumentSuite::DocumentExists, documentExists>(table);
    expose<&AIDocumentSuite::GetDictionary, getDictionary>(table);
    expose<&AIDocumentSuite::GetDocumentColorModel, getColorModel>(table);
    expose<&AIDocumentSuite::SyncDocument, sync>(table);
    expose<&AIDocumentSuite::GetNonRecordedDictionary, getNonRecordedDictionary>(table);
    expose<&AIDocumentSuite::GetAIVersion, getVersion>(table);
    expose<&AIDocumentSuite::HasTextFocus, noFocus>(table);
    expose<&AIDocumentSuite::HasTextCaret, noFocus>(table);
    expose<&AIDocumentSuite::Undo, undo>(table);
    expose<&AIDocumentSuite::Redo, redo>(table);
}

} // namespace easel

#include "host/suites/AIUndoSuite.h"

#include "easel/core/Expose.h"
#include "easel/core/HostObjects.h"
#include "easel/document/Session.h"
#include "easel/suites/art/ArtSuites.h"

namespace easel {
namespace {

UndoLog& log() { return session().document().undo(); }

void setUndoText(const ai::UnicodeString& undo, const ai::UnicodeString& redo) {
    log().setTexts(readUtf8(session().ledger, undo), readUtf8(session().ledger, redo));
}

void undoChanges() { log().revert(); }

void setKind(ai::int32 kind) {
    if (kind < kStandardUndoContext || kind > kAppendUndoContext) throw ai::Error{kBadParameterErr};
    // Asked for in a nested context it has no effect, which is no error.
    if (!session().contextIsNested) log().setKind(static_cast<AIUndoContextKind>(kind));
}

void countTransactions(ai::int32* past, ai::int32* future) {
    if (past != nullptr) *past = log().pastSteps();
    if (future != nullptr) *future = log().futureSteps();
}

} // namespace

void installUndoSuite(SuiteServer& server) {
    using S = AIUndoSuite;
    expose<&S::SetUndoTextUS, setUndoText>(server);
    expose<&S::UndoChanges, undoChanges>(server);
    expose<&S::SetKind, setKind>(server);
    expose<&S::CountTransactions, countTransactions>(server);
}

} // namespace easel

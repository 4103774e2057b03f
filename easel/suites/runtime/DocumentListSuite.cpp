#include "easel/core/Arguments.h"
#include "easel/core/Expose.h"
#include "easel/runtime/Host.h"
#include "easel/suites/runtime/RuntimeSuites.h"
#include "host/suites/AIDocumentListSuite.h"

namespace easel {
namespace {

/// Every document has one window, so that counting windows counts documents.
AIErr count(ai::int32* number) {
    required(number) = static_cast<ai::int32>(host().documents().size());
    return kNoErr;
}

AIErr nth(AIDocumentHandle* document, ai::int32 index) {
    const auto& open = host().documents();
    if (index < 0 || index >= std::ssize(open)) throw ai::Error{kBadParameterErr};
    required(document) = open[static_cast<std::size_t>(index)]->handle();
    return kNoErr;
}

AIErr close(AIDocumentHandle document) {
    host().close(documentOf(document));
    return kNoErr;
}

AIErr closeAll() {
    while (!host().documents().empty())
        host().close(*host().documents().back());
    return kNoErr;
}

AIErr activate(AIDocumentHandle document, AIBoolean setFocus) {
    Document& found = documentOf(document);
    if (setFocus != 0) host().activate(found);
    return kNoErr;
}

ai::int32 countRecent() { return 0; }

} // namespace

void installDocumentListSuite(SuiteServer& server) {
    using Suite = AIDocumentListSuite;
    auto table = server.table<Suite>(kAIDocumentListSuite, kAIDocumentListSuiteVersion);
    expose<&Suite::Count, count>(table);
    expose<&Suite::GetNthDocument, nth>(table);
    expose<&Suite::Close, close>(table);
    expose<&Suite::CloseAll, closeAll>(table);
    expose<&Suite::Activate, activate>(table);
    expose<&Suite::CountRecentDocuments, countRecent>(table);
}

} // namespace easel

#include "host/suites/AISymbolSuite.h"

#include "easel/core/Arguments.h"
#include "easel/core/Expose.h"
#include "easel/document/Session.h"
#include "easel/suites/art/ArtSuites.h"

namespace easel {
namespace {

AIPatternHandle handleOf(const Definition* symbol) {
    return symbol != nullptr ? static_cast<AIPatternHandle>(symbol->handle()) : nullptr;
}

Art& instanceOf(AIArtHandle handle) {
    Art& art = session().artOf(handle);
    if (art.type() != kSymbolArt) throw ai::Error{kBadParameterErr};
    return art;
}

AIPatternHandle getSymbolOfArt(AIArtHandle instance) {
    return handleOf(instanceOf(instance).details().symbol);
}

} // namespace

void installSymbolSuite(SuiteServer& server) {
    using S = AISymbolSuite;
    auto table = server.table<S>(kAISymbolSuite, kAISymbolSuiteVersion);
    expose<&S::GetSymbolPatternOfSymbolArt, getSymbolOfArt>(table);
}

} // namespace easel

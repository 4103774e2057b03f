#include "host/suites/AISymbolSuite.h"

#include "easel/core/Expose.h"
#include "easel/document/Session.h"
#include "easel/suites/art/ArtSuites.h"

namespace easel {
namespace {

AIPatternHandle getSymbolOfArt(AIArtHandle instance) {
    const Definition* const symbol = session().artOf(instance, kSymbolArt).details().symbol;
    return symbol != nullptr ? static_cast<AIPatternHandle>(symbol->handle()) : nullptr;
}

} // namespace

void installSymbolSuite(SuiteServer& server) {
    expose<&AISymbolSuite::GetSymbolPatternOfSymbolArt, getSymbolOfArt>(server);
}

} // namespace easel

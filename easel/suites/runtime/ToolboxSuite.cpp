#include "easel/core/Arguments.h"
#include "easel/core/Expose.h"
#include "easel/runtime/Host.h"
#include "easel/suites/runtime/RuntimeSuites.h"
#include "host/suites/AIToolboxSuite.h"

namespace easel {
namespace {

AIErr setTool(AIToolboxHandle /*toolbox*/, AIToolType number) {
    const AIToolHandle tool = host().tools.handleOf(number);
    host().selectTool(tool, tool == nullptr ? number : Tools::kSelectTool);
    return kNoErr;
}

/// Plug-ins have no tool boxes of their own here.
AIErr countToolboxes(ai::int32* count) {
    required(count) = 0;
    return kNoErr;
}

AIErr getCurrentToolType(AIToolType* number) {
    required(number) = host().tools.currentNumber();
    return kNoErr;
}

} // namespace

void installToolboxSuite(SuiteServer& server) {
    auto table = server.table<AIToolboxSuite>(kAIToolboxSuite, kAIToolboxSuiteVersion);
    expose<&AIToolboxSuite::SetTool, setTool>(table);
    expose<&AIToolboxSuite::CountToolboxes, countToolboxes>(table);
    expose<&AIToolboxSuite::GetCurrentToolType, getCurrentToolType>(table);
}

} // namespace easel

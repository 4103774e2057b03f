#include "easel/core/Expose.h"
#include "easel/suites/runtime/RunningHost.h"
#include "easel/suites/runtime/RuntimeSuites.h"
#include "host/suites/AIToolSuite.h"

#include <algorithm>

namespace easel {
namespace {

/// Variables of the information display from here on are texts; those below are numbers.
constexpr ai::int32 kFirstTextVariable = 12;
constexpr ai::int32 kRawRotation = 14;
constexpr ai::int32 kDocumentX = 15;
constexpr ai::int32 kDocumentY = 16;
constexpr ai::int32 kEndOfVariables = -1;
constexpr const char* kNoText = "";

Tools& box() { return host().tools; }
Tool& at(AIToolHandle tool) { return box().tools.at(tool); }

const char* textOf(const char* text) { return text == nullptr ? kNoText : text; }

AIToolHandle addTool(SPPluginRef plugin, const char* name, AIAddToolData* data, ai::int32 options) {
    static_cast<void>(host().plugins.at(plugin));
    if (box().named(&required(name)) != nullptr) throw ai::Error{kBadParameterErr};
    const AIAddToolData& given = required(data);
    AIToolType number = Tools::kFirstPluginTool;
    for (const auto& [handle, other] : box().tools)
        number = std::max(number, static_cast<AIToolType>(other->number + 1));
    const auto own = [number](AIToolType joined) { return joined == kNoTool ? number : joined; };
    return box().tools.add({.plugin = plugin,
                            .name = name,
                            .title = textOf(given.title),
                            .tooltip = textOf(given.tooltip),
                            .helpID = given.helpID,
                            .lightIcon = given.normalIconResID,
                            .darkIcon = given.darkIconResID,
                            .group = own(given.sameGroupAs),
                            .toolset = own(given.sameToolsetAs),
                            .options = options,
                            .number = number});
}

/// The suite hands texts out as `char*`, but they are the host's and not to be changed.
char* getName(AIToolHandle tool) { return at(tool).name.data(); }

ai::int32 getOptions(AIToolHandle tool) { return at(tool).options; }

void setSelected(AIToolHandle tool) {
    static_cast<void>(at(tool));
    host().selectTool(tool);
}

void setInfoVariables(AIToolHandle tool, const ai::int32* variables) {
    const ai::int32* end = &required(variables);
    while (*end != kEndOfVariables)
        ++end;
    at(tool).infoVariables.assign(variables, end);
}

bool isNumber(ai::int32 variable) {
    return (variable >= 0 && variable < kFirstTextVariable) || variable == kRawRotation ||
           variable == kDocumentX || variable == kDocumentY;
}

void setInfoValues(const ai::int32* variables, void** values) {
    static_cast<void>(required(variables));
    static_cast<void>(required(values));
    for (std::size_t i = 0; variables[i] != kEndOfVariables; ++i)
        if (isNumber(variables[i]) && values[i] != nullptr)
            box().infoValues[variables[i]] = *static_cast<const AIReal*>(values[i]);
}

const char* getCurrentName() { return box().nameOf(box().currentNumber()); }

void setSelectedByName(const char* name) {
    const AIToolType number = box().numberOf(&required(name));
    const AIToolHandle tool = box().handleOf(number);
    host().selectTool(tool, tool == nullptr ? number : Tools::kSelectTool);
}

} // namespace

void installToolSuite(SuiteServer& server) {
    expose<&AIToolSuite::AddTool, addTool, OutputMayBeNull>(server);
    expose<&AIToolSuite::GetToolName, getName>(server);
    // What a table without the slot before it has there, for whoever asks which of both this is.
    expose<&AIToolSuite::GetToolOptions, getOptions>(server);
    expose<&AIToolSuite::SetSelectedTool, setSelected>(server);
    expose<&AIToolSuite::SetToolInfoVars, setInfoVariables>(server);
    expose<&AIToolSuite::SetToolInfoVarValues, setInfoValues>(server);
    expose<&AIToolSuite::GetCurrentToolName, getCurrentName>(server);
    expose<&AIToolSuite::SetSelectedToolByName, setSelectedByName>(server);
}

} // namespace easel

#include "easel/core/Arguments.h"
#include "easel/core/Expose.h"
#include "easel/runtime/Host.h"
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

AIErr addTool(SPPluginRef plugin, const char* name, AIAddToolData* data, ai::int32 options,
              AIToolHandle* tool) {
    static_cast<void>(host().plugins.at(plugin));
    if (box().named(&required(name)) != nullptr) throw ai::Error{kBadParameterErr};
    const AIAddToolData& given = required(data);
    AIToolType number = Tools::kFirstPluginTool;
    for (const auto& [handle, other] : box().tools)
        number = std::max(number, static_cast<AIToolType>(other->number + 1));
    const auto own = [number](AIToolType joined) { return joined == kNoTool ? number : joined; };
    const AIToolHandle added = box().tools.add({.plugin = plugin,
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
    if (tool != nullptr) *tool = added;
    return kNoErr;
}

/// The suite hands texts out as `char*`, but they are the host's and not to be changed.
template <std::string Tool::*Text> AIErr getText(AIToolHandle tool, char** text) {
    required(text) = (at(tool).*Text).data();
    return kNoErr;
}

template <std::string Tool::*Text> AIErr setText(AIToolHandle tool, const char* text) {
    at(tool).*Text = &required(text);
    return kNoErr;
}

template <typename Value, Value Tool::*Member> AIErr getValue(AIToolHandle tool, Value* value) {
    required(value) = at(tool).*Member;
    return kNoErr;
}

template <typename Value, Value Tool::*Member> AIErr setValue(AIToolHandle tool, Value value) {
    at(tool).*Member = value;
    return kNoErr;
}

AIErr getSelected(AIToolHandle* tool) {
    required(tool) = box().current;
    return kNoErr;
}

AIErr setSelected(AIToolHandle tool) {
    static_cast<void>(at(tool));
    host().selectTool(tool);
    return kNoErr;
}

AIErr count(ai::int32* number) {
    required(number) = box().tools.count();
    return kNoErr;
}

AIErr nth(ai::int32 index, AIToolHandle* tool) {
    required(tool) = box().tools.nth(index);
    return kNoErr;
}

AIErr handleFromNumber(AIToolType number, AIToolHandle* tool) {
    required(tool) = box().handleOf(number);
    return kNoErr;
}

AIErr numberFromName(const char* name, AIToolType* number) {
    required(number) = box().numberOf(&required(name));
    return kNoErr;
}

AIErr nameFromNumber(AIToolType number, char** name) {
    // The slot's type promises more than the host means: the text may not be changed.
    required(name) = const_cast<char*>(box().nameOf(number));
    return kNoErr;
}

AIErr setInfoVariables(AIToolHandle tool, const ai::int32* variables) {
    const ai::int32* end = &required(variables);
    while (*end != kEndOfVariables)
        ++end;
    at(tool).infoVariables.assign(variables, end);
    return kNoErr;
}

bool isNumber(ai::int32 variable) {
    return (variable >= 0 && variable < kFirstTextVariable) || variable == kRawRotation ||
           variable == kDocumentX || variable == kDocumentY;
}

AIErr setInfoValues(const ai::int32* variables, void** values) {
    static_cast<void>(required(variables));
    static_cast<void>(required(values));
    for (std::size_t i = 0; variables[i] != kEndOfVariables; ++i)
        if (isNumber(variables[i]) && values[i] != nullptr)
            box().infoValues[variables[i]] = *static_cast<const AIReal*>(values[i]);
    return kNoErr;
}

AIErr systemHasPressure(AIBoolean* pressure) {
    required(pressure) = 0;
    return kNoErr;
}

AIErr getCurrentName(const char** name) {
    required(name) = box().nameOf(box().currentNumber());
    return kNoErr;
}

AIErr setSelectedByName(const char* name) {
    const AIToolType number = box().numberOf(&required(name));
    const AIToolHandle tool = box().handleOf(number);
    host().selectTool(tool, tool == nullptr ? number : Tools::kSelectTool);
    return kNoErr;
}

} // namespace

void installToolSuite(SuiteServer& server) {
    auto table = server.table<AIToolSuite>(kAIToolSuite, kAIToolSuiteVersion);
    expose<&AIToolSuite::AddTool, addTool>(table);
    expose<&AIToolSuite::GetToolName, getText<&Tool::name>>(table);
    expose<&AIToolSuite::GetToolOptions, getValue<ai::int32, &Tool::options>>(table);
    expose<&AIToolSuite::SetToolOptions, setValue<ai::int32, &Tool::options>>(table);
    expose<&AIToolSuite::GetToolPlugin, getValue<SPPluginRef, &Tool::plugin>>(table);
    expose<&AIToolSuite::GetSelectedTool, getSelected>(table);
    expose<&AIToolSuite::SetSelectedTool, setSelected>(table);
    expose<&AIToolSuite::CountTools, count>(table);
    expose<&AIToolSuite::GetNthTool, nth>(table);
    expose<&AIToolSuite::GetToolHandleFromNumber, handleFromNumber>(table);
    expose<&AIToolSuite::GetToolNumberFromName, numberFromName>(table);
    expose<&AIToolSuite::GetToolNumberFromHandle, getValue<AIToolType, &Tool::number>>(table);
    expose<&AIToolSuite::GetToolNameFromNumber, nameFromNumber>(table);
    expose<&AIToolSuite::GetToolTitle, getText<&Tool::title>>(table);
    expose<&AIToolSuite::SetToolTitle, setText<&Tool::title>>(table);
    expose<&AIToolSuite::GetTooltip, getText<&Tool::tooltip>>(table);
    expose<&AIToolSuite::SetTooltip, setText<&Tool::tooltip>>(table);
    expose<&AIToolSuite::GetToolHelpID, getValue<ASHelpID, &Tool::helpID>>(table);
    expose<&AIToolSuite::SetToolHelpID, setValue<ASHelpID, &Tool::helpID>>(table);
    expose<&AIToolSuite::SetToolInfoVars, setInfoVariables>(table);
    expose<&AIToolSuite::SetToolInfoVarValues, setInfoValues>(table);
    expose<&AIToolSuite::SystemHasPressure, systemHasPressure>(table);
    expose<&AIToolSuite::GetToolNullEventInterval, getValue<AIToolTime, &Tool::nullEventInterval>>(
        table);
    expose<&AIToolSuite::SetToolNullEventInterval, setValue<AIToolTime, &Tool::nullEventInterval>>(
        table);
    expose<&AIToolSuite::GetAlternateSelectionToolName, getText<&Tool::alternateSelectionTool>>(
        table);
    expose<&AIToolSuite::SetAlternateSelectionToolName, setText<&Tool::alternateSelectionTool>>(
        table);
    expose<&AIToolSuite::GetCurrentToolName, getCurrentName>(table);
    expose<&AIToolSuite::SetSelectedToolByName, setSelectedByName>(table);
}

} // namespace easel

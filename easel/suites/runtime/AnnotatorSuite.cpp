#include "easel/core/Arguments.h"
#include "easel/core/Expose.h"
#include "easel/runtime/Host.h"
#include "easel/suites/runtime/RuntimeSuites.h"
#include "host/suites/AIAnnotatorSuite.h"

#include <algorithm>

namespace easel {
namespace {

Annotator& at(AIAnnotatorHandle annotator) { return host().annotators.annotators.at(annotator); }

AIErr addAnnotator(SPPluginRef plugin, const char* name, AIAnnotatorHandle* annotator) {
    static_cast<void>(host().plugins.at(plugin));
    const AIAnnotatorHandle added = host().annotators.annotators.add({plugin, &required(name)});
    if (annotator != nullptr) *annotator = added;
    return kNoErr;
}

AIErr getName(AIAnnotatorHandle annotator, const char** name) {
    required(name) = at(annotator).name.c_str();
    return kNoErr;
}

AIErr getActive(AIAnnotatorHandle annotator, AIBoolean* active) {
    required(active) = at(annotator).active ? 1 : 0;
    return kNoErr;
}

AIErr setActive(AIAnnotatorHandle annotator, AIBoolean active) {
    at(annotator).active = active != 0;
    return kNoErr;
}

AIErr getPlugin(AIAnnotatorHandle annotator, SPPluginRef* plugin) {
    required(plugin) = at(annotator).plugin;
    return kNoErr;
}

AIErr count(ai::int32* number) {
    required(number) = host().annotators.annotators.count();
    return kNoErr;
}

/// The one list of the interface that counts from 1.
AIErr nth(ai::int32 number, AIAnnotatorHandle* annotator) {
    required(annotator) = host().annotators.annotators.nth(number - 1);
    return kNoErr;
}

AIErr invalidate(AIDocumentViewHandle handle, const AIRect* rect) {
    const DocumentView& view = host().view(handle);
    AIRect area = rect == nullptr ? AIRect{0, 0, view.width, view.height} : *rect;
    // Plug-ins disagree on which way is up; both mean the same pixels.
    if (area.top > area.bottom) std::swap(area.top, area.bottom);
    host().annotators.invalid.push_back(area);
    return kNoErr;
}

AIErr setAlternate(AIAnnotatorHandle annotator, SPPluginRef plugin) {
    at(annotator).alternate = plugin;
    return kNoErr;
}

AIErr getAlternate(AIAnnotatorHandle annotator, SPPluginRef* plugin) {
    required(plugin) = at(annotator).alternate;
    return kNoErr;
}

AIErr getOptions(AIAnnotatorHandle annotator, AIAnnotatorOptionsFlags* options) {
    required(options) = at(annotator).options;
    return kNoErr;
}

AIErr setOptions(AIAnnotatorHandle annotator, AIAnnotatorOptionsFlags options) {
    at(annotator).options = options;
    return kNoErr;
}

} // namespace

void installAnnotatorSuite(SuiteServer& server) {
    auto table = server.table<AIAnnotatorSuite>(kAIAnnotatorSuite, kAIAnnotatorSuiteVersion);
    expose<&AIAnnotatorSuite::AddAnnotator, addAnnotator>(table);
    expose<&AIAnnotatorSuite::GetAnnotatorName, getName>(table);
    expose<&AIAnnotatorSuite::GetAnnotatorActive, getActive>(table);
    expose<&AIAnnotatorSuite::SetAnnotatorActive, setActive>(table);
    expose<&AIAnnotatorSuite::GetAnnotatorPlugin, getPlugin>(table);
    expose<&AIAnnotatorSuite::CountAnnotators, count>(table);
    expose<&AIAnnotatorSuite::GetNthAnnotator, nth>(table);
    expose<&AIAnnotatorSuite::InvalAnnotationRect, invalidate>(table);
    expose<&AIAnnotatorSuite::SetAnnotatorAlternatePlugin, setAlternate>(table);
    expose<&AIAnnotatorSuite::GetAnnotatorAlternatePlugin, getAlternate>(table);
    expose<&AIAnnotatorSuite::GetAnnotatorOptions, getOptions>(table);
    expose<&AIAnnotatorSuite::SetAnnotatorOptions, setOptions>(table);
}

} // namespace easel

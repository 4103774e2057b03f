#include "easel/core/Expose.h"
#include "easel/suites/runtime/RunningHost.h"
#include "easel/suites/runtime/RuntimeSuites.h"
#include "host/suites/AIAnnotatorSuite.h"

namespace easel {
namespace {

AIAnnotatorHandle addAnnotator(SPPluginRef plugin, const char* name) {
    static_cast<void>(host().plugins.at(plugin));
    return host().annotators.annotators.add({.plugin = plugin, .name = &required(name)});
}

void invalidate(AIDocumentViewHandle handle, const AIRect* rect) {
    const DocumentView& view = host().view(handle);
    AIRect area = rect == nullptr ? AIRect{0, 0, view.width, view.height} : *rect;
    // Plug-ins disagree on which way is up; both mean the same pixels.
    if (area.top > area.bottom) std::swap(area.top, area.bottom);
    host().annotators.invalid.push_back(area);
}

void setOptions(AIAnnotatorHandle annotator, AIAnnotatorOptionsFlags options) {
    host().annotators.annotators.at(annotator).options = options;
}

} // namespace

void installAnnotatorSuite(SuiteServer& server) {
    expose<&AIAnnotatorSuite::AddAnnotator, addAnnotator, OutputMayBeNull>(server);
    expose<&AIAnnotatorSuite::InvalAnnotationRect, invalidate>(server);
    expose<&AIAnnotatorSuite::SetAnnotatorOptions, setOptions>(server);
}

} // namespace easel

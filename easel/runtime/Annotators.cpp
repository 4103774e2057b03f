#include "easel/runtime/Annotators.h"

#include "easel/runtime/Sender.h"
#include "host/MessageNames.h"

#include <iterator>

namespace easel {
namespace {

constexpr ai::int32 kAnnotateArtObject = 5;
constexpr ai::int32 kWindowPort = 1;

} // namespace

DisplayList Annotators::draw(Sender& sender, AIDocumentViewHandle view) {
    DisplayList all;
    for (const AIAnnotatorHandle each : annotators.handles()) {
        const Annotator* const annotator = annotators.find(each);
        if (annotator == nullptr) continue;
        AIAnnotatorDrawer drawer; // a new one: no state leaks from one annotator to the next
        AIAnnotatorMessage message{};
        message.annotator = each;
        message.view = view;
        message.updateType = kAnnotateArtObject;
        message.portType = kWindowPort;
        message.showEdges = 1;
        message.drawer = &drawer;
        sender.send(annotator->plugin, kCallerAnnotation, kSelectorDraw, message, annotator->name,
                    kSilentUndoContext);
        drawer.endClip();
        all.insert(all.end(), std::make_move_iterator(drawer.list.begin()),
                   std::make_move_iterator(drawer.list.end()));
    }
    invalid.clear();
    return all;
}

} // namespace easel

#include "easel/session/MirrorSession.h"

#include "easel/document/Attributes.h"
#include "easel/document/Layers.h"

#include <cmath>
#include <numbers>

namespace easel {
namespace {

/// The plug-in as a user knows it: the name of its settings and of its tool.
constexpr const char* kSettings = "Facetta";
constexpr const char* kToolName = "Facetta Tool";

double radians(double degrees) {
    const double turned = std::fmod(degrees, 360.0);
    return (turned < 0 ? turned + 360.0 : turned) * std::numbers::pi / 180.0;
}

/// The drawing's y runs down, the document's up.
AIRealPoint softPoint(DrawingPoint point) {
    return {static_cast<AIReal>(point.x), static_cast<AIReal>(-point.y)};
}

AIRealPoint middleOf(const Document& document) {
    const AIRealRect board = document.artboard();
    return {(board.left + board.right) / 2, (board.top + board.bottom) / 2};
}

/// Where the axes are to cross. Throws for a place off the canvas, where no art can be.
AIRealPoint originOf(const MirrorRequest& request, const Document& document) {
    if (!request.origin) return middleOf(document);
    const AIRealPoint origin = softPoint(*request.origin);
    const AIRealRect canvas = document.canvas();
    const bool inside = origin.h >= canvas.left && origin.h <= canvas.right &&
                        origin.v <= canvas.top && origin.v >= canvas.bottom;
    if (!inside)
        throw SessionError(document.path.string() +
                           ": the origin lies outside the canvas; choose one nearer the drawing");
    return origin;
}

Art& layerNamed(const Document& document, const std::string& title) {
    if (Art* const layer = findLayer(document, title)) return *layer;
    std::string known;
    for (const Art* layer = layerFrom(document.root().firstChild()); layer != nullptr;
         layer = nextLayerInPreorder(*layer))
        known += (known.empty() ? "" : ", ") + ('"' + layer->details().layer.title + '"');
    throw SessionError(document.path.string() + ": there is no layer \"" + title +
                       "\"; its layers are " + known);
}

void selectLayer(Document& document, Art& layer) {
    deselectAll(document);
    for (Art* art = nextInPreorder(layer, layer); art != nullptr; art = nextInPreorder(*art, layer))
        if (!isContainer(*art) && isEditable(*art)) select(*art, true);
}

} // namespace

void MirrorSession::prepare(const MirrorRequest& request) {
    host.preferences.put(kSettings, "FTAngle", radians(request.angleDegrees));
    host.preferences.put(kSettings, "FTCount", ai::int32{request.axes});
    host.preferences.put(kSettings, "FTInitDragPO", true);
    host.preferences.put(kSettings, "FTApplySel", request.mode == MirrorMode::Selection);
    host.preferences.put(kSettings, "FTRemovePoints", !request.keepPoints);
}

void MirrorSession::choose(const MirrorRequest& request) {
    Document& document = host.session.document();
    Art* const layer = request.layer.empty() ? nullptr : &layerNamed(document, request.layer);
    if (request.mode == MirrorMode::Layer) {
        if (layer == nullptr) return;
        host.edit(
            "Choose Layer", [&](Document& changed) { setCurrentLayer(changed, *layer); },
            kSilentUndoContext);
        return;
    }
    host.edit(
        "Select",
        [&](Document& changed) {
            if (layer == nullptr)
                selectAll(changed);
            else
                selectLayer(changed, *layer);
        },
        kSilentUndoContext);
    if (selectionOf(document.root()) == Selected::No)
        throw SessionError(document.path.string() +
                           ": there is nothing to select; art that is to be mirrored must be "
                           "visible and not locked");
}

void MirrorSession::mirror(const MirrorRequest& request) {
    const AIToolHandle tool = host.tools.named(kToolName);
    if (tool == nullptr)
        throw SessionError(std::string("the plug-in has no tool \"") + kToolName +
                           "\"; is it the right one?");
    const std::size_t before = host.sent.size();
    choose(request);
    host.cursorSnap.enabled = false; // the origin is exactly where it was asked for
    const MousePoint origin{originOf(request, host.session.document())};
    host.selectTool(tool);
    host.track(origin);
    host.press(origin);
    host.release(origin);
    host.editToolOptions(); // applies the axes
    checkAnswers(before);
}

void MirrorSession::checkAnswers(std::size_t first) const {
    for (std::size_t i = first; i < host.sent.size(); ++i) {
        const SentMessage& message = host.sent[i];
        if (message.result != kNoErr)
            throw SessionError(message.plugin + " answered " + codeText(message.result) + " to " +
                               message.caller + '/' + message.selector);
    }
}

} // namespace easel

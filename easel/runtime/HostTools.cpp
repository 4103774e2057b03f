#include "easel/core/Ledger.h"
#include "easel/runtime/Host.h"
#include "host/MessageNames.h"

#include <utility>

namespace easel {
namespace {

/// `AIEvent::what`.
constexpr ai::uint16 kTrackEvent = 0;
constexpr ai::uint16 kDownEvent = 1;
constexpr ai::uint16 kUpEvent = 2;
constexpr ai::uint16 kDragEvent = 6;

constexpr ai::int32 kAnnotateArtObject = 5;
constexpr ai::int32 kWindowPort = 1;

} // namespace

void Host::sendTool(const char* selector, AIToolHandle handle, const MousePoint* mouse,
                    ai::uint16 what) {
    const Tool* const found = tools.tools.find(handle); // the host's own tools get no messages
    if (found == nullptr) return;
    const Tool& tool = *found;
    if (mouse != nullptr && easel::session().current == nullptr) return; // its window is gone
    AIToolMessage message{};
    AIEvent event{};
    message.tool = handle;
    if (mouse != nullptr) {
        const AIPoint pixel = toViewPixel(view(nullptr), mouse->at);
        const bool isDown = what == kDownEvent || what == kDragEvent;
        event.what = what;
        event.when = static_cast<ai::uint32>(clock.milliseconds());
        event.where = pixel;
        event.modifiers =
            static_cast<ai::uint16>(mouse->modifiers | (isDown ? aiEventModifiers_buttonDown : 0));
        message.cursor = mouse->at;
        message.pressure = mouse->pressure;
        message.event = &event;
    }
    send(tool.plugin, kCallerTool, selector, message, tool.name);
}

void Host::selectTool(AIToolHandle tool, AIToolType builtIn) {
    const AIToolHandle former = tools.current;
    pen_.forgetPath();
    if (tool != nullptr) static_cast<void>(tools.tools.at(tool));
    if (tool != nullptr && tool == former) {
        sendTool(kSelectorReselect, tool, nullptr);
        notify("AI Tool Deselected Notifier", former);
    } else {
        if (former != nullptr) {
            sendTool(kSelectorDeselect, former, nullptr);
            notify("AI Tool Deselected Notifier", former);
        }
        tools.current = tool;
        tools.currentBuiltIn = builtIn;
        sendTool(kSelectorSelect, tool, nullptr);
    }
    notify("AI Tool Selected Notifier", tool);
    idle();
}

void Host::track(const MousePoint& mouse) {
    const AIToolHandle tool = tools.current;
    if (tool == nullptr || (tools.tools.at(tool).options & kToolWantsTrackCursor) == 0) return;
    sendTool(kSelectorTrackCursor, tool, &mouse, kTrackEvent);
    idle();
}

void Host::press(const MousePoint& mouse) {
    if (gesture_ != nullptr) return;
    if (tools.current == nullptr) return pressPen(mouse);
    const Tool& tool = tools.tools.at(tools.current);
    gesture_ = contexts.push(tool.plugin);
    gestureTool_ = tools.current; // keeps the gesture, whatever tool it chooses meanwhile
    currentDocument().undo().setTexts("Undo " + tool.title, "Redo " + tool.title);
    sendTool(kSelectorMouseDown, gestureTool_, &mouse, kDownEvent);
}

void Host::pressPen(const MousePoint& mouse) {
    if (tools.currentBuiltIn != Tools::kPenTool) return;
    Document& document = currentDocument();
    gesture_ = contexts.push(nullptr);
    document.undo().setTexts("Undo Pen", "Redo Pen");
    pen_.press(document, mouse.at);
}

void Host::endPath() {
    pen_.forgetPath();
    notify("AI Tool Clear State Notifier");
    idle();
}

void Host::drag(const MousePoint& mouse) {
    if (gesture_ == nullptr) return;
    if (gestureTool_ == nullptr)
        pen_.drag(mouse.at);
    else
        sendTool(kSelectorMouseDrag, gestureTool_, &mouse, kDragEvent);
}

void Host::release(const MousePoint& mouse) {
    if (gesture_ == nullptr) return;
    if (gestureTool_ != nullptr) sendTool(kSelectorMouseUp, gestureTool_, &mouse, kUpEvent);
    endGesture();
    idle();
}

void Host::endGesture() {
    contexts.pop(std::exchange(gesture_, nullptr));
    gestureTool_ = nullptr;
    endMessageLoans();
    collectChanges();
}

void Host::editToolOptions() {
    sendTool(kSelectorEditOptions, tools.current, nullptr);
    idle();
}

void Host::decreaseDiameter() {
    const AIToolHandle tool = tools.current;
    if (gesture_ != nullptr || tool == nullptr) return;
    if ((tools.tools.at(tool).options & kToolWantsDiameterKeys) == 0) return;
    sendTool(kSelectorDecreaseDiameter, tool, nullptr);
    idle();
}

void Host::increaseDiameter() {
    const AIToolHandle tool = tools.current;
    if (gesture_ != nullptr || tool == nullptr) return;
    if ((tools.tools.at(tool).options & kToolWantsDiameterKeys) == 0) return;
    sendTool(kSelectorIncreaseDiameter, tool, nullptr);
    idle();
}

DisplayList Host::drawAnnotations(AIDocumentViewHandle handle) {
    static_cast<void>(view(handle)); // refuses a dead one
    DisplayList all;
    for (const AIAnnotatorHandle each : annotators.annotators.handles()) {
        const Annotator* const annotator = annotators.annotators.find(each);
        if (annotator == nullptr || !annotator->active) continue;
        AIAnnotatorDrawer drawer; // a new one: no state leaks from one annotator to the next
        AIAnnotatorMessage message{};
        message.annotator = each;
        message.view = handle == nullptr ? currentView() : handle;
        message.updateType = kAnnotateArtObject;
        message.portType = kWindowPort;
        message.showEdges = 1;
        message.drawer = &drawer;
        send(annotator->plugin, kCallerAnnotation, kSelectorDraw, message, annotator->name,
             kSilentUndoContext);
        drawer.endClip();
        all.insert(all.end(), std::make_move_iterator(drawer.list.begin()),
                   std::make_move_iterator(drawer.list.end()));
    }
    annotators.invalid.clear();
    stale_ = false;
    return all;
}

void Host::invalidateAnnotations(AIDocumentViewHandle handle) {
    static_cast<void>(view(handle)); // refuses a dead one
    for (const AIAnnotatorHandle each : annotators.annotators.handles()) {
        const Annotator* const annotator = annotators.annotators.find(each);
        if (annotator == nullptr || !annotator->active) continue;
        AIAnnotatorMessage message{};
        message.annotator = each;
        message.view = handle == nullptr ? currentView() : handle;
        message.showEdges = 1;
        send(annotator->plugin, kCallerAnnotation, kSelectorInvalidate, message, annotator->name,
             kSilentUndoContext);
    }
}

} // namespace easel

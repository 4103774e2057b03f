#include "easel/runtime/Tools.h"

#include "easel/document/Session.h"
#include "easel/runtime/Notifiers.h"
#include "easel/runtime/Sender.h"
#include "easel/runtime/Timers.h"
#include "easel/runtime/Views.h"
#include "host/MessageNames.h"

#include <algorithm>
#include <iterator>
#include <utility>

namespace easel {
namespace {

/// The host's own tools, numbered from 1 in this order.
constexpr const char* kBuiltInTools[] = {
    "Adobe Select Tool",    "Adobe Direct Select Tool", "Adobe Reflect Tool", "Adobe Pen Tool",
    "Adobe Zoom Tool",      "Adobe Scroll Tool",        "Easel Pencil Tool",  "Easel Line Tool",
    "Easel Rectangle Tool", "Easel Ellipse Tool",
};

/// The own tools that do something, and how undo calls that.
struct OwnTool {
    AIToolType number;
    const char* undoText;
    std::optional<DrawingHand::Kind> kind; ///< Nothing: the pen.
};
constexpr OwnTool kOwnTools[] = {
    {Tools::kSelectTool, "Move", DrawingHand::Kind::Select},
    {Tools::kPenTool, "Pen", {}},
    {7, "Pencil", DrawingHand::Kind::Pencil},
    {8, "Line", DrawingHand::Kind::Line},
    {9, "Rectangle", DrawingHand::Kind::Rectangle},
    {10, "Ellipse", DrawingHand::Kind::Ellipse},
};

/// `AIEvent::what`.
constexpr ai::uint16 kTrackEvent = 0;
constexpr ai::uint16 kDownEvent = 1;
constexpr ai::uint16 kUpEvent = 2;
constexpr ai::uint16 kDragEvent = 6;

} // namespace

AIToolType Tools::numberOf(const std::string& name) const {
    const auto* const builtIn = std::find(std::begin(kBuiltInTools), std::end(kBuiltInTools), name);
    if (builtIn != std::end(kBuiltInTools))
        return static_cast<AIToolType>(1 + (builtIn - std::begin(kBuiltInTools)));
    return tools.at(named(name)).number;
}

const char* Tools::nameOf(AIToolType number) const {
    if (number >= 1 && number <= std::ssize(kBuiltInTools)) return kBuiltInTools[number - 1];
    return tools.at(handleOf(number)).name.c_str();
}

AIToolHandle Tools::handleOf(AIToolType number) const {
    if (number >= 1 && number <= std::ssize(kBuiltInTools)) return nullptr;
    const AIToolHandle found =
        tools.findIf([&](const Tool& tool) { return tool.number == number; });
    if (found == nullptr) throw ai::Error{kBadParameterErr};
    return found;
}

AIToolHandle Tools::named(const std::string& name) const {
    return tools.findIf([&](const Tool& tool) { return tool.name == name; });
}

AIToolType Tools::currentNumber() const {
    return current == nullptr ? currentBuiltIn : tools.at(current).number;
}

void Tools::send(const char* selector, AIToolHandle handle, const MousePoint* mouse,
                 ai::uint16 what) {
    const Tool* const found = tools.find(handle); // the host's own tools get no messages
    if (found == nullptr) return;
    const Tool& tool = *found;
    if (mouse != nullptr && session_.current == nullptr) return; // its window is gone
    AIToolMessage message{};
    AIEvent event{};
    message.tool = handle;
    if (mouse != nullptr) {
        const bool isDown = what == kDownEvent || what == kDragEvent;
        event.what = what;
        event.when = static_cast<ai::uint32>(clock_.milliseconds());
        event.where = toViewPixel(views_.shown(nullptr), mouse->at);
        event.modifiers =
            static_cast<ai::uint16>(mouse->modifiers | (isDown ? aiEventModifiers_buttonDown : 0));
        message.cursor = mouse->at;
        message.pressure = mouse->pressure;
        message.event = &event;
    }
    sender_.send(tool.plugin, kCallerTool, selector, message, tool.name);
}

void Tools::select(AIToolHandle tool, AIToolType builtIn) {
    const AIToolHandle former = current;
    pen_.forgetPath();
    if (tool != nullptr) static_cast<void>(tools.at(tool));
    if (tool != nullptr && tool == former) {
        send(kSelectorReselect, tool);
        notifiers_.notify("AI Tool Deselected Notifier", former);
    } else {
        if (former != nullptr) {
            send(kSelectorDeselect, former);
            notifiers_.notify("AI Tool Deselected Notifier", former);
        }
        current = tool;
        currentBuiltIn = builtIn;
        send(kSelectorSelect, tool);
    }
    notifiers_.notify("AI Tool Selected Notifier", tool);
}

void Tools::track(const MousePoint& mouse) {
    if (current == nullptr || (tools.at(current).options & kToolWantsTrackCursor) == 0) return;
    send(kSelectorTrackCursor, current, &mouse, kTrackEvent);
}

void Tools::press(const MousePoint& mouse) {
    if (gesture_ != nullptr) return;
    if (current == nullptr) return pressOwn(mouse);
    const Tool& tool = tools.at(current);
    gesture_ = sender_.begin(tool.plugin);
    gestureTool_ = current; // keeps the gesture, whatever tool it chooses meanwhile
    session_.document().undo().setTexts("Undo " + tool.title, "Redo " + tool.title);
    send(kSelectorMouseDown, gestureTool_, &mouse, kDownEvent);
}

void Tools::pressOwn(const MousePoint& mouse) {
    const auto* const tool = std::ranges::find(kOwnTools, currentBuiltIn, &OwnTool::number);
    if (tool == std::end(kOwnTools)) return;
    Document& document = session_.document();
    gesture_ = sender_.begin(nullptr);
    document.undo().setTexts(std::string("Undo ") + tool->undoText,
                             std::string("Redo ") + tool->undoText);
    if (tool->kind)
        hand_.press(*tool->kind, document, mouse.at, mouse.modifiers);
    else
        pen_.press(document, mouse.at);
}

void Tools::endPath() {
    pen_.forgetPath();
    notifiers_.notify("AI Tool Clear State Notifier");
}

void Tools::drag(const MousePoint& mouse) {
    if (gesture_ == nullptr) return;
    if (gestureTool_ == nullptr && currentBuiltIn == kPenTool)
        pen_.drag(mouse.at);
    else if (gestureTool_ == nullptr)
        hand_.drag(mouse.at, mouse.modifiers);
    else
        send(kSelectorMouseDrag, gestureTool_, &mouse, kDragEvent);
}

void Tools::release(const MousePoint& mouse) {
    if (gesture_ == nullptr) return;
    if (gestureTool_ != nullptr) send(kSelectorMouseUp, gestureTool_, &mouse, kUpEvent);
    hand_.release();
    gestureTool_ = nullptr;
    sender_.end(std::exchange(gesture_, nullptr));
}

void Tools::editOptions() { send(kSelectorEditOptions, current); }

void Tools::changeDiameter(bool larger) {
    if (gesture_ != nullptr || current == nullptr) return;
    if ((tools.at(current).options & kToolWantsDiameterKeys) == 0) return;
    send(larger ? kSelectorIncreaseDiameter : kSelectorDecreaseDiameter, current);
}

void Tools::removeAllOf(SPPluginRef plugin) {
    if (current != nullptr && tools.at(current).plugin == plugin) current = nullptr;
    tools.removeIf([plugin](const Tool& tool) { return tool.plugin == plugin; });
}

} // namespace easel

#pragma once

#include "easel/core/Registry.h"
#include "easel/runtime/DrawingHand.h"
#include "easel/runtime/Pen.h"
#include "host/Handles.h"
#include "host/Types.h"

#include <map>
#include <string>
#include <vector>

namespace easel {

/// Options of a tool that the host itself acts on.
inline constexpr ai::int32 kToolWantsTrackCursor = 1;
inline constexpr ai::int32 kToolWantsDiameterKeys = 32;

struct Tool {
    SPPluginRef plugin;
    std::string name; ///< Unique.
    std::string title;
    std::string tooltip;
    ASHelpID helpID;
    ai::uint32 lightIcon;
    ai::uint32 darkIcon;
    AIToolType group;
    AIToolType toolset;
    ai::int32 options;
    AIToolType number;
    std::vector<ai::int32> infoVariables = {}; ///< What it shows in the information display.
};

class Clock;
class Notifiers;
class Sender;
class Views;

/// What the user does with the mouse.
struct MousePoint {
    AIRealPoint at;                ///< Soft coordinates.
    ai::uint16 modifiers = 0;      ///< `AIEventModifiers`, the mouse button left out.
    AIToolPressure pressure = 127; ///< Of a pen, 0..255; this is a mouse.
};

/// The tool box, the host's own tools by number and name and the plug-ins' behind them, and the
/// hand that holds one of them.
class Tools {
public:
    Tools(Session& session, Sender& sender, Notifiers& notifiers, const Views& views,
          const Clock& clock)
        : session_(session), sender_(sender), notifiers_(notifiers), views_(views), clock_(clock),
          pen_(session), hand_(session) {}

    /// Null chooses the built-in tool `builtIn`.
    void select(AIToolHandle tool, AIToolType builtIn);
    /// The button is up.
    void track(const MousePoint& mouse);
    /// From `press` to `release` is one gesture and one undo step.
    void press(const MousePoint& mouse);
    void drag(const MousePoint& mouse);
    void release(const MousePoint& mouse);
    /// A gesture of the host's own in `document` ends with nothing more done.
    void documentCloses(const Document& document) noexcept { hand_.forget(document); }
    /// The user ends the path that the pen is drawing; tools are told to forget what they drew.
    void endPath();
    /// A double click on the tool's icon.
    void editOptions();
    void decreaseDiameter() { changeDiameter(false); }
    void increaseDiameter() { changeDiameter(true); }
    void removeAllOf(SPPluginRef plugin);

    Registry<AIToolHandle, Tool> tools;
    AIToolHandle current = nullptr; ///< Null: the built-in tool `currentBuiltIn`.
    AIToolType currentBuiltIn = kSelectTool;
    std::map<ai::int32, double> infoValues; ///< Last numbers given to the information display.

    static constexpr AIToolType kSelectTool = 1;
    static constexpr AIToolType kPenTool = 4;
    /// Plug-in tools have this number and those above.
    static constexpr AIToolType kFirstPluginTool = 1000;

    /// The number of the tool of that name, the host's own ones included; throws 'PARM'.
    [[nodiscard]] AIToolType numberOf(const std::string& name) const;
    /// Throws 'PARM' for an unknown number.
    [[nodiscard]] const char* nameOf(AIToolType number) const;
    /// Null for a built-in tool. Throws 'PARM' for an unknown number.
    [[nodiscard]] AIToolHandle handleOf(AIToolType number) const;
    [[nodiscard]] AIToolHandle named(const std::string& name) const;
    [[nodiscard]] AIToolType currentNumber() const;
    /// What the select tool drags around; nothing when it does not.
    [[nodiscard]] const std::optional<AIRealRect>& marquee() const noexcept {
        return hand_.marquee();
    }

private:
    /// Nothing happens when the tool is null or gone, or the mouse is over no window.
    void send(const char* selector, AIToolHandle tool, const MousePoint* mouse = nullptr,
              ai::uint16 what = 0);
    void changeDiameter(bool larger);
    void pressOwn(const MousePoint& mouse);

    Session& session_;
    Sender& sender_;
    Notifiers& notifiers_;
    const Views& views_;
    const Clock& clock_;
    AIAppContextHandle gesture_ = nullptr; ///< The context that spans press to release.
    AIToolHandle gestureTool_ = nullptr;   ///< Null in a gesture of one of the host's own.
    Pen pen_;
    DrawingHand hand_;
};

} // namespace easel

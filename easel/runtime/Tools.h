#pragma once

#include "easel/core/Registry.h"
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

/// The tool box: the host's own tools by number and name, the plug-ins' behind them.
struct Tools {
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
};

} // namespace easel

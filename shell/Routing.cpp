#include "shell/Routing.h"

#include "host/Codes.h"
#include "shell/Plugin.h"

#include <algorithm>

namespace facetta {
namespace {

using Operation = AIErr (*)(Plugin& plugin, std::string_view selector, void* message);

struct Route {
    std::string_view caller;
    std::string_view selector;
    Operation operation;
};

template <typename Message>
AIErr invoke(Plugin& plugin, AIErr (Plugin::*operation)(Message&), void* message) {
    return (plugin.*operation)(*static_cast<Message*>(message));
}

template <auto Method> AIErr call(Plugin& plugin, std::string_view, void* message) {
    return invoke(plugin, Method, message);
}

AIErr purge(Plugin& plugin, std::string_view, void*) {
    return plugin.Purge() ? kSPPluginCachesFlushResponse : kNoErr;
}

AIErr notify(Plugin& plugin, std::string_view selector, void* message) {
    return plugin.routeNotification(selector, *static_cast<AINotifierMessage*>(message));
}

/// The entry has started the plug-in before the message comes here.
AIErr started(Plugin&, std::string_view, void*) { return kNoErr; }

constexpr std::string_view kAnySelector = "*";

constexpr Route kRoutes[] = {
    {"SP Access", "Unload", call<&Plugin::Unload>},
    {"SP Access", "Reload", call<&Plugin::Reload>},
    {"SP Interface", "About", call<&Plugin::About>},
    {"SP Interface", "Startup", started},
    {"SP Cache", "Plug-in Purge", purge},
    {"SP Properties", "Acquire", call<&Plugin::AcquireProperty>},
    {"SP Properties", "Release", call<&Plugin::ReleaseProperty>},
    {"AI Notifier", kAnySelector, notify},
    {"Action Manager", "Do Action", call<&Plugin::GoAction>},
    {"AI Menu", "AI Go", call<&Plugin::GoMenuItem>},
    {"AI Menu", "AI Update", call<&Plugin::UpdateMenuItem>},
    {"AI Filter", "AI Get Parameters", call<&Plugin::GetFilterParameters>},
    {"AI Filter", "AI Go", call<&Plugin::GoFilter>},
    {"AI Plugin Group", "AI Notify Edits", call<&Plugin::PluginGroupNotify>},
    {"AI Plugin Group", "AI Update", call<&Plugin::PluginGroupUpdate>},
    {"AI File Format", "AI Get Parameters", call<&Plugin::GetFileFormatParameters>},
    {"AI File Format", "AI Go", call<&Plugin::GoFileFormat>},
    {"AI File Format", "AI Check", call<&Plugin::CheckFileFormat>},
    {"AI File Format", "AI Update AI140", call<&Plugin::FileFormatUpdate>},
    {"AI File Format", "Do Action", call<&Plugin::SetFileFormatParameters>},
    {"AI Tool", "AI Edit Options", call<&Plugin::EditTool>},
    {"AI Tool", "AI Track Cursor", call<&Plugin::TrackToolCursor>},
    {"AI Tool", "AI Mouse Down", call<&Plugin::ToolMouseDown>},
    {"AI Tool", "AI Mouse Drag", call<&Plugin::ToolMouseDrag>},
    {"AI Tool", "AI Mouse Up", call<&Plugin::ToolMouseUp>},
    {"AI Tool", "AI Select", call<&Plugin::SelectTool>},
    {"AI Tool", "AI Deselect", call<&Plugin::DeselectTool>},
    {"AI Tool", "AI Reselect", call<&Plugin::ReselectTool>},
    {"AI Tool", "AI Decrease Diameter", call<&Plugin::DecreaseDiameter>},
    {"AI Tool", "AI Increase Diameter", call<&Plugin::IncreaseDiameter>},
    {"AI Annotation", "AI Draw", call<&Plugin::AnnotatorDraw>},
    {"AI Annotation", "AI Invalidate", call<&Plugin::AnnotatorInvalidate>},
    {"AI Live Effect", "AI Live Effect Edit Parameters", call<&Plugin::LiveEffectEditParameters>},
    {"AI Live Effect", "AI Live Effect Go Live", call<&Plugin::LiveEffectGoLive>},
    {"AI Live Effect", "AI Live Effect Interpolate Parameters",
     call<&Plugin::LiveEffectInterpolate>},
    {"AI Live Effect", "AI Live Effect Input Type", call<&Plugin::LiveEffectInputType>},
    {"AI Live Effect", "AI Live Effect Scale Parameters", call<&Plugin::LiveEffectScaleParameters>},
    {"AI Live Effect", "AI Live Effect Convert Color Space",
     call<&Plugin::LiveEffectConvertColorSpace>},
    {"AI Live Effect", "AI Live Effect Adjust Colors", call<&Plugin::LiveEffectAdjustColors>},
    {"AI Live Effect", "AI Live Effect Handle Merge", call<&Plugin::LiveEffectHandleMerge>},
    {"AI Timer", "AI Go", call<&Plugin::GoTimer>},
    {"AI Clipboard", "AI Go", call<&Plugin::ClipboardGo>},
    {"AI Clipboard", "AI Can Copy", call<&Plugin::ClipboardCanCopy>},
    {"AI Clipboard", "AI Clone", call<&Plugin::ClipboardClone>},
    {"AI Clipboard", "AI Dispose", call<&Plugin::ClipboardDispose>},
    {"Workspace Manager", "Write Woskspace", call<&Plugin::WorkspaceWrite>}, // the host's spelling
    {"Workspace Manager", "Restore Woskspace", call<&Plugin::WorkspaceRestore>},
    {"Workspace Manager", "Default Woskspace", call<&Plugin::WorkspaceDefault>},
};

} // namespace

AIErr route(Plugin& plugin, std::string_view caller, std::string_view selector, void* message) {
    const auto matches = [&](const Route& route) {
        return route.caller == caller &&
               (route.selector == kAnySelector || route.selector == selector);
    };
    const auto* found = std::ranges::find_if(kRoutes, matches);
    if (found == std::end(kRoutes)) return kUnhandledMsgErr;
    return found->operation(plugin, selector, message);
}

} // namespace facetta

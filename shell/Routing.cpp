#include "shell/Routing.h"

#include "host/Codes.h"
#include "host/MessageNames.h"
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
    {kCallerAccess, kSelectorUnload, call<&Plugin::Unload>},
    {kCallerAccess, kSelectorReload, call<&Plugin::Reload>},
    {kCallerInterface, kSelectorAbout, call<&Plugin::About>},
    {kCallerInterface, kSelectorStartup, started},
    {kCallerCache, kSelectorPurge, purge},
    {kCallerProperties, kSelectorAcquire, call<&Plugin::AcquireProperty>},
    {kCallerProperties, kSelectorRelease, call<&Plugin::ReleaseProperty>},
    {kCallerNotifier, kAnySelector, notify},
    {kCallerAction, kSelectorDoAction, call<&Plugin::GoAction>},
    {kCallerMenu, kSelectorGo, call<&Plugin::GoMenuItem>},
    {kCallerMenu, kSelectorUpdate, call<&Plugin::UpdateMenuItem>},
    {kCallerFilter, kSelectorGetParameters, call<&Plugin::GetFilterParameters>},
    {kCallerFilter, kSelectorGo, call<&Plugin::GoFilter>},
    {kCallerPluginGroup, kSelectorNotifyEdits, call<&Plugin::PluginGroupNotify>},
    {kCallerPluginGroup, kSelectorUpdate, call<&Plugin::PluginGroupUpdate>},
    {kCallerFileFormat, kSelectorGetParameters, call<&Plugin::GetFileFormatParameters>},
    {kCallerFileFormat, kSelectorGo, call<&Plugin::GoFileFormat>},
    {kCallerFileFormat, kSelectorCheck, call<&Plugin::CheckFileFormat>},
    {kCallerFileFormat, kSelectorUpdateFormat, call<&Plugin::FileFormatUpdate>},
    {kCallerFileFormat, kSelectorDoAction, call<&Plugin::SetFileFormatParameters>},
    {kCallerTool, kSelectorEditOptions, call<&Plugin::EditTool>},
    {kCallerTool, kSelectorTrackCursor, call<&Plugin::TrackToolCursor>},
    {kCallerTool, kSelectorMouseDown, call<&Plugin::ToolMouseDown>},
    {kCallerTool, kSelectorMouseDrag, call<&Plugin::ToolMouseDrag>},
    {kCallerTool, kSelectorMouseUp, call<&Plugin::ToolMouseUp>},
    {kCallerTool, kSelectorSelect, call<&Plugin::SelectTool>},
    {kCallerTool, kSelectorDeselect, call<&Plugin::DeselectTool>},
    {kCallerTool, kSelectorReselect, call<&Plugin::ReselectTool>},
    {kCallerTool, kSelectorDecreaseDiameter, call<&Plugin::DecreaseDiameter>},
    {kCallerTool, kSelectorIncreaseDiameter, call<&Plugin::IncreaseDiameter>},
    {kCallerAnnotation, kSelectorDraw, call<&Plugin::AnnotatorDraw>},
    {kCallerAnnotation, kSelectorInvalidate, call<&Plugin::AnnotatorInvalidate>},
    {kCallerLiveEffect, kSelectorEditParameters, call<&Plugin::LiveEffectEditParameters>},
    {kCallerLiveEffect, kSelectorGoLive, call<&Plugin::LiveEffectGoLive>},
    {kCallerLiveEffect, kSelectorInterpolate, call<&Plugin::LiveEffectInterpolate>},
    {kCallerLiveEffect, kSelectorInputType, call<&Plugin::LiveEffectInputType>},
    {kCallerLiveEffect, kSelectorScaleParameters, call<&Plugin::LiveEffectScaleParameters>},
    {kCallerLiveEffect, kSelectorConvertColor, call<&Plugin::LiveEffectConvertColorSpace>},
    {kCallerLiveEffect, kSelectorAdjustColors, call<&Plugin::LiveEffectAdjustColors>},
    {kCallerLiveEffect, kSelectorHandleMerge, call<&Plugin::LiveEffectHandleMerge>},
    {kCallerTimer, kSelectorGo, call<&Plugin::GoTimer>},
    {kCallerClipboard, kSelectorGo, call<&Plugin::ClipboardGo>},
    {kCallerClipboard, kSelectorCanCopy, call<&Plugin::ClipboardCanCopy>},
    {kCallerClipboard, kSelectorClone, call<&Plugin::ClipboardClone>},
    {kCallerClipboard, kSelectorDispose, call<&Plugin::ClipboardDispose>},
    {kCallerWorkspace, kSelectorWriteWorkspace, call<&Plugin::WorkspaceWrite>},
    {kCallerWorkspace, kSelectorRestoreWorkspace, call<&Plugin::WorkspaceRestore>},
    {kCallerWorkspace, kSelectorDefaultWorkspace, call<&Plugin::WorkspaceDefault>},
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

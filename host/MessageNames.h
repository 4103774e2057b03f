#pragma once

/// Callers and selectors as the host spells them, misspellings included.

inline constexpr char kCallerAccess[] = "SP Access";
inline constexpr char kCallerInterface[] = "SP Interface";
inline constexpr char kCallerCache[] = "SP Cache";
inline constexpr char kCallerProperties[] = "SP Properties";
inline constexpr char kCallerNotifier[] = "AI Notifier";
inline constexpr char kCallerMenu[] = "AI Menu";
inline constexpr char kCallerTool[] = "AI Tool";
inline constexpr char kCallerAnnotation[] = "AI Annotation";
inline constexpr char kCallerTimer[] = "AI Timer";
inline constexpr char kCallerAction[] = "Action Manager";
inline constexpr char kCallerFilter[] = "AI Filter";
inline constexpr char kCallerPluginGroup[] = "AI Plugin Group";
inline constexpr char kCallerFileFormat[] = "AI File Format";
inline constexpr char kCallerLiveEffect[] = "AI Live Effect";
inline constexpr char kCallerClipboard[] = "AI Clipboard";
inline constexpr char kCallerWorkspace[] = "Workspace Manager";

inline constexpr char kSelectorStartup[] = "Startup";
inline constexpr char kSelectorShutdown[] = "Shutdown";
inline constexpr char kSelectorAbout[] = "About";
inline constexpr char kSelectorReload[] = "Reload";
inline constexpr char kSelectorUnload[] = "Unload";
inline constexpr char kSelectorPurge[] = "Plug-in Purge";
inline constexpr char kSelectorAcquire[] = "Acquire";
inline constexpr char kSelectorRelease[] = "Release";
inline constexpr char kSelectorNotify[] = "AI Notify";
inline constexpr char kSelectorGo[] = "AI Go";
inline constexpr char kSelectorUpdate[] = "AI Update";
inline constexpr char kSelectorEditOptions[] = "AI Edit Options";
inline constexpr char kSelectorTrackCursor[] = "AI Track Cursor";
inline constexpr char kSelectorMouseDown[] = "AI Mouse Down";
inline constexpr char kSelectorMouseDrag[] = "AI Mouse Drag";
inline constexpr char kSelectorMouseUp[] = "AI Mouse Up";
inline constexpr char kSelectorSelect[] = "AI Select";
inline constexpr char kSelectorDeselect[] = "AI Deselect";
inline constexpr char kSelectorReselect[] = "AI Reselect";
inline constexpr char kSelectorDecreaseDiameter[] = "AI Decrease Diameter";
inline constexpr char kSelectorIncreaseDiameter[] = "AI Increase Diameter";
inline constexpr char kSelectorDraw[] = "AI Draw";
inline constexpr char kSelectorInvalidate[] = "AI Invalidate";
inline constexpr char kSelectorDoAction[] = "Do Action";
inline constexpr char kSelectorGetParameters[] = "AI Get Parameters";
inline constexpr char kSelectorNotifyEdits[] = "AI Notify Edits";
inline constexpr char kSelectorCheck[] = "AI Check";
inline constexpr char kSelectorUpdateFormat[] = "AI Update AI140";
inline constexpr char kSelectorEditParameters[] = "AI Live Effect Edit Parameters";
inline constexpr char kSelectorGoLive[] = "AI Live Effect Go Live";
inline constexpr char kSelectorInterpolate[] = "AI Live Effect Interpolate Parameters";
inline constexpr char kSelectorInputType[] = "AI Live Effect Input Type";
inline constexpr char kSelectorScaleParameters[] = "AI Live Effect Scale Parameters";
inline constexpr char kSelectorConvertColor[] = "AI Live Effect Convert Color Space";
inline constexpr char kSelectorAdjustColors[] = "AI Live Effect Adjust Colors";
inline constexpr char kSelectorHandleMerge[] = "AI Live Effect Handle Merge";
inline constexpr char kSelectorCanCopy[] = "AI Can Copy";
inline constexpr char kSelectorClone[] = "AI Clone";
inline constexpr char kSelectorDispose[] = "AI Dispose";
inline constexpr char kSelectorWriteWorkspace[] = "Write Woskspace";
inline constexpr char kSelectorRestoreWorkspace[] = "Restore Woskspace";
inline constexpr char kSelectorDefaultWorkspace[] = "Default Woskspace";

/// Notifier types that more than one room names.
inline constexpr char kApplicationStartedNotifier[] = "AI Application Started Notifier";
inline constexpr char kAllPluginsStartedNotifier[] = "AI All Plug-ins Started Notifier";
inline constexpr char kApplicationShutdownNotifier[] = "AI Application Shutdown Notifier";
inline constexpr char kUIBrightnessChangedNotifier[] = "AI UI Brightness Changed Notifier";
inline constexpr char kPreferenceChangedNotifier[] = "AI Preference Changed Notifier";
inline constexpr char kArtSelectionChangedNotifier[] = "AI Art Selection Changed Notifier";
inline constexpr char kArtPropertiesChangedNotifier[] = "AI Art Properties Changed Notifier";

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

inline constexpr char kSelectorStartup[] = "Startup";
inline constexpr char kSelectorShutdown[] = "Shutdown";
inline constexpr char kSelectorReload[] = "Reload";
inline constexpr char kSelectorUnload[] = "Unload";
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

/// Notifier types that more than one room names.
inline constexpr char kApplicationStartedNotifier[] = "AI Application Started Notifier";
inline constexpr char kAllPluginsStartedNotifier[] = "AI All Plug-ins Started Notifier";
inline constexpr char kApplicationShutdownNotifier[] = "AI Application Shutdown Notifier";
inline constexpr char kUIBrightnessChangedNotifier[] = "AI UI Brightness Changed Notifier";
inline constexpr char kPreferenceChangedNotifier[] = "AI Preference Changed Notifier";
inline constexpr char kArtSelectionChangedNotifier[] = "AI Art Selection Changed Notifier";
inline constexpr char kArtPropertiesChangedNotifier[] = "AI Art Properties Changed Notifier";

#pragma once

#include "host/Art.h"
#include "host/Handles.h"
#include "host/Types.h"

/// The records that the host passes to `PluginMain`, and the records it takes for menus and tools.

struct SPBasicSuite;

/// First member of every message. `globals` travels both ways: the host keeps it for the plug-in.
struct SPMessageData {
    ai::int32 SPCheck; ///< 'SPCk'.
    SPPluginRef self;
    void* globals;
    SPBasicSuite* basic;
};

struct SPInterfaceMessage {
    SPMessageData d;
};

enum SPAccessTime : ai::int32 {
    kAccessAtStartUp = 0,
    kAccessAtRunTime = 1,
    kAccessAtUnload = 2,   ///< Nobody holds the library any more.
    kAccessAtTerminal = 3, ///< The host quits though somebody still holds it.
};

/// `when` is an `SPAccessTime`.
struct SPAccessMessage {
    SPMessageData d;
    ai::int32 when;
};

struct SPPropertiesMessage {
    SPMessageData d;
    PIType vendorID;
    PIType propertyKey;
    ai::int32 propertyID;
    void* property;
    ai::int32 refCon;
    ai::int32 cacheable;
};

struct AINotifierMessage {
    SPMessageData d;
    AINotifierHandle notifier;
    const char* type;
    void* notifyData;
};

struct AIMenuMessage {
    SPMessageData d;
    AIMenuItemHandle menuItem;
};

struct AITimerMessage {
    SPMessageData d;
    AITimerHandle timer;
};

/// Bits of `AIEvent::modifiers`.
enum AIEventModifiers : ai::uint16 {
    aiEventModifiers_spaceKey = 0x0002,
    aiEventModifiers_tabKey = 0x0004,
    aiEventModifiers_capsLock = 0x0008,
    aiEventModifiers_doubleClick = 0x0010,
    aiEventModifiers_tripleClick = 0x0020,
    aiEventModifiers_buttonDown = 0x0080,
    aiEventModifiers_cmdKey = 0x0100, ///< Ctrl.
    aiEventModifiers_shiftKey = 0x0200,
    aiEventModifiers_optionKey = 0x0800, ///< Alt.
};

struct AIEvent {
    ai::uint16 what;
    ai::uint32 message;
    ai::uint32 when;
    AIPoint where;
    ai::uint16 modifiers;
};

/// `cursor` is in soft coordinates. `event` may be null.
struct AIToolMessage {
    SPMessageData d;
    AIToolHandle tool;
    AIRealPoint cursor;
    AIToolPressure pressure;
    AIEvent* event;
    AIToolPressure stylusWheel;
    AIToolAngle tilt;
    AIToolAngle bearing;
    AIToolAngle rotation;
};

struct AIAnnotatorMessage {
    SPMessageData d;
    AIAnnotatorHandle annotator;
    AIDocumentViewHandle view;
    ai::int32 updateType;
    void* updateData;
    ai::int32 portType;
    void* port;
    AIBoolean showEdges;
    const AIRealRect* invalidationRects;
    ai::int32 numInvalidationRects;
    AIAnnotatorDrawer* drawer;
};

// Messages to things that Facetta registers none of. They reach the plug-in's base answers only.

struct DoActionMessage {
    SPMessageData d;
    void* userData;
    AIBoolean showDialog;
    AIActionParamValueRef param;
};

struct AIFilterMessage {
    SPMessageData d;
    AIFilterHandle filter;
    void* parameters;
};

struct AIClipboardMessage {
    SPMessageData d;
    AIClipboardHandle clipboard;
    AIStream clipboardData;
    ai::int32 option;
};

struct AIWorkspaceMessage {
    SPMessageData d;
    AIWorkspaceHandle workspace;
    const char* dialogName;
    AIBoolean restore;
    ai::int32 flag;
};

struct AIPluginGroupMessage {
    SPMessageData d;
    AIPluginGroupHandle entry;
    AIArtHandle art;
    const char* time;
    const char* code;
    AIArtHandle preEditArt;
    AIArtHandle postEditArt;
    AIErr subCode;
    AIRealMatrix matrix;
    void* style;
    void* styleMap;
    void* proc;
    void* data;
    ai::int32 steps;
    AIReal t;
    AIPatternHandle toSymbol;
    ai::int32 transformFlags;
    AIReal transformLineScale;
    AIArtHandle destinationArt;
    ai::int32 insertionOrder;
    ai::int32 aiVersion;
};

struct AIFileFormatMessage {
    SPMessageData d;
    AIFileFormatHandle fileFormat;
    ai::int32 option;
    void* m_pExtData;
    AIActionParamValueRef actionParm;
    void* filePath;
};

struct AILiveEffectGoMessage {
    SPMessageData d;
    AILiveEffectHandle effect;
    void* parameters;
    void* instanceInfo;
    AIArtHandle art;
};

/// What a menu item is registered with. `groupName` must name an existing group.
struct AIPlatformAddMenuItemDataUS;

/// The group and the toolset of a tool that stands alone.
constexpr AIToolType kNoTool = -2;

struct AIAddToolData {
    const char* title;
    const char* tooltip;
    ASHelpID helpID;
    ai::uint32 normalIconResID; ///< Light interface.
    ai::uint32 darkIconResID;   ///< Dark interface.
    AIToolType sameGroupAs;
    AIToolType sameToolsetAs;
};

enum AIToolOptions : ai::int32 {
    kToolWantsToTrackCursorOption = 1 << 0,
    kToolWantsBrushControlOption = 1 << 5, ///< The "[" and "]" messages.
};

enum AIMenuItemOptions : ai::int32 {
    kMenuItemNoOptions = 0,
    kMenuItemWantsUpdateOption = 1 << 0, ///< "AI Update" before the menu shows.
};

enum AIAnnotatorOptions : ai::int32 {
    kAnnotatorSuppressInactiveViews = 1 << 2, ///< Messages for the active view only.
};

struct SPPlatformAccessInfo {
    SPPlatformAccessRef defaultAccess;
    SPPlatformAccessRef resourceAccess;
    ai::uint32 lastAccessTicks; ///< In 1/60 s.
};

/// 0..1 in each field.
struct AIUIThemeColor {
    AIReal alpha;
    AIReal red;
    AIReal green;
    AIReal blue;
};

using SPPluginEntryFunc = SPErr (*)(const char* caller, const char* selector, void* message);
using SPEntry = SPPluginEntryFunc;

static_assert(sizeof(SPMessageData) == 32 && offsetof(SPMessageData, self) == 8 &&
              offsetof(SPMessageData, globals) == 16 && offsetof(SPMessageData, basic) == 24);
static_assert(sizeof(SPAccessMessage) == 40 && offsetof(SPAccessMessage, when) == 32);
static_assert(sizeof(SPPropertiesMessage) == 64 && offsetof(SPPropertiesMessage, property) == 48);
static_assert(sizeof(AINotifierMessage) == 56 && offsetof(AINotifierMessage, type) == 40);
static_assert(sizeof(AIMenuMessage) == 40 && sizeof(AITimerMessage) == 40);
static_assert(sizeof(AIEvent) == 24 && offsetof(AIEvent, where) == 12 &&
              offsetof(AIEvent, modifiers) == 20);
static_assert(sizeof(AIToolMessage) == 72 && offsetof(AIToolMessage, cursor) == 40 &&
              offsetof(AIToolMessage, pressure) == 48 && offsetof(AIToolMessage, event) == 56 &&
              offsetof(AIToolMessage, rotation) == 70);
static_assert(sizeof(AIAnnotatorMessage) == 112 && offsetof(AIAnnotatorMessage, updateData) == 56 &&
              offsetof(AIAnnotatorMessage, port) == 72 &&
              offsetof(AIAnnotatorMessage, invalidationRects) == 88 &&
              offsetof(AIAnnotatorMessage, drawer) == 104);
static_assert(sizeof(DoActionMessage) == 56 && sizeof(AIFilterMessage) == 48);
static_assert(sizeof(AIClipboardMessage) == 56 && sizeof(AIWorkspaceMessage) == 56);
static_assert(sizeof(AIPluginGroupMessage) == 184 && offsetof(AIPluginGroupMessage, matrix) == 84 &&
              offsetof(AIPluginGroupMessage, toSymbol) == 152 &&
              offsetof(AIPluginGroupMessage, destinationArt) == 168);
static_assert(sizeof(AIFileFormatMessage) == 72 && sizeof(AILiveEffectGoMessage) == 64);
static_assert(sizeof(AIAddToolData) == 32 && offsetof(AIAddToolData, normalIconResID) == 20 &&
              offsetof(AIAddToolData, sameToolsetAs) == 30);
static_assert(sizeof(SPPlatformAccessInfo) == 24 && sizeof(AIUIThemeColor) == 16);

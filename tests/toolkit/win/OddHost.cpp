#include "tests/toolkit/win/OddHost.h"

#include "host/Suites.h"
#include "host/suites/AIAppContextSuite.h"
#include "host/suites/AIPanelSuite.h"
#include "host/suites/AIUnicodeStringSuite.h"
#include "host/suites/SPAccessSuite.h"

#include <map>
#include <string_view>

namespace NRDM::tests {
namespace {

/// The one panel there is, and what the host knows of it.
struct Panel {
    HWND frame = nullptr;
    HWND client = nullptr;
    bool tellsWindow = true;
    AISize size{};
    ai::int16 state = 1;
    AIPanelVisibilityChangedNotifyProc visibility = nullptr;
    AIPanelSizeChangedNotifyProc sizeChanged = nullptr;
    AIPanelStateChangedNotifyProc stateChanged = nullptr;
    AIPanelFlyoutMenuPreVisibilityProc menuOpens = nullptr;
};

// The host's functions are told nothing of whose they are.
Panel thePanel;                 // NOLINT(cppcoreguidelines-avoid-non-const-global*)
HWND mainWindow = nullptr;      // NOLINT(cppcoreguidelines-avoid-non-const-global*)
int contexts = 0;               // NOLINT(cppcoreguidelines-avoid-non-const-global*)
std::map<HWND, WNDPROC> hooked; // NOLINT(cppcoreguidelines-avoid-non-const-global*)

AIPanelRef reference() { return reinterpret_cast<AIPanelRef>(&thePanel); }

void makeClient() {
    RECT area{};
    GetClientRect(thePanel.frame, &area);
    thePanel.client =
        CreateWindowExW(0, L"STATIC", L"", WS_CHILD | WS_VISIBLE | WS_CLIPCHILDREN, 0, 0,
                        area.right, area.bottom, thePanel.frame, nullptr, nullptr, nullptr);
}

AIErr createPanel(SPPluginRef, const ai::UnicodeString&, const ai::UnicodeString&, ai::int16,
                  const AISize& size, AIBoolean, AIPanelFlyoutMenuRef, AIPanelUserData,
                  AIPanelRef& panel) {
    thePanel = {};
    thePanel.size = size;
    thePanel.frame =
        CreateWindowExW(WS_EX_TOOLWINDOW, L"STATIC", L"Panel", WS_POPUP | WS_CLIPCHILDREN, 420, 10,
                        300, 240, mainWindow, nullptr, nullptr, nullptr);
    makeClient();
    panel = reference();
    return kNoErr;
}
AIErr destroyPanel(AIPanelRef) {
    DestroyWindow(thePanel.frame);
    thePanel = {};
    return kNoErr;
}
AIErr platformWindow(AIPanelRef, AIPanelPlatformWindow& window) {
    if (!thePanel.tellsWindow) return kBadParameterErr;
    window = reinterpret_cast<AIPanelPlatformWindow>(thePanel.client);
    return kNoErr;
}
AIErr showPanel(AIPanelRef, AIBoolean shown) {
    ShowWindow(thePanel.frame, shown != 0 ? SW_SHOWNA : SW_HIDE);
    return kNoErr;
}
AIErr isPanelShown(AIPanelRef, AIBoolean& shown) {
    shown = IsWindowVisible(thePanel.frame) != FALSE;
    return kNoErr;
}
AIErr panelSize(AIPanelRef, AISize& size) {
    size = thePanel.size;
    return kNoErr;
}
AIErr setPanelSize(AIPanelRef, const AISize& size) {
    thePanel.size = size;
    return kNoErr;
}
AIErr panelState(AIPanelRef, ai::int16& state) {
    state = thePanel.state;
    return kNoErr;
}
AIErr setPanelState(AIPanelRef, ai::int16 state) {
    thePanel.state = state;
    return kNoErr;
}

/// Remembers a procedure of the plug-in's.
template <auto Member, typename Procedure> AIErr remember(AIPanelRef, Procedure procedure) {
    thePanel.*Member = procedure;
    return kNoErr;
}

constexpr AIPanelSuite kPanels = [] {
    AIPanelSuite suite{};
    suite.Create = createPanel;
    suite.Destroy = destroyPanel;
    suite.GetPlatformWindow = platformWindow;
    suite.Show = showPanel;
    suite.IsShown = isPanelShown;
    suite.GetSize = panelSize;
    suite.SetSize = setPanelSize;
    suite.GetCurrentState = panelState;
    suite.SetCurrentState = setPanelState;
    suite.SetTitle = [](AIPanelRef, const ai::UnicodeString&) -> AIErr { return kNoErr; };
    suite.SetFlyoutMenu = [](AIPanelRef, AIPanelFlyoutMenuRef) -> AIErr { return kNoErr; };
    suite.SetFlyoutMenuProc = [](AIPanelRef, AIPanelFlyoutMenuProc) -> AIErr { return kNoErr; };
    suite.SetFlyoutMenuPreVisibilityProc = remember<&Panel::menuOpens>;
    suite.SetVisibilityChangedNotifyProc = remember<&Panel::visibility>;
    suite.SetSizeChangedNotifyProc = remember<&Panel::sizeChanged>;
    suite.SetStateChangedNotifyProc = remember<&Panel::stateChanged>;
    return suite;
}();

/// Dialogs are grey; panels are not.
AIErr themeColour(ai::int32 kind, ai::int32 component, AIUIThemeColor& colour) {
    constexpr int kBackground = 0;
    constexpr int kEditBackground = 4;
    colour = {1, 0.1F, 0.1F, 0.1F};
    if (component == kBackground) colour = {1, 0.8F, 0.8F, 0.8F};
    if (component == kBackground && kind == 1) colour = {1, 0.6F, 0.8F, 1};
    if (component == kEditBackground) colour = {1, 1, 1, 1};
    return kNoErr;
}
constexpr AIUIThemeSuite kThemes{themeColour, [] { return AIBoolean{0}; }};

AIErr appWindow(AIWindowRef* window) {
    *window = reinterpret_cast<AIWindowRef>(mainWindow);
    return kNoErr;
}

AIErr push(SPPluginRef, AIAppContextHandle* context) {
    ++contexts;
    *context = reinterpret_cast<AIAppContextHandle>(&contexts);
    return kNoErr;
}
AIErr pop(AIAppContextHandle) {
    --contexts;
    return kNoErr;
}
constexpr AIAppContextSuite kContexts = [] {
    AIAppContextSuite suite{};
    suite.GetPlatformAppWindow = appWindow;
    suite.PushAppContext = push;
    suite.PopAppContext = pop;
    return suite;
}();

SPErr resourcesInProgram(SPPluginRef, SPPlatformAccessRef* library) {
    *library = nullptr;
    return kNoErr;
}
constexpr SPAccessSuite kAccess = [] {
    SPAccessSuite suite{};
    suite.GetPluginResourceAccess = resourcesInProgram;
    return suite;
}();

AIErr addNotifier(SPPluginRef, const char*, const char*, AINotifierHandle*) { return kNoErr; }
constexpr AINotifierSuite kNotifiers = [] {
    AINotifierSuite suite{};
    suite.AddNotifier = addNotifier;
    return suite;
}();

/// Titles are nobody's concern here.
AIErr initialize(ai::UnicodeString&, const char*, ai::int64, AICharacterEncoding) { return kNoErr; }
AIErr destroyString(ai::UnicodeString&) { return kNoErr; }
constexpr AIUnicodeStringSuite kStrings = [] {
    AIUnicodeStringSuite suite{};
    suite.Initialize = initialize;
    suite.Destroy = destroyString;
    return suite;
}();

SPErr acquire(const char* name, ai::int32, const void** functions) {
    struct Row {
        std::string_view name;
        const void* functions;
    };
    const Row rows[] = {{kAIPanelSuite, &kPanels},
                        {kAIUIThemeSuite, &kThemes},
                        {kAIAppContextSuite, &kContexts},
                        {kSPAccessSuite, &kAccess},
                        {kAINotifierSuite, &kNotifiers}};
    for (const Row& row : rows) {
        if (row.name != name) continue;
        *functions = row.functions;
        return kNoErr;
    }
    return kNotImplementedErr;
}
SPErr release(const char*, ai::int32) { return kNoErr; }
constexpr SPBasicSuite kBasic = [] {
    SPBasicSuite suite{};
    suite.AcquireSuite = acquire;
    suite.ReleaseSuite = release;
    return suite;
}();

/// Somebody else's: it does nothing but stand before ours.
LRESULT CALLBACK hook(HWND window, UINT message, WPARAM wide, LPARAM lengthy) {
    return CallWindowProcW(hooked.at(window), window, message, wide, lengthy);
}

BOOL CALLBACK hookInto(HWND window, LPARAM) {
    hooked[window] = reinterpret_cast<WNDPROC>(
        SetWindowLongPtrW(window, GWLP_WNDPROC, reinterpret_cast<LONG_PTR>(hook)));
    return TRUE;
}

} // namespace

void offerOddSuites(HWND window) {
    mainWindow = window;
    ai::basicSuite = offeringSuites(&kBasic);
}

OddHost::OddHost()
    : document(CreateWindowExW(0, L"STATIC", L"Document", WS_CHILD | WS_VISIBLE, 0, 0, 300, 200,
                               main.window, nullptr, nullptr, nullptr)) {
    offerOddSuites(main.window);
    ai::suites.unicodeString = &kStrings;
    toolkit.emplace(nullptr, nullptr);
    SetForegroundWindow(main.window);
    SetFocus(document);
    pump();
}

OddHost::~OddHost() {
    toolkit.reset();
    DestroyWindow(document);
    ai::suites = {};
    ai::basicSuite = nullptr;
}

ADMDialogRef OddHost::panel(ADMDialogInitProc fill) {
    ADMDialogRef made =
        kDialogSuite.Create(nullptr, "Odd", 0, kADMTabbedFloatingDialogStyle, fill, this, 0);
    kDialogSuite.Size(made, 240, 188);
    return made;
}

void OddHost::restore() {
    ShowWindow(thePanel.frame, SW_SHOWNA);
    pump();
}

void OddHost::remakeWindow() {
    DestroyWindow(thePanel.client);
    makeClient();
    pump();
}

void OddHost::tellWindow(bool tells) { thePanel.tellsWindow = tells; }
void OddHost::tellVisibility() { thePanel.visibility(reference(), 1); }
void OddHost::tellSize() { thePanel.sizeChanged(reference()); }
void OddHost::tellState(ai::int16 state) {
    thePanel.state = state;
    thePanel.stateChanged(reference(), state);
}
void OddHost::openMenu() { thePanel.menuOpens(reference()); }

void OddHost::hookWindows() {
    hooked.clear();
    EnumChildWindows(thePanel.client, hookInto, 0);
}

bool OddHost::hasContext() { return contexts > 0; }

HWND OddHost::client() const { return thePanel.client; }
HWND OddHost::child() const { return GetWindow(thePanel.client, GW_CHILD); }

} // namespace NRDM::tests

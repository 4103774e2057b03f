#include "easel/core/Expose.h"
#include "easel/core/HostString.h"
#include "easel/suites/runtime/RunningHost.h"
#include "easel/suites/runtime/RuntimeSuites.h"
#include "host/suites/AIPanelSuite.h"

namespace easel {
namespace {

Panel& at(AIPanelRef panel) { return host().panels.at(panel); }

AIErr create(SPPluginRef plugin, const ai::UnicodeString& id, const ai::UnicodeString& title,
             ai::int16 stateCount, const AISize& size, AIBoolean resizable,
             AIPanelFlyoutMenuRef flyout, AIPanelUserData /*data*/, AIPanelRef& panel) {
    if (resizable != 0) return kNotImplementedErr; // the user gives no panel another size
    static_cast<void>(host().plugins.at(plugin));
    if (flyout != nullptr) static_cast<void>(host().panels.menu(flyout));
    Panel made;
    made.plugin = plugin;
    made.id = readString(session().ledger, id);
    made.title = readString(session().ledger, title);
    made.stateCount = stateCount;
    made.size = size;
    made.flyout = flyout;
    panel = host().panels.add(std::move(made));
    return kNoErr;
}

AIErr destroy(AIPanelRef panel) {
    host().panels.remove(panel);
    return kNoErr;
}

AIErr getPlatformWindow(AIPanelRef panel, AIPanelPlatformWindow& window) {
    window = at(panel).window->client();
    return kNoErr;
}

AIErr show(AIPanelRef panel, AIBoolean shown) {
    host().panels.show(panel, shown != 0);
    return kNoErr;
}

AIErr setTitle(AIPanelRef panel, const ai::UnicodeString& title) {
    at(panel).title = readString(session().ledger, title);
    at(panel).window->setTitle(at(panel).title);
    return kNoErr;
}

template <typename Value, Value Panel::*Member> AIErr get(AIPanelRef panel, Value& value) {
    value = at(panel).*Member;
    return kNoErr;
}

AIErr setSize(AIPanelRef panel, const AISize& size) {
    host().panels.resize(panel, size);
    return kNoErr;
}

AIErr setCurrentState(AIPanelRef panel, ai::int16 state) {
    host().panels.setState(panel, state);
    return kNoErr;
}

AIErr setFlyoutMenu(AIPanelRef panel, AIPanelFlyoutMenuRef menu) {
    host().panels.setFlyout(panel, menu);
    return kNoErr;
}

template <typename Callback, Callback PanelCallbacks::*Member>
AIErr setCallback(AIPanelRef panel, Callback callback) {
    at(panel).callbacks.*Member = callback;
    return kNoErr;
}

using Suite = AIPanelSuite;

void exposeCallbacks(SuiteTable<Suite>& table) {
    using Callbacks = PanelCallbacks;
    expose<&Suite::SetFlyoutMenuPreVisibilityProc,
           setCallback<AIPanelFlyoutMenuPreVisibilityProc, &Callbacks::flyoutOpens>>(table);
    expose<&Suite::SetFlyoutMenuProc, setCallback<AIPanelFlyoutMenuProc, &Callbacks::flyoutChosen>>(
        table);
    expose<&Suite::SetVisibilityChangedNotifyProc,
           setCallback<AIPanelVisibilityChangedNotifyProc, &Callbacks::visibility>>(table);
    expose<&Suite::SetSizeChangedNotifyProc,
           setCallback<AIPanelSizeChangedNotifyProc, &Callbacks::size>>(table);
    expose<&Suite::SetStateChangedNotifyProc,
           setCallback<AIPanelStateChangedNotifyProc, &Callbacks::state>>(table);
}

} // namespace

void installPanelSuite(SuiteServer& server) {
    auto table = server.table<Suite>(kAIPanelSuite, kAIPanelSuiteVersion);
    expose<&Suite::Create, create>(table);
    exposeEnding<&Suite::Destroy, destroy>(table);
    expose<&Suite::GetPlatformWindow, getPlatformWindow>(table);
    expose<&Suite::Show, show>(table);
    expose<&Suite::IsShown, get<AIBoolean, &Panel::shown>>(table);
    expose<&Suite::SetTitle, setTitle>(table);
    expose<&Suite::SetCurrentState, setCurrentState>(table);
    expose<&Suite::GetCurrentState, get<ai::int16, &Panel::state>>(table);
    expose<&Suite::SetFlyoutMenu, setFlyoutMenu>(table);
    expose<&Suite::GetSize, get<AISize, &Panel::size>>(table);
    expose<&Suite::SetSize, setSize>(table);
    exposeCallbacks(table);
}

} // namespace easel

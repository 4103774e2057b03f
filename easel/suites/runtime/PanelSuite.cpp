#include "easel/core/Expose.h"
#include "easel/core/HostString.h"
#include "easel/suites/runtime/RunningHost.h"
#include "easel/suites/runtime/RuntimeSuites.h"
#include "host/suites/AIPanelSuite.h"

namespace easel {
namespace {

Panel& at(AIPanelRef panel) { return host().panels.at(panel); }

AIPanelRef create(SPPluginRef plugin, const ai::UnicodeString& id, const ai::UnicodeString& title,
                  ai::int16 stateCount, const AISize& size, AIBoolean resizable,
                  AIPanelFlyoutMenuRef flyout, AIPanelUserData /*data*/) {
    if (resizable != 0) throw ai::Error{kNotImplementedErr}; // the user gives no panel another size
    static_cast<void>(host().plugins.at(plugin));
    if (flyout != nullptr) static_cast<void>(host().panels.menu(flyout));
    Panel made;
    made.plugin = plugin;
    made.id = readString(session().ledger, id);
    made.title = readString(session().ledger, title);
    made.stateCount = stateCount;
    made.size = size;
    made.flyout = flyout;
    return host().panels.add(std::move(made));
}

void destroy(AIPanelRef panel) { host().panels.remove(panel); }

AIPanelPlatformWindow getPlatformWindow(AIPanelRef panel) { return at(panel).window->client(); }

void show(AIPanelRef panel, AIBoolean shown) { host().panels.show(panel, shown != 0); }

void setTitle(AIPanelRef panel, const ai::UnicodeString& title) {
    at(panel).title = readString(session().ledger, title);
    at(panel).window->setTitle(at(panel).title);
}

template <auto Member> auto get(AIPanelRef panel) { return at(panel).*Member; }

void setSize(AIPanelRef panel, const AISize& size) { host().panels.resize(panel, size); }

void setCurrentState(AIPanelRef panel, ai::int16 state) { host().panels.setState(panel, state); }

void setFlyoutMenu(AIPanelRef panel, AIPanelFlyoutMenuRef menu) {
    host().panels.setFlyout(panel, menu);
}

template <auto Member> struct Callback;
template <typename Type, Type PanelCallbacks::*Member> struct Callback<Member> {
    static void set(AIPanelRef panel, Type callback) { at(panel).callbacks.*Member = callback; }
};

using Suite = AIPanelSuite;
using Callbacks = PanelCallbacks;

} // namespace

void installPanelSuite(SuiteServer& server) {
    auto table = server.table<Suite>(kAIPanelSuite, kAIPanelSuiteVersion);
    expose<&Suite::Create, create>(table);
    exposeEnding<&Suite::Destroy, destroy>(table);
    expose<&Suite::GetPlatformWindow, getPlatformWindow>(table);
    expose<&Suite::Show, show>(table);
    expose<&Suite::IsShown, get<&Panel::shown>>(table);
    expose<&Suite::SetTitle, setTitle>(table);
    expose<&Suite::SetCurrentState, setCurrentState>(table);
    expose<&Suite::GetCurrentState, get<&Panel::state>>(table);
    expose<&Suite::SetFlyoutMenu, setFlyoutMenu>(table);
    expose<&Suite::GetSize, get<&Panel::size>>(table);
    expose<&Suite::SetSize, setSize>(table);
    expose<&Suite::SetFlyoutMenuPreVisibilityProc, Callback<&Callbacks::flyoutOpens>::set>(table);
    expose<&Suite::SetFlyoutMenuProc, Callback<&Callbacks::flyoutChosen>::set>(table);
    expose<&Suite::SetVisibilityChangedNotifyProc, Callback<&Callbacks::visibility>::set>(table);
    expose<&Suite::SetSizeChangedNotifyProc, Callback<&Callbacks::size>::set>(table);
    expose<&Suite::SetStateChangedNotifyProc, Callback<&Callbacks::state>::set>(table);
}

} // namespace easel

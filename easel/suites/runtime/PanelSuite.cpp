#include "easel/core/Expose.h"
#include "easel/core/HostObjects.h"
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
    expose<&Suite::Create, create>(server);
    exposeEnding<&Suite::Destroy, destroy>(server);
    expose<&Suite::GetPlatformWindow, getPlatformWindow>(server);
    expose<&Suite::Show, show>(server);
    expose<&Suite::IsShown, get<&Panel::shown>>(server);
    expose<&Suite::SetTitle, setTitle>(server);
    expose<&Suite::SetCurrentState, setCurrentState>(server);
    expose<&Suite::GetCurrentState, get<&Panel::state>>(server);
    expose<&Suite::SetFlyoutMenu, setFlyoutMenu>(server);
    expose<&Suite::GetSize, get<&Panel::size>>(server);
    expose<&Suite::SetSize, setSize>(server);
    expose<&Suite::SetFlyoutMenuPreVisibilityProc, Callback<&Callbacks::flyoutOpens>::set>(server);
    expose<&Suite::SetFlyoutMenuProc, Callback<&Callbacks::flyoutChosen>::set>(server);
    expose<&Suite::SetVisibilityChangedNotifyProc, Callback<&Callbacks::visibility>::set>(server);
    expose<&Suite::SetSizeChangedNotifyProc, Callback<&Callbacks::size>::set>(server);
    expose<&Suite::SetStateChangedNotifyProc, Callback<&Callbacks::state>::set>(server);
}

} // namespace easel

#include "shell/Entry.h"

#include "host/Error.h"
#include "host/MessageNames.h"
#include "host/Messages.h"
#include "shell/FacettaPlugin.h"
#include "toolkit/SuiteTables.h"

#include <cstring>
#include <string_view>

namespace facetta {
namespace {

struct Call {
    std::string_view caller;
    std::string_view selector;
    void* message;

    [[nodiscard]] SPMessageData& data() const { return *static_cast<SPMessageData*>(message); }
    [[nodiscard]] bool is(std::string_view aCaller, std::string_view aSelector) const {
        return caller == aCaller && selector == aSelector;
    }
};

FacettaPlugin* pluginOf(const Call& call) {
    return static_cast<FacettaPlugin*>(call.data().globals);
}

/// One that is in use is deleted later.
void endPlugin(const Call& call) {
    const FacettaPlugin* const plugin = pluginOf(call);
    call.data().globals = nullptr;
    if (!plugin->isInUse()) delete plugin;
}

SPErr startUp(const Licensing& licensing, const Call& call) {
    // The object is in `globals` while it starts, and leaves again when that fails.
    call.data().globals = new FacettaPlugin(call.data().self, licensing);
    const SPErr err = ai::codeOf(
        [&] { return pluginOf(call)->Startup(*static_cast<SPInterfaceMessage*>(call.message)); });
    if (err != kNoErr) endPlugin(call);
    return err;
}

SPErr shutDown(const Call& call) {
    const SPErr err = ai::codeOf(
        [&] { return pluginOf(call)->Shutdown(*static_cast<SPInterfaceMessage*>(call.message)); });
    endPlugin(call);
    return err;
}

SPErr beginOrEnd(const Licensing& licensing, const Call& call) {
    const bool exists = pluginOf(call) != nullptr;
    if (call.is(kCallerInterface, kSelectorStartup) && !exists) return startUp(licensing, call);
    if (call.is(kCallerInterface, kSelectorShutdown) && exists) return shutDown(call);
    if (call.is(kCallerAccess, kSelectorReload) && !exists &&
        !licensing.allows(GuardedAction::Reload))
        return kSPCantAcquirePluginError;
    return kNoErr;
}

/// After a reload the object's table of virtual operations lies where the library was before. The
/// table pointer comes first in an object; a new object of the same class has the right one.
void refreshIdentity(FacettaPlugin& plugin, SPPluginRef self, const Licensing& licensing) {
    const FacettaPlugin model{self, licensing};
    // NOLINTNEXTLINE(bugprone-undefined-memory-manipulation): nothing but that pointer is copied
    std::memcpy(static_cast<void*>(&plugin), static_cast<const void*>(&model), sizeof(void*));
}

SPErr deliver(FacettaPlugin& plugin, const Call& call) {
    if (call.is(kCallerAccess, kSelectorReload))
        return plugin.Reload(*static_cast<SPAccessMessage*>(call.message));
    // Suites are not to be sought while an access message is answered.
    if (call.caller == kCallerAccess ? !plugin.hasSuites() : !plugin.ensureSuites()) return kNoErr;
    const PluginInUse inUse(plugin);
    const SPErr err =
        ai::codeOf([&] { return plugin.Message(call.caller, call.selector, call.message); });
    if (plugin.endsAfterUse()) { // shut down meanwhile: nobody is left to be told of failures
        call.data().globals = nullptr;
        return kNoErr;
    }
    return err == kUnhandledMsgErr ? kNoErr : err;
}

/// What the object holds of the library's lies where the library is now.
void bringUpToDate(FacettaPlugin& plugin, const Licensing& licensing, const Call& call) {
    if (call.is(kCallerAccess, kSelectorReload))
        refreshIdentity(plugin, call.data().self, licensing);
    plugin.licence = &licensing;
}

SPErr handle(const Licensing& licensing, const Call& call) {
    if (FacettaPlugin* const plugin = pluginOf(call)) bringUpToDate(*plugin, licensing, call);
    const SPErr err = beginOrEnd(licensing, call);
    FacettaPlugin* const plugin = pluginOf(call);
    return plugin != nullptr ? deliver(*plugin, call) : err;
}

void report(SPErr err, const Call& call) noexcept {
    if (FacettaPlugin* const plugin = pluginOf(call))
        plugin->ReportError(err, call.caller, call.selector, call.message);
    else
        showError(err);
}

} // namespace

SPErr handleMessage(const Licensing& licensing, const char* caller, const char* selector,
                    void* message) noexcept {
    if (caller == nullptr || selector == nullptr || message == nullptr) return kSPBadParameterError;
    const Call call{caller, selector, message};
    ai::basicSuite = NRDM::offeringSuites(call.data().basic);
    const SPErr err = ai::codeOf([&] { return handle(licensing, call); });
    if (err != kNoErr) report(err, call);
    return err;
}

} // namespace facetta

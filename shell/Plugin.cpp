#include "shell/Plugin.h"

#include "host/Error.h"
#include "host/MessageNames.h"
#include "host/suites/AINotifierSuite.h"
#include "host/suites/SPAccessSuite.h"
#include "host/suites/SPPluginsSuite.h"
#include "shell/FacettaPlugin.h"
#include "shell/Routing.h"

#include <algorithm>
#include <cstring>
#include <string>

namespace facetta {
namespace {

/// Of a procedure that the toolkit called outside any message.
void reportFailure() noexcept {
    if (thePlugin != nullptr) thePlugin->ReportError(ai::currentErrorCode(), "", "", nullptr);
}

} // namespace

void Plugin::ReportError(AIErr error, std::string_view, std::string_view, void*) {
    errors_.report(error);
}

AIErr Plugin::LockPlugin(bool lock) {
    if (lock && lockCount_ == 0) {
        if (ai::suites.access == nullptr) return kSPSuiteNotFoundError;
        if (const AIErr err = ai::suites.access->AcquirePlugin(self_, lock_.put())) {
            static_cast<void>(lock_.release()); // nothing was acquired
            return err;
        }
    }
    if (!lock && lockCount_ == 1) lock_.reset();
    lockCount_ = std::max(0, lockCount_ + (lock ? 1 : -1));
    return kNoErr;
}

AIErr Plugin::Startup(SPInterfaceMessage&) {
    toolkit_.emplace(self_, reportFailure);
    ai::check(SetGlobal(this));
    ai::check(acquireSuites());
    ai::check(addStartedNotifier());
    ai::check(StartupHook());
    return SuitesReadyHook();
}

AIErr Plugin::acquireSuites() {
    const AIErr err = suites_.emplace().acquire();
    if (err != kNoErr) suites_.reset();
    return err;
}

AIErr Plugin::addStartedNotifier() {
    const char* name = nullptr;
    ai::check(ai::suites.plugins->GetPluginName(self_, &name));
    if (name != nullptr) std::strncpy(name_.data(), name, name_.size() - 1);
    const std::string notifierName = std::string(name_.data()) + " App Started Notifier";
    AINotifierHandle notifier = nullptr;
    return ai::suites.notifier->AddNotifier(self_, notifierName.c_str(),
                                            kApplicationStartedNotifier, &notifier);
}

AIErr Plugin::PostStartup() { return kNoErr; }

AIErr Plugin::Shutdown(SPInterfaceMessage&) { return end(); }

AIErr Plugin::end() {
    releaseSuites();
    const AIErr err = SetGlobal(nullptr);
    toolkit_.reset();
    return err;
}

AIErr Plugin::Unload(SPAccessMessage& message) {
    if (message.when == kAccessAtTerminal) return kNoErr;
    const AIErr err = UnloadHook();
    ai::check(SetGlobal(nullptr));
    if (toolkit_) toolkit_->unloading();
    releaseSuites();
    return err;
}

AIErr Plugin::Reload(SPAccessMessage&) { return resume(); }

AIErr Plugin::resume() {
    ai::check(SetGlobal(this));
    if (toolkit_) toolkit_->reloaded(reportFailure);
    // A holder that survived has its suites, but the library's pointers to them are new and empty.
    const AIErr err = suites_ ? suites_->refresh() : acquireSuites();
    awaitsSuites_ = err != kNoErr;
    if (awaitsSuites_) {
        suites_.reset();
        return err;
    }
    // The suites are there whatever the hook finds.
    static_cast<void>(ai::codeOf([&] { return SuitesReadyHook(); }));
    return kNoErr;
}

bool Plugin::ensureSuites() { return hasSuites() || (awaitsSuites_ && resume() == kNoErr); }

AIErr Plugin::GetPluginName(char* buffer, std::size_t size) {
    if (size == 0) return kBadParameterErr;
    const std::size_t length = std::min(size - 1, std::strlen(name_.data()));
    std::memcpy(buffer, name_.data(), length);
    buffer[length] = '\0';
    return kNoErr;
}

AIErr Plugin::About(SPInterfaceMessage&) {
    // The alert's text would be items 1 and 2 of string list 16600, which our resources do not
    // hold: there is nothing to show. The about box of the product hangs on its menu item.
    return kNoErr;
}

AIErr Plugin::Message(std::string_view caller, std::string_view selector, void* message) {
    AcquireOptionalSuites();
    return route(*this, caller, selector, message);
}

AIErr Plugin::routeNotification(std::string_view selector, AINotifierMessage& message) {
    const ai::AppContext context{self_};
    toolkit_->serve(message.notifier);
    if (message.type != nullptr && message.type == std::string_view(kApplicationStartedNotifier)) {
        const AIErr err = PostStartup();
        if (err != kNoErr && err != kUnhandledMsgErr) return err;
    }
    return selector == kSelectorNotify ? Notify(message) : kUnhandledMsgErr;
}

void Plugin::AcquireOptionalSuites() {
    if (suites_) suites_->acquireOptional();
}

bool Plugin::Purge() { return false; }

// Operations that a product may have no use for.
AIErr Plugin::SetGlobal(Plugin*) { return kNoErr; }
AIErr Plugin::StartupHook() { return kNoErr; }
AIErr Plugin::SuitesReadyHook() { return kNoErr; }
AIErr Plugin::UnloadHook() { return kNoErr; }
AIErr Plugin::Notify(AINotifierMessage&) { return kNoErr; }
AIErr Plugin::GoAction(DoActionMessage&) { return kNoErr; }
AIErr Plugin::ReselectTool(AIToolMessage&) { return kNoErr; }
AIErr Plugin::DecreaseDiameter(AIToolMessage&) { return kNoErr; }
AIErr Plugin::IncreaseDiameter(AIToolMessage&) { return kNoErr; }
AIErr Plugin::AnnotatorDraw(AIAnnotatorMessage&) { return kNoErr; }
AIErr Plugin::AnnotatorInvalidate(AIAnnotatorMessage&) { return kNoErr; }

// Messages that nobody handles unless a product says so.
AIErr Plugin::AcquireProperty(SPPropertiesMessage&) { return kUnhandledMsgErr; }
AIErr Plugin::ReleaseProperty(SPPropertiesMessage&) { return kUnhandledMsgErr; }
AIErr Plugin::GoMenuItem(AIMenuMessage&) { return kUnhandledMsgErr; }
AIErr Plugin::UpdateMenuItem(AIMenuMessage&) { return kUnhandledMsgErr; }
AIErr Plugin::GetFilterParameters(AIFilterMessage&) { return kUnhandledMsgErr; }
AIErr Plugin::GoFilter(AIFilterMessage&) { return kUnhandledMsgErr; }
AIErr Plugin::PluginGroupNotify(AIPluginGroupMessage&) { return kUnhandledMsgErr; }
AIErr Plugin::PluginGroupUpdate(AIPluginGroupMessage&) { return kUnhandledMsgErr; }
AIErr Plugin::GetFileFormatParameters(AIFileFormatMessage&) { return kUnhandledMsgErr; }
AIErr Plugin::GoFileFormat(AIFileFormatMessage&) { return kUnhandledMsgErr; }
AIErr Plugin::CheckFileFormat(AIFileFormatMessage&) { return kUnhandledMsgErr; }
AIErr Plugin::FileFormatUpdate(AIFileFormatMessage&) { return kUnhandledMsgErr; }
AIErr Plugin::SetFileFormatParameters(AIFileFormatMessage&) { return kUnhandledMsgErr; }
AIErr Plugin::EditTool(AIToolMessage&) { return kUnhandledMsgErr; }
AIErr Plugin::TrackToolCursor(AIToolMessage&) { return kUnhandledMsgErr; }
AIErr Plugin::ToolMouseDown(AIToolMessage&) { return kUnhandledMsgErr; }
AIErr Plugin::ToolMouseDrag(AIToolMessage&) { return kUnhandledMsgErr; }
AIErr Plugin::ToolMouseUp(AIToolMessage&) { return kUnhandledMsgErr; }
AIErr Plugin::SelectTool(AIToolMessage&) { return kUnhandledMsgErr; }
AIErr Plugin::DeselectTool(AIToolMessage&) { return kUnhandledMsgErr; }
AIErr Plugin::LiveEffectEditParameters(SPMessageData&) { return kUnhandledMsgErr; }
AIErr Plugin::LiveEffectGoLive(AILiveEffectGoMessage&) { return kUnhandledMsgErr; }
AIErr Plugin::LiveEffectInterpolate(SPMessageData&) { return kUnhandledMsgErr; }
AIErr Plugin::LiveEffectInputType(SPMessageData&) { return kUnhandledMsgErr; }
AIErr Plugin::LiveEffectConvertColorSpace(SPMessageData&) { return kUnhandledMsgErr; }
AIErr Plugin::LiveEffectScaleParameters(SPMessageData&) { return kUnhandledMsgErr; }
AIErr Plugin::LiveEffectAdjustColors(SPMessageData&) { return kUnhandledMsgErr; }
AIErr Plugin::LiveEffectHandleMerge(SPMessageData&) { return kUnhandledMsgErr; }
AIErr Plugin::GoTimer(AITimerMessage&) { return kUnhandledMsgErr; }
AIErr Plugin::ClipboardGo(AIClipboardMessage&) { return kUnhandledMsgErr; }
AIErr Plugin::ClipboardCanCopy(AIClipboardMessage&) { return kUnhandledMsgErr; }
AIErr Plugin::ClipboardClone(AIClipboardMessage&) { return kUnhandledMsgErr; }
AIErr Plugin::ClipboardDispose(AIClipboardMessage&) { return kUnhandledMsgErr; }
AIErr Plugin::WorkspaceWrite(AIWorkspaceMessage&) { return kUnhandledMsgErr; }
AIErr Plugin::WorkspaceRestore(AIWorkspaceMessage&) { return kUnhandledMsgErr; }
AIErr Plugin::WorkspaceDefault(AIWorkspaceMessage&) { return kUnhandledMsgErr; }

} // namespace facetta

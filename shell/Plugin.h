#pragma once

/// The base of the plug-in object: what every plug-in of this host does, and one virtual operation
/// for each message. The host keeps the object in the messages' `globals`, also while the library
/// is unloaded and loaded again; so it holds no address inside the library but its own table of
/// virtual operations, which the entry refreshes after a reload.

#include "host/Messages.h"
#include "host/References.h"
#include "host/SuiteHolder.h"
#include "shell/ErrorReport.h"
#include "toolkit/Toolkit.h"

#include <array>
#include <cstddef>
#include <optional>
#include <string_view>

namespace facetta {

class Plugin {
public:
    explicit Plugin(SPPluginRef self) noexcept : self_(self) {}
    Plugin(const Plugin&) = delete;
    Plugin& operator=(const Plugin&) = delete;

    // One operation a line, in the order of their slots. Unless it says otherwise an operation
    // answers that it does not handle the message.
    virtual ~Plugin() = default;
    virtual void ReportError(AIErr error, std::string_view caller, std::string_view selector,
                             void* message);
    /// Keeps the library loaded from the first lock to the last unlock.
    virtual AIErr LockPlugin(bool lock);
    /// Starts the toolkit, acquires the suites, registers for the end of the host's own start-up.
    virtual AIErr Startup(SPInterfaceMessage& message);
    virtual AIErr PostStartup();
    virtual AIErr Shutdown(SPInterfaceMessage& message);
    /// Gives back the suites; the object itself waits for `Reload`. Frees nothing when the host
    /// quits while somebody still holds the library.
    virtual AIErr Unload(SPAccessMessage& message);
    /// Acquires the suites again. Where the host refuses them, `ensureSuites` goes on trying.
    virtual AIErr Reload(SPAccessMessage& message);
    virtual AIErr AcquireProperty(SPPropertiesMessage& message);
    virtual AIErr ReleaseProperty(SPPropertiesMessage& message);
    /// The name the host knows the plug-in by, cut and terminated at `size`.
    virtual AIErr GetPluginName(char* buffer, std::size_t size);
    virtual AIErr About(SPInterfaceMessage& message);
    /// Were any caches flushed?
    virtual bool Purge();
    /// Routes one message to its operation.
    virtual AIErr Message(std::string_view caller, std::string_view selector, void* message);
    /// Makes `plugin` the process-wide one.
    virtual AIErr SetGlobal(Plugin* plugin);
    virtual AIErr StartupHook();
    virtual AIErr SuitesReadyHook();
    virtual AIErr UnloadHook();
    virtual void AcquireOptionalSuites();
    virtual AIErr Notify(AINotifierMessage& message);
    virtual AIErr GoAction(DoActionMessage& message);
    virtual AIErr GoMenuItem(AIMenuMessage& message);
    virtual AIErr UpdateMenuItem(AIMenuMessage& message);
    virtual AIErr GetFilterParameters(AIFilterMessage& message);
    virtual AIErr GoFilter(AIFilterMessage& message);
    virtual AIErr PluginGroupNotify(AIPluginGroupMessage& message);
    virtual AIErr PluginGroupUpdate(AIPluginGroupMessage& message);
    virtual AIErr GetFileFormatParameters(AIFileFormatMessage& message);
    virtual AIErr GoFileFormat(AIFileFormatMessage& message);
    virtual AIErr CheckFileFormat(AIFileFormatMessage& message);
    virtual AIErr FileFormatUpdate(AIFileFormatMessage& message);
    virtual AIErr SetFileFormatParameters(AIFileFormatMessage& message);
    virtual AIErr EditTool(AIToolMessage& message);
    virtual AIErr TrackToolCursor(AIToolMessage& message);
    virtual AIErr ToolMouseDown(AIToolMessage& message);
    virtual AIErr ToolMouseDrag(AIToolMessage& message);
    virtual AIErr ToolMouseUp(AIToolMessage& message);
    virtual AIErr SelectTool(AIToolMessage& message);
    virtual AIErr DeselectTool(AIToolMessage& message);
    virtual AIErr ReselectTool(AIToolMessage& message);
    virtual AIErr DecreaseDiameter(AIToolMessage& message);
    virtual AIErr IncreaseDiameter(AIToolMessage& message);
    virtual AIErr AnnotatorDraw(AIAnnotatorMessage& message);
    virtual AIErr AnnotatorInvalidate(AIAnnotatorMessage& message);
    virtual AIErr LiveEffectEditParameters(SPMessageData& message);
    virtual AIErr LiveEffectGoLive(AILiveEffectGoMessage& message);
    virtual AIErr LiveEffectInterpolate(SPMessageData& message);
    virtual AIErr LiveEffectInputType(SPMessageData& message);
    virtual AIErr LiveEffectConvertColorSpace(SPMessageData& message);
    virtual AIErr LiveEffectScaleParameters(SPMessageData& message);
    virtual AIErr LiveEffectAdjustColors(SPMessageData& message);
    virtual AIErr LiveEffectHandleMerge(SPMessageData& message);
    virtual AIErr GoTimer(AITimerMessage& message);
    virtual AIErr ClipboardGo(AIClipboardMessage& message);
    virtual AIErr ClipboardCanCopy(AIClipboardMessage& message);
    virtual AIErr ClipboardClone(AIClipboardMessage& message);
    virtual AIErr ClipboardDispose(AIClipboardMessage& message);
    virtual AIErr WorkspaceWrite(AIWorkspaceMessage& message);
    virtual AIErr WorkspaceRestore(AIWorkspaceMessage& message);
    virtual AIErr WorkspaceDefault(AIWorkspaceMessage& message);

    /// Without suites a message can do nothing.
    [[nodiscard]] bool hasSuites() const noexcept { return suites_.has_value(); }

    /// Are the suites there, if need be after one more try at a reload that was refused them?
    /// Between unloading and loading again they are not tried for.
    bool ensureSuites();

    /// All of "AI Notifier": serves the toolkit first, then the end of start-up, then `Notify`.
    AIErr routeNotification(std::string_view selector, AINotifierMessage& message);

    [[nodiscard]] SPPluginRef self() const noexcept { return self_; }

protected:
    [[nodiscard]] const char* name() const noexcept { return name_.data(); }
    [[nodiscard]] NRDM::Toolkit& toolkit() noexcept { return *toolkit_; }

    /// All suites of the table, or none.
    AIErr acquireSuites();
    void releaseSuites() noexcept { suites_.reset(); }
    /// Gives back everything: what shutting down comes to.
    AIErr end();

private:
    AIErr resume();
    AIErr addStartedNotifier();

    SPPluginRef self_;
    std::array<char, 256> name_{};
    std::optional<NRDM::Toolkit> toolkit_; ///< outlives the suites
    std::optional<ai::SuiteHolder> suites_;
    bool awaitsSuites_ = false; ///< a reload was refused them
    ai::int32 lockCount_ = 0;
    ai::PluginAccess lock_; ///< held while `lockCount_` is positive
    ErrorReporter errors_;
};

} // namespace facetta

#include "shell/FacettaPlugin.h"

#include "host/Error.h"
#include "host/Lent.h"
#include "host/MessageNames.h"
#include "host/ToolSuiteLayout.h"
#include "host/UnicodeString.h"
#include "host/suites/AIAnnotatorSuite.h"
#include "host/suites/AIMenuSuite.h"
#include "host/suites/AIPreferenceSuite.h"
#include "host/suites/AIToolSuite.h"
#include "host/suites/AIUserSuite.h"
#include "platform/Platform.h"
#include "shell/Alert.h"
#include "shell/Help.h"
#include "shell/PreferenceStore.h"
#include "tool/InfoDisplay.h"
#include "tool/axes/FollowDocument.h"
#include "tool/drawing/Annotations.h"
#include "tool/handlers/Drag.h"
#include "tool/handlers/Press.h"
#include "tool/handlers/Release.h"
#include "tool/handlers/ToolOptions.h"
#include "tool/handlers/ToolSelection.h"
#include "tool/handlers/TrackCursor.h"
#include "toolkit/ImplCommon/Resources.h"
#include "ui/EditAxesDialog.h"
#include "ui/PreferencesDialog.h"

#include <memory>
#include <new>
#include <string>
#include <utility>

namespace facetta {

FacettaPlugin* thePlugin = nullptr; // NOLINT(cppcoreguidelines-avoid-non-const-global*)

namespace {

constexpr char kAnnotatorName[] = "Norvane FT Annotator";
constexpr char kToolName[] = "Facetta Tool";
constexpr ai::uint32 kToolIconLight = 2100;
constexpr ai::uint32 kToolIconDark = 3100;
constexpr ai::int32 kToolOptions = kToolWantsToTrackCursorOption | kToolWantsBrushControlOption;

/// What stands between whole and fraction in the user's locale: the host is asked to write a
/// number that has one.
char16_t findDecimalSeparator() {
    ai::UnicodeString number;
    ai::suites.user->IUAIRealToString(1.75F, 2, number);
    const std::u16string text = number.utf16();
    return text.size() > 1 ? text[1] : u'.';
}

} // namespace

PluginInUse::~PluginInUse() {
    if (--plugin_.uses_ > 0 || !plugin_.endsAfterUse_) return;
    static_cast<void>(ai::codeOf([this] { return plugin_.end(); }));
    delete &plugin_;
}

FacettaPlugin::~FacettaPlugin() {
    // A start-up that fails half-way ends here as well.
    if (thePlugin == this) thePlugin = nullptr;
}

void* FacettaPlugin::operator new(std::size_t size) {
    void* block = nullptr;
    if (ai::basicSuite->AllocateBlock(size, &block) != kNoErr || block == nullptr)
        throw std::bad_alloc();
    return block;
}

void FacettaPlugin::operator delete(void* object) noexcept { ai::basicSuite->FreeBlock(object); }

void FacettaPlugin::ReportError(AIErr error, std::string_view caller, std::string_view selector,
                                void* message) {
    if (!endsAfterUse_) Plugin::ReportError(error, caller, selector, message);
}

AIErr FacettaPlugin::Startup(SPInterfaceMessage& message) {
    ai::check(Plugin::Startup(message));
    if (!licence->allows(GuardedAction::StartUp)) return kNoErr;
    // Once the base has started the plug-in stays, with whatever could be registered; a failure
    // here is told to the user and no more.
    const AIErr err = ai::codeOf([&] {
        startProduct();
        return kNoErr;
    });
    if (err != kNoErr) ReportError(err, kCallerInterface, kSelectorStartup, &message);
    return kNoErr;
}

void FacettaPlugin::startProduct() {
    licenceChanged = false;
    loadPreferences(hostPreferences, preferences);
    settingsLoaded_ = true;
    tool.dialog = {preferences.dialogX, preferences.dialogY};

    addAboutItem(self(), menuItems);
    addHelpItems(self(), menuItems);
    const bool canShowAllPanels = addShowAllPanelsItem(self(), menuItems);
    decimalSeparator = findDecimalSeparator();
    toolkit().dialogs().customs.separator = decimalSeparator;
    if (licence->state() == LicenceState::Expired) return;

    if (canShowAllPanels) {
        if (!addWindowGroup(self())) return;
        if (addPanelItem(self(), menuItems)) registerNotifiers(self(), notifiers);
    }
    if (addAnnotator() && addTool()) openPanel();
}

bool FacettaPlugin::addAnnotator() {
    return ai::isGiven(ai::suites.annotator->AddAnnotator(self(), kAnnotatorName, &annotator),
                       annotator) &&
           ai::suites.annotator->SetAnnotatorOptions(annotator, kAnnotatorSuppressInactiveViews) ==
               kNoErr;
}

bool FacettaPlugin::addTool() {
    AIAddToolData data{};
    data.title = kToolName;
    data.tooltip = kToolName;
    data.normalIconResID = kToolIconLight;
    data.darkIconResID = kToolIconDark;
    data.sameGroupAs = kNoTool;
    data.sameToolsetAs = kNoTool;
    if (!ai::isGiven(ai::suites.tool->AddTool(self(), kToolName, &data, kToolOptions, &toolHandle),
                     toolHandle))
        return false;
    ai::alignToolSuite(toolHandle, kToolOptions);
    return ai::suites.tool->SetToolInfoVars(toolHandle, kInfoVariables.data()) == kNoErr;
}

void FacettaPlugin::openPanel() {
    const auto withTool = [this](const std::function<void(ToolSession&)>& act) {
        static_cast<void>(withSession(act));
    };
    const auto inUse = [this] { return std::make_shared<const PluginInUse>(*this); };
    panel.emplace(self(), PanelOwner{withTool, inUse, copiedAxes});
    updatePanel = refreshPanel;
    // The panel's windows call into the library, and where the user has docked it may be lost when
    // it is destroyed. A host that cannot hold the library unloads it all the same, panel and all.
    holdsLibrary_ = LockPlugin(true) == kNoErr;
}

void FacettaPlugin::closePanel() noexcept {
    updatePanel = [] {};
    panel.reset();
    releaseLibrary();
}

void FacettaPlugin::releaseLibrary() noexcept {
    if (std::exchange(holdsLibrary_, false)) LockPlugin(false);
}

void FacettaPlugin::refreshPanel() {
    if (thePlugin == nullptr || !thePlugin->panel) return; // still being made
    const platform::KeyState noKeys;
    ToolSession session = thePlugin->toolSession(noKeys);
    thePlugin->panel->refresh(session);
}

AIErr FacettaPlugin::Shutdown(SPInterfaceMessage&) {
    if (!hasSuites()) static_cast<void>(acquireSuites()); // refused since a reload, perhaps
    const AIErr saved = saveSettings();
    if (hasSuites()) {
        hintTimer.stop();
        regenerationWatch.stop();
        if (panel) panel->close();
        releaseLibrary();
    }
    endsAfterUse_ = isInUse();
    if (endsAfterUse_) {
        toolkit().dialogs().closeAll(); // so that the handlers return that wait for them
        return saved;
    }
    const AIErr err = end();
    return err != kNoErr ? err : saved;
}

AIErr FacettaPlugin::end() {
    if (hasSuites()) {
        tool = {}; // what it holds of the host's goes while there are suites
        closePanel();
    }
    return Plugin::end();
}

AIErr FacettaPlugin::saveSettings() {
    if (!settingsLoaded_) return kNoErr; // the defaults must not replace what is stored
    preferences.dialogX = tool.dialog.x;
    preferences.dialogY = tool.dialog.y;
    const ai::BorrowedSuite<&ai::Suites::preference> store;
    return store ? savePreferences(preferences) : kSPSuiteNotFoundError;
}

AIErr FacettaPlugin::Message(std::string_view caller, std::string_view selector, void* message) {
    // First, in the context that the host has made for the message: only there can the plug-in say
    // which undo step its changes belong to.
    const AIErr followed = ai::codeOf([&] {
        followChanges(caller, message);
        return kNoErr;
    });
    const AIErr handled = Plugin::Message(caller, selector, message);
    const AIErr err = followed != kNoErr ? followed : handled;
    if (err != kNoErr && err != kUnhandledMsgErr) ReportError(err, caller, selector, message);
    return err;
}

void FacettaPlugin::followChanges(std::string_view caller, const void* message) {
    if (caller == kCallerNotifier) {
        const auto& sent = *static_cast<const AINotifierMessage*>(message);
        mirrorChangedLayers(regenerationWatch.penIsDone(sent.notifier) ? Pen::IsDone
                                                                       : Pen::IsWaitedFor);
    } else if (caller == kCallerTimer &&
               regenerationWatch.isIts(static_cast<const AITimerMessage*>(message)->timer)) {
        mirrorChangedLayers(Pen::IsWaitedFor);
    }
}

/// Nothing is regenerated while a mouse button is down: whoever drags has hold of art that would be
/// replaced. While the art of a layer moves with its axes, the layer's own axes are where they
/// were.
void FacettaPlugin::mirrorChangedLayers(Pen pen) {
    if (mirrorsLayers_ || !documentIsOpen()) return;
    if (buttonIsDown(tool) || repositionMode(tool) || platform::mouseIsHeld())
        return regenerationWatch.start(self());
    mirrorsLayers_ = true;
    Regeneration done;
    const AIErr err = ai::codeOf([&] {
        done = regenerateChangedLayers(mirroring(), pen);
        return kNoErr;
    });
    mirrorsLayers_ = false;
    ai::check(err);
    if (done.waits)
        regenerationWatch.start(self());
    else
        regenerationWatch.stop();
}

AIErr FacettaPlugin::SetGlobal(Plugin* plugin) {
    thePlugin = static_cast<FacettaPlugin*>(plugin);
    return kNoErr;
}

AIErr FacettaPlugin::UnloadHook() {
    if (panel)
        panelAfterReload_ = panel->isVisible() ? PanelAfterReload::Shown : PanelAfterReload::Hidden;
    closePanel();
    return kNoErr;
}

AIErr FacettaPlugin::SuitesReadyHook() {
    dialogs = {.editAxes = showEditAxesDialog, .preferences = showPreferencesDialog};
    updatePanel = [] {};
    if (toolHandle != nullptr) ai::alignToolSuite(toolHandle, kToolOptions);
    const PanelAfterReload wanted = std::exchange(panelAfterReload_, PanelAfterReload::None);
    if (wanted == PanelAfterReload::None) return kNoErr;
    openPanel();
    panel->show(wanted == PanelAfterReload::Shown);
    return kNoErr;
}

AIErr FacettaPlugin::Notify(AINotifierMessage& message) {
    const std::string_view type = message.type != nullptr ? message.type : "";
    if (type == kApplicationStartedNotifier) {
        licence->applicationStarted(self());
        welcomeOnFirstStart(*licence);
    }
    if (type == kUIBrightnessChangedNotifier) redrawOverlay(view);
    handleNotification(*this, message);
    return kNoErr;
}

AIErr FacettaPlugin::GoMenuItem(AIMenuMessage& message) {
    // The host would put an alert of its own beside a menu command that fails.
    const AIErr err = ai::codeOf([&] {
        if (message.menuItem == nullptr || message.menuItem != menuItems.panel)
            chooseMenuItem(*this, message.menuItem);
        else
            togglePanel();
        return kNoErr;
    });
    if (err != kNoErr) ReportError(err, kCallerMenu, kSelectorGo, &message);
    return kNoErr;
}

void FacettaPlugin::togglePanel() noexcept {
    // A panel that neither comes nor goes tells enough.
    static_cast<void>(ai::codeOf([this] {
        if (panel) panel->show(!panel->isVisible());
        return kNoErr;
    }));
}

AIErr FacettaPlugin::UpdateMenuItem(AIMenuMessage& message) {
    if (message.menuItem != nullptr && message.menuItem == menuItems.panel)
        static_cast<void>(ai::suites.menu->CheckItem(menuItems.panel, panel && panel->isVisible()));
    return kNoErr;
}

void FacettaPlugin::licenceHasChanged() {
    licenceChanged = true;
    updatePanel();
}

void FacettaPlugin::fetchView() {
    // At some notifications, as of a closed document, the host may not be able to tell: then the
    // next message asks again.
    view = {};
    if (!documentIsOpen()) return;
    static_cast<void>(ai::codeOf([this] {
        view = fetchCurrentView();
        return kNoErr;
    }));
}

void FacettaPlugin::fetchViewAndPlaceDialog() {
    fetchView();
    if (view.handle != nullptr) tool.dialog = placedIn(view.pixels, tool.dialog);
}

void FacettaPlugin::followDocument() {
    if (isCurrent(view)) return;
    fetchViewAndPlaceDialog();
    if (documentIsOpen() && view.document == nullptr) return; // the host cannot tell yet
    const platform::KeyState noKeys;
    ToolSession session = toolSession(noKeys);
    facetta::followDocument(session);
}

MirrorEnvironment FacettaPlugin::mirroring() {
    return {.currentAxes = tool.axes,
            .live = liveLayers,
            .removePoints = preferences.removePoints,
            .ownTool = toolHandle,
            .showMessage = showAlert};
}

ToolSession FacettaPlugin::toolSession(const platform::KeyState& keys) {
    return {
        .self = self(),
        .state = tool,
        .preferences = preferences,
        .host = hostPreferences,
        .view = view,
        .licence = *licence,
        .dialogs = dialogs,
        .keys = keys,
        .mirroring = mirroring(),
        .setCursor = [this](ai::int32 id) { toolkit().cursors().show(id); },
        .textOf =
            [this](ai::int32 id) {
                return NRDM::readString(NRDM::resourceLibrary(self()), id).value_or(u"");
            },
        .updatePanel = updatePanel,
    };
}

template <typename Handler> AIErr FacettaPlugin::withSession(Handler handler) {
    // The document may have come up before the notification that tells of it.
    followDocument();
    const platform::KeyState keys = platform::readKeys();
    ToolSession session = toolSession(keys);
    handler(session);
    if (endsAfterUse_) return kNoErr;
    hintTimer.follow(self(), tool.hint, platform::ticks());
    return kNoErr;
}

template <typename Handler>
AIErr FacettaPlugin::withTool(const AIToolMessage& message, Handler handler) {
    if (message.tool == nullptr || message.tool != toolHandle) return kNoErr;
    return withSession(handler);
}

AIErr FacettaPlugin::EditTool(AIToolMessage& message) {
    return withTool(message, [](ToolSession& s) { editOptions(s); });
}

AIErr FacettaPlugin::TrackToolCursor(AIToolMessage& message) {
    return withTool(message, [&](ToolSession& s) { trackCursor(s, message); });
}

AIErr FacettaPlugin::ToolMouseDown(AIToolMessage& message) {
    return withTool(message, [&](ToolSession& s) { mouseDown(s, message); });
}

AIErr FacettaPlugin::ToolMouseDrag(AIToolMessage& message) {
    return withTool(message, [&](ToolSession& s) { mouseDrag(s, message); });
}

AIErr FacettaPlugin::ToolMouseUp(AIToolMessage& message) {
    return withTool(message, [&](ToolSession& s) { mouseUp(s, message); });
}

AIErr FacettaPlugin::SelectTool(AIToolMessage& message) {
    return withTool(message, [&](ToolSession& s) { facetta::selectTool(s, message); });
}

AIErr FacettaPlugin::DeselectTool(AIToolMessage& message) {
    return withTool(message, [](ToolSession& s) { facetta::deselectTool(s); });
}

AIErr FacettaPlugin::DecreaseDiameter(AIToolMessage& message) {
    return withTool(message, [](ToolSession& s) { changeAxisCount(s, -1); });
}

AIErr FacettaPlugin::IncreaseDiameter(AIToolMessage& message) {
    return withTool(message, [](ToolSession& s) { changeAxisCount(s, 1); });
}

AIErr FacettaPlugin::AnnotatorDraw(AIAnnotatorMessage& message) {
    if (message.annotator != annotator) return kNoErr;
    const Interface brightness = toolkit().theme().dark ? Interface::Dark : Interface::Light;
    return withSession(
        [&](ToolSession& s) { drawAnnotations(s, message, brightness, platform::ticks()); });
}

AIErr FacettaPlugin::AnnotatorInvalidate(AIAnnotatorMessage& message) {
    if (message.annotator == annotator) redrawOverlay(view);
    return kNoErr;
}

AIErr FacettaPlugin::GoTimer(AITimerMessage& message) {
    if (hintTimer.isDue(message.timer, tool.hint, platform::ticks())) redrawHint(view, tool);
    licence->timerWentOff(message, [this] { licenceHasChanged(); });
    return kNoErr;
}

} // namespace facetta

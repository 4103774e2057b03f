#include "easel/runtime/Host.h"

#include "easel/core/Ledger.h"
#include "easel/core/SuiteServer.h"
#include "host/MessageNames.h"
#include "host/suites/SPBasicSuite.h"

#include <algorithm>
#include <cassert>
#include <cstring>
#include <utility>

namespace easel {
namespace {

Host* running = nullptr; // NOLINT(cppcoreguidelines-avoid-non-const-global*)

constexpr ai::int32 kMessageCheck = fourCharacterCode("SPCk");

std::string commandNotifier(const char* when, const char* command) {
    return std::string("AI Command Notifier: ") + when + ' ' + command;
}

} // namespace

Host& host() noexcept {
    assert(running != nullptr);
    return *running;
}

std::string codeText(AIErr code) {
    std::string text;
    for (int shift = 24; shift >= 0; shift -= 8) {
        const auto character = static_cast<unsigned char>(static_cast<ai::uint32>(code) >> shift);
        if (character < ' ' || character > '~') return std::to_string(code);
        text.push_back(static_cast<char>(character));
    }
    return '\'' + text + '\'';
}

Host::Host(SuiteServer& server, HostSettings hostSettings)
    : suites(server), settings(hostSettings) {
    assert(running == nullptr);
    running = this;
    session().changesNeedContext = true;
    startStamps();
    ledger().clear();
    suites.forgetAcquisitions();
}

Host::~Host() {
    setCurrentDocument(nullptr);
    documents_.clear();
    session().changesNeedContext = false;
    running = nullptr;
}

// Plug-ins

void Host::addPlugins(const std::filesystem::path& file) {
    for (PluginDescription& description : describePlugins(file)) {
        Plugin plugin;
        plugin.name = description.name;
        plugin.skipShutdown = (description.messageFlags & kSkipShutdownMessage) != 0;
        plugin.description = std::move(description);
        plugin.file = file;
        plugins.add(std::move(plugin));
    }
}

SPPluginRef Host::addPlugin(std::string name, SPPluginEntryFunc entry) {
    Plugin plugin;
    plugin.name = std::move(name);
    plugin.entry = entry;
    return plugins.add(std::move(plugin));
}

SPPluginRef Host::pluginNamed(std::string_view name) const {
    return plugins.findIf([&](const Plugin& plugin) { return plugin.name == name; });
}

void Host::load(SPPluginRef ref, ai::int32 when) {
    Plugin& plugin = plugins.at(ref);
    if (plugin.access != nullptr) return;
    if (!plugin.file.empty()) {
        plugin.library = std::make_unique<Library>(plugin.file);
        plugin.entry = plugin.library->entry(plugin.description.entry);
    }
    plugin.access = reinterpret_cast<SPAccessRef>(nextHandleValue());
    sendAccess(ref, kSelectorReload, when);
}

void Host::unload(SPPluginRef ref, ai::int32 when) {
    Plugin& plugin = plugins.at(ref);
    if (plugin.access == nullptr) return;
    sendAccess(ref, kSelectorUnload, when);
    plugin.access = nullptr;
    if (plugin.file.empty()) return;
    plugin.entry = nullptr;
    plugin.library.reset();
}

void Host::reload(SPPluginRef ref, bool evenIfHeld) {
    Plugin& plugin = plugins.at(ref);
    if (plugin.accessCount != 0 && !evenIfHeld) throw ai::Error{kSPCantReleasePluginError};
    std::unique_ptr<FormerPlace> place;
    if (plugin.library != nullptr) place = std::make_unique<FormerPlace>(*plugin.library);
    unload(ref, kAccessAtRunTime);
    if (place != nullptr) {
        place->keep();
        plugin.formerPlaces.push_back(std::move(place));
    }
    load(ref, kAccessAtRunTime);
}

void Host::sendAccess(SPPluginRef plugin, const char* selector, ai::int32 when) {
    SPAccessMessage message{};
    message.when = when;
    const bool outer = std::exchange(inAccessMessage_, true);
    send(plugin, kCallerAccess, selector, message);
    inAccessMessage_ = outer;
}

void Host::startUp(SPPluginRef ref) {
    Plugin& plugin = plugins.at(ref);
    SPInterfaceMessage message{};
    const SPErr result = send(ref, kCallerInterface, kSelectorStartup, message);
    plugin.started = result == kNoErr;
    plugin.broken = !plugin.started;
    if (plugin.broken) ledger().report(plugin.name + ": start-up failed with " + codeText(result));
}

void Host::start() {
    for (const SPPluginRef plugin : plugins.handles()) {
        load(plugin, kAccessAtStartUp);
        startUp(plugin);
    }
    notify(kApplicationStartedNotifier);
    notify(kAllPluginsStartedNotifier);
    idle();
}

void Host::quit() {
    idle();
    notify("AI All Plug-ins Stopping Notifier");
    notify(kApplicationShutdownNotifier);
    for (const SPPluginRef ref : plugins.handles()) {
        Plugin& plugin = plugins.at(ref);
        SPInterfaceMessage message{};
        if (plugin.started && !plugin.skipShutdown)
            send(ref, kCallerInterface, kSelectorShutdown, message);
        plugin.started = false;
        unload(ref, plugin.accessCount == 0 ? kAccessAtUnload : kAccessAtTerminal);
        forgetRegistrations(ref);
    }
}

void Host::forgetRegistrations(SPPluginRef plugin) {
    const auto isOfPlugin = [plugin](const auto& each) { return each.plugin == plugin; };
    for (const auto& [handle, timer] : timers)
        if (isOfPlugin(*timer) && timer->active)
            ledger().report("timer \"" + timer->name + "\" still runs when its plug-in ends");
    if (tools.current != nullptr && isOfPlugin(tools.tools.at(tools.current)))
        tools.current = nullptr;
    for (std::string& left : panels.removeAllOf(plugin))
        ledger().report(std::move(left));
    notifiers.removeIf(isOfPlugin);
    timers.removeIf(isOfPlugin);
    annotators.annotators.removeIf(isOfPlugin);
    menus.items.removeIf(isOfPlugin);
    tools.tools.removeIf(isOfPlugin);
}

// Messages

void Host::fillMessage(SPPluginRef ref, SPMessageData& message) const {
    message.SPCheck = kMessageCheck;
    message.self = ref;
    message.globals = plugins.at(ref).globals;
    message.basic = &suites.table<SPBasicSuite>(kSPBasicSuite, kSPBasicSuiteVersion).functions();
}

SPErr Host::sendData(SPPluginRef ref, const char* caller, const char* selector,
                     SPMessageData& message, std::string_view detail, AIUndoContextKind kind) {
    Plugin& plugin = plugins.at(ref);
    const bool isUnload = std::strcmp(selector, kSelectorUnload) == 0;
    if (plugin.entry == nullptr || (plugin.broken && !isUnload)) return kNoErr;

    SentMessage record{plugin.name, caller, selector, std::string(detail), kNoErr};
    fillMessage(ref, message);
    const SPPluginRef outer = std::exchange(currentPlugin_, ref);
    const AIAppContextHandle context =
        contexts.push(ref, kind, outer != nullptr ? Contexts::Nested::Yes : Contexts::Nested::No);
    const std::size_t depth = contexts.depth();
    const std::uint64_t mark = ledger().beginMessage();
    record.result = callEntry(plugin, caller, selector, message);
    const SPErr result = record.result;

    const std::string name = std::string(caller) + '/' + selector;
    ledger().endMessage(mark, name);
    if (contexts.depth() != depth || contexts.top() != context) {
        ledger().report(name + ": contexts pushed and popped do not balance");
        while (contexts.depth() > depth)
            contexts.pop(contexts.top());
    }
    if (contexts.top() == context) contexts.pop(context);
    currentPlugin_ = outer;
    if (settings.recordMessages || result != kNoErr) sent.push_back(std::move(record));
    if (contexts.depth() == 0) {
        endMessageLoans();
        collectChanges();
    }
    return result;
}

SPErr Host::callEntry(Plugin& plugin, const char* caller, const char* selector,
                      SPMessageData& message) {
    plugin.lastAccessTicks = static_cast<ai::uint32>(clock.ticks());
    const SPErr result = plugin.entry(caller, selector, &message);
    plugin.globals = message.globals;
    return result;
}

void Host::notify(std::string_view type, void* data) {
    const std::string name(type);
    for (const AINotifierHandle handle : notifiers.handles()) {
        const Notifier* const notifier = notifiers.find(handle); // one may remove another
        if (notifier == nullptr || !notifier->active || notifier->type != name) continue;
        AINotifierMessage message{};
        message.notifier = handle;
        message.type = notifier->type.c_str();
        message.notifyData = data;
        send(notifier->plugin, kCallerNotifier, kSelectorNotify, message, name, kSilentUndoContext);
    }
}

void Host::idle() {
    if (inIdle_ || contexts.depth() != 0) return; // a message is being answered
    inIdle_ = true;
    collectChanges();
    runTimers();
    for (const std::string& type : std::exchange(late_, {}))
        notify(type);
    if (!switches().notificationsComeSoon) late_ = queue_.take();
    int round = 0;
    for (; round < kIdleRounds && !queue_.empty(); ++round)
        for (const std::string& type : queue_.take())
            notify(type);
    if (!queue_.empty()) {
        std::string endless = "notifications raise each other without end:";
        for (const std::string& type : queue_.take())
            endless += " \"" + type + '"';
        ledger().report(std::move(endless));
    }
    inIdle_ = false;
}

void Host::runTimers() {
    for (const AITimerHandle handle : timers.handles()) {
        Timer* const timer = timers.find(handle); // one may change another
        if (timer == nullptr || !timer->active || timer->next > clock.ticks()) continue;
        timer->next = clock.ticks() + std::max<ai::int32>(timer->period, 1);
        AITimerMessage message{};
        message.timer = handle;
        send(timer->plugin, kCallerTimer, kSelectorGo, message, timer->name);
    }
}

void Host::collectChanges() {
    struct Row {
        bool DocumentChanges::*what;
        std::string_view type;
    };
    static constexpr Row kRows[] = {
        {&DocumentChanges::rulerOrigin, "AI Document Ruler Origin Changed Notifier"},
        {&DocumentChanges::currentLayer, "AI Current Layer Notifier"},
        {&DocumentChanges::layerSet, "AI Layer Set Notifier"},
        {&DocumentChanges::layerDeleted, "AI Layer Deletion Notifier"},
        {&DocumentChanges::layerOptions, "AI Layer Options Notifier"},
        // The real host cannot tell a new selection from edited art.
        {&DocumentChanges::selection, kArtSelectionChangedNotifier},
        {&DocumentChanges::art, kArtSelectionChangedNotifier},
        {&DocumentChanges::selection, kArtPropertiesChangedNotifier},
        {&DocumentChanges::art, kArtPropertiesChangedNotifier},
        {&DocumentChanges::art, "AI Document Changed Notifier"},
    };
    for (const auto& document : documents_) {
        const DocumentChanges changes = document->takeChanges();
        if (changes.any()) redrawLater();
        for (const Row& row : kRows)
            if (changes.*row.what) queue(row.type);
    }
}

std::vector<std::string> Host::complaints() const {
    std::vector<std::string> lines = ledger().problems();
    for (const OpenLoan& loan : ledger().outstanding())
        lines.push_back(describe(loan));
    for (const std::string& suite : suites.outstanding())
        lines.push_back("not released: " + suite);
    return lines;
}

// Documents

Document& Host::open(std::unique_ptr<Document> opened) {
    Document& document = *documents_.emplace_back(std::move(opened));
    const AIRealRect board = document.artboard();
    DocumentView window{};
    window.document = &document;
    window.centre = {(board.left + board.right) / 2, (board.top + board.bottom) / 2};
    views.add(window);
    static_cast<void>(document.takeChanges()); // what reading it did is no news
    queue("AI Document Opened Notifier");
    activate(document);
    return document;
}

void Host::activate(Document& document) {
    if (session().current == &document) return;
    contexts.switchTo(&document);
    redrawLater();
    queue("AI Document View Style Active View Changed Notifier");
    queue("AI Document Changed Notifier");
    idle();
}

void Host::close(Document& document) {
    notify("AI Document About To Close Notifier");
    const auto isIt = [&](const auto& each) { return each.get() == &document; };
    if (session().current == &document) {
        const auto other = std::find_if_not(documents_.begin(), documents_.end(), isIt);
        contexts.switchTo(other == documents_.end() ? nullptr : other->get());
    }
    views.removeIf([&](const DocumentView& each) { return each.document == &document; });
    std::erase_if(documents_, isIt);
    queue("AI Document Closed Notifier");
    idle();
}

void Host::beforeSaving() {
    ai::int32 version = 16; // of the format being written: this generation's
    notify("AI Document Write Preprocess Notifier", &version);
}

void Host::afterSaving() {
    currentDocument().setModified(false);
    queue("AI Document Saved Notifier");
    idle();
}

bool Host::undo() {
    notify(commandNotifier("Before", "Undo"));
    const bool done = currentDocument().undo().undo();
    queue(commandNotifier("After", "Undo"));
    idle();
    return done;
}

bool Host::redo() {
    notify(commandNotifier("Before", "Redo"));
    const bool done = currentDocument().undo().redo();
    queue(commandNotifier("After", "Redo"));
    idle();
    return done;
}

std::string Host::undoText() const {
    const std::string text = currentDocument().undo().undoText();
    return text.empty() ? "Undo" : text;
}

void Host::edit(const std::string& undoText, const std::function<void(Document&)>& change,
                AIUndoContextKind kind) {
    Document& document = currentDocument();
    const AIAppContextHandle context = contexts.push(nullptr, kind);
    document.undo().setTexts("Undo " + undoText, "Redo " + undoText);
    change(document);
    contexts.pop(context);
    idle();
}

AIDocumentViewHandle Host::currentView() const {
    return views.findIf(
        [](const DocumentView& each) { return each.document == session().current; });
}

DocumentView& Host::view(AIDocumentViewHandle handle) const {
    if (handle != nullptr) return views.at(handle);
    static_cast<void>(currentDocument());
    return views.at(currentView());
}

// Menus

AIMenuMessage Host::menuMessage(AIMenuItemHandle item) const {
    AIMenuMessage message{};
    message.menuItem = item;
    return message;
}

void Host::openMenus() {
    for (const AIMenuItemHandle handle : menus.items.handles()) {
        const MenuItem* const item = menus.items.find(handle);
        if (item == nullptr || (item->options & kItemWantsUpdate) == 0) continue;
        AIMenuMessage message = menuMessage(handle);
        updatingMenus_ = true;
        send(item->plugin, kCallerMenu, kSelectorUpdate, message, item->key.value_or(""));
        updatingMenus_ = false;
    }
    idle();
}

void Host::chooseMenuItem(AIMenuItemHandle handle) {
    const MenuItem& item = menus.items.at(handle);
    if (!item.enabled) return;
    AIMenuMessage message = menuMessage(handle);
    send(item.plugin, kCallerMenu, kSelectorGo, message, item.key.value_or(""));
    idle();
}

} // namespace easel

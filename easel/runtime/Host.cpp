#include "easel/runtime/Host.h"

#include "easel/core/Ledger.h"
#include "easel/core/SuiteServer.h"
#include "host/MessageNames.h"

#include <cassert>
#include <cmath>
#include <numbers>
#include <utility>

namespace easel {
namespace {

Host* running = nullptr; // NOLINT(cppcoreguidelines-avoid-non-const-global*)

} // namespace

Host& host() noexcept {
    assert(running != nullptr);
    return *running;
}

Host::Host(SuiteServer& server, HostSettings hostSettings)
    : suites(server), settings(hostSettings), sender(server, plugins, contexts,
                                                     [this] {
                                                         endMessageLoans();
                                                         collectChanges();
                                                     }),
      notifiers(sender), panels([this] { idle(); }), tools(sender, notifiers, views, clock),
      sent(sender.sent), documents_(contexts, notifiers, views) {
    assert(running == nullptr);
    running = this;
    session().changesNeedContext = true;
    startStamps();
    sender.recordsAll = settings.recordMessages;
    ledger().clear();
    suites.forgetAcquisitions();
}

Host::~Host() {
    session().changesNeedContext = false;
    running = nullptr;
}

void Host::start() {
    for (const SPPluginRef plugin : plugins.handles())
        plugins.start(sender, plugin);
    notify(kApplicationStartedNotifier);
    notify(kAllPluginsStartedNotifier);
    idle();
}

void Host::quit() {
    idle();
    notify("AI All Plug-ins Stopping Notifier");
    notify(kApplicationShutdownNotifier);
    for (const SPPluginRef plugin : plugins.handles()) {
        plugins.stop(sender, plugin);
        forgetRegistrations(plugin);
    }
}

void Host::forgetRegistrations(SPPluginRef plugin) {
    const auto isOfPlugin = [plugin](const auto& each) { return each.plugin == plugin; };
    for (const auto& [handle, timer] : timers)
        if (isOfPlugin(*timer) && timer->active)
            ledger().report("timer \"" + timer->name + "\" still runs when its plug-in ends");
    for (std::string& left : panels.removeAllOf(plugin))
        ledger().report(std::move(left));
    notifiers.removeIf(isOfPlugin);
    timers.removeIf(isOfPlugin);
    annotators.annotators.removeIf(isOfPlugin);
    menus.items.removeIf(isOfPlugin);
    tools.removeAllOf(plugin);
}

void Host::idle() {
    if (inIdle_ || contexts.depth() != 0) return; // a message is being answered
    inIdle_ = true;
    collectChanges();
    timers.run(sender, clock);
    notifiers.sendQueued();
    inIdle_ = false;
}

void Host::collectChanges() {
    if (documents_.collectChanges()) redrawLater();
}

std::vector<std::string> Host::complaints() const {
    std::vector<std::string> lines = ledger().problems();
    for (const OpenLoan& loan : ledger().outstanding())
        lines.push_back(describe(loan));
    for (const std::string& suite : suites.outstanding())
        lines.push_back("not released: " + suite);
    return lines;
}

Document& Host::open(std::unique_ptr<Document> opened) {
    Document& document = documents_.open(std::move(opened));
    activate(document);
    return document;
}

void Host::activate(Document& document) {
    if (!documents_.activate(document)) return;
    redrawLater();
    idle();
}

void Host::close(Document& document) {
    documents_.close(document);
    idle();
}

std::string Host::undoText() const {
    const std::string text = currentDocument().undo().undoText();
    return text.empty() ? "Undo" : text;
}

void Host::chooseFlyoutItem(AIPanelRef panel, ai::uint32 id) {
    panels.openFlyout(panel);
    panels.chooseFromFlyout(panel, id);
    idle();
}

void Host::zoom(AIReal factor) {
    setZoom(view(nullptr), factor);
    noteViewMoved();
}

void Host::centreOn(AIRealPoint centre) {
    view(nullptr).centre = centre;
    noteViewMoved();
}

void Host::resizeView(ai::int32 width, ai::int32 height) {
    DocumentView& window = view(nullptr);
    window.width = width;
    window.height = height;
    noteViewMoved();
}

void Host::noteViewMoved() {
    redrawLater();
    notifiers.queue("AI Document View Changed Notifier");
    idle();
}

void Host::setDarkTheme(bool dark) {
    if (std::exchange(user.darkTheme, dark) == dark) return;
    redrawLater();
    notifiers.queue(kUIBrightnessChangedNotifier);
    idle();
}

void Host::setConstrainAngle(double degrees) {
    const double angle = degrees * std::numbers::pi / 180.0;
    preferences.put("", "constrain/angle", degrees);
    preferences.put("", "constrain/cos", std::cos(angle));
    preferences.put("", "constrain/sin", std::sin(angle));
    notifiers.queue(kPreferenceChangedNotifier);
    idle();
}

DisplayList Host::drawAnnotations(AIDocumentViewHandle handle) {
    static_cast<void>(view(handle)); // refuses a dead one
    stale_ = false;
    return annotators.draw(sender, handle == nullptr ? currentView() : handle);
}

} // namespace easel

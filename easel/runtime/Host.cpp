#include "easel/runtime/Host.h"

#include "host/MessageNames.h"

#include <cassert>
#include <cmath>
#include <numbers>
#include <utility>

namespace easel {
Host::Host(Session& itsSession, HostSettings hostSettings)
    : session(itsSession), settings(hostSettings), contexts(session),
      sender(session, plugins, contexts,
             [this] {
                 session.messageLoans.clear();
                 collectChanges();
             }),
      notifiers(sender), views(session), panels([this] { idle(); }),
      tools(session, sender, notifiers, views, clock), sent(sender.sent),
      documents_(session, contexts, notifiers, views) {
    assert(session.host == nullptr);
    session.host = this;
    session.changesNeedContext = true;
    session.startStamps();
    session.ledger.clear();
    session.suites.forgetAcquisitions();
    sender.recordsAll = settings.recordMessages;
}

Host::~Host() {
    // A gesture that was never ended: its record closes while its document still exists.
    while (contexts.depth() > 0)
        contexts.pop(contexts.top());
    session.changesNeedContext = false;
    session.host = nullptr;
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
            session.ledger.report("timer \"" + timer->name + "\" still runs when its plug-in ends");
    for (std::string& left : panels.removeAllOf(plugin))
        session.ledger.report(std::move(left));
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
    const DocumentChanges changes = documents_.collectChanges();
    if (!changes.any()) return;
    stale_ = true;
    if (changes.art || changes.selection || changes.layerSet || changes.layerOptions ||
        changes.rulerOrigin)
        ++pageVersion_;
}

std::vector<std::string> Host::complaints() const {
    std::vector<std::string> lines = session.ledger.problems();
    for (const OpenLoan& loan : session.ledger.outstanding())
        lines.push_back(describe(loan));
    for (const std::string& suite : session.suites.outstanding())
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
    tools.documentCloses(document);
    documents_.close(document);
    idle();
}

std::string Host::undoText() const {
    const std::string text = session.document().undo().undoText();
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

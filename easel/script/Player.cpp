#include "easel/script/Player.h"

#include "easel/paint/PaintAnnotations.h"
#include "easel/script/Dialogs.h"
#include "easel/script/System.h"
#include "easel/svg/Content.h"

#include <algorithm>

namespace easel::script {
namespace {

ai::uint16 modifiersOf(const HeldKeys& keys) {
    struct Row {
        std::size_t key;
        AIEventModifiers modifier;
    };
    static constexpr Row kRows[] = {{kShiftKey, aiEventModifiers_shiftKey},
                                    {kControlKey, aiEventModifiers_cmdKey},
                                    {kAltKey, aiEventModifiers_optionKey},
                                    {kSpaceKey, aiEventModifiers_spaceKey}};
    unsigned modifiers = 0;
    for (const Row& row : kRows)
        if (keys[row.key]) modifiers |= row.modifier;
    return static_cast<ai::uint16>(modifiers);
}

} // namespace

Player::Player(Session& session, PlayerSettings settings)
    : all_(session), settings_(std::move(settings)),
      session_(std::make_unique<DrawingSession>(session)) {
    session.switches = settings_.host;
}

void Player::start() {
    addPluginLibrary(session_->host, settings_.plugin);
    session_->host.annotators.textWidth = paint::annotationWidth; // as it will be painted
    session_->start();
    if (!settings_.live) takeOverClocks();
    started_ = true;
}

void Player::takeOverClocks() {
    for (const auto& [handle, plugin] : session_->host.plugins)
        if (plugin->library) takeOverClock(plugin->library->native());
}

DrawingSession& Player::session() {
    if (!started_) start();
    return *session_;
}

Host& Player::host() { return session().host; }

Document& Player::document() {
    static_cast<void>(host());
    if (all_.current == nullptr)
        throw SessionError("no drawing is open; \"open\" or \"new\" makes one");
    return *all_.current;
}

DocumentView& Player::view() {
    static_cast<void>(document());
    return host().view(nullptr);
}

void Player::edit(const std::string& undoText, const std::function<void(Document&)>& change,
                  AIUndoContextKind kind) {
    static_cast<void>(document());
    host().edit(undoText, change, kind);
}

void Player::reload() {
    for (const SPPluginRef plugin : host().plugins.handles())
        host().reload(plugin, /*evenIfHeld*/ true);
    if (!settings_.live) takeOverClocks();
}

void Player::restart() {
    std::vector<std::u32string> workspace; // of the panels that were shown
    for (const auto& [ref, panel] : session_->host.panels.all())
        if (panel->shown != 0) workspace.push_back(panel->id);
    const std::vector<std::string> complaints = finish();
    Preferences kept = preferences();
    session_.reset(); // before the next: one host exists at a time
    session_ = std::make_unique<DrawingSession>(all_);
    session_->host.preferences = std::move(kept);
    shown_.clear();
    snapsBefore_ = messagesSeen_ = alertsSeen_ = 0;
    if (!complaints.empty()) throw SessionError(complaints.front());
    start();
    for (const std::u32string& id : workspace)
        if (const AIPanelRef panel = session_->host.panels.named(id))
            session_->host.showPanel(panel, true);
}

std::vector<std::string> Player::finish() {
    if (!std::exchange(started_, false)) return {};
    if (!settings_.live) holdKeys({});
    std::vector<std::string> complaints = session_->finish();
    while (const auto alert = takeAlert())
        complaints.push_back("an alert that nobody expected: \"" + *alert + '"');
    return complaints;
}

void Player::beginCommand(const HeldKeys& keys) {
    keys_ = keys;
    if (!settings_.live) holdKeys(keys);
    snapsBefore_ = session_->host.cursorSnap.calls.size();
}

void Player::redraw() {
    if (all_.current == nullptr)
        shown_.clear();
    else if (session_->host.needsRedraw())
        shown_ = session_->host.drawAnnotations(nullptr);
}

void Player::endCommand() {
    if (!started_) return;
    if (!settings_.live) redraw();
    const std::vector<SentMessage>& sent = session_->host.sent;
    const std::size_t seen = std::exchange(messagesSeen_, sent.size());
    const auto wrong = std::find_if(sent.begin() + static_cast<std::ptrdiff_t>(seen), sent.end(),
                                    [](const SentMessage& each) { return each.result != kNoErr; });
    if (wrong != sent.end())
        throw SessionError(wrong->plugin + " answered " + codeText(wrong->result) + " to " +
                           wrong->caller + '/' + wrong->selector);
}

// The mouse

void Player::send(MouseEvent event, Place place) {
    mouse_ = place;
    (host().*event)({.at = soft(place), .modifiers = modifiersOf(keys_)});
}

void Player::moveTo(Place place) { send(&Host::track, place); }

void Player::pressAt(Place place) {
    if (Dialog* const panel = panelDialog(host())) panel->leave(); // the keyboard follows the mouse
    send(&Host::press, place);
}

void Player::dragTo(Place place, int steps) {
    const svg::Point from = pixels(mouse_);
    const svg::Point to = pixels(place);
    for (int step = 1; step < steps; ++step) {
        const svg::Point at = from + (static_cast<double>(step) / steps) * (to - from);
        send(&Host::drag, {at.x, at.y, true});
    }
    send(&Host::drag, place);
}

void Player::releaseAt(std::optional<Place> place) { send(&Host::release, place.value_or(mouse_)); }

// Places

AIRealPoint Player::soft(Place place) {
    if (!place.pixels)
        return svg::toSoft(svg::Point{place.x, place.y}, svg::rulerOffset(document()));
    return toArtwork(view(), {static_cast<AIReal>(place.x), static_cast<AIReal>(place.y)});
}

svg::Point Player::pixels(Place place) {
    if (place.pixels) return {place.x, place.y};
    const AIRealPoint at = toView(view(), soft(place));
    return {static_cast<double>(at.h), static_cast<double>(at.v)};
}

svg::Point Player::userUnits(svg::Point pixels) {
    const AIRealPoint at = soft({pixels.x, pixels.y, true});
    const svg::Point offset = svg::rulerOffset(document());
    return {static_cast<double>(at.h) + offset.x, offset.y - static_cast<double>(at.v)};
}

// The window

paint::Picture Player::picture(double scale) {
    return paint::paintView(view(), shown_, {.scale = scale, .darkTheme = host().user.darkTheme});
}

std::vector<std::string> Player::snapControls() {
    const std::vector<SnapCall>& calls = host().cursorSnap.calls;
    std::vector<std::string> controls;
    for (std::size_t i = snapsBefore_; i < calls.size(); ++i)
        controls.push_back(calls[i].control);
    return controls;
}

std::optional<std::string> Player::takeAlert() {
    const std::vector<Alert>& alerts = session_->host.user.alerts;
    if (alertsSeen_ == alerts.size()) return std::nullopt;
    return alerts[alertsSeen_++].text;
}

std::filesystem::path Player::input(const std::string& name) const {
    return settings_.folder / std::filesystem::path(std::u8string(name.begin(), name.end()));
}

std::filesystem::path Player::output(const std::string& name) const {
    auto file = settings_.output / std::filesystem::path(std::u8string(name.begin(), name.end()));
    std::filesystem::create_directories(file.parent_path());
    return file;
}

std::filesystem::path Player::keepPicture(int line) {
    if (!started_ || all_.current == nullptr) return {};
    const std::filesystem::path file = output(settings_.name + '-' + std::to_string(line) + ".png");
    paint::writePng(picture(1.0), file);
    return file;
}

} // namespace easel::script

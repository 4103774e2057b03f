#pragma once

#include "easel/paint/PaintView.h"
#include "easel/script/Arguments.h"
#include "easel/session/DrawingSession.h"
#include "easel/svg/Transform.h"

#include <map>

namespace easel::script {

/// What an expectation found.
struct Finding {
    bool met = false;
    std::string wanted;
    std::string found;
};

struct PlayerSettings {
    std::filesystem::path plugin; ///< The library.
    std::filesystem::path folder; ///< Drawings and pictures that the script names lie here.
    std::filesystem::path output; ///< Where what it writes goes.
    std::string name = "script";  ///< Of the pictures that failures keep.
    Switches host = {};           ///< What kind of host the script begins with.
    /// A real user sits there: keys and time are the system's own, and who shows the window asks
    /// for what is drawn over it when there is time to paint.
    bool live = false;
};

/// The user whom a script describes: hands on mouse and keys, eyes on the window. One plays one
/// script, from the start of the plug-in to its end.
///
/// The window is painted anew after a command if anything has asked for that; what the plug-in
/// forgets to ask for stays as it was, as it would on screen.
class Player {
public:
    Player(Session& session, PlayerSettings settings);

    /// For settings that are made before the plug-in starts.
    [[nodiscard]] Preferences& preferences() noexcept { return session_->host.preferences; }
    /// What kind of host it is; that can change at any time.
    [[nodiscard]] Switches& switches() noexcept { return all_.switches; }
    /// The host as it is, started or not.
    [[nodiscard]] Host& bareHost() noexcept { return session_->host; }
    /// The host with its plug-in started.
    [[nodiscard]] Host& host();
    [[nodiscard]] DrawingSession& session();
    /// Throws SessionError when none is open.
    [[nodiscard]] Document& document();
    [[nodiscard]] DocumentView& view();
    /// A change of the user's in the drawing in front.
    void edit(const std::string& undoText, const std::function<void(Document&)>& change,
              AIUndoContextKind kind = kStandardUndoContext);

    /// Around every command: from now on these keys are down.
    void beginCommand(const HeldKeys& keys);
    /// Repaints the window where that is due. Throws SessionError when the plug-in has answered a
    /// message with an error.
    void endCommand();
    [[nodiscard]] bool isHeld(std::size_t key) const { return keys_[key]; }
    /// Quits the plug-in and starts it again; settings stay, and the workspace shows the panels
    /// that were shown.
    void restart();
    /// Unloads the plug-in's library, held or not, and loads it again at another address.
    void reload();
    /// Quits. Returns what was wrong in the session, a line each.
    [[nodiscard]] std::vector<std::string> finish();

    // The mouse
    /// With the button up.
    void moveTo(Place place);
    void pressAt(Place place);
    void dragTo(Place place, int steps);
    void releaseAt(std::optional<Place> place);
    [[nodiscard]] Place mouse() const noexcept { return mouse_; }

    // Places
    [[nodiscard]] AIRealPoint soft(Place place);
    /// Exact, in pixels of the view.
    [[nodiscard]] svg::Point pixels(Place place);
    /// In user units.
    [[nodiscard]] svg::Point userUnits(svg::Point pixels);

    /// Has annotators draw again, if anything has asked for that.
    void redraw();
    /// What annotators have painted over the art.
    [[nodiscard]] const DisplayList& shown() const noexcept { return shown_; }
    [[nodiscard]] paint::Picture picture(double scale);
    /// Control strings of the cursor snapping that the last command led to.
    [[nodiscard]] std::vector<std::string> snapControls();
    /// The oldest alert that nobody has looked at yet; nothing when there is none.
    [[nodiscard]] std::optional<std::string> takeAlert();

    [[nodiscard]] std::filesystem::path input(const std::string& name) const;
    [[nodiscard]] std::filesystem::path output(const std::string& name) const;
    /// Keeps what the window shows, for a person to look at. Returns where; empty without a window.
    [[nodiscard]] std::filesystem::path keepPicture(int line);

    std::map<std::string, std::string> remembered; ///< Whole documents as text, by name.

private:
    using MouseEvent = void (Host::*)(const MousePoint&);
    void send(MouseEvent event, Place place);
    void start();
    void takeOverClocks();

    Session& all_;
    PlayerSettings settings_;
    std::unique_ptr<DrawingSession> session_;
    bool started_ = false;
    HeldKeys keys_;
    Place mouse_;
    DisplayList shown_;
    std::size_t snapsBefore_ = 0; ///< Calls before the command.
    std::size_t messagesSeen_ = 0;
    std::size_t alertsSeen_ = 0;
};

} // namespace easel::script

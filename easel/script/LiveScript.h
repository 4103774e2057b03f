#pragma once

#include "easel/script/Player.h"

#include <list>

namespace easel::script {

/// A script that comes about while it is played: a user sits in front of a window, and each thing
/// they do is a line, carried out at once and kept. Played again from the start the lines lead to
/// the same drawing.
///
/// What follows one upon another and matters only as the last of its kind is kept as one line:
/// moves of the mouse between gestures, sizes of the window, time that passes.
class LiveScript {
public:
    explicit LiveScript(Player& player) : player_(player) {}

    /// Carries `line` out. Throws as an `Action` does, and Mistake when it is no line of a script.
    void act(const std::string& line) { act(line, line); }
    /// The same, kept in other words: a file has another place when the script is played.
    void act(const std::string& line, std::string kept);
    /// Keeps a line that was carried out by other hands.
    void note(std::string line);
    /// Keeps what was shown and how the user answered; nothing when there was nothing to choose.
    void noteAlert(const std::string& text, std::optional<AIAnswer> answer);

    /// A line is being carried out: a modal dialog waits for its user.
    [[nodiscard]] bool isBusy() const noexcept { return !underWay_.empty(); }
    [[nodiscard]] std::string text() const;
    /// Grows with every line.
    [[nodiscard]] std::size_t version() const noexcept { return version_; }

private:
    using Lines = std::list<std::string>;

    void mergeWithLast(std::string& line);

    Player& player_;
    Lines lines_;
    std::vector<Lines::iterator> underWay_;
    Lines afterwards_; ///< Follow the line under way.
    std::size_t version_ = 0;
};

/// Between double quotes, as a script holds any text.
[[nodiscard]] std::string quoted(const std::string& text);

} // namespace easel::script

#pragma once

#include "easel/script/Script.h"
#include "easel/validate/Acts.h"
#include "easel/validate/Trials.h"

#include <filesystem>
#include <functional>
#include <optional>
#include <string>

namespace easel::validate {

/// A user's sitting with the plug-in, from its start to its end, done by the lines of a script.
class Sitting {
public:
    Sitting(Session& session, const std::filesystem::path& plugin);

    /// All lines, in order. Throws SessionError, which names the line, at the first that cannot be
    /// done or finds something else than it expects.
    void perform(std::string_view lines);
    /// The same while the host fails: a line that cannot be done is passed over.
    void attempt(std::string_view lines);
    /// Was a dialog open at the end of the lines done last? It is closed by now.
    [[nodiscard]] bool endedInDialog() const noexcept { return endedInDialog_; }
    /// The act's settings and the drawing, then what leads to the act; throws as `perform`.
    void prepare(const Act& act, const std::string& drawing);
    void open(const std::string& drawing);

    /// All open drawings as text, but for stamps: taking a change back makes a later one.
    [[nodiscard]] std::string documents() const;
    /// The same without what is selected; of all of them, or of one.
    [[nodiscard]] std::string art() const;
    [[nodiscard]] static std::string artOf(const Document& document);
    /// One step back, if there is one.
    void undo();
    /// What the plug-in has answered and shown in what was done since the last call: codes of
    /// messages that failed and texts of alerts.
    struct Reactions {
        std::vector<SPErr> codes;
        std::vector<std::string> alerts;
    };
    [[nodiscard]] Reactions takeReactions();
    /// Ends it; what was wrong with the session as a whole.
    [[nodiscard]] std::vector<std::string> finish();

    [[nodiscard]] script::Player& player() noexcept { return player_; }

private:
    void play(std::string_view lines, bool passOver);

    Session& session_;
    script::Player player_;
    std::size_t sentSeen_ = 0;
    bool endedInDialog_ = false;
};

/// Where two drawings differ first, a line of each.
[[nodiscard]] std::string difference(const std::string& wanted, const std::string& found);

/// Ends a sitting that should have gone well: reports messages answered with errors, alerts, and
/// what was wrong with the session as a whole.
void finish(Trials& trials, Sitting& sitting);

/// The whole of a sitting that should go well: what `acts` throws is reported, then it is ended.
void toTheEnd(Trials& trials, Sitting& sitting, const std::function<void()>& acts);

} // namespace easel::validate

#include "easel/validate/Sitting.h"

#include "easel/document/Dump.h"
#include "easel/script/Dialogs.h"
#include "easel/svg/SvgFile.h"

#include <sstream>

namespace easel::validate {
namespace {

void take(script::Player& player, const script::Step& step) {
    if (!step.check) {
        player.beginCommand(step.keys);
        step.action(player);
        player.endCommand();
        return;
    }
    const script::Finding finding = step.check(player);
    if (!finding.met) throw SessionError("wanted " + finding.wanted + "; found " + finding.found);
}

/// Counts the lines that have not come back.
class Under {
public:
    explicit Under(int& count) : count_(count) { ++count_; }
    ~Under() { --count_; }
    Under(const Under&) = delete;
    Under& operator=(const Under&) = delete;

private:
    int& count_;
};

std::string lineOf(std::string_view lines, int number) {
    std::istringstream all{std::string(lines)};
    std::string line;
    for (int i = 0; i < number; ++i)
        std::getline(all, line);
    return line;
}

std::string withoutStamps(const std::string& text) {
    std::istringstream lines(text);
    std::string kept;
    for (std::string line; std::getline(lines, line);)
        if (line.find("entry \"ts\"") == std::string::npos) kept += line + '\n';
    return kept;
}

/// The current layer is a kind of selection as well, which no step of undo changes by itself. Of a
/// segment a number follows that says which of its points are selected.
std::string withoutSelection(std::string text) {
    constexpr std::string_view kCurrent = " current \"";
    for (std::size_t at = 0; (at = text.find(kCurrent, at)) != std::string::npos;)
        text.erase(at, text.find('\n', at) - at);
    constexpr std::string_view kDigits = " 0123456789";
    for (const std::string_view word : {" selected", " fully-selected"})
        for (std::size_t at = 0; (at = text.find(word, at)) != std::string::npos;) {
            const std::size_t end = at + word.size();
            const std::size_t next = std::min(text.find_first_not_of(kDigits, end), text.size());
            const bool isNumber = next > end + 1 && text[next] == '\n';
            text.erase(at, (isNumber ? next : end) - at);
        }
    return text;
}

} // namespace

Sitting::Sitting(Session& session, const std::filesystem::path& plugin)
    : session_(session), player_(session, {.plugin = plugin, .folder = {}, .output = {}}) {}

void Sitting::play(std::string_view lines, bool passOver) {
    const script::Script script = script::readScript(lines, "");
    if (!script.mistakes.empty()) throw SessionError(script.mistakes.front());
    std::size_t next = 0;
    int underWay = 0;
    std::optional<std::string> wrong;
    endedInDialog_ = false;
    // A line may open a dialog: those that follow are then done before it has come back.
    serveUser([&] {
        if (wrong || next == script.steps.size()) {
            endedInDialog_ = endedInDialog_ || modalDialog() != nullptr;
            return false;
        }
        const script::Step& step = script.steps[next++];
        std::string what;
        const Under under(underWay);
        try {
            if (underWay > 1 && step.underDialog == script::UnderDialog::Refused)
                throw SessionError("a dialog keeps the user from this");
            take(player_, step);
            return true;
        } catch (const ai::Error& error) {
            what = "the host answered " + codeText(error.code);
        } catch (const SessionError& error) {
            what = error.what();
        }
        if (!passOver && !wrong) wrong = '"' + lineOf(lines, step.line) + "\": " + what;
        return passOver;
    });
    if (wrong) throw SessionError(*wrong);
}

void Sitting::perform(std::string_view lines) { play(lines, /*passOver*/ false); }

void Sitting::attempt(std::string_view lines) { play(lines, /*passOver*/ true); }

void Sitting::open(const std::string& drawing) {
    player_.host().open(std::move(svg::readSvgText(session_, drawing, "drawing").document));
}

void Sitting::prepare(const Act& act, const std::string& drawing) {
    perform(commonSettings());
    perform(act.settings);
    open(drawing);
    for (auto stage = Stage::Opened; stage <= act.stage;
         stage = static_cast<Stage>(static_cast<unsigned char>(stage) + 1))
        perform(linesTo(stage));
    perform(act.before);
}

std::string Sitting::documents() const {
    std::string text;
    for (const std::unique_ptr<Document>& document : session_.host->documents())
        text += withoutStamps(dump(*document));
    return text;
}

std::string Sitting::art() const { return withoutSelection(documents()); }

std::string Sitting::artOf(const Document& document) {
    return withoutSelection(withoutStamps(dump(document)));
}

void Sitting::undo() {
    if (session_.current != nullptr) player_.host().undo();
}

Sitting::Reactions Sitting::takeReactions() {
    Reactions reactions;
    const std::vector<SentMessage>& sent = session_.host->sent;
    for (; sentSeen_ < sent.size(); ++sentSeen_)
        reactions.codes.push_back(sent[sentSeen_].result);
    while (std::optional<std::string> alert = player_.takeAlert())
        reactions.alerts.push_back(std::move(*alert));
    return reactions;
}

std::vector<std::string> Sitting::finish() { return player_.finish(); }

std::string difference(const std::string& wanted, const std::string& found) {
    std::istringstream wantedLines(wanted);
    std::istringstream foundLines(found);
    std::string one;
    std::string other;
    for (int line = 1;; ++line) {
        const bool more = static_cast<bool>(std::getline(wantedLines, one));
        const bool moreFound = static_cast<bool>(std::getline(foundLines, other));
        if (!more && !moreFound) return "none";
        if (more && moreFound && one == other) continue;
        return "line " + std::to_string(line) + " should be \"" + (more ? one : "") +
               "\" and is \"" + (moreFound ? other : "") + '"';
    }
}

void finish(Trials& trials, Sitting& sitting) {
    const Sitting::Reactions reactions = sitting.takeReactions();
    for (const SPErr code : reactions.codes)
        trials.fail("a message was answered with " + codeText(code));
    for (const std::string& alert : reactions.alerts)
        trials.fail("an alert: \"" + alert + '"');
    for (const std::string& complaint : sitting.finish())
        trials.fail(complaint);
}

void toTheEnd(Trials& trials, Sitting& sitting, const std::function<void()>& acts) {
    try {
        acts();
    } catch (const SessionError& error) {
        trials.fail(error.what());
    }
    finish(trials, sitting);
}

} // namespace easel::validate

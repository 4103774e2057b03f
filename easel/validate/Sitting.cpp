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

std::string lineOf(std::string_view lines, int number) {
    std::istringstream all{std::string(lines)};
    std::string line;
    for (int i = 0; i < number; ++i)
        std::getline(all, line);
    return line;
}

} // namespace

Sitting::Sitting(Session& session, const std::filesystem::path& plugin)
    : session_(session), player_(session, {.plugin = plugin, .folder = {}, .output = {}}) {}

void Sitting::play(std::string_view lines, bool passOver) {
    const script::Script script = script::readScript(lines, "");
    if (!script.mistakes.empty()) throw SessionError(script.mistakes.front());
    std::size_t next = 0;
    std::optional<std::string> wrong;
    // A line may open a dialog: those that follow are then done before it has come back.
    serveUser([&] {
        if (wrong || next == script.steps.size()) return false;
        const script::Step& step = script.steps[next++];
        std::string what;
        try {
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
        text += dump(*document);
    std::istringstream lines(text);
    std::string kept;
    for (std::string line; std::getline(lines, line);)
        if (line.find("entry \"ts\"") == std::string::npos) kept += line + '\n';
    return kept;
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

} // namespace easel::validate

#include "easel/script/LiveScript.h"

#include "easel/script/Script.h"

#include <iterator>

namespace easel::script {
namespace {

constexpr std::string_view kWait = "wait ";
constexpr std::string_view kMove = "move ";
constexpr std::string_view kWindow = "window ";
constexpr int kLongestWait = 60'000;

bool isA(std::string_view command, const std::string& line) { return line.starts_with(command); }

std::string keysOf(const std::string& line) {
    const std::size_t keys = line.find(" with ");
    return keys == std::string::npos ? "" : line.substr(keys);
}

} // namespace

std::string quoted(const std::string& text) {
    std::string written = "\"";
    for (const char each : text) {
        if (each == '"' || each == '\\') written += '\\';
        written += each;
    }
    return written + '"';
}

void LiveScript::act(const std::string& line, std::string kept) {
    const std::optional<Step> step = readLine(line);
    if (!step || !step->action) return;
    note(std::move(kept));
    underWay_.push_back(std::prev(lines_.end()));
    const auto end = [&] {
        underWay_.pop_back();
        if (underWay_.empty()) lines_.splice(lines_.end(), afterwards_);
    };
    try {
        player_.beginCommand(step->keys);
        step->action(player_);
    } catch (...) { // it could not be done, and could not be done again
        lines_.erase(underWay_.back());
        end();
        throw;
    }
    end();
    player_.endCommand();
}

void LiveScript::note(std::string line) {
    ++version_;
    if (!isBusy()) mergeWithLast(line);
    lines_.push_back(std::move(line));
}

void LiveScript::mergeWithLast(std::string& line) {
    if (lines_.empty()) return;
    std::string& last = lines_.back();
    if (isA(kWait, line) && isA(kWait, last)) {
        const int sum = std::stoi(last.substr(kWait.size())) + std::stoi(line.substr(kWait.size()));
        if (sum > kLongestWait) return;
        line = std::string(kWait) + std::to_string(sum);
        lines_.pop_back();
    } else if (isA(kWindow, line) && isA(kWindow, last)) {
        lines_.pop_back();
    } else if (isA(kMove, line)) {
        const auto before = isA(kWait, last) && lines_.size() > 1 ? std::prev(lines_.end(), 2)
                                                                  : std::prev(lines_.end());
        if (isA(kMove, *before) && keysOf(*before) == keysOf(line)) lines_.erase(before);
    }
}

void LiveScript::noteAlert(const std::string& text, std::optional<AIAnswer> answer) {
    constexpr const char* kAnswers[] = {"no", "yes", "cancel"}; // as the host numbers them
    ++version_;
    if (answer)
        lines_.insert(isBusy() ? underWay_.front() : lines_.end(),
                      std::string("answer ") + kAnswers[static_cast<std::size_t>(*answer)]);
    afterwards_.push_back("expect alert " + quoted(text));
    if (!isBusy()) lines_.splice(lines_.end(), afterwards_);
}

std::string LiveScript::text() const {
    std::string text;
    for (const std::string& line : lines_)
        text += line + '\n';
    return text;
}

} // namespace easel::script

#include "easel/validate/Validate.h"

#include "easel/script/System.h"
#include "easel/validate/Child.h"

#include <algorithm>
#include <atomic>
#include <charconv>
#include <chrono>
#include <functional>
#include <future>
#include <span>
#include <stdexcept>
#include <thread>
#include <utility>

namespace easel::validate {
namespace {

using Clock = std::chrono::steady_clock;

/// A try that has told nothing for so long hangs.
constexpr std::chrono::seconds kPatience{60};
/// A check in which more children have ended badly is given up.
constexpr int kMostCrashes = 10;
/// The most tries of a child where there are windows; 0: all. Wine does not get over a library
/// that is loaded a thousand times in one process.
std::uint64_t triesOfChild() { return onWindows() ? 400 : 0; }
/// How many checks run at once. Under Wine two programs with windows can wait for each other for
/// ever.
unsigned checksAtOnce() {
    return onWindows() ? 1 : std::max(1U, std::thread::hardware_concurrency());
}
/// More lines of what a process says are not kept.
constexpr std::size_t kMostSaid = 20;

const Check& checkNamed(const std::string& name) {
    std::string known;
    for (const Check& check : checks()) {
        if (check.name == name) return check;
        known += std::string(known.empty() ? "" : ", ") + check.name;
    }
    throw std::invalid_argument("there is no check \"" + name + "\"; there are " + known);
}

std::uint64_t numberIn(std::string_view text) {
    std::uint64_t number = 0;
    std::from_chars(text.data(), text.data() + text.size(), number);
    return number;
}

/// What belongs to the word that `line` begins with; nothing when it begins with another.
std::optional<std::string_view> after(std::string_view word, std::string_view line) {
    if (!line.starts_with(word) || line.size() == word.size() || line[word.size()] != '\t')
        return std::nullopt;
    return line.substr(word.size() + 1);
}

/// One check in as many children as it takes.
class Watch {
public:
    Watch(const Options& options, const Check& check) : options_(options) {
        result_.check = &check;
    }

    Result run() {
        const auto began = Clock::now();
        for (int crashes = 0; !isDone();) {
            if (runChild()) continue;
            if (++crashes == kMostCrashes) {
                note("given up: too many children have ended like this");
                break;
            }
        }
        result_.seconds = std::chrono::duration<double>(Clock::now() - began).count();
        return std::move(result_);
    }

private:
    [[nodiscard]] std::vector<std::string> arguments(std::uint64_t from,
                                                     std::uint64_t count) const {
        std::vector<std::string> words{"validate",
                                       "--plugin",
                                       options_.plugin.string(),
                                       "--strictness",
                                       std::to_string(options_.strictness),
                                       "--seed",
                                       std::to_string(options_.seed),
                                       "--only",
                                       result_.check->name,
                                       "--from",
                                       std::to_string(from)};
        if (count != 0) {
            words.emplace_back("--count");
            words.push_back(std::to_string(count));
        }
        return words;
    }

    [[nodiscard]] bool isDone() const {
        return ended_ || (options_.count != 0 && result_.tries >= options_.count);
    }

    /// What is left to try, or as much of it as a child is given.
    [[nodiscard]] std::uint64_t share() const {
        const std::uint64_t left = options_.count == 0 ? 0 : options_.count - result_.tries;
        const std::uint64_t most = triesOfChild();
        return most != 0 && (left == 0 || left > most) ? most : left;
    }

    /// The tries that follow. False when it has ended otherwise than it should.
    bool runChild() {
        const std::uint64_t share = this->share();
        const std::uint64_t before = result_.tries;
        std::vector<std::string> words =
            arguments(result_.tries == 0 ? options_.from : number_ + 1, share);
        words.emplace_back("--here");
        Child child(words);
        bool toTheEnd = false;
        std::string line;
        for (;;) {
            const Child::State state = child.read(line, kPatience);
            if (state == Child::State::Silent) {
                child.kill();
                note("nothing has happened for " + std::to_string(kPatience.count()) + " s");
                return false;
            }
            if (state == Child::State::Ended) break;
            toTheEnd = take(line) || toTheEnd;
        }
        std::string how = child.end();
        if (how.empty() && !toTheEnd) how = "ended in the middle of it";
        if (how.empty()) {
            ended_ = share == 0 || result_.tries - before < share;
            return true;
        }
        note("the process " + how);
        result_.faults.back().more = std::move(explanation_);
        result_.faults.back().more.insert(result_.faults.back().more.end(), said_.begin(),
                                          said_.end());
        return false;
    }

    /// True at the last line of a check.
    bool take(const std::string& line) {
        if (const auto begun = after(Trials::kTry, line)) {
            said_.clear();
            explanation_.clear();
            ++result_.tries;
            number_ = numberIn(*begun);
            tried_ = begun->substr(std::min(begun->find('\t') + 1, begun->size()));
        } else if (const auto found = after(Trials::kFinding, line)) {
            note(std::string(*found));
            result_.faults.back().more = std::exchange(explanation_, {});
        } else if (const auto how = after(Trials::kExplanation, line)) {
            explanation_.emplace_back(*how);
        } else if (after(Trials::kEnd, line)) {
            return true;
        } else if (said_.size() < kMostSaid) {
            said_.push_back(line);
        }
        return false;
    }

    void note(const std::string& found) {
        std::string command = "easel";
        for (const std::string& word : arguments(number_, 1))
            command += ' ' + word;
        result_.faults.push_back({number_, tried_, found, {}, std::move(command)});
    }

    Options options_;
    Result result_;
    bool ended_ = false;
    std::uint64_t number_ = 0; ///< Of the try under way, and what it is.
    std::string tried_;
    std::vector<std::string> explanation_;
    std::vector<std::string> said_; ///< In it: a plug-in's last words, or a sanitizer's.
};

} // namespace

void runChecks(const Options& options, const std::function<void(const Result&)>& done) {
    if (!options.only.empty()) return done(Watch(options, checkNamed(options.only)).run());
    const std::span<const Check> all = checks();
    std::vector<std::promise<Result>> results(all.size());
    std::atomic<std::size_t> next = 0;
    const auto watchOneAfterTheOther = [&] {
        for (std::size_t i = next++; i < all.size(); i = next++)
            try {
                results[i].set_value(Watch(options, all[i]).run());
            } catch (...) {
                results[i].set_exception(std::current_exception());
            }
    };
    std::vector<std::jthread> watchers;
    for (unsigned i = 0; i < checksAtOnce(); ++i)
        watchers.emplace_back(watchOneAfterTheOther);
    for (std::promise<Result>& result : results)
        done(result.get_future().get());
}

void runInThisProcess(Session& session, const Options& options, std::ostream& out) {
    crashQuietly();
    Trials trials(options, out);
    checkNamed(options.only).run(session, trials);
    trials.end();
}

} // namespace easel::validate

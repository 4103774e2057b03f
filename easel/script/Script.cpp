#include "easel/script/Script.h"

#include "easel/script/Deeds.h"
#include "easel/script/Dialogs.h"

namespace easel::script {
namespace {

/// `fits` says which rows can stand here.
template <typename Row, typename Fits>
const Row& rowNamed(std::span<const Row> rows, const std::string& name, const char* what,
                    Fits fits) {
    std::string known;
    for (const Row& row : rows) {
        if (!fits(row)) continue;
        if (row.name == name) return row;
        known += (known.empty() ? "" : ", ") + std::string(row.name);
    }
    throw Mistake('"' + name + "\" is no " + what + "; there are " + known);
}

constexpr auto kEvery = [](const auto&) { return true; };

/// Reads what follows the name, and says how it is written if it is written otherwise.
template <typename Row>
auto readRow(const Row& row, const std::string& before, Arguments& arguments, Step& step) {
    try {
        auto read = row.read(arguments);
        step.keys = arguments.keys();
        return read;
    } catch (const Mistake& mistake) {
        throw Mistake(std::string(mistake.what()) + "; it is written: " + before + row.name + ' ' +
                      row.arguments);
    }
}

/// What is done in the panel, or in a dialog.
void readDeed(const std::string& place, Where where, Arguments& arguments, Step& step) {
    const auto fits = [=](const DeedRow& row) { return !row.only || *row.only == where; };
    const std::string what = "deed of a " + place;
    const DeedRow& row = rowNamed(deeds(), arguments.text("deed"), what.c_str(), fits);
    step.action = [deed = readRow(row, place + ' ', arguments, step), where](Player& player) {
        deed(player, where);
    };
    if (where == Where::Panel) step.underDialog = UnderDialog::Refused;
}

Step readStep(std::vector<Word> words, int line) {
    Step step;
    step.line = line;
    Arguments arguments{std::move(words)};
    const std::string name = arguments.text("command");
    if (name == "expect") {
        const auto& row =
            rowNamed(expectations(), arguments.text("thing to expect"), "thing to expect", kEvery);
        step.check = readRow(row, "expect ", arguments, step);
    } else if (name == "panel") {
        readDeed(name, Where::Panel, arguments, step);
    } else if (name == "dialog") {
        readDeed(name, Where::Dialog, arguments, step);
    } else {
        const CommandRow& row = rowNamed(commands(), name, "command", kEvery);
        step.action = readRow(row, "", arguments, step);
        step.underDialog = row.underDialog;
    }
    return step;
}

std::string placeOf(const std::string& name, int line) {
    return name + ':' + std::to_string(line) + ": ";
}

/// Plays step by step and keeps what went wrong. A step may open a modal dialog: then those that
/// follow are done before it has come back, until the dialog is closed.
class Run {
public:
    Run(const Script& script, const std::string& name, Player& player)
        : script_(script), name_(name), player_(player) {}

    /// Does the next step. False when the script cannot go on, or has ended.
    bool next() {
        if (next_ == script_.steps.size()) end();
        if (over_) return false;
        const Step& step = script_.steps[next_++];
        underWay_.push_back(step.line);
        over_ = !take(step) || over_; // what a dialog under way has ended stays so
        underWay_.pop_back();
        return !over_;
    }

    void finish() {
        for (const std::string& complaint : player_.finish())
            outcome.failures.push_back(placeOf(name_, lastLine()) + "at the end: " + complaint);
    }

    Outcome outcome;

private:
    [[nodiscard]] int lastLine() const { return next_ == 0 ? 0 : script_.steps[next_ - 1].line; }
    /// The dialog in front, which the step in line `opener` has opened.
    [[nodiscard]] static std::string openDialog(int opener) {
        const Dialog* const dialog = modalDialog();
        return "the dialog \"" + (dialog != nullptr ? dialog->title() : "") + "\", which line " +
               std::to_string(opener) + " opened,";
    }

    void end() {
        if (!over_ && !underWay_.empty())
            fail(lastLine(),
                 "the script ends, and " + openDialog(underWay_.back()) + " is still open");
        over_ = true;
    }

    bool take(const Step& step) {
        try {
            if (step.check)
                check(step);
            else
                act(step);
            return true;
        } catch (const ai::Error& error) {
            fail(step.line, "the host answered " + codeText(error.code));
        } catch (const std::exception& error) {
            fail(step.line, error.what());
        }
        return false;
    }

    void act(const Step& step) {
        if (underWay_.size() > 1 && step.underDialog == UnderDialog::Refused)
            throw SessionError(openDialog(underWay_.end()[-2]) + " keeps the user from this");
        player_.beginCommand(step.keys);
        step.action(player_);
        player_.endCommand();
    }

    void check(const Step& step) {
        ++outcome.expectations;
        const Finding finding = step.check(player_);
        if (!finding.met) fail(step.line, "wanted " + finding.wanted + "; found " + finding.found);
    }

    void fail(int line, const std::string& what) {
        const std::filesystem::path picture = player_.keepPicture(line);
        outcome.failures.push_back(placeOf(name_, line) + what +
                                   (picture.empty() ? "" : " (see " + picture.string() + ')'));
    }

    const Script& script_;
    const std::string& name_;
    Player& player_;
    std::size_t next_ = 0;
    std::vector<int> underWay_; ///< lines of the steps that have not come back
    bool over_ = false;
};

} // namespace

std::optional<Step> readLine(std::string_view text, int line) {
    std::vector<Word> words = wordsOf(text);
    if (words.empty()) return std::nullopt;
    return readStep(std::move(words), line);
}

Script readScript(std::string_view text, const std::string& name) {
    Script script;
    int line = 0;
    for (const std::string_view each : linesOf(text)) {
        ++line;
        try {
            if (std::optional<Step> step = readLine(each, line))
                script.steps.push_back(std::move(*step));
        } catch (const Mistake& mistake) {
            script.mistakes.push_back(placeOf(name, line) + mistake.what());
        }
    }
    return script;
}

Outcome play(Session& session, const Script& script, const std::string& name,
             PlayerSettings settings) {
    Player player{session, std::move(settings)};
    Run run{script, name, player};
    serveUser([&run] { return run.next(); });
    run.finish();
    return std::move(run.outcome);
}

} // namespace easel::script

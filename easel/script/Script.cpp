#include "easel/script/Script.h"

#include "easel/svg/SvgFile.h"

#include <algorithm>

namespace easel::script {
namespace {

template <typename Row> std::string namesOf(std::span<const Row> rows) {
    std::string names;
    for (const Row& row : rows)
        names += (names.empty() ? "" : ", ") + std::string(row.name);
    return names;
}

template <typename Row>
const Row& rowNamed(std::span<const Row> rows, const std::string& name, const char* what) {
    const auto found =
        std::find_if(rows.begin(), rows.end(), [&](const Row& row) { return row.name == name; });
    if (found == rows.end())
        throw Mistake('"' + name + "\" is no " + what + "; there are " + namesOf(rows));
    return *found;
}

/// Reads what follows the name, and says how it is written if it is written otherwise.
template <typename Row>
void readRow(const Row& row, const std::string& before, Arguments& arguments, Step& step,
             auto Step::*into) {
    try {
        step.*into = row.read(arguments);
        step.keys = arguments.keys();
    } catch (const Mistake& mistake) {
        throw Mistake(std::string(mistake.what()) + "; it is written: " + before + row.name + ' ' +
                      row.arguments);
    }
}

Step readStep(std::vector<Word> words, int line) {
    Step step;
    step.line = line;
    Arguments arguments{std::move(words)};
    const std::string name = arguments.text("command");
    if (name == "expect") {
        const std::string what = arguments.text("thing to expect");
        readRow(rowNamed(expectations(), what, "thing to expect"), "expect ", arguments, step,
                &Step::check);
    } else {
        readRow(rowNamed(commands(), name, "command"), "", arguments, step, &Step::action);
    }
    return step;
}

std::string placeOf(const std::string& name, int line) {
    return name + ':' + std::to_string(line) + ": ";
}

/// Plays step by step and keeps what went wrong.
class Run {
public:
    Run(const std::string& name, Player& player) : name_(name), player_(player) {}

    /// False when the script cannot go on.
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

    void finish(int line) {
        for (const std::string& complaint : player_.finish())
            outcome.failures.push_back(placeOf(name_, line) + "at the end: " + complaint);
    }

    Outcome outcome;

private:
    void act(const Step& step) {
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

    const std::string& name_;
    Player& player_;
};

} // namespace

Script readScript(std::string_view text, const std::string& name) {
    Script script;
    int line = 0;
    for (const std::string_view each : linesOf(text)) {
        ++line;
        try {
            std::vector<Word> words = wordsOf(each);
            if (!words.empty()) script.steps.push_back(readStep(std::move(words), line));
        } catch (const Mistake& mistake) {
            script.mistakes.push_back(placeOf(name, line) + mistake.what());
        }
    }
    return script;
}

Outcome play(const Script& script, const std::string& name, PlayerSettings settings) {
    Player player{std::move(settings)};
    Run run{name, player};
    int line = 0;
    for (const Step& step : script.steps) {
        line = step.line;
        if (!run.take(step)) break;
    }
    run.finish(line);
    return std::move(run.outcome);
}

} // namespace easel::script

#pragma once

#include "easel/script/Commands.h"

namespace easel::script {

/// A line of a script, understood.
struct Step {
    int line = 0;
    HeldKeys keys;
    Action action; ///< Null for an expectation.
    UnderDialog underDialog = UnderDialog::Done;
    Check check;
};

/// One line alone; nothing when it holds no words. Throws Mistake.
[[nodiscard]] std::optional<Step> readLine(std::string_view text, int line = 1);

struct Script {
    std::vector<Step> steps;
    /// What could not be understood, a line each: "NAME:LINE: what is wrong; what would be right".
    std::vector<std::string> mistakes;
};

/// Reads all of `text`, so that every mistake is told at once. `name` is what messages call it.
[[nodiscard]] Script readScript(std::string_view text, const std::string& name);

struct Outcome {
    int expectations = 0;
    std::vector<std::string> failures; ///< A line each, beginning with "NAME:LINE: ".
};

/// Plays a script without mistakes. An expectation that is not met keeps the picture and lets the
/// script go on; a command that cannot be done ends it. What is wrong with the session as a whole,
/// such as references that were not released, is a failure of the last line.
[[nodiscard]] Outcome play(Session& session, const Script& script, const std::string& name,
                           PlayerSettings settings);

} // namespace easel::script

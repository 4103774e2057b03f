/// Any bytes as a script: every line is understood or has a mistake that says where it is, and what
/// is understood is played to its end, whatever it leads to, with nothing left lent.

#include "easel/script/Script.h"
#include "easel/suites/Suites.h"
#include "easel/validate/Drawings.h"
#include "easel/validate/Sitting.h"
#include "fuzz/Plugin.h"
#include "fuzz/Require.h"

#include <algorithm>
#include <cstdint>

namespace {

using namespace easel;
using facetta::fuzz::require;

/// More would be slow, and no other story.
constexpr int kMostLines = 24;

/// What reads and writes files named in the script, and what unloads the library that is held.
constexpr const char* kLeftOut[] = {"open", "reopen", "save", "picture", "reload"};

/// The lines that are understood, but for those.
std::string playable(std::string_view text) {
    std::string lines;
    int left = kMostLines;
    for (const std::string_view line : script::linesOf(text)) {
        try {
            if (!script::readLine(line)) continue;
            const std::vector<script::Word> words = script::wordsOf(line);
            if (std::ranges::count(kLeftOut, words[0].text) != 0) continue;
            if (words[0].text == "expect" && words[1].text == "picture") continue;
            if (left-- == 0) break;
            lines += std::string(line) + '\n';
        } catch (const script::Mistake& mistake) {
            require(*mistake.what() != '\0', "a mistake says what it is");
        }
    }
    return lines;
}

void checkReading(std::string_view text) {
    const script::Script read = script::readScript(text, "fuzz");
    for (const std::string& mistake : read.mistakes)
        require(mistake.starts_with("fuzz:"), "a mistake says where it is", mistake);
    require(std::ranges::is_sorted(read.steps, {}, &script::Step::line), "steps in order");
}

} // namespace

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size) {
    const std::string_view text(reinterpret_cast<const char*>(data), size);
    checkReading(text);
    const std::string lines = playable(text);
    if (lines.empty()) return 0;
    validate::Sitting sitting(sessionWithSuites(), facetta::fuzz::pluginLibrary());
    sitting.open(validate::drawings()[1].text());
    sitting.attempt(lines);
    static_cast<void>(sitting.takeReactions());
    for (const std::string& complaint : sitting.finish())
        require(false, "all is well at the end", complaint);
    return 0;
}

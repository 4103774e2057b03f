#include "easel/script/ScriptText.h"

namespace easel::script {
namespace {

constexpr std::string_view kBlanks = " \t";

/// Takes the quoted word that `rest` begins with.
Word quotedWord(std::string_view& rest) {
    Word word{{}, true};
    for (std::size_t i = 1; i < rest.size(); ++i) {
        if (rest[i] == '"') {
            rest.remove_prefix(i + 1);
            if (!rest.empty() && kBlanks.find(rest.front()) == std::string_view::npos)
                throw Mistake("a word goes on after its closing quote; put a blank between them");
            return word;
        }
        if (rest[i] == '\\' && i + 1 < rest.size()) ++i;
        word.text += rest[i];
    }
    throw Mistake("a quoted word does not end; close it with \"");
}

} // namespace

std::vector<Word> wordsOf(std::string_view line) {
    std::vector<Word> words;
    while (true) {
        const std::size_t start = line.find_first_not_of(kBlanks);
        if (start == std::string_view::npos || line[start] == '#') return words;
        line.remove_prefix(start);
        if (line.front() == '"') {
            words.push_back(quotedWord(line));
            continue;
        }
        const std::size_t end = std::min(line.find_first_of(kBlanks), line.size());
        words.push_back({std::string(line.substr(0, end)), false});
        line.remove_prefix(end);
    }
}

std::vector<std::string_view> linesOf(std::string_view text) {
    std::vector<std::string_view> lines;
    while (!text.empty()) {
        const std::size_t end = std::min(text.find('\n'), text.size());
        std::string_view line = text.substr(0, end);
        if (line.ends_with('\r')) line.remove_suffix(1);
        lines.push_back(line);
        text.remove_prefix(std::min(end + 1, text.size()));
    }
    return lines;
}

} // namespace easel::script

#include "easel/script/Script.h"

#include <doctest/doctest.h>

#include <fstream>
#include <set>
#include <sstream>

using namespace easel::script;

TEST_CASE("a line is words; quotes keep blanks together and a comment ends it") {
    struct Row {
        std::string line;
        std::vector<std::string> words;
    };
    const Row rows[] = {
        {"", {}},
        {"  # only a comment", {}},
        {"press 10,20 with shift", {"press", "10,20", "with", "shift"}},
        {"tool \"Facetta Tool\"\t# in hand", {"tool", "Facetta Tool"}},
        {R"(text "say \"no\" \\ \# " "")", {"text", "say \"no\" \\ # ", ""}},
        {"a#b #c", {"a#b"}},
    };
    for (const auto& row : rows) {
        INFO(row.line);
        std::vector<std::string> found;
        for (const Word& word : wordsOf(row.line))
            found.push_back(word.text);
        CHECK(found == row.words);
    }
}

TEST_CASE("every mistake of a script is told, with its line and what would be right") {
    struct Row {
        std::string line;
        std::string complaint; ///< A part of it.
    };
    const Row rows[] = {
        {"dance 1,2", "\"dance\" is no command; there are open, reopen, new,"},
        {"press", "there is no place; it is written: press X,Y"},
        {"press 1;2", "\"1;2\" is no place; one is written X,Y"},
        {"press 1,2 3,4", "\"3,4\" does not belong here"},
        {"press 1,2 with thumb", "there is no key \"thumb\""},
        {"drag 1,2 in 0", "0 is no number of steps; it goes from 1 to 100000"},
        {"zoom 0.001", "the zoom goes from 1/32 to 64"},
        {"theme pink", "\"pink\" is no theme; choose one of light, dark"},
        {"tool \"Facetta Tool", "a quoted word does not end"},
        {"tool \"Facetta\"Tool", "put a blank between them"},
        {"dialog flyout \"Copy Axes\"", "\"flyout\" is no deed of a dialog; there are click,"},
        {"panel click OK", "\"OK\" is no item; one goes by its number, or by its text between"},
        {"panel type 13", "there is no text; it is written: panel type ITEM TEXT [then KEY]"},
        {"panel type 13 30 then f7", "there is no key \"f7\"; keys are enter, tab,"},
        {"expect panel-item 5", "there is no state"},
        {"expect panel-item 5 green", "\"green\" is nothing to see of an item; choose of text,"},
        {"expect menu \"Facetta Panel\" absent enabled", "\"enabled\" does not belong here"},
        {"expect picture a.png within 1 or 2", "a second tolerance ends with \"on windows\""},
    };
    std::string text;
    for (const Row& row : rows)
        text += row.line + '\n';
    const Script script = readScript(text, "s.play");
    REQUIRE(script.mistakes.size() == std::size(rows));
    for (std::size_t i = 0; i < std::size(rows); ++i) {
        const std::string& mistake = script.mistakes[i];
        INFO(mistake);
        CHECK(mistake.starts_with("s.play:" + std::to_string(i + 1) + ": "));
        CHECK(mistake.find(rows[i].complaint) != std::string::npos);
    }
}

TEST_CASE("keys go with any command, by the system's codes") {
    const Script script = readScript("press 1,2 with shift ctrl alt space escape [ ] 7 u\n"
                                     "release with a\r\n"
                                     "select none with shift\n",
                                     "s");
    CHECK(script.mistakes.empty());
    REQUIRE(script.steps.size() == 3);
    const auto codes = [&](std::size_t step) {
        std::set<std::size_t> down;
        for (std::size_t key = 0; key < script.steps[step].keys.size(); ++key)
            if (script.steps[step].keys[key]) down.insert(key);
        return down;
    };
    CHECK(codes(0) == std::set<std::size_t>{0x10, 0x11, 0x12, 0x1B, 0x20, '7', 'U', 219, 221});
    CHECK(codes(1) == std::set<std::size_t>{'A'});
    CHECK(codes(2) == std::set<std::size_t>{0x10});
}

TEST_CASE("the manual tells every command and expectation as the program does, and no other") {
    std::ifstream manual("docs/easel.md");
    REQUIRE(manual);
    std::string documented;
    std::string line;
    while (std::getline(manual, line))
        if (line.starts_with("| `")) documented += line + '\n';
    std::string known = languageTables();
    for (std::size_t gap = 0; (gap = known.find("\n\n")) != std::string::npos;)
        known.erase(gap, 1); // between two tables
    CHECK(documented == known);
}

#include "easel/script/Script.h"
#include "easel/suites/Suites.h"

#include <doctest/doctest.h>

#include <filesystem>

using namespace easel::script;

namespace {

/// What goes wrong when the script is played, a line each.
std::string failuresOf(const std::string& text) {
    const Script script = readScript(text, "s");
    REQUIRE(script.mistakes.empty());
    PlayerSettings settings;
    settings.plugin = DIALOGS_PLUGIN;
    const Outcome outcome = play(easel::sessionWithSuites(), script, "s", settings);
    std::string failures;
    for (const std::string& failure : outcome.failures)
        failures += failure + '\n';
    return failures;
}

} // namespace

TEST_CASE("what cannot be done to a panel or dialog, or is not seen, is told with its line") {
    struct Row {
        std::string script;
        std::string failures;
    };
    const Row rows[] = {
        {"panel click 3", "s:1: the panel is hidden\n"},
        {"panel flyout \"Copy\"", "s:1: the panel is hidden\n"},
        {"dialog click 1", "s:1: no dialog is open\n"},
        {"expect dialog-item 1 on", "s:1: no dialog is open\n"},
        {"panel show\npanel click 99", "s:2: there is no item 99\n"},
        {"panel show\npanel click \"33\"", "s:2: there is no item \"33\"\n"},
        {"panel show\npanel click 40", "s:2: item 40 is disabled\n"},
        {"panel show\npanel click \"Hidden\"", "s:2: item \"Hidden\" cannot be seen\n"},
        {"panel show\npanel click 42", "s:2: item 42 cannot be seen\n"},
        {"panel show\npanel click 18", "s:2: item 18 is a slider; \"slide\" moves it\n"},
        {"panel show\npanel slide 15 3", "s:2: item 15 is no slider\n"},
        {"panel show\npanel spin 9 up", "s:2: item 9 has no arrows\n"},
        {"panel show\npanel type 50 x", "s:2: item 50 is no field, nor its label\n"},
        {"panel show\npanel choose 9 x", "s:2: item 9 has no entry \"x\" that can be chosen\n"},
        {"panel show\npanel choose 32 Pink",
         "s:2: item 32 has no entry \"Pink\" that can be chosen\n"},
        {"panel show\npanel choose 32 Green",
         "s:2: item 32 has no entry \"Green\" that can be chosen\n"},
        {"panel show\npanel key enter", "s:2: the keyboard is not in the panel\n"},
        {"panel show\npanel key a", "s:2: a letter is a key only with alt\n"},
        {"panel show\npanel flyout \"Cut\"", "s:2: the flyout menu has no entry \"Cut\"\n"},
        {"panel show\npanel flyout \"Paste\"", "s:2: the entry \"Paste\" is disabled\n"},
        {"menu \"Cut\"", "s:1: there is no menu item \"Cut\"\n"},
        // Where an expectation is not met the script goes on.
        {"expect panel-item 9 value 3 within 1\nexpect panel-item 8 value 1\nexpect panel full 9 9",
         "s:1: wanted value 3; found value 12.5\n"
         "s:2: wanted value 1; found no value\n"
         "s:3: wanted full 9 9; found hidden 200 250\n"},
        {"expect panel-item 3 text \"Act\" on tip \"x\"",
         "s:1: wanted text \"Act\" tip \"x\" on; found text \"Active\" tip \"\" off\n"},
        {"panel show\nexpect flyout \"Copy\" disabled checked\nexpect flyout \"Cut\" enabled",
         "s:2: wanted disabled checked; found enabled unchecked\n"
         "s:3: wanted it in the menu; found no entry \"Cut\"\n"},
        {"expect menu \"Ask...\" absent", "s:1: wanted no entry \"Ask...\"; found one\n"},
        // A modal dialog must be dealt with.
        {"menu \"Ask...\"\nexpect dialog \"Answer\"",
         "s:2: wanted \"Answer\"; found \"Question\"\n"
         "s:2: the script ends, and the dialog \"Question\", which line 1 opened, is still open\n"},
        {"menu \"Ask...\"\ndialog click \"More...\"",
         "s:2: the script ends, and the dialog \"More\", which line 2 opened, is still open\n"},
        {"panel show\n\nmenu \"Ask...\"\npanel click 3\ndialog close",
         "s:4: the dialog \"Question\", which line 3 opened, keeps the user from this\n"},
        {"menu \"Ask...\"\ndialog click \"Throw\"\npanel show",
         "s:1: Facetta answered 'CANT' to AI Menu/AI Go\n"},
    };
    for (const auto& row : rows) {
        INFO(row.script);
        CHECK(failuresOf(row.script) == row.failures);
    }
}

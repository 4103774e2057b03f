#include "tests/toolkit/layout/LayoutTest.h"
#include "toolkit/layout/Limits.h"

#include <doctest/doctest.h>

#include <clocale>

namespace NRDM::layout::tests {
namespace {

std::string repeated(std::string_view text, std::size_t times) {
    std::string result;
    for (std::size_t i = 0; i < times; ++i)
        result += text;
    return result;
}

/// The `value` of a dialog's only item, written as `expression` behind the constants `declared`.
std::string evaluated(std::string_view expression, std::string_view declared = "") {
    const Parsed parsed =
        parse("layout Test { constant: " + std::string(declared) +
              " view dialog() { slider(value: " + std::string(expression) + "); } }");
    if (!parsed.layout) return parsed.messages.front().text;
    return writtenNumber(*numberOf(parsed.layout->dialog.children.front(), Key::ItemValue));
}

struct TextRow {
    std::string text;
    std::string messages; ///< all of them
};

void check(std::span<const TextRow> rows) {
    for (const auto& row : rows) {
        INFO(row.text);
        CHECK(written(parse(row.text).messages) == row.messages);
    }
}

} // namespace

TEST_CASE("expressions") {
    struct Row {
        std::string expression;
        std::string value;
    };
    const Row rows[] = {
        {"7/2", "3.5"},
        {"2 + 3 * 4 - 1", "13"},
        {"(2 + 3) * 4", "20"},
        {"10 - 4 - 3", "3"},
        {"-+-~0", "4294967295"},
        {"7 % 2.9", "1"},
        {"-7 % 4", "-3"},
        {"1 + 2 << 3", "24"},
        {"6 & 3 | 8 ^ 1", "11"},
        {"-1 >> 28", "15"},
        {"010 + 0x1F + 5.", "46"},
        {"gLargeSpace * 2 - gSmallSpace", "16"},
        {"1 < 2 == 3 <= 3 ? 1 : 0", "1"},
        {"1 > 2 != 3 >= 4 ? 1 : 0", "0"},
        {"no ? 1 : yes ? 2 : 3", "2"},
        {"\"a\" == \"a\" && 1 != yes && empty == empty ? 1 : 0", "1"},
        {"\"a\" /* joined */ \"b\" // across comments\n 'c' == \"abc\" ? 1 : 0", "1"},
        {"[1, 2] == [1, 1 + 1] && !([] == [0]) ? 1 : 0", "1"},
        {"true || 1/0 > 0 ? 1 : 1/0", "1"},
        {"no && unknown ? [unknown] : 2", "2"},
        {"\"a\" + \"b\"", "a number is needed, not the text \"a\""},
        {"1 && yes", "yes or no is needed, not the number 1"},
        {"yes && 1 ? 1 : 0", "yes or no is needed, not the number 1"},
        {"!1", "yes or no is needed, not the number 1"},
        {"[\"a\"] == [1] ? 1 : 0", "a number is needed, not the text \"a\""},
        {"1/0", "division by zero"},
        {"1 % 0.5", "division by zero"},
        {"4294967296 | 0", "4294967296 does not fit in 32 bits"},
        {"1 << 32", "a shift is by 0 to 31 places"},
        {"no && 1 +", "expected a value, found ')'"},
        {"max(1, 2)", "\"max\" cannot be called: a layout has no functions"},
        {"@name", "expected a value, found '@'"},
        {"{a: 1}", "expected a value, found '{'"},
        {"[1][0]", "expected ',' or ')' after the value of \"value\", found '['"},
    };
    for (const auto& row : rows) {
        INFO(row.expression);
        CHECK(evaluated(row.expression) == row.value);
    }
}

TEST_CASE("numbers are read and written alike in every locale") {
    const char* other = std::setlocale(LC_ALL, "de_DE.UTF-8"); // where the machine has it
    CAPTURE((other ? other : "none but C"));
    CHECK(evaluated("1.5 + 0.25") == "1.75");
    std::setlocale(LC_ALL, "C");
}

TEST_CASE("constants of the text's own") {
    CHECK(evaluated("b", "a: 2; b: a * a + gSmallSpace;") == "8");
    CHECK(evaluated("a", "a: 2; constant: constant: b: a;") == "2");
    const TextRow rows[] = {
        {"layout T { constant: a: b; b: 1; view dialog(); }",
         "(1,25): error: unknown word \"b\"\n"},
        {"layout T { constant: a: a; view dialog(); }", "(1,25): error: unknown word \"a\"\n"},
        {"layout T { constant: a: 1; a: 2; view dialog(); }",
         "(1,28): error: \"a\" is declared twice\n"},
        {"layout T { constant: yes: 1; view dialog(); }",
         "(1,22): error: \"yes\" has its value already\n"},
        {"layout T { constant: a: 1/0; b: a + 1; view dialog(width: b, height: a, spacing: [a]); }",
         "(1,25): error: division by zero\n"},
        {"layout T { constant: a 1; b: 2; c: ; view dialog(width: b); }",
         "(1,24): error: expected ':' after the constant's name, found the number 1\n"
         "(1,36): error: expected a value, found ';'\n"},
    };
    check(rows);
}

TEST_CASE("what is wrong is said where it is") {
    const TextRow rows[] = {
        {"", "(1,1): error: expected \"layout\", found the end of the text\n"},
        {"layout view {", "(1,8): error: expected the layout's name, found \"view\"\n"},
        {"layout T { dialog(); }",
         "(1,12): error: expected \"constant\" or \"view\", found \"dialog\"\n"},
        {"layout T { interface: a: 1; view dialog(); }",
         "(1,12): error: a layout has no section \"interface\": its values are all constant\n"},
        {"layout T { view dialog(); view dialog(); }",
         "(1,27): error: expected '}' to close the layout, found \"view\"\n"},
        {"layout T { view row(); }", "(1,17): error: the view is a dialog, not \"row\"\n"},
        {"layout T { view dialog { } }",
         "(1,24): error: expected '(' after \"dialog\", found '{'\n"},
        {dialog("width: 3 height: 4", ""), "(1,36): error: expected ',' or ')' after the value of "
                                           "\"width\", found \"height\"\n"},
        {dialog("width: 3,", ""), "(1,36): error: expected the name of an attribute, found ')'\n"},
        {dialog("width: \"3\"", ""), "(1,34): error: \"width\" takes a number from 0 to 16383, "
                                     "not the text \"3\"\n"},
        {dialog("margin: 16384", ""),
         "(1,35): error: \"margin\" takes a number or a list of four numbers from -16384 to "
         "16383, not the number 16384\n"},
        {dialog("margin: [1, 2, 3]", ""),
         "(1,35): error: \"margin\" takes a number or a list of four numbers from -16384 to "
         "16383, not a list\n"},
        {dialog("placement: 4", ""),
         "(1,38): error: \"placement\" takes a number from 0 to 3, not the number 4\n"},
        {dialog("name: yes, visible: 2", ""),
         "(1,33): error: \"name\" takes a text, not yes\n"
         "(1,47): error: \"visible\" takes yes or no, not the number 2\n"},
        {dialog("", "\r\n\tbutton()\rbutton();"),
         "(3,1): error: expected '{' or ';' after the ')' of \"button\", found \"button\"\n"},
        {dialog("", "\n\n  row() { };"),
         "(3,12): error: expected the kind of an element, found ';'\n"},
        {dialog("", "row() { dialog(); }"),
         "(1,39): error: a dialog cannot stand inside another element\n"},
        {dialog("", "row() { button(horizontal: align_right); button(); }"),
         "(1,39): error: what is aligned to the far end of its container comes after all that is "
         "not\n"},
        {dialog("child_vertical: align_bottom", "row(); row(vertical: align_center);"),
         "(1,59): error: what is aligned to the far end of its container comes after all that is "
         "not\n"},
        {dialog("name: \"a", ""), "(1,33): error: the text is not closed on its line\n"},
        {dialog(std::string_view("name: 'a\0'", 10), ""),
         "(1,35): error: a text cannot hold a NUL byte\n"},
        {dialog("width: 1.2.3", ""), "(1,37): error: a number has one point at most\n"},
        {dialog("width: 12px", ""), "(1,36): error: letters directly after a number\n"},
        {dialog("width: 0x", ""), "(1,35): error: letters directly after a number\n"},
        {dialog("width: .5", ""), "(1,34): error: expected a value, found '.'\n"},
        {dialog("width: " + repeated("9", 400), ""), "(1,34): error: the number is out of range\n"},
        {dialog("width: #", ""),
         "(1,34): error: a byte that belongs to no word, number, text or mark\n"},
        {"layout /* T { view", "(1,8): error: the comment is not closed\n"},
        {"\xEF\xBB\xBFlayout \xEF\xBB\xBF",
         "(1,8): error: a byte that belongs to no word, number, text or mark\n"},
    };
    check(rows);
}

TEST_CASE("after an error reading goes on with the next element") {
    const TextRow rows[] = {
        {dialog("", "row() {\n"
                    "button(width 3);\n"
                    "button(3) { button(; } button(width: 4);\n"
                    "row() { button(width: #); }\n"
                    "button(height: -1);\n"
                    "}"),
         "(2,14): error: expected ':' after \"width\", found the number 3\n"
         "(3,8): error: expected the name of an attribute, found the number 3\n"
         "(4,23): error: a byte that belongs to no word, number, text or mark\n"
         "(5,16): error: \"height\" takes a number from 0 to 16383, not the number -1\n"},
        {dialog("width: no", "row() {\n"
                             "button(width }\n"
                             "button(3);"),
         "(1,34): error: \"width\" takes a number from 0 to 16383, not no\n"
         "(2,14): error: expected ':' after \"width\", found '}'\n"
         "(3,8): error: expected the name of an attribute, found the number 3\n"},
        {"layout T { view dialog() { row() { row() {",
         "(1,43): error: expected '}' to close the block, found the end of the text\n"},
    };
    check(rows);
    const Parsed many = parse(dialog("", repeated("button(3); ", 100)));
    CHECK(many.messages.size() == kMaxErrors);
    const Parsed manyValues = parse(dialog("", repeated("button(width: \"\"); ", 100)));
    CHECK(manyValues.messages.size() == kMaxErrors);
}

TEST_CASE("what is passed over is a warning, and the rest stands") {
    const TextRow rows[] = {
        {dialog("", "buton() { row(widht: 3); } button();"),
         "(1,31): warning: unknown kind \"buton\": left out with all that is in it\n"},
        {dialog("widht: 3", "button();"), "(1,27): warning: unknown attribute \"widht\"\n"},
        {dialog("width: 3, width: 5", "button();"),
         "(1,37): warning: \"width\" is given twice: this one counts\n"},
        {dialog("visible: 1", "button();"), "(1,36): warning: \"visible\" takes yes or no\n"},
        {dialog("child_vertical: align_default", "button();"),
         "(1,43): warning: children cannot be aligned by default to a default\n"},
        {dialog("", "button(item_id: 3); button(item_id: 3);"),
         "(1,67): warning: another item has the id 3\n"},
        {dialog("", "button() { row(); } button() { entry(); }"),
         "(1,42): warning: \"row\" in \"button\" is left out\n"
         "(1,62): warning: \"entry\" in \"button\" is left out\n"},
        {dialog("", "button(hsnap: [30, 20]);"),
         "(1,45): warning: guides are listed from the item's near edge on\n"},
        {dialog("", "button();") + " // end\n more", "(2,2): warning: text after the layout is "
                                                     "passed over\n"},
    };
    check(rows);
    for (const auto& row : rows) {
        INFO(row.text);
        const Parsed parsed = parse(row.text);
        REQUIRE(parsed.layout);
        CHECK(parsed.layout->dialog.children.front().kind == Kind::Button);
    }
    CHECK(integerOf(parse(rows[2].text).layout->dialog, Key::Width) == 5);
}

TEST_CASE("comments stand wherever white space may") {
    const Parsed parsed = parse("/**/layout/*a*//*b*/T//c\r{view dialog(/*{*/name/*\r\n*/:'a'//)\n"
                                ",width:3/*,*/)//;\n;}/**///");
    CHECK(written(parsed.messages) == "");
    REQUIRE(parsed.layout);
    CHECK(textOf(parsed.layout->dialog, Key::Name) == "a");
}

TEST_CASE("texts pass through as they are") {
    const char* expression = "\"it's \" '\"' \"so \\n \xC3\xBC\"";
    const Layout layout = load(dialog("name: " + std::string(expression), ""), "test");
    CHECK(textOf(layout.dialog, Key::Name) == "it's \"so \\n \xC3\xBC");
    CHECK(parse(print(layout)).layout == layout);
}

TEST_CASE("the limits hold exactly") {
    const auto blocks = [](int depth, const std::string& innermost = "") {
        const auto rows = static_cast<std::size_t>(depth) - 1;
        return dialog("", repeated("row() {", rows) + innermost + repeated("}", rows));
    };
    const auto clusters = [](std::size_t count) { // two elements each
        return dialog("", repeated("popup_cluster(popup_item_width: 9);", count));
    };
    const auto value = [](std::string_view open, std::string_view close, int depth) {
        const auto times = static_cast<std::size_t>(depth) - 1;
        return dialog("width: " + repeated(open, times) + "1" + repeated(close, times), "");
    };
    const auto sized = [](std::size_t bytes) {
        const std::string text = dialog("", "");
        return text + repeated(" ", bytes - text.size());
    };
    const auto name = [](std::size_t bytes) {
        return dialog("name: \"" + repeated("a", bytes - 1) + "\" 'b'", "");
    };
    const auto spacing = [](std::size_t numbers) {
        return dialog("spacing: [" + repeated("1, ", numbers - 1) + "1]", "");
    };
    const auto rows = [](std::size_t elements) {
        return dialog("", repeated("row();", elements - 1));
    };
    struct Limit {
        std::string within;
        std::string beyond;
        std::string message;
    };
    const Limit limits[] = {
        {blocks(kMaxDepth), blocks(kMaxDepth + 1), "nested more than 64 deep"},
        {value("(", ")", kMaxDepth), value("(", ")", kMaxDepth + 1), "nested more than 64 deep"},
        {value("yes ? ", " : 2", kMaxDepth), value("yes ? ", " : 2", kMaxDepth + 1),
         "nested more than 64 deep"},
        {sized(kMaxTextBytes), sized(kMaxTextBytes + 1), "the text is longer than 65536 bytes"},
        {name(kMaxStringBytes), name(kMaxStringBytes + 1), "a text has 1024 bytes at most"},
        {spacing(kMaxListNumbers), spacing(kMaxListNumbers + 1), "a list has 64 numbers at most"},
        {rows(kMaxElements), rows(kMaxElements + 1), "more than 1000 elements"},
        {clusters(kMaxElements / 2 - 1), clusters(kMaxElements / 2), "more than 1000 elements"},
        {blocks(kMaxDepth - 1, "popup_cluster() { row(); }"),
         blocks(kMaxDepth - 1, "popup_cluster() { entry(); }"), "nested more than 64 deep"},
    };
    for (const auto& limit : limits) {
        INFO(limit.message);
        CHECK(written(parse(limit.within).messages) == "");
        const Parsed parsed = parse(limit.beyond);
        REQUIRE(parsed.messages.size() == 1);
        CHECK(parsed.messages.front().text == limit.message);
    }
    CHECK(written(parse(dialog("width: " + repeated("+", 60'000) + "1", "")).messages) == "");
}

TEST_CASE("an error names the source, a layout that is wrong makes no dialog") {
    CHECK_THROWS_WITH_AS(static_cast<void>(load(dialog("widht: 1, width: x", ""), "16002")),
                         "16002(1,44): error: unknown word \"x\"", Error);
}

} // namespace NRDM::layout::tests

/// The manual and the program call things by the same names, and tell the same stories.

#include "tests/tool/Annotated.h"
#include "tests/tool/KeysHeld.h"
#include "tests/ui/DialogUser.h"
#include "tests/ui/PanelInHand.h"
#include <filesystem>
#include <fstream>
#include <regex>
#include <set>

using namespace facetta;
using namespace facetta::tests;

namespace {

namespace fs = std::filesystem;
using Labels = std::set<std::string>;

std::string contentOf(const fs::path& file) {
    std::ifstream stream(file, std::ios::binary);
    REQUIRE(stream);
    return {std::istreambuf_iterator<char>(stream), {}};
}

/// Texts that wrap in their source are one.
std::string unwrapped(const std::string& text) {
    return std::regex_replace(text, std::regex("\\s+"), " ");
}

std::string manual() {
    std::string text;
    for (const auto& entry : fs::directory_iterator("docs/manual"))
        if (entry.path().extension() == ".adoc") text += contentOf(entry.path()) + '\n';
    return text;
}

/// All that stands between double quotes.
Labels quotedIn(const std::string& text) {
    Labels labels;
    const std::regex quoted("\"([^\"]+)\"");
    for (std::sregex_iterator at(text.begin(), text.end(), quoted), end; at != end; ++at)
        labels.insert((*at)[1]);
    return labels;
}

/// All that stands between double quotes, but for attributes of the markup, which fill a line in
/// brackets.
Labels quotedInManual() {
    return quotedIn(
        unwrapped(std::regex_replace(manual(), std::regex("\n\\[[^\n]*\\]\n"), "\n\n")));
}

/// Every text in the sources that users meet, without the marks of access keys.
std::string programTexts() {
    std::string text;
    for (const char* const room : {"resources", "ui", "tool", "shell", "symmetry"})
        for (const auto& entry : fs::recursive_directory_iterator(room)) {
            const fs::path extension = entry.path().extension();
            if (extension == ".cpp" || extension == ".h" || extension == ".rc" ||
                extension == ".layout")
                text += contentOf(entry.path()) + '\n';
        }
    text = std::regex_replace(text, std::regex("\"\\s*\n\\s*\""), ""); // one literal over two lines
    std::erase(text, '&');
    return text;
}

/// What panel and dialogs show, and what is told of it when the mouse rests there.
void add(Labels& labels, const std::vector<door::SeenItem>& items) {
    for (const door::SeenItem& item : items) {
        if (!item.isField) labels.insert(item.text);
        labels.insert(item.tip);
    }
}

/// Takes down what a dialog shows that `open` opens, and closes it.
template <typename Open> void addDialog(Labels& labels, Open open) {
    DialogUser user([&](DialogUser& eyes) {
        labels.insert(eyes.title());
        add(labels, eyes.items());
    });
    open();
    CHECK(user.met == 1);
}

std::string narrow(const auto& text) {
    std::string result;
    for (const auto letter : text)
        result += static_cast<char>(letter); // our own texts are ASCII
    return result;
}

} // namespace

TEST_CASE("what the manual quotes is a text of the program") {
    const std::string program = programTexts();
    const Labels quoted = quotedInManual();
    REQUIRE(quoted.size() > 60);
    for (const std::string& label : quoted) {
        INFO("the manual says \"", label, "\"");
        CHECK(program.find('"' + label) != std::string::npos);
    }
}

TEST_CASE("whatever the program shows, the manual speaks of") {
    Labels labels;
    PanelInHand session(/*selected*/ true);
    for (const auto& item : PanelInHand::panel().items()) {
        if (!item->view().visible) continue; // what is said of a licence is the licence's
        if (!NRDM::isField(item->kind())) labels.insert(item->text());
        labels.insert(item->tip());
    }
    for (const auto& entry : session.host.openFlyout(session.hostPanel()).items)
        if (!entry.isSeparator) labels.insert(narrow(entry.text));
    for (const auto& [handle, item] : session.host.menus.items)
        if (item->plugin == thePlugin->self()) labels.insert(narrow(item->text));
    for (const auto& text : ofKind(drawn(session), Kind::Text)) // the dialog on the canvas
        labels.insert(narrow(text.text));
    for (int id = 1; id <= 12; ++id)
        labels.insert(narrow(toolSession().textOf(stringOf(static_cast<HintId>(id)))));
    addDialog(labels,
              [&] { session.host.chooseMenuItem(session.host.menus.itemNamed("Facetta About")); });
    addDialog(labels, [&] {
        const KeysHeld held({platform::Key::Shift});
        session.host.editToolOptions();
    });
    addDialog(labels, [&] {
        session.ToolInHand::click({300, -200});
        session.ToolInHand::click({300, -200});
    });
    labels.erase("");

    const Labels quoted = quotedInManual();
    REQUIRE(labels.size() > 60);
    for (const std::string& label : labels) {
        INFO("the program shows \"", label, "\"");
        CHECK(quoted.contains(label));
    }
}

TEST_CASE("each story of a user is told in a section of the manual") {
    const std::string text = manual();
    std::size_t stories = 0;
    for (const auto& entry : fs::directory_iterator("tests/scenarios")) {
        if (entry.path().extension() != ".play") continue;
        ++stories;
        INFO(entry.path().string(), " has a line such as \"# Manual: making-axes\"");
        const std::string story = contentOf(entry.path());
        std::smatch named;
        REQUIRE(std::regex_search(story, named, std::regex("\n# Manual: ([a-z-]+)\n")));
        CHECK(text.find("[#" + named[1].str() + "]") != std::string::npos);
    }
    CHECK(stories > 40);
}

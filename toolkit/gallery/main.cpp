/// gallery.exe: every kind of item, to look at. Without arguments it opens its pages as windows.
///
///     gallery --png FOLDER         writes each page in light and dark, at 1x, 1.5x and 2x
///     gallery --layout FILE        shows a layout, or its text with the mistakes in it
///     gallery --page NAME          shows one of the pages
///     gallery --dark --scale 2     opens the windows so
///     gallery --log FILE           writes what the items tell

#include "toolkit/gallery/Gallery.h"
#include "toolkit/gallery/Journal.h"
#include "toolkit/gallery/LayoutPage.h"
#include "toolkit/gallery/Pages.h"
#include "toolkit/gallery/Snapshot.h"
#include "toolkit/layout/Layout.h"

#include <CLI/CLI.hpp>

#include <algorithm>
#include <cstdio>
#include <filesystem>
#include <fstream>
#include <functional>
#include <iterator>
#include <optional>
#include <string>

using namespace NRDM;
using namespace NRDM::gallery;

namespace {

/// A page and the name of its picture files.
struct NamedPage {
    std::string name;
    std::unique_ptr<Page> page;
};

/// The file's name without folders and ending.
std::string nameOf(const std::string& file) { return std::filesystem::path(file).stem().string(); }

using NamedPages = std::vector<NamedPage>;

/// What is to be shown.
using Choice = std::function<NamedPages(Dialogs&)>;

/// The page of that name, or all of them.
NamedPages pagesNamed(const std::string& wanted) {
    NamedPages all;
    for (const auto& [name, make] : pages())
        if (wanted.empty() || wanted == name) all.push_back({name, make()});
    if (all.empty()) throw std::runtime_error("there is no page " + wanted);
    return all;
}

NamedPages layoutPages(const std::string& file, Dialogs& dialogs) {
    std::ifstream stream(file, std::ios::binary);
    if (!stream) throw std::runtime_error("cannot read " + file);
    const std::string text{std::istreambuf_iterator<char>(stream), {}};
    const layout::Parsed parsed = layout::parse(text);
    for (const layout::Message& message : parsed.messages)
        std::fprintf(stderr, "%s\n", layout::format(message, file).c_str());
    NamedPages all;
    all.push_back({nameOf(file), parsed.layout ? layoutPage(*parsed.layout, dialogs)
                                               : mistakesPage(file, text, parsed.messages)});
    return all;
}

bool writePicture(Page& page, const std::string& file) {
    page.show();
    page.pose();
    const bool written = savePicture(page.window(), std::wstring(file.begin(), file.end()));
    if (!written) std::fprintf(stderr, "cannot write %s\n", file.c_str());
    return written;
}

struct ScaleRow {
    double scale;
    const char* name;
};
constexpr ScaleRow kScales[] = {{1, "1x"}, {1.5, "1.5x"}, {2, "2x"}};

int writePictures(const Choice& choose, const std::string& folder) {
    bool written = true;
    for (const bool dark : {false, true}) {
        for (const auto& [scale, name] : kScales) {
            Gallery gallery({.dark = dark, .scale = scale});
            const std::string variant = (dark ? "-dark-" : "-light-") + std::string(name) + ".png";
            NamedPages pages = choose(gallery.dialogs());
            for (auto& [file, page] : pages) {
                written = writePicture(*page, folder + "/gallery-" + file + variant) && written;
                page.reset(); // or it would lie above the next
            }
        }
    }
    return written ? 0 : 1;
}

/// Until the last one has been closed. One alone is run as a modal dialog.
int showWindows(const Choice& choose, const Manner& manner, Journal* journal) {
    Gallery gallery(manner);
    const NamedPages shown = choose(gallery.dialogs());
    if (journal != nullptr)
        for (const auto& [name, page] : shown)
            journal->watch(*page);
    if (shown.size() == 1) {
        const int ending = shown.front().page->run();
        if (journal != nullptr) journal->write("ended\t" + std::to_string(ending));
        return 0;
    }
    for (const auto& [name, page] : shown)
        page->show();
    const auto isShown = [](const NamedPage& named) { return named.page->isShown(); };
    MSG message;
    while (std::ranges::any_of(shown, isShown) && GetMessageW(&message, nullptr, 0, 0) > 0) {
        TranslateMessage(&message);
        DispatchMessageW(&message);
    }
    return 0;
}

} // namespace

int main(int argc, char** argv) {
    SetProcessDpiAwarenessContext(DPI_AWARENESS_CONTEXT_PER_MONITOR_AWARE_V2);
    CLI::App app("Every kind of item of the dialog toolkit, to look at.");
    std::string folder;
    std::string layout;
    std::string page;
    std::string log;
    Manner manner;
    app.add_option("--png", folder, "Write what would be shown as pictures into this folder");
    app.add_option("--layout", layout, "Show the layout in this file instead of the pages");
    app.add_option("--page", page, "Show only the page of this name")->excludes("--layout");
    app.add_option("--log", log, "Write where the items are and what they tell into this file");
    app.add_flag("--dark", manner.dark, "Dark interface");
    app.add_option("--scale", manner.scale, "Pixels a unit, instead of the display's")
        ->check(CLI::Range(1.0, 4.0));
    CLI11_PARSE(app, argc, argv);
    try {
        const Choice choose = [&](Dialogs& dialogs) {
            return layout.empty() ? pagesNamed(page) : layoutPages(layout, dialogs);
        };
        if (!folder.empty()) return writePictures(choose, folder);
        std::optional<Journal> journal;
        if (!log.empty()) journal.emplace(log);
        return showWindows(choose, manner, journal ? &*journal : nullptr);
    } catch (const std::exception& error) {
        std::fprintf(stderr, "%s\n", error.what());
        return 1;
    }
}

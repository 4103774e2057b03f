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

#include <algorithm>
#include <cstdio>
#include <cstdlib>
#include <filesystem>
#include <fstream>
#include <functional>
#include <iterator>
#include <optional>
#include <string>
#include <string_view>
#include <utility>

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
                std::string picture = folder;
                picture.append("/gallery-").append(file).append(variant);
                written = writePicture(*page, picture) && written;
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

/// What the command line asks for.
struct Wishes {
    std::string folder;
    std::string layout;
    std::string page;
    std::string log;
    Manner manner;
};

double scaleOf(const std::string& text) {
    char* end = nullptr;
    const double scale = std::strtod(text.c_str(), &end);
    if (*end != '\0' || !(scale >= 1 && scale <= 4))
        throw std::runtime_error("--scale takes a number from 1 to 4");
    return scale;
}

Wishes wishesOf(int argc, char** argv) {
    Wishes wishes;
    std::string scale;
    const std::pair<std::string_view, std::string*> options[] = {{"--png", &wishes.folder},
                                                                 {"--layout", &wishes.layout},
                                                                 {"--page", &wishes.page},
                                                                 {"--log", &wishes.log},
                                                                 {"--scale", &scale}};
    for (int i = 1; i < argc; ++i) {
        const std::string_view name = argv[i];
        wishes.manner.dark = wishes.manner.dark || name == "--dark";
        if (name == "--dark") continue;
        const auto* const known =
            std::ranges::find(options, name, &std::pair<std::string_view, std::string*>::first);
        if (known == std::end(options) || i + 1 == argc)
            throw std::runtime_error(std::string(name) +
                                     ": unknown, or without its value; the options are at the top "
                                     "of toolkit/gallery/main.cpp");
        *known->second = argv[++i];
    }
    if (!scale.empty()) wishes.manner.scale = scaleOf(scale);
    return wishes;
}

} // namespace

int main(int argc, char** argv) {
    SetProcessDpiAwarenessContext(DPI_AWARENESS_CONTEXT_PER_MONITOR_AWARE_V2);
    try {
        const Wishes wishes = wishesOf(argc, argv);
        const Choice choose = [&](Dialogs& dialogs) {
            return wishes.layout.empty() ? pagesNamed(wishes.page)
                                         : layoutPages(wishes.layout, dialogs);
        };
        if (!wishes.folder.empty()) return writePictures(choose, wishes.folder);
        std::optional<Journal> journal;
        if (!wishes.log.empty()) journal.emplace(wishes.log);
        return showWindows(choose, wishes.manner, journal ? &*journal : nullptr);
    } catch (const std::exception& error) {
        std::fprintf(stderr, "%s\n", error.what());
        return 1;
    }
}

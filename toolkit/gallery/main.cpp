/// gallery.exe: every kind of item, to look at. Without arguments it opens its pages as windows.
///
///     gallery --png FOLDER         writes each page in light and dark, at 1x and 2x
///     gallery --layout FILE        shows a layout, or its text with the mistakes in it
///     gallery --dark --scale 2     opens the windows so

#include "toolkit/ImplWin/WinPeers.h"
#include "toolkit/Toolkit.h"
#include "toolkit/gallery/LayoutPage.h"
#include "toolkit/gallery/Pages.h"
#include "toolkit/gallery/Snapshot.h"
#include "toolkit/layout/Layout.h"

#include <CLI/CLI.hpp>

#include <cstdio>
#include <filesystem>
#include <fstream>
#include <functional>
#include <iterator>
#include <string>

using namespace NRDM;
using namespace NRDM::gallery;

namespace {

/// The host's colours at its lightest and at its second darkest brightness.
Theme themeOf(bool dark) {
    if (!dark) return {};
    return {.background = {1, 0.325F, 0.325F, 0.325F},
            .text = {1, 0.87F, 0.87F, 0.87F},
            .focusRing = {1, 0.6F, 0.6F, 0.6F},
            .editText = {1, 0.9F, 0.9F, 0.9F},
            .editBackground = {1, 0.235F, 0.235F, 0.235F},
            .dark = true};
}

/// A page and the name of its picture files.
struct NamedPage {
    std::string name;
    std::unique_ptr<Page> page;
};

/// The file's name without folders and ending.
std::string nameOf(const std::string& file) { return std::filesystem::path(file).stem().string(); }

/// What is to be shown, with the peers that will show it.
using Choice = std::function<std::vector<NamedPage>(const Peers&)>;

std::vector<NamedPage> allPages() {
    std::vector<NamedPage> all;
    for (const auto& [name, make] : pages())
        all.push_back({name, make()});
    return all;
}

std::vector<NamedPage> layoutPages(const std::string& file, const Peers& peers) {
    std::ifstream stream(file, std::ios::binary);
    if (!stream) throw std::runtime_error("cannot read " + file);
    const std::string text{std::istreambuf_iterator<char>(stream), {}};
    const layout::Parsed parsed = layout::parse(text);
    for (const layout::Message& message : parsed.messages)
        std::fprintf(stderr, "%s\n", layout::format(message, file).c_str());
    std::vector<NamedPage> all;
    all.push_back({nameOf(file), parsed.layout ? layoutPage(*parsed.layout, peers)
                                               : mistakesPage(file, text, parsed.messages)});
    return all;
}

bool writePicture(WinPeers& peers, NamedPage& named, const std::string& folder,
                  const std::string& variant) {
    const std::string file = folder + "/gallery-" + named.name + variant + ".png";
    named.page->open(peers);
    named.page->pose();
    const bool written = savePicture(static_cast<HWND>(named.page->window()),
                                     std::wstring(file.begin(), file.end()));
    named.page->close();
    if (!written) std::fprintf(stderr, "cannot write %s\n", file.c_str());
    return written;
}

int writePictures(const Choice& choose, const std::string& folder) {
    bool written = true;
    for (const bool dark : {false, true}) {
        const Theme theme = themeOf(dark);
        WinPeers peers(theme, picturesOf(WindowClass::library()));
        for (const int scale : {1, 2}) {
            peers.screen().fixedScale = Scale{static_cast<double>(scale)};
            const std::string variant =
                std::string(dark ? "-dark-" : "-light-") + std::to_string(scale) + "x";
            for (NamedPage& named : choose(peers))
                written = writePicture(peers, named, folder, variant) && written;
        }
    }
    return written ? 0 : 1;
}

int showWindows(const Choice& choose, bool dark, double scale) {
    const Theme theme = themeOf(dark);
    WinPeers peers(theme, picturesOf(WindowClass::library()));
    if (scale > 0) peers.screen().fixedScale = Scale{scale};
    const std::vector<NamedPage> shown = choose(peers);
    for (const NamedPage& named : shown)
        named.page->open(peers);
    MSG message;
    while (GetMessageW(&message, nullptr, 0, 0) > 0) {
        TranslateMessage(&message);
        DispatchMessageW(&message);
    }
    for (const NamedPage& named : shown)
        named.page->close();
    return 0;
}

} // namespace

int main(int argc, char** argv) {
    SetProcessDpiAwarenessContext(DPI_AWARENESS_CONTEXT_PER_MONITOR_AWARE_V2);
    CLI::App app("Every kind of item of the dialog toolkit, to look at.");
    std::string folder;
    std::string layout;
    bool dark = false;
    double scale = 0;
    app.add_option("--png", folder, "Write what would be shown as pictures into this folder");
    app.add_option("--layout", layout, "Show the layout in this file instead of the pages");
    app.add_flag("--dark", dark, "Dark interface");
    app.add_option("--scale", scale, "Pixels a unit, instead of the display's")
        ->check(CLI::Range(1.0, 4.0));
    CLI11_PARSE(app, argc, argv);
    try {
        const Choice choose = [&](const Peers& peers) {
            return layout.empty() ? allPages() : layoutPages(layout, peers);
        };
        return folder.empty() ? showWindows(choose, dark, scale) : writePictures(choose, folder);
    } catch (const std::exception& error) {
        std::fprintf(stderr, "%s\n", error.what());
        return 1;
    }
}

/// gallery.exe: every kind of item, to look at. Without arguments it opens its pages as windows.
///
///     gallery --png FOLDER       writes each page in light and dark, at 1x and 2x
///     gallery --dark --scale 2   opens the windows so

#include "toolkit/ImplWin/WinPeers.h"
#include "toolkit/Toolkit.h"
#include "toolkit/gallery/Pages.h"
#include "toolkit/gallery/Snapshot.h"

#include <CLI/CLI.hpp>

#include <cstdio>
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

bool writePage(WinPeers& peers, const PageRow& row, const std::wstring& file) {
    const std::unique_ptr<Page> page = row.make();
    page->open(peers);
    page->pose();
    const bool written = savePicture(static_cast<HWND>(page->window()), file);
    page->close();
    if (!written) std::fprintf(stderr, "cannot write %ls\n", file.c_str());
    return written;
}

int writePictures(const std::string& folder) {
    bool written = true;
    for (const bool dark : {false, true}) {
        WinPeers peers(themeOf(dark), picturesOf(WindowClass::library()));
        for (const int scale : {1, 2}) {
            peers.screen().fixedScale = Scale{static_cast<double>(scale)};
            for (const PageRow& row : pages()) {
                const std::string name = folder + "/gallery-" + row.name +
                                         (dark ? "-dark-" : "-light-") + std::to_string(scale) +
                                         "x.png";
                written = writePage(peers, row, std::wstring(name.begin(), name.end())) && written;
            }
        }
    }
    return written ? 0 : 1;
}

int showWindows(bool dark, double scale) {
    WinPeers peers(themeOf(dark), picturesOf(WindowClass::library()));
    if (scale > 0) peers.screen().fixedScale = Scale{scale};
    std::vector<std::unique_ptr<Page>> open;
    for (const PageRow& row : pages()) {
        open.push_back(row.make());
        open.back()->open(peers);
    }
    MSG message;
    while (GetMessageW(&message, nullptr, 0, 0) > 0) {
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
    bool dark = false;
    double scale = 0;
    app.add_option("--png", folder, "Write each page as pictures into this folder");
    app.add_flag("--dark", dark, "Dark interface");
    app.add_option("--scale", scale, "Pixels a unit, instead of the display's")
        ->check(CLI::Range(1.0, 4.0));
    CLI11_PARSE(app, argc, argv);
    try {
        return folder.empty() ? showWindows(dark, scale) : writePictures(folder);
    } catch (const std::exception& error) {
        std::fprintf(stderr, "%s\n", error.what());
        return 1;
    }
}

#include "toolkit/gallery/Gallery.h"

#include "toolkit/ImplWin/WinPeers.h"
#include "toolkit/ImplWin/WindowClass.h"
#include "toolkit/SuiteTables.h"
#include "toolkit/gallery/Host.h"

#include <cstdio>
#include <stdexcept>

namespace NRDM::gallery {
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

void tellFailure() noexcept {
    try {
        throw;
    } catch (const std::exception& error) {
        std::fprintf(stderr, "%s\n", error.what());
    } catch (...) {
        std::fprintf(stderr, "failed\n");
    }
}

} // namespace

Gallery::Gallery(const Manner& manner)
    : manner_(manner), themes_{themeOf(manner.dark), themeOf(manner.dark)},
      dialogs_(themes_, makePeers, this) {
    ai::basicSuite = offeringSuites(&host());
}

Gallery::~Gallery() { ai::basicSuite = nullptr; }

std::unique_ptr<Peers> Gallery::makePeers(void* gallery) {
    const Gallery& self = *static_cast<Gallery*>(gallery);
    auto peers = std::make_unique<WinPeers>(self.themes_, picturesOf(WindowClass::library()));
    peers->screen().failed = tellFailure;
    if (self.manner_.scale > 0) peers->screen().fixedScale = Scale{self.manner_.scale};
    return peers;
}

} // namespace NRDM::gallery

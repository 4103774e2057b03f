#include "toolkit/ImplCommon/Dialogs.h"

#include "host/Codes.h"
#include "toolkit/ImplCommon/CoADMDialog.h"
#include "toolkit/ImplCommon/Exceptions.h"
#include "toolkit/ImplCommon/LayoutDialog.h"

#include <algorithm>
#include <utility>

namespace NRDM {
namespace {

/// The functions of the suites have no other way to it. Written by `Dialogs` only.
Dialogs* currentDialogs = nullptr; // NOLINT(cppcoreguidelines-avoid-non-const-global*)

/// In an item's own unit.
constexpr Increments kCustomaryIncrements = {1, 10};

} // namespace

Dialogs::Dialogs(const Themes& themes, MakePeers makePeers, void* owner)
    : themes_(themes), owner_(owner) {
    announce(makePeers);
    if (ai::basicSuite == nullptr) return;
    static_cast<void>(panels.acquire());
    static_cast<void>(flyoutMenus.acquire());
    static_cast<void>(modalParent.acquire());
    static_cast<void>(appContext.acquire());
}

Dialogs::~Dialogs() {
    closeAll();
    if (currentDialogs == this) currentDialogs = nullptr;
}

Dialogs& Dialogs::current() {
    if (currentDialogs == nullptr) throw NRDMResourceException();
    return *currentDialogs;
}

void Dialogs::announce(MakePeers makePeers) noexcept {
    makePeers_ = makePeers;
    currentDialogs = this;
}

CoADMDialog* Dialogs::create(const DialogRequest& request) {
    const auto layout =
        request.resource != 0 ? readLayout(request.plugin, request.resource) : std::nullopt;
    const bool isPanel = request.style == kADMTabbedFloatingDialogStyle;
    if (request.resource != 0 && !layout && !isPanel)
        throw NRDMResourceException(kResourceReadFailed);
    return create(request, layout ? &*layout : nullptr);
}

CoADMDialog* Dialogs::create(const DialogRequest& request, const layout::Layout& layout) {
    return create(request, &layout);
}

CoADMDialog* Dialogs::create(const DialogRequest& request, const layout::Layout* layout) {
    const auto dialog = std::make_shared<CoADMDialog>(*this, request);
    open_.push_back(dialog);
    try {
        if (layout != nullptr) fill(*dialog, *layout);
        dialog->open();
        if (request.init == nullptr || request.init(dialog.get()) == kNoErr) {
            dialog->made();
            return dialog.get();
        }
    } catch (...) {
        destroy(*dialog);
        throw;
    }
    destroy(*dialog);
    return nullptr;
}

int Dialogs::modal(const DialogRequest& request) {
    CoADMDialog* const made = create(request);
    if (made == nullptr) return 0;
    const auto dialog = made->shared_from_this();
    int result = 0;
    try {
        result = dialog->run();
    } catch (...) {
        if (!dialog->isClosed()) destroy(*dialog);
        throw;
    }
    if (dialog->isClosed()) return 0; // and with it the toolkit, perhaps: nothing of this is left
    destroy(*dialog);
    return result;
}

void Dialogs::destroy(CoADMDialog& dialog) {
    const auto kept = dialog.shared_from_this();
    std::erase(open_, kept);
    kept->close();
}

void Dialogs::closeAll() noexcept {
    while (!open_.empty()) {
        try {
            destroy(*open_.back());
        } catch (...) {
            fail();
        }
    }
    peers_.reset();
}

Peers& Dialogs::peers() {
    if (!peers_) peers_ = makePeers_(owner_);
    return *peers_;
}

void Dialogs::fail() noexcept {
    if (peers_) peers_->fail();
}

void Dialogs::themeChanged() {
    if (peers_) peers_->themeChanged();
}

void* Dialogs::hostWindow() const {
    AIWindowRef window = nullptr;
    if (!appContext || appContext->GetPlatformAppWindow(&window) != kNoErr) return nullptr;
    return window;
}

void* Dialogs::ownerWindow() const {
    const auto top = std::find_if(open_.rbegin(), open_.rend(),
                                  [](const auto& dialog) { return dialog->isRunning(); });
    return top != open_.rend() ? (*top)->peer()->window() : hostWindow();
}

void Dialogs::enableTips(bool enabled) {
    tipsEnabled_ = enabled;
    for (const auto& dialog : open_)
        for (const auto& item : dialog->items())
            item->enableTip(item->isTipEnabled());
}

Increments Dialogs::incrementsOf(ADMUnits units) const {
    const auto found = increments_.find(units);
    if (found != increments_.end()) return found->second;
    const auto unit = static_cast<float>(pointsIn(units).value_or(1));
    return {kCustomaryIncrements.small * unit, kCustomaryIncrements.large * unit};
}

void Dialogs::setIncrements(ADMUnits units, const Increments& increments) {
    increments_[units] = increments;
}

} // namespace NRDM

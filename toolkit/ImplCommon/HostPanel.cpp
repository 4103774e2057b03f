#include "toolkit/ImplCommon/HostPanel.h"

#include "host/Error.h"
#include "host/UnicodeString.h"
#include "toolkit/ImplCommon/CoADMDialog.h"
#include "toolkit/ImplCommon/Exceptions.h"

#include <cmath>
#include <memory>
#include <utility>

namespace NRDM {
namespace {

/// The user steps through them with the panel's arrow: compact and full.
constexpr ai::int16 kStates = 2;

const AIPanelSuite& requirePanels(const Dialogs& dialogs) {
    if (!dialogs.panels) throw NRDMResourceException();
    return *dialogs.panels;
}

AISize sizeOf(Extent extent) {
    return {static_cast<AIReal>(extent.width), static_cast<AIReal>(extent.height)};
}

/// The host calls outside any message: without a context of ours its functions fail.
class Context {
public:
    Context(const Dialogs& dialogs, SPPluginRef plugin) {
        if (!dialogs.appContext) return;
        suite_ = &*dialogs.appContext;
        ai::check(suite_->PushAppContext(plugin, &context_));
    }
    ~Context() {
        if (context_ != nullptr) suite_->PopAppContext(context_);
    }
    Context(const Context&) = delete;
    Context& operator=(const Context&) = delete;

private:
    const AIAppContextSuite* suite_ = nullptr;
    AIAppContextHandle context_ = nullptr;
};

std::shared_ptr<CoADMDialog> dialogIn(AIPanelRef panel) {
    for (const auto& dialog : Dialogs::current().open())
        if (dialog->liesIn(panel)) return dialog;
    return nullptr;
}

void nothingElse(CoADMDialog&) {}

/// Runs `work` on the dialog in `panel`, which may close all dialogs. The border that no exception
/// crosses.
template <typename Work> void serve(AIPanelRef panel, Work work) noexcept {
    try {
        try {
            const auto dialog = dialogIn(panel);
            if (!dialog) return;
            const Context context(dialog->dialogs(), dialog->plugin());
            dialog->followHost();
            work(*dialog);
        } catch (...) {
            Dialogs::current().fail();
        }
    } catch (const NRDMResourceException&) {
        return; // the toolkit has ended, and its panels with it
    }
}

void visibilityChanged(AIPanelRef panel, AIBoolean) { serve(panel, nothingElse); }

void sizeChanged(AIPanelRef panel) {
    serve(panel, [=](CoADMDialog& dialog) {
        AISize size{};
        ai::check(requirePanels(dialog.dialogs()).GetSize(panel, size));
        const double pixels = dialog.peer()->pixelsInUnit();
        dialog.resized({static_cast<int>(std::lround(size.width / pixels)),
                        static_cast<int>(std::lround(size.height / pixels))});
    });
}

void stateChanged(AIPanelRef panel, ai::int16 state) {
    serve(panel, [=](CoADMDialog& dialog) { dialog.panelStateChanged(state); });
}

void menuOpens(AIPanelRef panel) {
    serve(panel, [](CoADMDialog& dialog) {
        dialog.item(kADMMenuItemID)->track({kADMButtonDownAction, 0, {}});
    });
}

void menuClosed(AIPanelRef panel, ai::uint32 chosen) {
    serve(panel, [=](CoADMDialog& dialog) {
        const auto menu = dialog.item(kADMMenuItemID)->shared_from_this();
        menu->choose(NRDMPanelMenu::positionOf(chosen));
        if (!menu->isClosed()) menu->list()->choose(nullptr); // no entry looks chosen next time
    });
}

} // namespace

HostPanel::HostPanel(CoADMDialog& dialog)
    : suite_(requirePanels(dialog.dialogs())), asked_(dialog.view().size) {
    const DialogView& view = dialog.view();
    const AIErr err =
        suite_.Create(dialog.plugin(), ai::UnicodeString(dialog.name()),
                      ai::UnicodeString(view.title), kStates, sizeOf(view.size),
                      /*resizable*/ false, /*menu*/ nullptr, /*data*/ nullptr, panel_);
    if (err != kNoErr) throw NRDMResourceException();
    suite_.SetVisibilityChangedNotifyProc(panel_, visibilityChanged);
    suite_.SetSizeChangedNotifyProc(panel_, sizeChanged);
    suite_.SetStateChangedNotifyProc(panel_, stateChanged);
    suite_.SetFlyoutMenuPreVisibilityProc(panel_, menuOpens);
    suite_.SetFlyoutMenuProc(panel_, menuClosed);
}

HostPanel::~HostPanel() { suite_.Destroy(panel_); }

void* HostPanel::window() const {
    AIPanelPlatformWindow window = nullptr;
    return suite_.GetPlatformWindow(panel_, window) == kNoErr ? window : nullptr;
}

void HostPanel::setTitle(const std::string& title) {
    ai::check(suite_.SetTitle(panel_, ai::UnicodeString(title)));
}

void HostPanel::show(bool shown) { ai::check(suite_.Show(panel_, shown)); }

bool HostPanel::isShown() const {
    AIBoolean shown = 0;
    ai::check(suite_.IsShown(panel_, shown));
    return shown != 0;
}

void HostPanel::setSize(Extent size, double pixelsInUnit) {
    const Extent pixels = {static_cast<int>(std::lround(size.width * pixelsInUnit)),
                           static_cast<int>(std::lround(size.height * pixelsInUnit))};
    const Extent before = std::exchange(asked_, pixels); // the host may answer with its own notice
    if (pixels == before) return;
    if (const AIErr err = suite_.SetSize(panel_, sizeOf(pixels))) {
        asked_ = before;
        throw ai::Error(err);
    }
}

int HostPanel::state() const {
    ai::int16 state = 0;
    ai::check(suite_.GetCurrentState(panel_, state));
    return state;
}

void HostPanel::setState(int state) {
    ai::check(suite_.SetCurrentState(panel_, static_cast<ai::int16>(state)));
}

void HostPanel::setMenu(AIPanelFlyoutMenuRef menu) {
    ai::check(suite_.SetFlyoutMenu(panel_, menu));
}

} // namespace NRDM

#include "toolkit/ImplCommon/BaseDialog.h"

#include <algorithm>
#include <utility>

namespace NRDM {
namespace {

constexpr ADMDialogStyle kModalStyles[] = {kADMModalDialogStyle, kADMAlertDialogStyle,
                                           kADMSystemAlertDialogStyle, kADMResizingModalDialogStyle,
                                           kADMModalNoActivateDialogStyle};

DialogKind kindOf(ADMDialogStyle style) {
    if (std::ranges::find(kModalStyles, style) != std::end(kModalStyles)) return DialogKind::Modal;
    return style == kADMTabbedFloatingDialogStyle ? DialogKind::Panel : DialogKind::Floating;
}

/// Before a layout or the client says otherwise.
constexpr Extent kEmptySize = {200, 100};

} // namespace

/// What the host shows meanwhile lies above the dialog.
class ModalParent {
public:
    ModalParent(const Dialogs& dialogs, void* window) {
        if (window == nullptr || !dialogs.modalParent) return;
        suite_ = &*dialogs.modalParent;
        const auto parent = static_cast<AIWindowRef>(window);
        if (suite_->SetParent(parent) != 0) suite_ = nullptr;
    }
    ~ModalParent() {
        if (suite_ != nullptr) suite_->RemoveParent();
    }
    ModalParent(const ModalParent&) = delete;
    ModalParent& operator=(const ModalParent&) = delete;

private:
    const AIModalParentSuite* suite_ = nullptr;
};

BaseDialog::BaseDialog(Dialogs& dialogs, const DialogRequest& request)
    : userData(request.userData), dialogs_(dialogs), plugin_(request.plugin), name_(request.name),
      id_(request.resource), style_(request.style) {
    view_.kind = kindOf(style_);
    view_.title = name_;
    view_.size = kEmptySize;
    view_.font = isModal() ? kADMDialogFont : kADMPaletteFont;
    // A panel fills its host's window, which the host shows and hides as it likes.
    view_.visible = view_.kind == DialogKind::Panel;
}

BaseDialog::~BaseDialog() = default;

void BaseDialog::changed() {
    if (peer_) peer_->changed();
}

void BaseDialog::detach() {
    modalParent_.reset();
    if (peer_) peer_->close();
    peer_.reset();
}

void BaseDialog::setTitle(std::string title) {
    view_.title = std::move(title);
    if (panel_) panel_->setTitle(view_.title);
    changed();
}

void BaseDialog::setFont(ADMFont font) {
    view_.font = font;
    changed();
}

void BaseDialog::show(bool shown) {
    if (panel_) return panel_->show(shown);
    view_.visible = shown;
    changed();
}

bool BaseDialog::isVisible() const { return panel_ ? panel_->isShown() : view_.visible; }

void BaseDialog::enable(bool enabled) {
    view_.enabled = enabled;
    changed();
}

void BaseDialog::activate() {
    if (peer_) peer_->activate();
}

void BaseDialog::setSize(Extent size) {
    size = {std::max(size.width, 0), std::max(size.height, 0)};
    if (size == view_.size) return;
    const Extent before = std::exchange(view_.size, size); // the host answers with a notice of it
    try {
        askHostForRoom();
    } catch (...) {
        view_.size = before;
        throw;
    }
    changed();
}

void BaseDialog::askHostForRoom() {
    if (panel_ && peer_) panel_->setSize(view_.size, peer_->pixelsInUnit());
}

Bounds BaseDialog::screenBounds() const {
    const Place corner = peer_ ? peer_->screenCorner() : Place{};
    return {corner.x, corner.y, corner.x + view_.size.width, corner.y + view_.size.height};
}

void BaseDialog::setScreenBounds(const Bounds& bounds) {
    moveTo({bounds.left, bounds.top});
    setSize({bounds.right - bounds.left, bounds.bottom - bounds.top});
}

void BaseDialog::moveTo(Place corner) {
    if (peer_ && !panel_) peer_->moveTo(corner);
}

int BaseDialog::panelState() const { return panel_ ? panel_->state() : 0; }

void BaseDialog::setPanelState(int state) {
    knownState_ = state;
    if (panel_) panel_->setState(state);
}

bool BaseDialog::endModal(int result) {
    if (!running_) return false;
    result_ = result;
    return peer_ && peer_->endModal();
}

int BaseDialog::runLoop() {
    struct Running {
        BaseDialog& dialog;
        explicit Running(BaseDialog& one) : dialog(one) {
            dialog.running_ = true;
            dialog.result_ = 0;
            dialog.view_.visible = true;
        }
        ~Running() {
            dialog.running_ = false;
            dialog.view_.visible = false;
            dialog.modalParent_.reset();
        }
    };
    const std::shared_ptr<DialogPeer> peer = peer_;
    modalParent_ = std::make_unique<ModalParent>(dialogs_, peer->window());
    {
        const Running running(*this);
        peer->runModal();
    }
    changed();
    return result_;
}

} // namespace NRDM

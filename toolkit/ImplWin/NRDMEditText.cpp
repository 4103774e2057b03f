#include "toolkit/ImplWin/NRDMEditText.h"

#include <windowsx.h>

#include <algorithm>
#include <utility>

namespace NRDM {
namespace {

constexpr UINT_PTR kRepeatTimer = 1;
constexpr UINT kFirstRepeat = 400; ///< milliseconds, as long as Windows' own arrows wait
constexpr UINT kNextRepeat = 50;
constexpr UINT kFocusAgain = WM_APP + 1;

constexpr double kSideMargin = 3;
constexpr double kArrowWidth = 16;

bool held(int key) { return GetKeyState(key) < 0; }

} // namespace

NRDMEditText::NRDMEditText(NativeDialog& dialog, const ItemView& view, ItemEvents& events)
    : NativeItem(dialog, view, events), field_(dialog.screen(), *this) {
    createItem(nullptr, WS_CLIPCHILDREN);
    field_.open(handle(), view.justify);
    field_.setMaximumLength(view.maximumLength);
    EnableWindow(field_.handle(), view.enabled);
    field_.setFont(textStyle(), scale());
    arrange();
    showText();
}

bool NRDMEditText::spins() const {
    return view().kind == ControlKind::SpinEdit || view().kind == ControlKind::SpinEditPopup ||
           view().kind == ControlKind::SpinEditSlider;
}

bool NRDMEditText::slides() const {
    return view().kind == ControlKind::EditSlider || view().kind == ControlKind::SpinEditSlider;
}

bool NRDMEditText::lists() const {
    return view().kind == ControlKind::EditPopup || view().kind == ControlKind::SpinEditPopup;
}

RECT NRDMEditText::placeOf(Part part) const {
    RECT area = client();
    const int border = scale().line();
    InflateRect(&area, -border, -border);
    const int width = scale().toPixels(kArrowWidth);
    const LONG popupLeft = slides() || lists() ? area.right - width : area.right;
    const LONG arrowsLeft = spins() ? popupLeft - width : popupLeft;
    const LONG middle = (area.top + area.bottom + 1) / 2;
    switch (part) {
    case Part::Up:
        return {arrowsLeft, area.top, popupLeft, middle};
    case Part::Down:
        return {arrowsLeft, middle, popupLeft, area.bottom};
    case Part::Popup:
        return {popupLeft, area.top, area.right, area.bottom};
    default:
        return {area.left, area.top, arrowsLeft, area.bottom};
    }
}

NRDMEditText::Part NRDMEditText::partAt(POINT point) const {
    for (const Part part : {Part::Up, Part::Down, Part::Popup}) {
        const RECT place = placeOf(part);
        if (PtInRect(&place, point)) return part;
    }
    return Part::None;
}

/// The field's one line lies so that its baseline is that of a label beside the item.
void NRDMEditText::arrange() {
    const RECT area = client();
    RECT place = placeOf(Part::None);
    place.left += scale().toPixels(kSideMargin) - scale().line();
    const bool alone = !spins() && !slides() && !lists();
    place.right -= scale().toPixels(alone ? kSideMargin - 1 : 2);
    const int baseline = baselineOf(area.top, area.bottom, textStyle(), scale());
    place.top = std::max<LONG>(place.top, baseline - field_.ascent());
    place.bottom = std::min<LONG>(place.bottom, place.top + field_.lineHeight());
    place.right = std::max(place.right, place.left);
    field_.place(place);
}

void NRDMEditText::showText() { field_.setText(toWide(view().text)); }

void NRDMEditText::changed(Aspect aspects) {
    if (has(aspects, Aspect::Text | Aspect::Value)) showText();
    if (has(aspects, Aspect::Enabled)) EnableWindow(field_.handle(), view().enabled);
    if (has(aspects, Aspect::Look)) {
        field_.setJustify(view().justify);
        field_.setMaximumLength(view().maximumLength);
    }
    if (has(aspects, Aspect::Look | Aspect::Bounds)) field_.setFont(textStyle(), scale());
    // A new text is the field's to show: what is around it stays as it is.
    constexpr auto kAround =
        Aspect::Enabled | Aspect::Visible | Aspect::Bounds | Aspect::Look | Aspect::Tip;
    if (has(aspects, kAround)) NativeItem::changed(aspects);
    if (has(aspects, Aspect::Look | Aspect::Bounds)) arrange();
    if (has(aspects, Aspect::Enabled | Aspect::Look)) field_.repaint();
    if (popup_) popup_->repaint();
}

void NRDMEditText::focus() {
    NativeItem::focus();
    field_.selectAll();
}

void NRDMEditText::invalidate() {
    repaint();
    field_.repaint();
}

bool NRDMEditText::commit() {
    if (!view().typed) return true;
    const std::weak_ptr<const char> alive = watch();
    const bool accepted = events().commit();
    if (alive.expired() || accepted) return accepted;
    showText();
    return false;
}

void NRDMEditText::step(int steps, bool large) { events().step(steps, large, Phase::Complete); }

bool NRDMEditText::fieldKey(WPARAM key) {
    if (popup_ && popup_->key(key)) return true;
    const std::weak_ptr<const char> alive = watch();
    switch (key) {
    case VK_UP:
    case VK_DOWN:
        if (lists() && held(VK_MENU)) {
            openPopup();
            return true;
        }
        step(key == VK_UP ? 1 : -1, held(VK_SHIFT));
        return true;
    case VK_PRIOR:
    case VK_NEXT:
        step(key == VK_PRIOR ? 1 : -1, true);
        return true;
    case VK_F4:
        if (slides() || lists()) openPopup();
        return slides() || lists();
    case VK_LEFT:
    case VK_RIGHT:
    case VK_HOME:
    case VK_END:
        return false; // the caret's
    case VK_RETURN:
    case VK_TAB:
        if (!commit()) {
            if (!alive.expired()) field_.selectAll();
            return true;
        }
        return alive.expired() || (dialog().dialogKey(WM_KEYDOWN, key), true);
    case VK_ESCAPE:
        if (view().typed) events().revert();
        if (alive.expired()) return true;
        showText();
        return dialog().dialogKey(WM_KEYDOWN, key) || true;
    default:
        return false;
    }
}

bool NRDMEditText::fieldMessage(UINT message, WPARAM wide, LPARAM lengthy) {
    relayToTips(field_.handle(), message, wide, lengthy);
    switch (message) {
    case WM_KEYDOWN:
        return fieldKey(wide);
    case WM_SYSKEYDOWN:
        if (lists() && (wide == VK_DOWN || wide == VK_UP)) return fieldKey(wide);
        return dialog().dialogKey(message, wide);
    case WM_SYSCHAR:
    case WM_CHAR:
        return dialog().dialogKey(message, wide);
    case WM_MOUSEWHEEL:
        return serveWheel(wide);
    default:
        return false;
    }
}

void NRDMEditText::fieldChanged() { events().typed(toUtf8(field_.text())); }

void NRDMEditText::fieldFocus(bool taken, HWND other) {
    const std::weak_ptr<const char> alive = watch();
    repaint();
    if (taken) {
        dialog().focusCame(other);
    } else {
        if (popup_) popup_->close();
        // In a panel the last good value is back and the user has gone on to something else. A
        // dialog asks once more; Windows is in the middle of moving the focus, which comes back
        // once that is done.
        if (!commit() && !alive.expired() && !dialog().inPanel()) {
            PostMessageW(handle(), kFocusAgain, 0, 0);
            return;
        }
    }
    if (!alive.expired()) events().activated(taken);
}

void NRDMEditText::setHotPart(Part part) {
    if (part == hotPart_) return;
    for (const Part changed : {hotPart_, part})
        if (changed != Part::None) repaint(placeOf(changed));
    hotPart_ = part;
}

void NRDMEditText::press(Part part) {
    const std::weak_ptr<const char> alive = watch();
    SetFocus(field_.handle());
    if (alive.expired()) return;
    if (part == Part::Popup) {
        openPopup();
        return;
    }
    pressed_ = part;
    repeats_ = 0;
    SetCapture(handle());
    SetTimer(handle(), kRepeatTimer, kFirstRepeat, nullptr);
    repaint(placeOf(part));
    events().step(part == Part::Up ? 1 : -1, held(VK_SHIFT), Phase::InProgress);
}

void NRDMEditText::letGo() {
    const Part part = std::exchange(pressed_, Part::None);
    if (part == Part::None) return;
    KillTimer(handle(), kRepeatTimer);
    repaint(placeOf(part));
    if (GetCapture() == handle()) ReleaseCapture();
    events().step(0, false, Phase::Complete);
}

void NRDMEditText::openPopup() {
    if (popup_ || !view().enabled) return;
    const std::weak_ptr<const char> alive = watch();
    if (!commit() || alive.expired()) return;
    RECT anchor{};
    GetWindowRect(handle(), &anchor);
    if (slides()) {
        popup_ = std::make_unique<NRDMSliderPopup>(dialog(), view(), events(), anchor, [this] {
            popup_.reset();
            repaint();
        });
    } else if (!view().entries.empty()) {
        popup_ = std::make_unique<NRDMListPopup>(dialog(), view(), textStyle(), anchor,
                                                 [this](int entry) {
                                                     popup_.reset();
                                                     repaint();
                                                     if (entry >= 0) events().choose(entry);
                                                 });
    }
    repaint(placeOf(Part::Popup));
}

LRESULT NRDMEditText::serve(UINT message, WPARAM wide, LPARAM lengthy) {
    const POINT point{GET_X_LPARAM(lengthy), GET_Y_LPARAM(lengthy)};
    switch (message) {
    case WM_MOUSEMOVE:
        setHotPart(view().known || partAt(point) == Part::Popup ? partAt(point) : Part::None);
        break;
    case WM_MOUSELEAVE:
        setHotPart(Part::None);
        break;
    case WM_LBUTTONDOWN:
    case WM_LBUTTONDBLCLK: {
        const Part part = partAt(point);
        if (part == Part::None)
            SetFocus(field_.handle());
        else if (view().known || part == Part::Popup)
            press(part);
        return 0;
    }
    case WM_LBUTTONUP:
    case WM_CAPTURECHANGED:
        letGo();
        return 0;
    case WM_TIMER:
        if (pressed_ == Part::None) return 0;
        if (repeats_++ == 0) SetTimer(handle(), kRepeatTimer, kNextRepeat, nullptr);
        // Held, but the pointer has left the arrow: it waits.
        if (hotPart_ == pressed_)
            events().step(pressed_ == Part::Up ? 1 : -1, held(VK_SHIFT), Phase::InProgress);
        return 0;
    case WM_SETFOCUS:
        dialog().focusCame(reinterpret_cast<HWND>(wide));
        SetFocus(field_.handle());
        return 0;
    case kFocusAgain:
        SetFocus(field_.handle());
        field_.selectAll();
        return 0;
    case WM_COMMAND:
        return 0;
    default:
        break;
    }
    return NativeItem::serve(message, wide, lengthy);
}

FaceState NRDMEditText::stateOf(Part part) const {
    FaceState now = state();
    now.enabled = now.enabled && (view().known || part == Part::Popup);
    now.hot = now.enabled && hotPart_ == part;
    now.pressed = pressed_ == part || (part == Part::Popup && popup_ != nullptr);
    return now;
}

void NRDMEditText::paint(const Canvas& canvas, const RECT& area) {
    drawField(canvas, area, state());
    if (spins()) {
        drawArrowPart(canvas, placeOf(Part::Up), Arrow::Up, stateOf(Part::Up));
        drawArrowPart(canvas, placeOf(Part::Down), Arrow::Down, stateOf(Part::Down));
    }
    if (slides() || lists())
        drawArrowPart(canvas, placeOf(Part::Popup), Arrow::Down, stateOf(Part::Popup));
}

} // namespace NRDM

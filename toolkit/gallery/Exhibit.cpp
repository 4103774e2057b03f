#include "toolkit/gallery/Exhibit.h"

#include <windows.h>

#include <algorithm>
#include <cstdio>
#include <cstdlib>
#include <utility>

namespace NRDM::gallery {

void Exhibit::strike() const {
    const auto window = static_cast<HWND>(peer_->window());
    switch (pose_) {
    case Pose::RollOver: {
        RECT area{};
        GetClientRect(window, &area);
        // Arrows at the right of a field are what reacts there.
        SendMessageW(window, WM_MOUSEMOVE, 0, MAKELPARAM(area.right - 4, 4));
        break;
    }
    case Pose::Pressed:
        SendMessageW(window, BM_SETSTATE, TRUE, 0);
        break;
    case Pose::Focused:
        peer_->focus();
        break;
    default:
        return;
    }
    UpdateWindow(window);
}

void Exhibit::setValue(double value) {
    view_.value = value;
    const bool number =
        view_.kind >= ControlKind::Edit && view_.kind <= ControlKind::SpinEditSlider;
    if (number) {
        char text[32];
        std::snprintf(text, sizeof text, "%.0f", value);
        view_.text = text;
    }
    peer_->changed(Aspect::Value | Aspect::Text);
}

void Exhibit::clicked() {
    if (view_.kind != ControlKind::CheckBox && view_.kind != ControlKind::RadioButton) return;
    view_.known = true;
    view_.value = view_.kind == ControlKind::CheckBox && view_.value != 0 ? 0 : 1;
    peer_->changed(Aspect::Value);
}

bool Exhibit::commit() {
    if (!typed_.empty()) view_.text = std::exchange(typed_, {});
    return true;
}

void Exhibit::step(int steps, bool large, Phase) {
    const double increment = large ? view_.largeIncrement : view_.smallIncrement;
    const double before =
        std::strtod(typed_.empty() ? view_.text.c_str() : typed_.c_str(), nullptr);
    typed_.clear();
    if (steps != 0) setValue(std::clamp(before + steps * increment, view_.lowest, view_.highest));
}

void Exhibit::slide(double value, Phase) { setValue(value); }

void Exhibit::choose(int entry) {
    view_.chosen = entry;
    if (view_.kind == ControlKind::EditPopup || view_.kind == ControlKind::SpinEditPopup)
        view_.text = view_.entries[static_cast<std::size_t>(entry)].text;
    peer_->changed(Aspect::Value | Aspect::Text);
}

Page::Page(std::string title, Extent size, DialogKind fontsOf) {
    view_.kind = DialogKind::Floating;
    view_.title = std::move(title);
    view_.size = size;
    view_.font = fontsOf == DialogKind::Panel ? 2 : 1;
}

Page& Page::add(ItemView view, Pose pose) {
    exhibits_.push_back(std::make_unique<Exhibit>(std::move(view), pose));
    return *this;
}

Page& Page::addDrawn(ItemView view, std::function<void(CoADMDrawer&)> draw) {
    add(std::move(view));
    exhibits_.back()->onDraw = std::move(draw);
    return *this;
}

void Page::open(Peers& peers) {
    view_.visible = true;
    peer_ = peers.createDialog(view_, *this);
    for (const auto& exhibit : exhibits_)
        exhibit->show(*peer_);
}

void Page::close() {
    for (const auto& exhibit : exhibits_)
        exhibit->hide();
    peer_.reset();
}

void Page::pose() const {
    peer_->activate();
    peer_->update();
    for (const auto& exhibit : exhibits_)
        exhibit->strike();
    peer_->update();
}

void* Page::window() const { return peer_ ? peer_->window() : nullptr; }

bool Page::key(DialogKey key, char32_t) {
    if (key != DialogKey::Tab && key != DialogKey::BackTab) return false;
    const auto focused = std::find_if(exhibits_.begin(), exhibits_.end(), [](const auto& exhibit) {
        const auto window = static_cast<HWND>(exhibit->peer()->window());
        return GetFocus() == window || IsChild(window, GetFocus());
    });
    const auto count = static_cast<int>(exhibits_.size());
    const auto from = static_cast<int>(focused - exhibits_.begin());
    const int direction = key == DialogKey::Tab ? 1 : -1;
    for (int step = 1; step <= count; ++step) {
        const int at = ((from + direction * step) % count + count) % count;
        const Exhibit& next = *exhibits_[static_cast<std::size_t>(at)];
        const bool canHave = next.view().enabled && next.view().kind != ControlKind::Label &&
                             next.view().kind != ControlKind::MultiLineLabel &&
                             next.view().kind != ControlKind::Frame;
        if (!canHave) continue;
        next.peer()->focus();
        return true;
    }
    return true;
}

void Page::closeRequested() { PostQuitMessage(0); }

} // namespace NRDM::gallery

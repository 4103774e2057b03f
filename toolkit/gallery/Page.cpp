#include "toolkit/gallery/Page.h"

#include <string_view>

namespace NRDM::gallery {
namespace {

/// Of items that are given no id; every second number is taken.
constexpr int kFirstLonelyId = 1001;

} // namespace

Exhibit& Exhibit::disabled() {
    suites_->item->Enable(item_, false);
    return *this;
}

Exhibit& Exhibit::unknown() {
    suites_->item->Known(item_, false);
    return *this;
}

Exhibit& Exhibit::on() {
    suites_->item->SetBooleanValue(item_, true);
    return *this;
}

Exhibit& Exhibit::style(ADMItemStyle style) {
    suites_->item->SetItemStyle(item_, style);
    return *this;
}

Exhibit& Exhibit::justify(ADMJustify justify) {
    suites_->item->SetJustify(item_, justify);
    return *this;
}

Exhibit& Exhibit::tip(const char* text) {
    suites_->item->SetTipString(item_, text);
    return *this;
}

Exhibit& Exhibit::pictures(const PictureIds& ids) {
    suites_->item->SetPictureID(item_, ids.normal, nullptr);
    suites_->item->SetSelectedPictureID(item_, ids.selected, nullptr);
    suites_->item->SetDisabledPictureID(item_, ids.disabled, nullptr);
    suites_->item->SetRolloverPictureID(item_, ids.rollover, nullptr);
    return *this;
}

Exhibit& Exhibit::percent(float value) {
    suites_->item->SetMinFloatValue(item_, 0);
    suites_->item->SetMaxFloatValue(item_, 100);
    return number(value, kADMPercentUnits);
}

Exhibit& Exhibit::number(float value, ADMUnits units, int precision) {
    suites_->item->SetUnits(item_, units);
    suites_->item->SetPrecision(item_, precision);
    suites_->item->ShowUnits(item_, true);
    suites_->item->SetFloatValue(item_, value);
    return *this;
}

Exhibit& Exhibit::entries(std::initializer_list<const char*> texts, int chosen) {
    ADMListRef list = suites_->item->GetList(item_);
    int position = 0;
    for (const char* const text : texts) {
        ADMEntryRef entry = suites_->list->InsertEntry(list, position);
        if (std::string_view(text) == "-")
            suites_->entry->MakeSeparator(entry, true);
        else
            suites_->entry->SetText(entry, text);
        if (position == chosen) suites_->entry->Select(entry, true);
        ++position;
    }
    return *this;
}

Exhibit& Exhibit::drawn(ADMItemDrawProc draw) {
    suites_->item->SetDrawProc(item_, draw);
    return *this;
}

Exhibit& Exhibit::dropped(ADMItemDestroyProc drop) {
    suites_->item->SetDestroyProc(item_, drop);
    return *this;
}

Exhibit& Exhibit::pose(Pose pose) {
    pose_ = pose;
    return *this;
}

void Exhibit::strike() const {
    const auto window = static_cast<HWND>(suites_->item->GetWindowRef(item_));
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
        suites_->item->Activate(item_, true);
        break;
    default:
        return;
    }
    suites_->item->Update(item_);
}

Page::Page(const char* title, Extent size, Fonts fonts)
    : dialog_(
          suites_.dialog->Create(nullptr, title, 0, kADMModalDialogStyle, nullptr, nullptr, 0)) {
    if (fonts == Fonts::OfPalettes) suites_.dialog->SetFont(dialog_, kADMPaletteFont);
    suites_.dialog->Size(dialog_, size.width, size.height);
}

Page::~Page() { suites_.dialog->Destroy(dialog_); }

Exhibit& Page::add(const char* type, const Bounds& bounds, const char* text, int id,
                   ADMUserData userData) {
    const ADMRect rect{bounds.left, bounds.top, bounds.right, bounds.bottom};
    const int lonely = kFirstLonelyId + 2 * static_cast<int>(exhibits_.size());
    ADMItemRef item = suites_.dialog->CreateItem(dialog_, id != 0 ? id : lonely, type, &rect,
                                                 nullptr, userData, 0);
    if (*text != '\0') suites_.item->SetText(item, text);
    return exhibits_.emplace_back(suites_, item);
}

void Page::show() { suites_.dialog->Show(dialog_, true); }

bool Page::isShown() const { return suites_.dialog->IsVisible(dialog_) != 0; }

int Page::run() { return suites_.dialog->DisplayAsModal(dialog_); }

void Page::pose() const {
    suites_.dialog->Activate(dialog_, true);
    suites_.dialog->Update(dialog_);
    for (const Exhibit& exhibit : exhibits_)
        exhibit.strike();
    suites_.dialog->Update(dialog_);
}

HWND Page::window() const { return static_cast<HWND>(suites_.dialog->GetWindowRef(dialog_)); }

} // namespace NRDM::gallery

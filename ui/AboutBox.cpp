#include "ui/AboutBox.h"

#include "Version.h"

#include "host/References.h"
#include "toolkit/suites/ADMBasicSuite.h"
#include "toolkit/suites/ADMDrawerSuite.h"
#include "ui/Adm.h"

#include <algorithm>
#include <array>
#include <iterator>
#include <string>
#include <string_view>
#include <vector>

namespace facetta {
namespace {

constexpr char kDialogName[] = "Facetta About";
constexpr ADMInt32 kLayout = 16003;
constexpr ADMInt32 kPicture = 7000;

constexpr ADMInt32 kBuy = 1;
constexpr ADMInt32 kClose = 2;
constexpr ADMInt32 kActivate = 3;
constexpr ADMInt32 kDrawing = 4;
constexpr ADMInt32 kHelp = 5;

constexpr const char* kProduct = "Facetta";
constexpr const char* kMaker = "Norvane Graphics";
constexpr const char* kYear = "2014";

/// The list of the box's strings, and where in it each is.
constexpr ADMInt32 kStrings = 18000;
constexpr ADMInt32 kTitle = 1;
constexpr ADMInt32 kWebAddress = 2;
constexpr ADMInt32 kMakerLine = 3;
constexpr ADMInt32 kSecondMakerLine = 4;

/// `format` with the words in the place of its "%s", one after the other.
std::string filledIn(std::string format, std::initializer_list<std::string_view> words) {
    std::size_t from = 0;
    for (const std::string_view word : words) {
        const std::size_t place = format.find("%s", from);
        if (place == std::string::npos) break;
        format.replace(place, 2, word);
        from = place + word.size();
    }
    return format;
}

/// A line of text centred on `x`.
struct Line {
    std::string text;
    ADMInt32 x;
    ADMInt32 top;
};
constexpr ADMInt32 kLineHeight = 18;
constexpr ADMInt32 kHalfWidth = 140; ///< of a line at most

/// What the procedures of the box work on as long as it is open.
struct AboutBox {
    const Licensing& licence;
    void (*openManual)();
    std::vector<Line> lines; ///< of the drawn area
};

AboutBox& boxOf(const Adm& adm, ADMDialogRef dialog) {
    return *static_cast<AboutBox*>(adm.dialog->GetUserData(dialog));
}

std::vector<Line> linesOf(SPPluginRef self, const Licensing& licence) {
    ai::SuiteLease<ADMBasicSuite> basic;
    ai::check(basic.acquire());
    const auto text = [&](ADMInt32 index) {
        std::array<char, 256> buffer{};
        ai::check(basic->GetIndexString(self, kStrings, index, buffer.data(),
                                        static_cast<ADMInt32>(buffer.size())));
        return std::string(buffer.data());
    };
    return {
        {filledIn(text(kTitle), {kProduct, FACETTA_VERSION}), 300, 374},
        {licence.statusLine(), 300, 394},
        {filledIn(text(kMakerLine), {kMaker, kYear}), 134, 434},
        {text(kSecondMakerLine), 300, 434},
        {text(kWebAddress), 461, 434},
    };
}

/// The host is asked nothing here: a window may be painted at any time.
void draw(ADMItemRef item, ADMDrawerRef drawer) {
    const Adm adm;
    ai::SuiteLease<ADMDrawerSuite> drawers;
    ai::check(drawers.acquire());
    const ADMDrawerSuite& suite = *drawers;
    ADMRect area{};
    suite.GetBoundsRect(drawer, &area);
    suite.DrawResPictureCentered(drawer, adm.item->GetPluginRef(item), kPicture, &area);
    suite.SetFont(drawer, kADMDialogFont);
    suite.SetADMColor(drawer, kADMTextColor);
    for (const Line& line : boxOf(adm, adm.item->GetDialog(item)).lines) {
        const ADMRect place{line.x - kHalfWidth, line.top, line.x + kHalfWidth,
                            line.top + kLineHeight};
        suite.DrawTextCentered(drawer, line.text.c_str(), &place);
    }
}

void nameButton(const Adm& adm, ADMItemRef button, const std::string& text) {
    adm.item->SetText(button, text.c_str());
    adm.item->Show(button, !text.empty());
}

/// The buttons that there are, in the middle of their row.
void arrangeButtons(const Adm& adm, ADMDialogRef dialog) {
    constexpr ADMInt32 kSpacing = 24;
    std::vector<ADMItemRef> shown;
    for (const ADMInt32 id : {kClose, kHelp, kActivate, kBuy})
        if (const ADMItemRef button = adm.dialog->GetItem(dialog, id);
            adm.item->IsVisible(button) != 0)
            shown.push_back(button);
    ADMRect area{};
    ADMRect bounds{};
    adm.item->GetBoundsRect(adm.dialog->GetItem(dialog, kDrawing), &area);
    adm.item->GetBoundsRect(shown.front(), &bounds);
    const ADMInt32 width = bounds.right - bounds.left;
    const auto count = static_cast<ADMInt32>(shown.size());
    ADMInt32 left = (area.left + area.right - count * width - (count - 1) * kSpacing) / 2;
    for (const ADMItemRef button : shown) {
        bounds.left = left;
        bounds.right = left + width;
        adm.item->SetBoundsRect(button, &bounds);
        left += width + kSpacing;
    }
}

void showLicence(const Adm& adm, ADMDialogRef dialog) {
    AboutBox& box = boxOf(adm, dialog);
    box.lines = linesOf(adm.dialog->GetPluginRef(dialog), box.licence);
    const auto [buy, activate] = box.licence.buttons();
    nameButton(adm, adm.dialog->GetItem(dialog, kBuy), buy);
    nameButton(adm, adm.dialog->GetItem(dialog, kActivate), activate);
    arrangeButtons(adm, dialog);
    adm.item->Invalidate(adm.dialog->GetItem(dialog, kDrawing));
}

void help(const Adm& adm, ADMDialogRef dialog) {
    boxOf(adm, dialog).openManual();
    adm.dialog->EndModal(dialog, kHelp, true);
}

void activate(const Adm& adm, ADMDialogRef dialog) {
    boxOf(adm, dialog).licence.openDialog();
    showLicence(adm, dialog);
}

void notified(ADMDialogRef dialog, ADMNotifierRef notifier) {
    const Adm adm;
    const ai::AppContext context{adm.dialog->GetPluginRef(dialog)};
    const ADMItemRef item = adm.notifier->GetItem(notifier);
    const ADMInt32 id = item != nullptr ? adm.item->GetID(item) : 0;
    if (isUserChange(adm, notifier) && id == kHelp) return help(adm, dialog);
    if (isUserChange(adm, notifier) && id == kActivate) return activate(adm, dialog);
    adm.dialog->DefaultNotify(dialog, notifier);
}

ADMErr fill(ADMDialogRef dialog) {
    const Adm adm;
    const ai::AppContext context{adm.dialog->GetPluginRef(dialog)};
    adm.item->SetDrawProc(adm.dialog->GetItem(dialog, kDrawing), draw);
    adm.dialog->SetNotifyProc(dialog, notified);
    showLicence(adm, dialog);
    return kNoErr;
}

} // namespace

AboutResult showAboutBox(SPPluginRef self, const Licensing& licence, void (*openManual)()) {
    const Adm adm;
    AboutBox box{licence, openManual, {}};
    const ADMInt32 result =
        adm.dialog->Modal(self, kDialogName, kLayout, kADMModalDialogStyle, fill, &box, 0);
    return result == kBuy ? AboutResult::BuyNow : AboutResult::Closed;
}

} // namespace facetta

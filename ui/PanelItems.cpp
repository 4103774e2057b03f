#include "ui/PanelItems.h"

#include "symmetry/geometry/PageAxes.h"

namespace facetta {
namespace {

using namespace panel_item;

/// Pictures are named as for a light interface; 0 is none.
struct Row {
    ADMInt32 id;
    ADMItemType type;
    ADMRect place;
    const char* text = "";
    const char* tip = "";
    ADMInt32 picture = 0;
    ADMInt32 dimPicture = 0;
    ADMItemStyle style = 0;
};

/// Of picture buttons: they stay down while they are on.
constexpr ADMItemStyle kPushLike = 4096;
constexpr ADMItemStyle kNoNeighbour = kADMNoNeighbourStyle;
constexpr ADMItemStyle kSliderStyle = 2;
/// The host's cursor for controls, over pictures that are no controls themselves.
constexpr ADMInt32 kControlsCursor = -9;
constexpr char kOpacityTip[] = "Level of layer axes overlay opacity";

// clang-format off
constexpr Row kRows[] = {
    {kSelectionMode, kADMPictureRadioButtonType, {9, 12, 41, 39}, "",
     "Symmetry axes will affect selected artwork only", 2106, 2108, kPushLike},
    {kLayerMode, kADMPictureRadioButtonType, {53, 12, 85, 39}, "",
     "Symmetry axes will affect entire layer and be retained", 2110, 0, kPushLike},
    {kActive, kADMTextCheckBoxType, {95, 19, 149, 33}, "Active",
     "Keep all art in this layer automatically mirrored"},
    {kUpdate, kADMTextPushButtonType, {163, 17, 227, 38}, "Update",
     "Manually mirror all art in this layer"},
    {kApply, kADMTextPushButtonType, {12, 50, 128, 71}, "",
     "Apply the symmetry axes to mirror the artwork"},
    {kCancel, kADMTextPushButtonType, {136, 50, 227, 71}, "Cancel"},
    {22, kADMFrameType, {8, 82, 230, 84}},
    {7, kADMPictureStaticType, {9, 88, 34, 113}, "", "", 2112, 0, kNoNeighbour},
    {8, kADMTextStaticType, {39, 94, 53, 108}, "X:"},
    {kOriginX, kADMTextEditType, {52, 91, 124, 110}, "", "X position of axes origin"},
    {10, kADMTextStaticType, {142, 94, 156, 108}, "Y:"},
    {kOriginY, kADMTextEditType, {155, 91, 227, 110}, "", "Y position of axes origin"},
    {12, kADMPictureStaticType, {9, 117, 34, 142}, "", "", 2114, 0, kNoNeighbour},
    {kAngle, kADMTextEditType, {40, 119, 92, 138}, "", "Angle of axes"},
    {14, kADMTextStaticType, {108, 122, 188, 136}, "Number of Axes:"},
    {kCount, kADMSpinEditType, {187, 119, 227, 138}, "", "Number of axes"},
    {23, kADMFrameType, {8, 147, 230, 149}},
    {kOverlay, kADMTextCheckBoxType, {12, 159, 29, 173}, "",
     "Enable or disable active sector mask overlay for layer axes"},
    {kOverlayIcon, kADMPictureStaticType, {32, 154, 57, 179}, "", "", 2116, 2118, kNoNeighbour},
    {kOpacitySlider, kADMSliderType, {65, 162, 167, 174}, "", kOpacityTip, 0, 0, kSliderStyle},
    {kOpacityScale, kADMPictureStaticType, {65, 156, 167, 163}, "", "", 2120, 2122, kNoNeighbour},
    {kOpacity, kADMSpinEditType, {179, 159, 227, 178}, "", kOpacityTip},
    {kStatusLine, kADMTextStaticType, {22, 69, 212, 119}},
};
// clang-format on

void create(const Adm& adm, ADMDialogRef dialog, const Row& row, ADMItemNotifyProc notified) {
    const ADMItemRef item =
        adm.dialog->CreateItem(dialog, row.id, row.type, &row.place, nullptr, nullptr, 0);
    adm.item->SetNotifyProc(item, notified);
    if (row.style != 0) adm.item->SetItemStyle(item, row.style);
    if (*row.text != '\0') adm.item->SetText(item, row.text);
    if (*row.tip != '\0') adm.item->SetTipString(item, row.tip);
    if (row.picture != 0) adm.item->SetPictureID(item, row.picture, nullptr);
    if (row.dimPicture != 0) adm.item->SetDisabledPictureID(item, row.dimPicture, nullptr);
    if (row.type == kADMPictureStaticType)
        adm.item->SetCursorID(item, adm.dialog->GetPluginRef(dialog), kControlsCursor, nullptr);
}

void setUpNumber(const Adm& adm, ADMItemRef item, float smallest, float largest) {
    adm.item->SetAllowUnits(item, 1);
    adm.item->SetAllowMath(item, 1);
    adm.item->ShowUnits(item, 1);
    adm.item->SetMinFloatValue(item, smallest);
    adm.item->SetMaxFloatValue(item, largest);
}

void setUpAngle(const Adm& adm, ADMItemRef item) {
    adm.item->SetUnits(item, kADMDegreeUnits);
    adm.item->SetPrecision(item, 3);
    setUpNumber(adm, item, -360.0F, 360.0F);
}

void setUpCount(const Adm& adm, ADMItemRef item) {
    adm.item->SetUnits(item, kADMNoUnits);
    adm.item->SetPrecision(item, 0);
    adm.item->ShowUnits(item, 0);
    adm.item->SetMinIntValue(item, kFewestAxes);
    adm.item->SetMaxIntValue(item, kMostAxes);
}

void setUpPercentage(const Adm& adm, ADMItemRef item) {
    adm.item->SetMinFloatValue(item, 0.0F);
    adm.item->SetMaxFloatValue(item, 100.0F);
    adm.item->SetSmallIncrement(item, 1.0F);
    adm.item->SetPrecision(item, 0);
}

} // namespace

void createPanelItems(const Adm& adm, ADMDialogRef dialog, ADMItemNotifyProc notified,
                      ADMItemNotifyProc slid) {
    for (const Row& row : kRows)
        create(adm, dialog, row, row.id == kOpacitySlider ? slid : notified);
    const auto item = [&](ADMInt32 id) { return adm.dialog->GetItem(dialog, id); };
    setUpAngle(adm, item(kAngle));
    setUpCount(adm, item(kCount));
    setUpPercentage(adm, item(kOpacitySlider));
    setUpPercentage(adm, item(kOpacity));
    adm.item->SetLargeIncrement(item(kOpacity), 10.0F);
    adm.item->SetUnits(item(kOpacity), kADMPercentUnits);
    adm.item->ShowUnits(item(kOpacity), 1);
    adm.item->Enable(item(kApply), 0);
    adm.item->Enable(item(kCancel), 0);
    adm.item->Show(item(kStatusLine), 0);
}

void showUsable(const Adm& adm, ADMDialogRef dialog, bool usable, const std::string& statusLine) {
    for (const Row& row : kRows)
        adm.item->Show(adm.dialog->GetItem(dialog, row.id), (row.id == kStatusLine) != usable);
    adm.item->SetText(adm.dialog->GetItem(dialog, kStatusLine), statusLine.c_str());
}

void placeStatusLine(const Adm& adm, ADMDialogRef dialog, bool compact) {
    const ADMItemRef item = adm.dialog->GetItem(dialog, kStatusLine);
    ADMRect place{};
    adm.item->GetBoundsRect(item, &place);
    place.top = kStatusLineTops[compact ? 1 : 0];
    place.bottom = place.top + kStatusLineHeight;
    adm.item->SetBoundsRect(item, &place);
}

} // namespace facetta

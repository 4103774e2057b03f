#include "toolkit/ImplCommon/INRDMList.h"
#include "toolkit/ImplCommon/Slots.h"
#include "toolkit/ImplCommon/SuiteUnits.h"

namespace NRDM {
namespace {

template <slots::Name slot> inline constexpr Stub<"ADMEntrySuite", slot> stub{};

INRDMEntry* create(INRDMList& list) { return &list.insert(0); }

void destroy(INRDMEntry& entry) { entry.list().remove(entry.index()); }

INRDMList* listOf(INRDMEntry& entry) { return &entry.list(); }

void getText(ADMEntryRef entry, char* buffer, ADMInt32 size) {
    copyText(objectOf(entry).text(), buffer, size);
}
int textLength(INRDMEntry& entry) { return lengthOf(entry.text()); }

} // namespace

// clang-format off
const ADMEntrySuite kEntrySuite = {
    .Create = call<&create>,
    .Destroy = call<&destroy>,
    .DefaultDraw = stub<"DefaultDraw">,
    .DefaultTrack = stub<"DefaultTrack">,
    .DefaultNotify = stub<"DefaultNotify">,
    .SendNotify = stub<"SendNotify">,
    .GetIndex = call<&INRDMEntry::index>,
    .GetList = call<&listOf>,
    .SetID = call<&INRDMEntry::setId>,
    .GetID = call<&INRDMEntry::id>,
    .SetUserData = call<&assign<INRDMEntry, &INRDMEntry::userData>>,
    .GetUserData = call<&INRDMEntry::userData>,
    .Select = call<&INRDMEntry::select>,
    .IsSelected = call<&INRDMEntry::isSelected>,
    .MakeInBounds = stub<"MakeInBounds">,
    .IsInBounds = stub<"IsInBounds">,
    .Enable = call<&INRDMEntry::enable>,
    .IsEnabled = call<&INRDMEntry::isEnabled>,
    .Activate = call<&INRDMEntry::select>,
    .IsActive = call<&INRDMEntry::isSelected>,
    .Check = call<&INRDMEntry::check>,
    .IsChecked = call<&INRDMEntry::isChecked>,
    .MakeSeparator = call<&INRDMEntry::makeSeparator>,
    .IsSeparator = call<&INRDMEntry::isSeparator>,
    .GetLocalRect = stub<"GetLocalRect">,
    .GetBoundsRect = stub<"GetBoundsRect">,
    .LocalToScreenPoint = stub<"LocalToScreenPoint">,
    .ScreenToLocalPoint = stub<"ScreenToLocalPoint">,
    .LocalToScreenRect = stub<"LocalToScreenRect">,
    .ScreenToLocalRect = stub<"ScreenToLocalRect">,
    .Invalidate = stub<"Invalidate">,
    .InvalidateRect = stub<"InvalidateRect">,
    .Update = stub<"Update">,
    .SetPictureID = stub<"SetPictureID">,
    .GetPictureID = stub<"GetPictureID">,
    .SetSelectedPictureID = stub<"SetSelectedPictureID">,
    .GetSelectedPictureID = stub<"GetSelectedPictureID">,
    .SetDisabledPictureID = stub<"SetDisabledPictureID">,
    .GetDisabledPictureID = stub<"GetDisabledPictureID">,
    .SetPicture = stub<"SetPicture">,
    .GetPicture = stub<"GetPicture">,
    .SetSelectedPicture = stub<"SetSelectedPicture">,
    .GetSelectedPicture = stub<"GetSelectedPicture">,
    .SetDisabledPicture = stub<"SetDisabledPicture">,
    .GetDisabledPicture = stub<"GetDisabledPicture">,
    .SetText = call<&INRDMEntry::setText>,
    .SetTextW = call<&INRDMEntry::setText>,
    .GetText = getText,
    .GetTextW = stub<"GetTextW">,
    .GetTextLength = call<&textLength>,
    .GetTextLengthW = stub<"GetTextLengthW">,
    .CreateTimer = stub<"CreateTimer">,
    .AbortTimer = stub<"AbortTimer">,
    .GetHelpID_DEPRECATED = stub<"GetHelpID_DEPRECATED">,
    .SetHelpID_DEPRECATED = stub<"SetHelpID_DEPRECATED">,
    .Help_DEPRECATED = stub<"Help_DEPRECATED">,
    .SetCheckGlyph = stub<"SetCheckGlyph">,
    .GetCheckGlyph = stub<"GetCheckGlyph">,
    .SetScript = stub<"SetScript">,
    .GetScript = stub<"GetScript">,
};
// clang-format on

} // namespace NRDM

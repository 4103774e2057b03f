#include "toolkit/ImplCommon/INRDMList.h"
#include "toolkit/ImplCommon/Slots.h"
#include "toolkit/ImplCommon/SuiteUnits.h"

namespace NRDM {
namespace {

template <slots::Name slot> inline constexpr Stub<"ADMListSuite", slot> stub{};

void setMenu(INRDMList& list, SPPluginRef plugin, int id, const std::string&) {
    list.setMenu(plugin, id);
}

CoADMItem* itemOf(INRDMList& list) { return &list.item(); }

INRDMEntry* insert(INRDMList& list, int position) { return &list.insert(position); }

void removeEntry(INRDMList& list, int position) {
    if (!list.remove(position)) throw NRDMParameterException();
}

void selectByText(INRDMList& list, const std::string& text) {
    if (INRDMEntry* const entry = list.withText(text)) list.choose(entry);
}

} // namespace

// clang-format off
const ADMListSuite kListSuite = {
    .SetMenuID = call<&setMenu>,
    .GetMenuID = call<&INRDMList::menuId>,
    .GetItem = call<&itemOf>,
    .SetUserData = call<&assign<INRDMList, &INRDMList::userData>>,
    .GetUserData = call<&INRDMList::userData>,
    .SetInitProc = stub<"SetInitProc">,
    .GetInitProc = stub<"GetInitProc">,
    .SetDrawProc = stub<"SetDrawProc">,
    .GetDrawProc = stub<"GetDrawProc">,
    .SetTrackProc = stub<"SetTrackProc">,
    .GetTrackProc = stub<"GetTrackProc">,
    .SetNotifyProc = stub<"SetNotifyProc">,
    .GetNotifyProc = stub<"GetNotifyProc">,
    .SetDestroyProc = stub<"SetDestroyProc">,
    .GetDestroyProc = stub<"GetDestroyProc">,
    .SetEntryWidth = stub<"SetEntryWidth">,
    .GetEntryWidth = stub<"GetEntryWidth">,
    .SetEntryHeight = stub<"SetEntryHeight">,
    .GetEntryHeight = stub<"GetEntryHeight">,
    .SetEntryTextRect = stub<"SetEntryTextRect">,
    .GetEntryTextRect = stub<"GetEntryTextRect">,
    .InsertEntry = call<&insert>,
    .RemoveEntry = call<&removeEntry>,
    .GetEntry = call<&INRDMList::withId>,
    .IndexEntry = call<&INRDMList::at>,
    .FindEntry = call<&INRDMList::withText>,
    .PickEntry = stub<"PickEntry">,
    .GetActiveEntry = call<&INRDMList::chosen>,
    .IndexSelectedEntry = stub<"IndexSelectedEntry">,
    .NumberOfEntries = call<&INRDMList::count>,
    .NumberOfSelectedEntries = stub<"NumberOfSelectedEntries">,
    .SetMask = stub<"SetMask">,
    .GetMask = stub<"GetMask">,
    .SetNotifierData = stub<"SetNotifierData">,
    .GetNotifierData = stub<"GetNotifierData">,
    .SetBackgroundColor = stub<"SetBackgroundColor">,
    .SelectByText = call<&selectByText>,
    .SelectByTextW = stub<"SelectByTextW">,
    .FindEntryW = stub<"FindEntryW">,
};
// clang-format on

} // namespace NRDM

#include "easel/document/Switches.h"

#include <iterator>

namespace easel {

std::span<const SwitchName> switchNames() noexcept {
    static constexpr SwitchName kNames[] = {
        {"duplicatesKeepLocks", &Switches::duplicatesKeepLocks},
        {"duplicatesKeepSelection", &Switches::duplicatesKeepSelection},
        {"layerSetHasOwnGroup", &Switches::layerSetHasOwnGroup},
        {"sublayerGroupHasParent", &Switches::sublayerGroupHasParent},
        {"undoRestoresStamps", &Switches::undoRestoresStamps},
        {"stampsCoverDescendants", &Switches::stampsCoverDescendants},
        {"lockingStamps", &Switches::lockingStamps},
        {"movingStamps", &Switches::movingStamps},
        {"ownContextsNest", &Switches::ownContextsNest},
        {"notificationsComeSoon", &Switches::notificationsComeSoon},
        {"lockedMembersGoAlong", &Switches::lockedMembersGoAlong},
        {"transformReachesMembers", &Switches::transformReachesMembers},
        {"disposeRefusesLocked", &Switches::disposeRefusesLocked},
        {"absentPreferenceSucceeds", &Switches::absentPreferenceSucceeds},
        {"missIsHitObject", &Switches::missIsHitObject},
        {"wrongEntryTypeHasOwnCode", &Switches::wrongEntryTypeHasOwnCode},
        {"snapPointByReference", &Switches::snapPointByReference},
        {"silentFollowsStep", &Switches::silentFollowsStep},
        {"countIs64Bits", &Switches::countIs64Bits},
        {"lockingDeselects", &Switches::lockingDeselects},
        {"membersShareStyle", &Switches::membersShareStyle},
        {"selectingLockedFails", &Switches::selectingLockedFails},
        {"dictionaryHasPointerSlots", &Switches::dictionaryHasPointerSlots},
        {"entryStringsLast", &Switches::entryStringsLast},
    };
    static_assert(sizeof(Switches) == std::size(kNames) * sizeof(bool), "one of them has no name");
    return kNames;
}

} // namespace easel

#include "symmetry/ArtTree.h"

#include "host/Art.h"
#include "host/Error.h"
#include "host/Suites.h"
#include "host/suites/AIArtSuite.h"
#include "host/suites/AIGroupSuite.h"
#include "host/suites/AILayerSuite.h"
#include "host/suites/AIPathSuite.h"
#include "host/suites/AIPluginGroupSuite.h"

#include <algorithm>

namespace facetta {
namespace {

std::vector<AIArtHandle> membersOf(AIArtHandle art) {
    const ai::int16 type = typeOf(art);
    if (type == kGroupArt || type == kCompoundPathArt) return childrenOf(art);
    return type == kPluginArt ? partsOfPluginGroup(art) : std::vector<AIArtHandle>{};
}

} // namespace

AIArtHandle parentOf(AIArtHandle art) {
    AIArtHandle parent = nullptr;
    ai::check(ai::suites.art->GetArtParent(art, &parent));
    return parent;
}

ai::int16 typeOf(AIArtHandle art) {
    ai::int16 type = kUnknownArt;
    ai::check(ai::suites.art->GetArtType(art, &type));
    return type;
}

ai::int32 attributesOf(AIArtHandle art, ai::int32 mask) {
    ai::int32 attributes = 0;
    ai::check(ai::suites.art->GetArtUserAttr(art, mask, &attributes));
    return attributes;
}

std::uint64_t stampOfArt(AIArtHandle art) {
    std::size_t stamp = 0;
    ai::check(ai::suites.art->GetArtTimeStamp(art, &stamp));
    return stamp;
}

std::vector<AIArtHandle> childrenOf(AIArtHandle art) {
    std::vector<AIArtHandle> children;
    AIArtHandle child = nullptr;
    ai::check(ai::suites.art->GetArtFirstChild(art, &child));
    while (child != nullptr) {
        children.push_back(child);
        AIArtHandle behind = nullptr;
        ai::check(ai::suites.art->GetArtSibling(child, &behind));
        child = behind;
    }
    return children;
}

std::vector<AIArtHandle> partsOfPluginGroup(AIArtHandle group) {
    AIArtHandle edit = nullptr;
    AIArtHandle result = nullptr;
    ai::check(ai::suites.pluginGroup->GetPluginArtEditArt(group, &edit));
    ai::check(ai::suites.pluginGroup->GetPluginArtResultArt(group, &result));
    std::vector<AIArtHandle> parts{edit, result};
    std::erase(parts, nullptr);
    return parts;
}

std::vector<AIArtHandle> artInside(AIArtHandle container) {
    std::vector<AIArtHandle> inside;
    std::vector<AIArtHandle> toVisit = membersOf(container); // a stack: groups nest at any depth
    std::ranges::reverse(toVisit);
    while (!toVisit.empty()) {
        const AIArtHandle art = toVisit.back();
        toVisit.pop_back();
        inside.push_back(art);
        const std::vector<AIArtHandle> members = membersOf(art);
        toVisit.insert(toVisit.end(), members.rbegin(), members.rend());
    }
    return inside;
}

std::vector<AIArtHandle> pathsInside(AIArtHandle compound) {
    std::vector<AIArtHandle> paths = artInside(compound);
    std::erase_if(paths, [](AIArtHandle art) { return typeOf(art) != kPathArt; });
    return paths;
}

bool isLayerGroup(AIArtHandle group) {
    AIBoolean belongsToLayer = false;
    ai::check(ai::suites.art->IsArtLayerGroup(group, &belongsToLayer));
    return belongsToLayer != 0;
}

bool isClipGroup(AIArtHandle group) {
    AIBoolean clipped = false;
    ai::check(ai::suites.group->GetGroupClipped(group, &clipped));
    if (!clipped) return false;
    const std::vector<AIArtHandle> members = childrenOf(group);
    return std::ranges::any_of(
        members, [](AIArtHandle member) { return attributesOf(member, kArtIsClipMask) != 0; });
}

bool isGuide(AIArtHandle path) {
    AIBoolean guide = false;
    ai::check(ai::suites.path->GetPathGuide(path, &guide));
    return guide != 0;
}

bool isLayerBlocked(AILayerHandle layer) {
    while (layer != nullptr) {
        AIBoolean visible = false;
        AIBoolean editable = false;
        ai::check(ai::suites.layer->GetLayerVisible(layer, &visible));
        ai::check(ai::suites.layer->GetLayerEditable(layer, &editable));
        if (!visible || !editable) return true;
        AILayerHandle parent = nullptr;
        ai::check(ai::suites.layer->GetLayerParent(layer, &parent));
        layer = parent;
    }
    return false;
}

} // namespace facetta

#include "symmetry/WorkSet.h"

#include "host/Art.h"
#include "host/Error.h"
#include "host/suites/AIArtSuite.h"
#include "host/suites/AISymbolSuite.h"
#include "symmetry/AllChangesAllowed.h"
#include "symmetry/ArtList.h"
#include "symmetry/ArtTree.h"
#include "symmetry/MirrorTag.h"
#include "symmetry/Unlocked.h"

#include <algorithm>
#include <unordered_map>
#include <unordered_set>

namespace facetta {
namespace {

/// What an object inherits from the containers around it.
struct Inherited {
    bool blocked = false;       ///< One of them is locked or hidden.
    bool generated = false;     ///< One of them is a copy of an earlier run.
    AIArtHandle unit = nullptr; ///< The outermost that is mirrored as one.
};

bool isPlainGroup(AIArtHandle art, ai::int16 type) {
    return type == kGroupArt && (isLayerGroup(art) || !isClipGroup(art));
}

/// Whether the object itself is locked or hidden, or the layer whose group it is. Layers are asked
/// for all that contain them: a host may give the group of a sublayer no parent.
bool isBlocked(AIArtHandle container, ai::int16 type) {
    if (attributesOf(container, kArtLocked | kArtHidden) != 0) return true;
    if (type != kGroupArt || !isLayerGroup(container)) return false;
    AILayerHandle layer = nullptr;
    ai::check(ai::suites.art->GetLayerOfArt(container, &layer));
    return isLayerBlocked(layer);
}

/// A layer is nobody's copy, whatever a drawing says of its group: it cannot be made anew.
bool canBeCopy(AIArtHandle art, ai::int16 type) { return type != kGroupArt || !isLayerGroup(art); }

/// Answers what surrounds an object, asking the host about each container once.
class Containers {
public:
    explicit Containers(const MarkKeys& keys) : keys_(keys) {}

    [[nodiscard]] const Inherited& around(AIArtHandle art) {
        const AIArtHandle parent = parentOf(art);
        if (lastAnswer_ == nullptr || parent != lastParent_) {
            lastAnswer_ = &inside(parent);
            lastParent_ = parent;
        }
        return *lastAnswer_;
    }

    /// A host may give the parts of a plug-in group no parent.
    void enterPluginGroup(AIArtHandle group, const Inherited& around) {
        Inherited within = around;
        if (within.unit == nullptr) within.unit = group;
        for (const AIArtHandle part : partsOfPluginGroup(group))
            known_.insert_or_assign(part, within);
    }

private:
    /// References stay good: a map of nodes moves none of them.
    const Inherited& inside(AIArtHandle container) {
        std::vector<AIArtHandle> unknown;
        auto found = known_.find(container);
        while (found == known_.end() && container != nullptr) {
            unknown.push_back(container);
            container = parentOf(container);
            found = known_.find(container);
        }
        const Inherited* answer = found != known_.end() ? &found->second : &known_[nullptr];
        for (auto inner = unknown.rbegin(); inner != unknown.rend(); ++inner)
            answer = &(known_[*inner] = entered(*answer, *inner));
        return *answer;
    }

    Inherited entered(Inherited around, AIArtHandle container) const {
        const ai::int16 type = typeOf(container);
        around.blocked = around.blocked || isBlocked(container, type);
        around.generated =
            around.generated ||
            (marksOf(container, keys_).mirror == MirrorTag::kCopy && canBeCopy(container, type));
        if (around.unit == nullptr && !isPlainGroup(container, type)) around.unit = container;
        return around;
    }

    MarkKeys keys_;
    std::unordered_map<AIArtHandle, Inherited> known_;
    AIArtHandle lastParent_ = nullptr;
    const Inherited* lastAnswer_ = nullptr;
};

bool isGuideUnit(AIArtHandle art, ai::int16 type) {
    if (type == kPathArt) return isGuide(art);
    if (type != kCompoundPathArt) return false;
    AIArtHandle first = nullptr;
    ai::check(ai::suites.art->GetArtFirstChild(art, &first));
    return first != nullptr && typeOf(first) == kPathArt && isGuide(first);
}

/// An instance whose definition belongs to another document cannot be copied in this one.
bool isForeignSymbol(AIArtHandle art, ai::int16 type) {
    if (type != kSymbolArt) return false;
    AIPatternHandle definition = nullptr;
    const AIErr error = ai::suites.symbol->GetSymbolPatternOfSymbolArt(art, &definition);
    if (error == kSymbolNotInCurrentDocument) return true;
    ai::check(error);
    return false;
}

UnitKind kindOf(ai::int16 type) {
    switch (type) {
    case kPathArt:
        return UnitKind::Path;
    case kCompoundPathArt:
        return UnitKind::CompoundPath;
    case kGroupArt:
        return UnitKind::ClipGroup; // a plain group is no unit
    case kPluginArt:
        return UnitKind::PluginGroup;
    default:
        return UnitKind::Whole;
    }
}

/// Turns a list of art, containers before their members, into units.
class UnitCollector {
public:
    enum class Copies { AreArt, AreLeftOut };
    enum class Found { Unit, Copy, Nothing };

    explicit UnitCollector(Copies copies) : copies_(copies) {}

    Found examine(AIArtHandle art) {
        const Inherited& around = containers_.around(art);
        if (around.generated && copies_ != Copies::AreArt)
            return Found::Nothing; // goes with its container
        const ArtMarks marks = marksOf(art, keys_);
        if (copies_ != Copies::AreArt && marks.mirror == MirrorTag::kCopy)
            if (const ai::int16 type = typeOf(art); canBeCopy(art, type)) {
                generated_.push_back({art, type});
                copyInUnit_ = copyInUnit_ || around.unit != nullptr;
                return Found::Copy;
            }
        const std::size_t before = units_.size();
        if (around.unit == nullptr)
            consider(art, marks, around);
        else if (!seen_.contains(around.unit))
            consider(around.unit, marksOf(around.unit, keys_), containers_.around(around.unit));
        return units_.size() > before ? Found::Unit : Found::Nothing;
    }

    [[nodiscard]] const Unit& lastUnit() const { return units_.back(); }
    void dropLastUnit() { units_.pop_back(); }

    /// Deletes the copies that were found; unlocking comes first, whether or not the host asks for
    /// it.
    void deleteCopies() {
        if (generated_.empty()) return;
        const AllChangesAllowed evenInLockedGroups;
        for (auto copy = generated_.rbegin(); copy != generated_.rend(); ++copy) {
            unlockAll(copy->art, copy->type);
            ai::check(ai::suites.art->DisposeArt(copy->art));
        }
        generated_.clear();
    }

    /// Whether a unit may be another without what was deleted: a clip group without its mask is a
    /// plain one.
    [[nodiscard]] bool foundCopyInUnit() const { return copyInUnit_; }

    [[nodiscard]] std::vector<Unit> takeUnits() { return std::move(units_); }
    [[nodiscard]] std::vector<AIArtHandle> copies() const {
        std::vector<AIArtHandle> art;
        for (const Copy& copy : generated_)
            art.push_back(copy.art);
        return art;
    }

private:
    struct Copy {
        AIArtHandle art;
        ai::int16 type; ///< Asked for once: there may be many.
    };

    void consider(AIArtHandle art, const ArtMarks& marks, const Inherited& around) {
        const ai::int16 type = typeOf(art);
        // What has members is met again with each of them.
        if (type != kPathArt && !seen_.insert(art).second) return;
        if (type == kPluginArt) containers_.enterPluginGroup(art, around);
        if (around.blocked || isPlainGroup(art, type)) return;
        const ai::int32 state =
            attributesOf(art, kArtLocked | kArtHidden | kArtSelected | kArtFullySelected);
        if ((state & (kArtLocked | kArtHidden)) != 0) return;
        if (isGuideUnit(art, type) || isForeignSymbol(art, type)) return;
        units_.push_back({art, kindOf(type), state, marks});
    }

    Copies copies_;
    MarkKeys keys_ = markKeys();
    Containers containers_{keys_};
    std::unordered_set<AIArtHandle> seen_;
    std::vector<Copy> generated_; ///< the copies found, unless they are art
    bool copyInUnit_ = false;     ///< one of them inside a unit
    std::vector<Unit> units_;
};

UnitCollector collect(std::span<const AIArtHandle> art, UnitCollector::Copies copies) {
    UnitCollector collector{copies};
    for (const AIArtHandle object : art)
        collector.examine(object);
    return collector;
}

/// Deletes the copies that `collector` has found on `layer`.
std::vector<Unit> sourcesWithoutCopies(AILayerHandle layer, UnitCollector collector) {
    collector.deleteCopies();
    return collector.foundCopyInUnit() ? deleteCopiesAndListSources(layer) : collector.takeUnits();
}

} // namespace

std::vector<Unit> unitsOfSelection() {
    return collect(selectedArt(), UnitCollector::Copies::AreArt).takeUnits();
}

std::vector<Unit> deleteCopiesAndListSources(AILayerHandle layer) {
    return sourcesWithoutCopies(layer,
                                collect(artOnLayer(layer), UnitCollector::Copies::AreLeftOut));
}

std::vector<Unit> deleteCopiesAndListSources(AILayerHandle layer, const PassOver& passOver) {
    const std::vector<AIArtHandle> art = artOnLayer(layer);
    UnitCollector collector{UnitCollector::Copies::AreLeftOut};
    // A source without a copy behind it: those behind the next source may be its own.
    bool lacksCopies = false;
    for (std::span<const AIArtHandle> rest{art}; !rest.empty();) {
        const AIArtHandle each = rest.front();
        rest = rest.subspan(1);
        const UnitCollector::Found found = collector.examine(each);
        if (found == UnitCollector::Found::Copy) lacksCopies = false;
        if (found != UnitCollector::Found::Unit) continue;
        std::optional<std::size_t> passedOver;
        if (!lacksCopies && collector.lastUnit().art == each)
            passedOver = passOver(collector.lastUnit(), rest);
        lacksCopies = !passedOver;
        if (!passedOver) continue;
        collector.dropLastUnit();
        rest = rest.subspan(*passedOver);
    }
    return sourcesWithoutCopies(layer, std::move(collector));
}

std::vector<Unit> sourcesOnLayer(AILayerHandle layer) { return contentsOfLayer(layer).sources; }

LayerContents contentsOfLayer(AILayerHandle layer) {
    UnitCollector collector = collect(artOnLayer(layer), UnitCollector::Copies::AreLeftOut);
    return {collector.takeUnits(), collector.copies()};
}

} // namespace facetta

#include "symmetry/LayerAxesStore.h"

#include "host/Art.h"
#include "host/Error.h"
#include "host/Lent.h"
#include "host/suites/AIArtSuite.h"
#include "host/suites/AILayerSuite.h"
#include "symmetry/AllChangesAllowed.h"
#include "symmetry/ArtList.h"
#include "symmetry/ArtMarks.h"
#include "symmetry/LayerStamp.h"
#include "symmetry/MirrorTag.h"
#include "symmetry/RealText.h"

#include <algorithm>
#include <string>

namespace facetta {
namespace {

/// The keys of the entry, in the order in which they are written.
namespace key {
constexpr const char* kAxes = "FacettaFT";
constexpr const char* kOriginX = "cx";
constexpr const char* kOriginY = "cy";
constexpr const char* kAngle = "aa";
constexpr const char* kAxisCount = "ac";
constexpr const char* kAutoMirror = "au";
constexpr const char* kVersion = "ve";
constexpr const char* kStamp = "ts";
} // namespace key

constexpr ai::int32 kFormatVersion = 1;

AIDictKey keyOf(const char* name) { return ai::suites.dictionary->Key(name); }

AILayerHandle layerOrCurrent(AILayerHandle layer) {
    return layer != nullptr ? layer : currentLayer();
}

/// The dictionary of the group art of exactly this layer.
ai::Dictionary groupArtDictionary(AILayerHandle layer) { return dictionaryOf(groupArtOf(layer)); }

/// The axes entry among the entries of a group art; empty when there is none. Entries and not typed
/// getters, whose slots differ between generations of the host.
ai::Dictionary axesEntryIn(const ai::Dictionary& entries) {
    ai::Dictionary axes;
    if (!entries || !ai::suites.dictionary->IsKnown(entries.get(), keyOf(key::kAxes))) return axes;
    AIDictionaryRef found = nullptr;
    const AIErr error = ai::suites.entry->ToDict(
        ai::suites.dictionary->Get(entries.get(), keyOf(key::kAxes)), &found);
    return wasRead(error) ? ai::Dictionary{found} : ai::Dictionary{};
}

double readReal(const ai::Dictionary& axes, const char* name) {
    if (!ai::suites.dictionary->IsKnown(axes.get(), keyOf(name))) return 0.0;
    const char* text = nullptr;
    const AIErr error =
        ai::suites.entry->ToString(ai::suites.dictionary->Get(axes.get(), keyOf(name)), &text);
    return wasRead(error) && text != nullptr ? parseReal(text) : 0.0;
}

ai::int32 readInteger(const ai::Dictionary& axes, const char* name, ai::int32 otherwise) {
    ai::int32 value = otherwise;
    return wasRead(ai::suites.dictionary->GetIntegerEntry(axes.get(), keyOf(name), &value))
               ? value
               : otherwise;
}

bool readBoolean(const ai::Dictionary& axes, const char* name, bool otherwise) {
    AIBoolean value = otherwise;
    return wasRead(ai::suites.dictionary->GetBooleanEntry(axes.get(), keyOf(name), &value))
               ? value != 0
               : otherwise;
}

void readAxes(const ai::Dictionary& axes, SymmetryAxes& out) {
    out.originX = readReal(axes, key::kOriginX);
    out.originY = readReal(axes, key::kOriginY);
    out.angle = readReal(axes, key::kAngle);
    out.axisCount =
        std::clamp(readInteger(axes, key::kAxisCount, kFewestAxes), kFewestAxes, kMostAxes);
    out.autoMirror = readBoolean(axes, key::kAutoMirror, true);
    out.onLayer = true;
}

void writeReal(const ai::Dictionary& axes, const char* name, double value) {
    ai::check(ai::suites.dictionary->Set(axes.get(), keyOf(name),
                                         ai::suites.entry->FromString(realText(value).c_str())));
}

void writeInteger(const ai::Dictionary& axes, const char* name, ai::int32 value) {
    ai::check(ai::suites.dictionary->SetIntegerEntry(axes.get(), keyOf(name), value));
}

void storeAxesEntry(const ai::Dictionary& entries, const ai::Dictionary& axes) {
    ai::check(ai::suites.dictionary->Set(entries.get(), keyOf(key::kAxes),
                                         ai::suites.entry->FromDict(axes.get())));
}

void deleteAxesEntry(const ai::Dictionary& entries) {
    if (entries && ai::suites.dictionary->IsKnown(entries.get(), keyOf(key::kAxes)))
        ai::check(ai::suites.dictionary->DeleteEntry(entries.get(), keyOf(key::kAxes)));
}

/// Turns the copies on `layer` into ordinary art.
void releaseCopies(AILayerHandle layer) {
    const AllChangesAllowed evenInLockedGroups;
    for (const AIArtHandle art : artOnLayer(layer))
        if (MirrorTag::clear(art)) ai::check(ai::suites.art->SetArtUserAttr(art, kArtLocked, 0));
}

} // namespace

AILayerHandle currentLayer() {
    AILayerHandle layer = nullptr;
    const AIErr error = ai::suites.layer->GetCurrentLayer(&layer);
    if (error == kNoDocumentErr) return nullptr; // no document is a missing layer, not a failure
    ai::check(error);
    return layer;
}

AILayerHandle topLevelLayer(AILayerHandle layer) {
    AILayerHandle top = layerOrCurrent(layer);
    for (AILayerHandle parent = top; parent != nullptr;) {
        top = parent;
        parent = nullptr;
        ai::check(ai::suites.layer->GetLayerParent(top, &parent));
    }
    return top;
}

std::vector<AILayerHandle> topLevelLayers() {
    ai::int32 count = 0;
    ai::check(ai::suites.layer->CountLayers(&count));
    std::vector<AILayerHandle> layers;
    for (ai::int32 i = 0; i < count; ++i) {
        AILayerHandle layer = nullptr;
        ai::check(ai::suites.layer->GetNthLayer(i, &layer));
        if (layer != nullptr) layers.push_back(layer);
    }
    return layers;
}

AIArtHandle groupArtOf(AILayerHandle layer) {
    const AILayerHandle existing = layerOrCurrent(layer);
    AIArtHandle group = nullptr;
    if (existing != nullptr) ai::check(ai::suites.art->GetFirstArtOfLayer(existing, &group));
    return group;
}

bool LayerAxesStore::read(AILayerHandle layer, SymmetryAxes& out) {
    out.axisCount = 0;
    const ai::Dictionary axes = axesEntryIn(groupArtDictionary(topLevelLayer(layer)));
    if (!axes) return false;
    readAxes(axes, out);
    return true;
}

std::optional<LayerAxesStore::LiveAxes> LayerAxesStore::readLive(AILayerHandle layer) {
    const ai::Dictionary axes = axesEntryIn(groupArtDictionary(topLevelLayer(layer)));
    if (!axes) return std::nullopt;
    LiveAxes live;
    readAxes(axes, live.axes);
    if (!live.axes.autoMirror) return std::nullopt;
    live.stamp = readInteger(axes, key::kStamp, 0);
    return live;
}

void LayerAxesStore::write(const SymmetryAxes& axes) {
    const ai::Dictionary entries = groupArtDictionary(topLevelLayer(nullptr));
    if (!entries) return;
    ai::Dictionary entry;
    ai::checkLent(ai::suites.dictionary->CreateDictionary(entry.put()), entry);
    writeReal(entry, key::kOriginX, axes.originX);
    writeReal(entry, key::kOriginY, axes.originY);
    writeReal(entry, key::kAngle, axes.angle);
    writeInteger(entry, key::kAxisCount, axes.axisCount);
    ai::check(ai::suites.dictionary->SetBooleanEntry(entry.get(), keyOf(key::kAutoMirror),
                                                     axes.autoMirror));
    writeInteger(entry, key::kVersion, kFormatVersion);
    deleteAxesEntry(entries);
    storeAxesEntry(entries, entry);
}

bool LayerAxesStore::hasAxes(AILayerHandle layer) {
    const ai::Dictionary entries = groupArtDictionary(layer);
    return entries && ai::suites.dictionary->IsKnown(entries.get(), keyOf(key::kAxes));
}

void LayerAxesStore::remove(AILayerHandle layer, bool resolveTopLevel) {
    const AILayerHandle existing = layerOrCurrent(layer);
    if (existing == nullptr) return;
    deleteAxesEntry(groupArtDictionary(resolveTopLevel ? topLevelLayer(existing) : existing));
    releaseCopies(existing);
}

void LayerAxesStore::stamp(AILayerHandle layer) {
    const AILayerHandle top = topLevelLayer(layer);
    if (top != nullptr) stamp(top, readLayerStamp(top, StampReach::Unknown).stored());
}

void LayerAxesStore::stamp(AILayerHandle layer, ai::int32 stamp) {
    const AILayerHandle top = topLevelLayer(layer);
    const ai::Dictionary entries = groupArtDictionary(top);
    const ai::Dictionary axes = axesEntryIn(entries);
    if (!axes) return;
    writeInteger(axes, key::kStamp, stamp);
    storeAxesEntry(entries, axes); // the host may have lent a copy of the entry
}

ai::int32 LayerAxesStore::stampOf(AILayerHandle layer) {
    const ai::Dictionary axes = axesEntryIn(groupArtDictionary(topLevelLayer(layer)));
    return axes ? readInteger(axes, key::kStamp, 0) : 0;
}

} // namespace facetta

#pragma once

#include "host/Art.h"
#include "host/Handles.h"
#include "host/SuiteId.h"
#include "host/Types.h"

inline constexpr char kAIArtSetSuite[] = "AI Art Set Suite";
inline constexpr ai::int32 kAIArtSetSuiteVersion = 7;

/// Ordered lists of art that are not part of the document.
struct AIArtSetSuite {
    /// An empty set, to be given back with `DisposeArtSet`.
    AIErr (*NewArtSet)(AIArtSet* set);
    /// Takes the address of the handle and nulls it; the art stays.
    AIErr (*DisposeArtSet)(AIArtSet* set);
    /// Some hosts write the low 32 bits only: preset `count` with 0.
    AIErr (*CountArtSet)(AIArtSet set, std::size_t* count);
    /// From 0; null entries are possible.
    AIErr (*IndexArtSet)(AIArtSet set, std::size_t index, AIArtHandle* art);
    AIErr (*ArrayArtSet)(AIArtSet, AIArtHandle*, std::size_t);
    /// Replaces the content by all selected art: groups that are selected in part, and their
    /// members.
    AIErr (*SelectedArtSet)(AIArtSet set);
    /// Replaces the content by the art that matches any of the specs, in the order of painting.
    AIErr (*MatchingArtSet)(AIArtSpec* specs, ai::int16 count, AIArtSet set);
    /// Replaces the content by the layer's art, sublayers' too; its own group may be among it.
    AIErr (*LayerArtSet)(AILayerHandle layer, AIArtSet set);
    ReservedSlot NotArtSet;
    AIErr (*UnionArtSet)(AIArtSet, AIArtSet, AIArtSet);
    /// Replaces the content of the third by the art that is in both of the others.
    AIErr (*IntersectArtSet)(AIArtSet one, AIArtSet other, AIArtSet both);
    AIErr (*NextInArtSet)(AIArtSet, AIArtHandle, AIArtHandle*);
    /// Once only.
    AIErr (*AddArtToArtSet)(AIArtSet set, AIArtHandle art);
    AIErr (*RemoveArtFromArtSet)(AIArtSet, AIArtHandle);
    AIErr (*ReplaceArtInArtSet)(AIArtSet, AIArtHandle, AIArtHandle);
};

template <>
struct ai::SuiteId<AIArtSetSuite> : ai::SuiteIdentity<kAIArtSetSuite, kAIArtSetSuiteVersion> {};

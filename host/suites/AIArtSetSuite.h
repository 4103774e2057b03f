#pragma once

#include "host/Art.h"
#include "host/Handles.h"
#include "host/Types.h"

inline constexpr char kAIArtSetSuite[] = "AI Art Set Suite";
inline constexpr ai::int32 kAIArtSetSuiteVersion = 7;

/// Ordered lists of art that are not part of the document.
struct AIArtSetSuite {
    AIErr (*NewArtSet)(AIArtSet*);
    AIErr (*DisposeArtSet)(AIArtSet*);
    AIErr (*CountArtSet)(AIArtSet, std::size_t*);
    AIErr (*IndexArtSet)(AIArtSet, std::size_t, AIArtHandle*);
    AIErr (*ArrayArtSet)(AIArtSet, AIArtHandle*, std::size_t);
    AIErr (*SelectedArtSet)(AIArtSet);
    AIErr (*MatchingArtSet)(AIArtSpec*, ai::int16, AIArtSet);
    AIErr (*LayerArtSet)(AILayerHandle, AIArtSet);
    AIErr (*NotArtSet)(AIArtSet, AIArtSet);
    AIErr (*UnionArtSet)(AIArtSet, AIArtSet, AIArtSet);
    AIErr (*IntersectArtSet)(AIArtSet, AIArtSet, AIArtSet);
    AIErr (*NextInArtSet)(AIArtSet, AIArtHandle, AIArtHandle*);
    AIErr (*AddArtToArtSet)(AIArtSet, AIArtHandle);
    AIErr (*RemoveArtFromArtSet)(AIArtSet, AIArtHandle);
    AIErr (*ReplaceArtInArtSet)(AIArtSet, AIArtHandle, AIArtHandle);
};

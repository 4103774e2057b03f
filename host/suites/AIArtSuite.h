#pragma once

#include "host/Handles.h"
#include "host/SuiteId.h"
#include "host/Types.h"

inline constexpr char kAIArtSuite[] = "AI Art Suite";
inline constexpr ai::int32 kAIArtSuiteVersion = 16;

/// Objects of the art tree: life, place, attributes, bounds, dictionary, time stamp.
struct AIArtSuite {
    /// Unlocked, visible and with the document's initial style; `prep` is what `order` refers to.
    AIErr (*NewArt)(ai::int16 type, ai::int16 order, AIArtHandle prep, AIArtHandle* art);
    /// With all descendants. What is locked has to be unlocked before.
    AIErr (*DisposeArt)(AIArtHandle art);
    AIErr (*ReorderArt)(AIArtHandle, ai::int16, AIArtHandle);
    /// A deep copy at the same coordinates, dictionaries included.
    AIErr (*DuplicateArt)(AIArtHandle art, ai::int16 order, AIArtHandle prep, AIArtHandle* copy);
    /// The group of all art on the layer; null layer: the current one.
    AIErr (*GetFirstArtOfLayer)(AILayerHandle layer, AIArtHandle* group);
    /// The innermost; null for art in dictionaries.
    AIErr (*GetLayerOfArt)(AIArtHandle art, AILayerHandle* layer);
    AIErr (*GetArtType)(AIArtHandle art, ai::int16* type);
    /// Only the bits of `which` are told.
    AIErr (*GetArtUserAttr)(AIArtHandle art, ai::int32 which, ai::int32* attributes);
    /// Sets the bits of `which` to those of `attributes`.
    AIErr (*SetArtUserAttr)(AIArtHandle art, ai::int32 which, ai::int32 attributes);
    /// Null for the group of a top-level layer.
    AIErr (*GetArtParent)(AIArtHandle art, AIArtHandle* parent);
    /// The one in front; null for a leaf or an empty container.
    AIErr (*GetArtFirstChild)(AIArtHandle art, AIArtHandle* child);
    /// The next one behind; null after the last.
    AIErr (*GetArtSibling)(AIArtHandle art, AIArtHandle* sibling);
    AIErr (*GetArtPriorSibling)(AIArtHandle, AIArtHandle*);
    /// As seen, without guides; `top` is above `bottom`.
    AIErr (*GetArtBounds)(AIArtHandle art, AIRealRect* bounds);
    AIErr (*SetArtBounds)(AIArtHandle);
    AIErr (*GetArtCenterPointVisible)(AIArtHandle, AIBoolean*);
    AIErr (*SetArtCenterPointVisible)(AIArtHandle, AIBoolean);
    /// Bounds after `matrix`, which may be null; the flags say of what.
    AIErr (*GetArtTransformBounds)(AIArtHandle art, AIRealMatrix* matrix, ai::int32 flags,
                                   AIRealRect* bounds);
    ReservedSlot UpdateArtworkLink;
    /// Is the handle still good? The one call that takes dead ones.
    AIBoolean (*ValidArt)(AIArtHandle art, AIBoolean allLists);
    AIErr (*GetArtOrder)(AIArtHandle, AIArtHandle, ai::int16*);
    ReservedSlot SelectNamedArtOfLayer;
    AIErr (*GetArtRotatedBounds)(AIArtHandle, AIReal, ai::int32, AIRealRect*);
    AIBoolean (*ArtHasFill)(AIArtHandle);
    AIBoolean (*ArtHasStroke)(AIArtHandle);
    AIBoolean (*ArtsHaveEqualPaths)(AIArtHandle, AIArtHandle);
    ReservedSlot ArtCopyFillStyleIfEqualPaths, ArtCopyStrokeStyleIfEqualPaths;
    /// Where a drawing tool would put new art; `editable` may be null.
    AIErr (*GetInsertionPoint)(AIArtHandle* art, ai::int16* order, AIBoolean* editable);
    AIErr (*SetInsertionPoint)(AIArtHandle);
    AIErr (*GetKeyArt)(AIArtHandle*);
    AIErr (*CancelKeyArt)();
    /// To be released by the caller. Made when there is none.
    AIErr (*GetDictionary)(AIArtHandle art, AIDictionaryRef* dictionary);
    AIErr (*SetArtName)(AIArtHandle, const ai::UnicodeString&);
    AIErr (*GetArtName)(AIArtHandle, ai::UnicodeString&, AIBoolean*);
    /// True for the group of a layer or sublayer.
    AIErr (*IsArtLayerGroup)(AIArtHandle art, AIBoolean* answer);
    ReservedSlot ReleaseToLayers;
    AIErr (*ModifyTargetedArtSet)(AIArtHandle*, ai::int32, ai::int32);
    AIBoolean (*IsArtStyledArt)(AIArtHandle);
    AIBoolean (*IsArtClipping)(AIArtHandle);
    /// Style, opacity mask, name and the like; neither geometry nor selection nor dictionary.
    AIErr (*TransferAttributes)(AIArtHandle source, AIArtHandle destination, ai::uint32 which);
    AIErr (*GetArtLastChild)(AIArtHandle, AIArtHandle*);
    ReservedSlot SetArtTextWrapProperty, GetArtTextWrapProperty, CreateCopyScope, DestroyCopyScope;
    AIErr (*InsertionPointBadForArtType)(ai::int16, AIArtHandle, ai::int16);
    AIErr (*PreinsertionFlightCheck)(AIArtHandle, ai::int16, AIArtHandle);
    AIErr (*SetNote)(AIArtHandle art, const ai::UnicodeString& text);
    /// Empty when there is none.
    AIErr (*GetNote)(AIArtHandle art, ai::UnicodeString& text);
    AIBoolean (*HasNote)(AIArtHandle art);
    void (*DeleteNote)(AIArtHandle);
    ReservedSlot GetArtXMPSize, GetArtXMP, SetArtXMP;
    AIErr (*GetPreciseArtTransformBounds)(AIArtHandle, AIRealMatrix*, ai::int32, AIDoubleRect*);
    AIErr (*UncheckedDisposeArt)(AIArtHandle);
    AIErr (*ArtIsGraph)(AIArtHandle, AIBoolean*);
    ReservedSlot SetKeyArt;
    AIErr (*GetDrawingMode)(ai::int32*);
    ReservedSlot SetDrawingMode;
    AIErr (*GetInsertionPointForDrawingMode)(ai::int32, AIArtHandle*, ai::int16*, AIBoolean*);
    AIErr (*GetInsertionPointForCurrentDrawingMode)(AIArtHandle*, ai::int16*, AIBoolean*);
    ReservedSlot GetPathPolarity;
    AIBoolean (*IsPixelPerfect)(AIArtHandle);
    ReservedSlot SetPixelPerfect, ObjectsAreEquivalent;
    AIErr (*IsArtALayerInSymbol)(AIArtHandle, AIBoolean*);
    /// Grows with each edit of the art, in this run of the host. Entries of dictionaries are none.
    AIErr (*GetArtTimeStamp)(AIArtHandle art, std::size_t* stamp);
};

template <> struct ai::SuiteId<AIArtSuite> : ai::SuiteIdentity<kAIArtSuite, kAIArtSuiteVersion> {};

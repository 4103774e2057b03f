#pragma once

#include "host/Handles.h"
#include "host/Types.h"

inline constexpr char kAIArtSuite[] = "AI Art Suite";
inline constexpr ai::int32 kAIArtSuiteVersion = 16;

/// Objects of the art tree: life, place, attributes, bounds, dictionary, time stamp.
struct AIArtSuite {
    AIErr (*NewArt)(ai::int16, ai::int16, AIArtHandle, AIArtHandle*);
    AIErr (*DisposeArt)(AIArtHandle);
    AIErr (*ReorderArt)(AIArtHandle, ai::int16, AIArtHandle);
    AIErr (*DuplicateArt)(AIArtHandle, ai::int16, AIArtHandle, AIArtHandle*);
    AIErr (*GetFirstArtOfLayer)(AILayerHandle, AIArtHandle*);
    AIErr (*GetLayerOfArt)(AIArtHandle, AILayerHandle*);
    AIErr (*GetArtType)(AIArtHandle, ai::int16*);
    AIErr (*GetArtUserAttr)(AIArtHandle, ai::int32, ai::int32*);
    AIErr (*SetArtUserAttr)(AIArtHandle, ai::int32, ai::int32);
    AIErr (*GetArtParent)(AIArtHandle, AIArtHandle*);
    AIErr (*GetArtFirstChild)(AIArtHandle, AIArtHandle*);
    AIErr (*GetArtSibling)(AIArtHandle, AIArtHandle*);
    AIErr (*GetArtPriorSibling)(AIArtHandle, AIArtHandle*);
    AIErr (*GetArtBounds)(AIArtHandle, AIRealRect*);
    AIErr (*SetArtBounds)(AIArtHandle);
    AIErr (*GetArtCenterPointVisible)(AIArtHandle, AIBoolean*);
    AIErr (*SetArtCenterPointVisible)(AIArtHandle, AIBoolean);
    AIErr (*GetArtTransformBounds)(AIArtHandle, AIRealMatrix*, ai::int32, AIRealRect*);
    AIErr (*UpdateArtworkLink)(AIArtHandle, AIBoolean, AIBoolean*);
    AIBoolean (*ValidArt)(AIArtHandle, AIBoolean);
    AIErr (*GetArtOrder)(AIArtHandle, AIArtHandle, ai::int16*);
    AIErr (*SelectNamedArtOfLayer)(AILayerHandle, const ai::UnicodeString&, AIBoolean, AIBoolean);
    AIErr (*GetArtRotatedBounds)(AIArtHandle, AIReal, ai::int32, AIRealRect*);
    AIBoolean (*ArtHasFill)(AIArtHandle);
    AIBoolean (*ArtHasStroke)(AIArtHandle);
    AIBoolean (*ArtsHaveEqualPaths)(AIArtHandle, AIArtHandle);
    AIErr (*ArtCopyFillStyleIfEqualPaths)(AIArtHandle, AIArtHandle);
    AIErr (*ArtCopyStrokeStyleIfEqualPaths)(AIArtHandle, AIArtHandle);
    AIErr (*GetInsertionPoint)(AIArtHandle*, ai::int16*, AIBoolean*);
    AIErr (*SetInsertionPoint)(AIArtHandle);
    AIErr (*GetKeyArt)(AIArtHandle*);
    AIErr (*CancelKeyArt)();
    AIErr (*GetDictionary)(AIArtHandle, AIDictionaryRef*);
    AIErr (*SetArtName)(AIArtHandle, const ai::UnicodeString&);
    AIErr (*GetArtName)(AIArtHandle, ai::UnicodeString&, AIBoolean*);
    AIErr (*IsArtLayerGroup)(AIArtHandle, AIBoolean*);
    AIErr (*ReleaseToLayers)(AIArtHandle, AIBoolean);
    AIErr (*ModifyTargetedArtSet)(AIArtHandle*, ai::int32, ai::int32);
    AIBoolean (*IsArtStyledArt)(AIArtHandle);
    AIBoolean (*IsArtClipping)(AIArtHandle);
    AIErr (*TransferAttributes)(AIArtHandle, AIArtHandle, ai::uint32);
    AIErr (*GetArtLastChild)(AIArtHandle, AIArtHandle*);
    AIErr (*SetArtTextWrapProperty)(AIArtHandle, AIReal, AIBoolean);
    AIErr (*GetArtTextWrapProperty)(AIArtHandle, AIReal*, AIBoolean*);
    ReservedSlot CreateCopyScope;
    AIErr (*DestroyCopyScope)(AICopyScopeHandle);
    AIErr (*InsertionPointBadForArtType)(ai::int16, AIArtHandle, ai::int16);
    AIErr (*PreinsertionFlightCheck)(AIArtHandle, ai::int16, AIArtHandle);
    AIErr (*SetNote)(AIArtHandle, const ai::UnicodeString&);
    AIErr (*GetNote)(AIArtHandle, ai::UnicodeString&);
    AIBoolean (*HasNote)(AIArtHandle);
    void (*DeleteNote)(AIArtHandle);
    AIErr (*GetArtXMPSize)(AIArtHandle, std::size_t*);
    AIErr (*GetArtXMP)(AIArtHandle, char*, std::size_t);
    AIErr (*SetArtXMP)(AIArtHandle, const char*);
    AIErr (*GetPreciseArtTransformBounds)(AIArtHandle, AIRealMatrix*, ai::int32, AIDoubleRect*);
    AIErr (*UncheckedDisposeArt)(AIArtHandle);
    AIErr (*ArtIsGraph)(AIArtHandle, AIBoolean*);
    AIErr (*SetKeyArt)(AIArtHandle);
    AIErr (*GetDrawingMode)(ai::int32*);
    AIErr (*SetDrawingMode)(ai::int32);
    AIErr (*GetInsertionPointForDrawingMode)(ai::int32, AIArtHandle*, ai::int16*, AIBoolean*);
    AIErr (*GetInsertionPointForCurrentDrawingMode)(AIArtHandle*, ai::int16*, AIBoolean*);
    AIErr (*GetPathPolarity)(AIArtHandle, ai::int32*);
    AIBoolean (*IsPixelPerfect)(AIArtHandle);
    AIErr (*SetPixelPerfect)(AIArtHandle, AIBoolean);
    AIBoolean (*ObjectsAreEquivalent)(AIArtHandle, AIArtHandle);
    AIErr (*IsArtALayerInSymbol)(AIArtHandle, AIBoolean*);
    AIErr (*GetArtTimeStamp)(AIArtHandle, std::size_t*);
};

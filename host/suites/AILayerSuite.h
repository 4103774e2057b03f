#pragma once

#include "host/Handles.h"
#include "host/SuiteId.h"
#include "host/Types.h"

inline constexpr char kAILayerSuite[] = "AI Layer Suite";
inline constexpr ai::int32 kAILayerSuiteVersion = 12;

struct AILayerSuite {
    /// Of top-level layers.
    AIErr (*CountLayers)(ai::int32* count);
    /// Of top-level layers; 0 is on top.
    AIErr (*GetNthLayer)(ai::int32 index, AILayerHandle* layer);
    /// May be a sublayer.
    AIErr (*GetCurrentLayer)(AILayerHandle* layer);
    AIErr (*SetCurrentLayer)(AILayerHandle);
    AIErr (*GetFirstLayer)(AILayerHandle*);
    AIErr (*GetNextLayer)(AILayerHandle, AILayerHandle*);
    AIErr (*InsertLayer)(AILayerHandle, ai::int16, AILayerHandle*);
    AIErr (*DeleteLayer)(AILayerHandle);
    AIErr (*GetLayerTitle)(AILayerHandle, ai::UnicodeString&);
    AIErr (*SetLayerTitle)(AILayerHandle, const ai::UnicodeString&);
    AIErr (*GetLayerColor)(AILayerHandle, AIRGBColor*);
    AIErr (*SetLayerColor)(AILayerHandle, AIRGBColor);
    /// The layer's own: a hidden parent hides it as well.
    AIErr (*GetLayerVisible)(AILayerHandle layer, AIBoolean* visible);
    AIErr (*SetLayerVisible)(AILayerHandle, AIBoolean);
    AIErr (*GetLayerPreview)(AILayerHandle, AIBoolean*);
    AIErr (*SetLayerPreview)(AILayerHandle, AIBoolean);
    /// The layer's own: a locked parent locks it as well.
    AIErr (*GetLayerEditable)(AILayerHandle layer, AIBoolean* editable);
    AIErr (*SetLayerEditable)(AILayerHandle, AIBoolean);
    AIErr (*GetLayerPrinted)(AILayerHandle, AIBoolean*);
    AIErr (*SetLayerPrinted)(AILayerHandle, AIBoolean);
    AIErr (*GetLayerDimPlacedImages)(AILayerHandle, AIBoolean*);
    AIErr (*SetLayerDimPlacedImages)(AILayerHandle, AIBoolean);
    ReservedSlot GetLayerSelected, SetLayerSelected;
    AIErr (*GetLayerByTitle)(AILayerHandle*, const ai::UnicodeString&);
    AIErr (*LayerHasArt)(AILayerHandle, AIBoolean*);
    /// Whether its sublayers' art counts is not known.
    AIErr (*LayerHasSelectedArt)(AILayerHandle layer, AIBoolean* hasSelectedArt);
    AIErr (*DeselectArtOnLayer)(AILayerHandle);
    AIErr (*SelectArtOnLayer)(AILayerHandle);
    AIErr (*GetLayerIsTemplate)(AILayerHandle, AIBoolean*);
    AIErr (*SetLayerIsTemplate)(AILayerHandle, AIBoolean);
    AIErr (*GetPrevLayer)(AILayerHandle, AILayerHandle*);
    AIErr (*GetLayerDimmedPercent)(AILayerHandle, ai::int32*);
    AIErr (*SetLayerDimmedPercent)(AILayerHandle, ai::int32);
    AIErr (*GetLayerFirstChild)(AILayerHandle, AILayerHandle*);
    /// Null for a top-level layer.
    AIErr (*GetLayerParent)(AILayerHandle layer, AILayerHandle* parent);
    AIErr (*InsertLayerAtArt)(AIArtHandle, AIPaintOrder, AILayerHandle*);
    AIErr (*ChangeLayerToGroup)(AILayerHandle, AIArtHandle);
    AIErr (*GetNextPreorderLayer)(AILayerHandle, AILayerHandle*);
    AIErr (*GetNextNonChildPreorderLayer)(AILayerHandle, AILayerHandle*);
};

template <>
struct ai::SuiteId<AILayerSuite> : ai::SuiteIdentity<kAILayerSuite, kAILayerSuiteVersion> {};

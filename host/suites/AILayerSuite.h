#pragma once

#include "host/Handles.h"
#include "host/Types.h"

inline constexpr char kAILayerSuite[] = "AI Layer Suite";
inline constexpr ai::int32 kAILayerSuiteVersion = 12;

struct AILayerSuite {
    AIErr (*CountLayers)(ai::int32*);
    AIErr (*GetNthLayer)(ai::int32, AILayerHandle*);
    AIErr (*GetCurrentLayer)(AILayerHandle*);
    AIErr (*SetCurrentLayer)(AILayerHandle);
    AIErr (*GetFirstLayer)(AILayerHandle*);
    AIErr (*GetNextLayer)(AILayerHandle, AILayerHandle*);
    AIErr (*InsertLayer)(AILayerHandle, ai::int16, AILayerHandle*);
    AIErr (*DeleteLayer)(AILayerHandle);
    AIErr (*GetLayerTitle)(AILayerHandle, ai::UnicodeString&);
    AIErr (*SetLayerTitle)(AILayerHandle, const ai::UnicodeString&);
    AIErr (*GetLayerColor)(AILayerHandle, AIRGBColor*);
    AIErr (*SetLayerColor)(AILayerHandle, AIRGBColor);
    AIErr (*GetLayerVisible)(AILayerHandle, AIBoolean*);
    AIErr (*SetLayerVisible)(AILayerHandle, AIBoolean);
    AIErr (*GetLayerPreview)(AILayerHandle, AIBoolean*);
    AIErr (*SetLayerPreview)(AILayerHandle, AIBoolean);
    AIErr (*GetLayerEditable)(AILayerHandle, AIBoolean*);
    AIErr (*SetLayerEditable)(AILayerHandle, AIBoolean);
    AIErr (*GetLayerPrinted)(AILayerHandle, AIBoolean*);
    AIErr (*SetLayerPrinted)(AILayerHandle, AIBoolean);
    AIErr (*GetLayerDimPlacedImages)(AILayerHandle, AIBoolean*);
    AIErr (*SetLayerDimPlacedImages)(AILayerHandle, AIBoolean);
    AIErr (*GetLayerSelected)(AILayerHandle, AIBoolean*);
    AIErr (*SetLayerSelected)(AILayerHandle, AIBoolean);
    AIErr (*GetLayerByTitle)(AILayerHandle*, const ai::UnicodeString&);
    AIErr (*LayerHasArt)(AILayerHandle, AIBoolean*);
    AIErr (*LayerHasSelectedArt)(AILayerHandle, AIBoolean*);
    AIErr (*DeselectArtOnLayer)(AILayerHandle);
    AIErr (*SelectArtOnLayer)(AILayerHandle);
    AIErr (*GetLayerIsTemplate)(AILayerHandle, AIBoolean*);
    AIErr (*SetLayerIsTemplate)(AILayerHandle, AIBoolean);
    AIErr (*GetPrevLayer)(AILayerHandle, AILayerHandle*);
    AIErr (*GetLayerDimmedPercent)(AILayerHandle, ai::int32*);
    AIErr (*SetLayerDimmedPercent)(AILayerHandle, ai::int32);
    AIErr (*GetLayerFirstChild)(AILayerHandle, AILayerHandle*);
    AIErr (*GetLayerParent)(AILayerHandle, AILayerHandle*);
    AIErr (*InsertLayerAtArt)(AIArtHandle, AIPaintOrder, AILayerHandle*);
    AIErr (*ChangeLayerToGroup)(AILayerHandle, AIArtHandle);
    AIErr (*GetNextPreorderLayer)(AILayerHandle, AILayerHandle*);
    AIErr (*GetNextNonChildPreorderLayer)(AILayerHandle, AILayerHandle*);
};

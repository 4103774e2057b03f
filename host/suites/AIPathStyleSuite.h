#pragma once

#include "host/Handles.h"
#include "host/PathStyle.h"
#include "host/Types.h"

inline constexpr char kAIPathStyleSuite[] = "AI Path Style Suite";
inline constexpr ai::int32 kAIPathStyleSuiteVersion = 12;

struct AIPathStyleSuite {
    AIErr (*GetPathStyle)(AIArtHandle, AIPathStyle*);
    AIErr (*SetPathStyle)(AIArtHandle, const AIPathStyle*);
    AIErr (*GetCurrentPathStyle)(AIPathStyle*, AIPathStyleMap*, AIDictionaryRef*);
    AIErr (*SetCurrentPathStyle)(AIPathStyle*, AIPathStyleMap*, ConstAIDictionaryRef);
    AIErr (*ImportStyles)(const ai::FilePath&, AIDocumentHandle*);
    AIErr (*ImportStylesMixedColorSpace)(const ai::FilePath&, AIDocumentHandle*);
    AIErr (*SetObjectAIColor)(AIArtHandle, const AIColor*, AIBoolean);
    ReservedSlot PathStyleUsesAIColor;
    ReservedSlot ApplyAIColorToPathStyle;
    ReservedSlot ObjectUsesAIColor;
    AIErr (*ReplaceObjectAIColor)(AIArtHandle, const AIColor*, const AIColor*, AIBoolean,
                                  AIBoolean*);
    AIErr (*GetInitialPathStyle)(AIPathStyle*);
    AIErr (*SetInitialPathStyle)(const AIPathStyle*);
    AIErr (*GetInitialTextStyle)(AIPathStyle*);
    AIErr (*SetInitialTextStyle)(const AIPathStyle*);
    AIErr (*RetargetForCurrentDoc)(AIColor*);
    AIErr (*SetCurrentPathStyleForceSimple)(AIPathStyle*, AIPathStyleMap*);
    AIErr (*SetPathStyleForceSimple)(AIArtHandle, const AIPathStyle*);
    AIErr (*InterpolatePathStyle)(const AIPathStyle*, const AIPathStyle*, AIPathStyle*, AIReal);
    AIErr (*InterpolateAIColor)(const AIColor*, const AIColor*, AIColor*, AIReal);
    AIErr (*SetSyncInitialPathStyle)(AIBoolean);
    AIBoolean (*GetSyncInitialPathStyle)();
    ReservedSlot AdjustObjectAIColors;
    AIErr (*GetPathStyleEx)(AIArtHandle, AIPathStyle*, AIBoolean*, AIBoolean*);
    AIErr (*SetPathStyleEx)(AIArtHandle, const AIPathStyle*, AIBoolean, AIBoolean);
    AIErr (*GetCurrentPathStyleEx)(AIPathStyle*, AIPathStyleMap*, AIBoolean*, AIBoolean*);
    AIErr (*SetCurrentPathStyleEx)(AIPathStyle*, AIPathStyleMap*, AIBoolean, AIBoolean);
};

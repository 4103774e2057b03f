#pragma once

#include "host/Handles.h"
#include "host/PathStyle.h"
#include "host/SuiteId.h"
#include "host/Types.h"

inline constexpr char kAIPathStyleSuite[] = "AI Path Style Suite";
inline constexpr ai::int32 kAIPathStyleSuiteVersion = 12;

struct AIPathStyleSuite {
    AIErr (*GetPathStyle)(AIArtHandle, AIPathStyle*);
    AIErr (*SetPathStyle)(AIArtHandle, const AIPathStyle*);
    ReservedSlot GetCurrentPathStyle, SetCurrentPathStyle, ImportStyles,
        ImportStylesMixedColorSpace, SetObjectAIColor, PathStyleUsesAIColor,
        ApplyAIColorToPathStyle, ObjectUsesAIColor, ReplaceObjectAIColor;
    AIErr (*GetInitialPathStyle)(AIPathStyle*);
    AIErr (*SetInitialPathStyle)(const AIPathStyle*);
    ReservedSlot GetInitialTextStyle, SetInitialTextStyle, RetargetForCurrentDoc,
        SetCurrentPathStyleForceSimple, SetPathStyleForceSimple, InterpolatePathStyle,
        InterpolateAIColor, SetSyncInitialPathStyle, GetSyncInitialPathStyle, AdjustObjectAIColors,
        GetPathStyleEx, SetPathStyleEx, GetCurrentPathStyleEx, SetCurrentPathStyleEx;
};

template <>
struct ai::SuiteId<AIPathStyleSuite>
    : ai::SuiteIdentity<kAIPathStyleSuite, kAIPathStyleSuiteVersion> {};

#pragma once

#include "host/SuiteId.h"
#include "host/Types.h"

inline constexpr char kAIHardSoftSuite[] = "AI Hard Soft Suite";
inline constexpr ai::int32 kAIHardSoftSuiteVersion = 4;

/// Soft (page, y up) and hard (canvas, y down) coordinates.
struct AIHardSoftSuite {
    /// From the page, y upwards, to the canvas, y downwards.
    AIErr (*AIRealPointHarden)(AIRealPoint* soft, AIRealPoint* hard);
    /// Back.
    AIErr (*AIRealPointSoften)(AIRealPoint* hard, AIRealPoint* soft);
    AIErr (*AIRealMatrixHarden)(AIRealMatrix*);
    AIErr (*AIRealMatrixSoften)(AIRealMatrix*);
    AIErr (*AIRealMatrixRealHard)(AIRealMatrix*);
    AIErr (*AIRealMatrixRealSoft)(AIRealMatrix*);
    AIErr (*GetCoordinateSystem)(ai::int32&);
    AIErr (*SetCoordinateSystem)(ai::int32);
    AIErr (*ConvertCoordinates)(AIRealPoint&, ai::int32, ai::int32, AIBoolean);
};

template <>
struct ai::SuiteId<AIHardSoftSuite> : ai::SuiteIdentity<kAIHardSoftSuite, kAIHardSoftSuiteVersion> {
};

#pragma once

#include "host/Types.h"

inline constexpr char kAIHardSoftSuite[] = "AI Hard Soft Suite";
inline constexpr ai::int32 kAIHardSoftSuiteVersion = 4;

/// Soft (page, y up) and hard (canvas, y down) coordinates.
struct AIHardSoftSuite {
    AIErr (*AIRealPointHarden)(AIRealPoint*, AIRealPoint*);
    AIErr (*AIRealPointSoften)(AIRealPoint*, AIRealPoint*);
    AIErr (*AIRealMatrixHarden)(AIRealMatrix*);
    AIErr (*AIRealMatrixSoften)(AIRealMatrix*);
    AIErr (*AIRealMatrixRealHard)(AIRealMatrix*);
    AIErr (*AIRealMatrixRealSoft)(AIRealMatrix*);
    AIErr (*GetCoordinateSystem)(ai::int32&);
    AIErr (*SetCoordinateSystem)(ai::int32);
    AIErr (*ConvertCoordinates)(AIRealPoint&, ai::int32, ai::int32, AIBoolean);
};

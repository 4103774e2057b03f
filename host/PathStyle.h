#pragma once

#include "host/Handles.h"
#include "host/Types.h"

/// Fill and stroke of a path. Packing 8: in a host that packed these records by 4 the colour union
/// would start 4 bytes earlier, so the plug-in carries styles with `TransferAttributes` and never
/// reads them.

enum AIColorTag : ai::int32 {
    kGrayColor = 0,
    kFourColor = 1,
    kPattern = 2,
    kCustomColor = 3,
    kGradient = 4,
    kThreeColor = 5,
    kNoneColor = 6,
};

struct AIGrayColorStyle {
    AIReal gray; ///< 0 white to 1 black.
};
struct AIFourColorStyle {
    AIReal cyan;
    AIReal magenta;
    AIReal yellow;
    AIReal black;
};
struct AIThreeColorStyle {
    AIReal red;
    AIReal green;
    AIReal blue;
};
struct AICustomColorStyle {
    AICustomColorHandle color;
    AIReal tint; ///< The ink applied is 1 - tint.
};
struct AIPatternStyle {
    AIPatternHandle pattern;
    AIReal shiftDist;
    AIReal shiftAngle;
    AIRealPoint scale;
    AIReal rotate;
    AIBoolean reflect;
    AIReal reflectAngle;
    AIReal shearAngle;
    AIReal shearAxis;
    AIRealMatrix transform;
};
struct AIGradientStyle {
    AIGradientHandle gradient;
    AIRealPoint gradientOrigin;
    AIReal gradientAngle;
    AIReal gradientLength;
    AIRealMatrix matrix;
    AIReal hiliteAngle;
    AIReal hiliteLength;
};

struct AIColor {
    AIColorTag kind;
    union {
        AIGrayColorStyle g;
        AIFourColorStyle f;
        AIThreeColorStyle rgb;
        AICustomColorStyle c;
        AIPatternStyle p;
        AIGradientStyle b;
    } c;
};

struct AIFillStyle {
    AIColor color;
    AIBoolean overprint;
};

struct AIDashStyle {
    ai::int16 length;
    AIFloat offset;
    AIFloat array[6];
};

enum AILineCap : ai::int32 { kAIButtCap = 0, kAIRoundCap = 1, kAIProjectingCap = 2 };
enum AILineJoin : ai::int32 { kAIMiterJoin = 0, kAIRoundJoin = 1, kAIBevelJoin = 2 };

struct AIStrokeStyle {
    AIColor color;
    AIBoolean overprint;
    AIReal width;
    AIDashStyle dash;
    AILineCap cap;
    AILineJoin join;
    AIReal miterLimit;
};

struct AIPathStyle {
    AIBoolean fillPaint;
    AIBoolean strokePaint;
    AIFillStyle fill;
    AIStrokeStyle stroke;
    AIBoolean clip;     ///< Dead; the clip attribute says it.
    AIBoolean lockClip; ///< Dead.
    AIBoolean evenodd;
    AIReal resolution;
};

struct AIPathStyleMap {
    AIBoolean fields[42];
};

static_assert(sizeof(AIColor) == 80 && offsetof(AIColor, c) == 8);
static_assert(sizeof(AIPatternStyle) == 72 && sizeof(AIGradientStyle) == 56);
static_assert(sizeof(AIFillStyle) == 88 && sizeof(AIDashStyle) == 32);
static_assert(sizeof(AIStrokeStyle) == 136 && offsetof(AIStrokeStyle, width) == 84 &&
              offsetof(AIStrokeStyle, dash) == 88 && offsetof(AIStrokeStyle, miterLimit) == 128);
static_assert(sizeof(AIPathStyle) == 248 && offsetof(AIPathStyle, stroke) == 96 &&
              offsetof(AIPathStyle, evenodd) == 240);
static_assert(sizeof(AIPathStyleMap) == 168);

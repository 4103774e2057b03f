#pragma once

#include <cstddef>
#include <cstdint>

/// The host's scalar and geometric types, in the layout of its 64-bit Windows build.
///
/// Every integer has a fixed width, so that the same declarations hold on Linux. Reals that cross
/// the interface are 32-bit; records are naturally aligned (packing 8). None of these records may
/// grow a constructor, a base class or a default member value: some are returned in registers, and
/// compilers disagree on how to return a record that has one.

namespace ai {
using int8 = std::int8_t;
using uint8 = std::uint8_t;
using int16 = std::int16_t;
using uint16 = std::uint16_t;
using int32 = std::int32_t;
using uint32 = std::uint32_t;
using int64 = std::int64_t;
using uint64 = std::uint64_t;
using intptr = std::intptr_t;

class UnicodeString;
class FilePath;
} // namespace ai

using AIErr = ai::int32; ///< 0 is success, anything else a code (host/Codes.h).
using ASErr = AIErr;
using SPErr = AIErr;

using AIBoolean = ai::int32; ///< Test for non-zero, never for 1.
using SPBoolean = AIBoolean;
using AIBool8 = ai::uint8;

using AIReal = float;
using AIFloat = float;
using AIDouble = double;
using AIFixed = ai::int32; ///< 16.16 fixed point.
using AIFract = ai::int32; ///< 2.30 fixed point.
using ASUnicode = ai::uint16;

using AIEntryType = ai::int32;
using AIToolType = ai::int16;
using AIToolPressure = ai::int16;
using AIToolAngle = ai::int16;
using AIToolTime = ai::int32;
using AIMenuItemOption = ai::int32;
using AIMenuGroupOption = ai::int32;
using AIAnnotatorOptionsFlags = ai::int32;
using AICommandID = ai::uint32;
using AIAnswer = ai::int32;
using AIPaintOrder = ai::int32;
using AIScreenMode = ai::int32;
using AIFolderType = ai::int32;
using AICharacterEncoding = ai::int32;
using AIHorizAlignment = ai::int32;
using AIVertAlignment = ai::int32;
using AIAnnotatorFont = ai::int32;
using AINormalizeCompoundPathAlgorithm = ai::int32;
using AIUserDateTime = ai::uint32;
using ASHelpID = ai::int32;
using PIType = ai::uint32;

/// A position in points. Soft (page) coordinates have y upwards, hard (canvas) ones y downwards.
struct AIRealPoint {
    AIReal h;
    AIReal v;
};

/// Soft coordinates: `top` is the larger y. Empty when right <= left or top <= bottom.
struct AIRealRect {
    AIReal left;
    AIReal top;
    AIReal right;
    AIReal bottom;
};

/// x' = a x + c y + tx, y' = b x + d y + ty: points are row vectors.
struct AIRealMatrix {
    AIReal a;
    AIReal b;
    AIReal c;
    AIReal d;
    AIReal tx;
    AIReal ty;
};

struct AIRealBezier {
    AIRealPoint p0;
    AIRealPoint p1;
    AIRealPoint p2;
    AIRealPoint p3;
};

struct AIDoubleRect {
    double left;
    double top;
    double right;
    double bottom;
};

struct AIPoint {
    ai::int32 h;
    ai::int32 v;
};

struct AIRect {
    ai::int32 left;
    ai::int32 top;
    ai::int32 right;
    ai::int32 bottom;
};

struct AISize {
    AIReal width;
    AIReal height;
};

struct AIFixedPoint {
    AIFixed h;
    AIFixed v;
};

struct AIFixedRect {
    AIFixed left;
    AIFixed top;
    AIFixed right;
    AIFixed bottom;
};

struct AIFixedMatrix {
    AIFract a;
    AIFract b;
    AIFract c;
    AIFract d;
    AIFixed tx;
    AIFixed ty;
};

/// 0..65535 in each channel.
struct AIRGBColor {
    ai::uint16 red;
    ai::uint16 green;
    ai::uint16 blue;
};

static_assert(sizeof(AIRealPoint) == 8 && sizeof(AIRealRect) == 16 && sizeof(AIRealMatrix) == 24);
static_assert(sizeof(AIRealBezier) == 32 && sizeof(AIDoubleRect) == 32);
static_assert(sizeof(AIPoint) == 8 && sizeof(AIRect) == 16 && sizeof(AISize) == 8);
static_assert(sizeof(AIRGBColor) == 6 && alignof(AIRGBColor) == 2);
static_assert(sizeof(AIFixedMatrix) == 24 && sizeof(void*) == 8);

/// A slot of a suite that this project never calls: it keeps its place and its name.
using ReservedSlot = void (*)();

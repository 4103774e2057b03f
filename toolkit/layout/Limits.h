#pragma once

/// How much a layout text may ask for. No dialog comes near any of these; they keep a damaged or
/// hostile text from taking the stack, the memory or the time of the program that reads it.

#include <cstddef>

namespace NRDM::layout {

constexpr std::size_t kMaxTextBytes = std::size_t{64} * 1024;

/// Nested blocks, and apart from them nested parentheses, lists and conditions of one value: both
/// are read by functions that call themselves.
constexpr int kMaxDepth = 64;

/// Elements of one layout. The rounds in which guides settle grow with them.
constexpr std::size_t kMaxElements = 1000;

/// Bytes of one text, and numbers of one list. A named constant can repeat either many times at
/// the price of a letter each.
constexpr std::size_t kMaxStringBytes = 1024;
constexpr std::size_t kMaxListNumbers = 64;

/// After so many errors the reader gives up: the rest would be their echo.
constexpr int kMaxErrors = 20;

/// The lengths a text may state, in pixels.
constexpr int kMinLength = -16384;
constexpr int kMaxLength = 16383;

/// No edge of a placed rectangle lies farther than this from the client area's corner, in pixels:
/// window coordinates travel in 16 bits with their sign.
constexpr int kMaxCoordinate = 32767;

} // namespace NRDM::layout

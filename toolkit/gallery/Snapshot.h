#pragma once

#include <windows.h>

#include <string>

namespace NRDM::gallery {

/// Writes what the client area of `window` shows, children included, as a PNG. False when the file
/// cannot be written.
[[nodiscard]] bool savePicture(HWND window, const std::wstring& file);

} // namespace NRDM::gallery

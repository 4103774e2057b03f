#pragma once

#include <windows.h>

#include <string>

namespace NRDM::gallery {

/// Writes what the client area of `window` shows, children included, as a PNG. False when the file
/// cannot be written.
[[nodiscard]] bool savePicture(HWND window, const std::wstring& file);

/// The same with `menu` lying over it, which begins no further left.
[[nodiscard]] bool savePictureWithMenu(HWND window, HWND menu, const std::wstring& file);

} // namespace NRDM::gallery

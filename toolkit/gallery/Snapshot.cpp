#include "toolkit/gallery/Snapshot.h"

#include "toolkit/ImplWin/Surface.h"

#include <algorithm>
#include <optional>
#include <string_view>
#include <vector>

namespace NRDM::gallery {
namespace {

std::optional<CLSID> pngEncoder() {
    UINT count = 0;
    UINT size = 0;
    Gdiplus::GetImageEncodersSize(&count, &size);
    std::vector<std::byte> memory(size);
    auto* const encoders = reinterpret_cast<Gdiplus::ImageCodecInfo*>(memory.data());
    if (Gdiplus::GetImageEncoders(count, size, encoders) != Gdiplus::Ok) return std::nullopt;
    for (UINT i = 0; i < count; ++i)
        if (std::wstring_view(encoders[i].MimeType) == L"image/png") return encoders[i].Clsid;
    return std::nullopt;
}

SIZE screenSize() { return {GetSystemMetrics(SM_CXSCREEN), GetSystemMetrics(SM_CYSCREEN)}; }

void redraw(HWND window) {
    RedrawWindow(window, nullptr, nullptr,
                 RDW_INVALIDATE | RDW_ERASE | RDW_ALLCHILDREN | RDW_UPDATENOW);
}

/// Moves `window` so that its client area begins in the corner of the screen.
void moveToCorner(HWND window) {
    RECT frame{};
    GetWindowRect(window, &frame);
    POINT client{};
    ClientToScreen(window, &client);
    SetWindowPos(window, nullptr, frame.left - client.x, frame.top - client.y, 0, 0,
                 SWP_NOSIZE | SWP_NOZORDER | SWP_NOACTIVATE);
}

void moveItems(HWND window, int right, int down) {
    ScrollWindowEx(window, right, down, nullptr, nullptr, nullptr, nullptr, SW_SCROLLCHILDREN);
    redraw(window);
}

/// Copies what the client area shows in its corner to `place`.
void copyShown(HWND window, HDC target, POINT place, SIZE size) {
    const HDC source = GetDC(window); // children are drawn into it, which printing leaves out
    BitBlt(target, place.x, place.y, size.cx, size.cy, source, 0, 0, SRCCOPY);
    ReleaseDC(window, source);
    GdiFlush();
}

/// Nothing is drawn off the screen. The items of a window that is larger are moved through its
/// corner, part by part.
void copyInParts(HWND window, HDC target, SIZE whole) {
    const SIZE part = screenSize();
    moveToCorner(window);
    for (LONG top = 0; top < whole.cy; top += part.cy)
        for (LONG left = 0; left < whole.cx; left += part.cx) {
            moveItems(window, -left, -top);
            copyShown(window, target, {left, top},
                      {std::min(part.cx, whole.cx - left), std::min(part.cy, whole.cy - top)});
            moveItems(window, left, top);
        }
}

bool saveSurface(Surface& surface, SIZE size, const std::wstring& file) {
    const std::optional<CLSID> encoder = pngEncoder();
    Gdiplus::Bitmap picture(size.cx, size.cy, size.cx * 4, PixelFormat32bppRGB,
                            reinterpret_cast<BYTE*>(surface.row(0).data()));
    return encoder && picture.Save(file.c_str(), &*encoder, nullptr) == Gdiplus::Ok;
}

} // namespace

bool savePicture(HWND window, const std::wstring& file) {
    RECT area{};
    GetClientRect(window, &area);
    const SIZE whole{area.right, area.bottom};
    Surface surface(whole);
    if (!surface) return false;
    const SIZE screen = screenSize();
    if (whole.cx <= screen.cx && whole.cy <= screen.cy)
        copyShown(window, surface.dc(), {0, 0}, whole);
    else
        copyInParts(window, surface.dc(), whole);
    return saveSurface(surface, whole, file);
}

bool savePictureWithMenu(HWND window, HWND menu, const std::wstring& file) {
    RECT area{};
    GetClientRect(window, &area);
    POINT corner{};
    ClientToScreen(window, &corner);
    RECT above{};
    GetWindowRect(menu, &above);
    OffsetRect(&above, -corner.x, -corner.y);
    const SIZE whole{std::max(area.right, above.right), std::max(area.bottom, above.bottom)};
    Surface surface(whole);
    if (!surface || above.left < 0) return false;
    const RECT all{0, 0, whole.cx, whole.cy};
    FillRect(surface.dc(), &all, static_cast<HBRUSH>(GetStockObject(GRAY_BRUSH)));
    copyShown(window, surface.dc(), {0, 0}, {area.right, area.bottom});
    const HDC source = GetWindowDC(menu);
    BitBlt(surface.dc(), above.left, above.top, above.right - above.left, above.bottom - above.top,
           source, 0, 0, SRCCOPY);
    ReleaseDC(menu, source);
    GdiFlush();
    return saveSurface(surface, whole, file);
}

} // namespace NRDM::gallery

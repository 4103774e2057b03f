#include "toolkit/gallery/Snapshot.h"

#include "toolkit/ImplWin/Surface.h"

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

} // namespace

bool savePicture(HWND window, const std::wstring& file) {
    RECT area{};
    GetClientRect(window, &area);
    Surface surface({area.right, area.bottom});
    const std::optional<CLSID> encoder = pngEncoder();
    if (!surface || !encoder) return false;
    const HDC source = GetDC(window); // children are drawn into it, which printing leaves out
    BitBlt(surface.dc(), 0, 0, area.right, area.bottom, source, 0, 0, SRCCOPY);
    ReleaseDC(window, source);
    GdiFlush();
    Gdiplus::Bitmap picture(area.right, area.bottom, area.right * 4, PixelFormat32bppRGB,
                            reinterpret_cast<BYTE*>(surface.row(0).data()));
    return picture.Save(file.c_str(), &*encoder, nullptr) == Gdiplus::Ok;
}

} // namespace NRDM::gallery

#include "toolkit/ImplWin/Surface.h"

#include <algorithm>
#include <cstdio>

namespace NRDM {

Surface::Surface(SIZE size)
    : size_{std::max(size.cx, 1L), std::max(size.cy, 1L)}, clip_{0, 0, size_.cx, size_.cy} {
    *dc_.put() = CreateCompatibleDC(nullptr);
    if (!dc_) {
        std::fputs("NRDM: failed to allocate device context\n", stderr);
        return;
    }
    BITMAPINFO info{};
    info.bmiHeader.biSize = sizeof(info.bmiHeader);
    info.bmiHeader.biWidth = size_.cx;
    info.bmiHeader.biHeight = -size_.cy; // the top row first
    info.bmiHeader.biPlanes = 1;
    info.bmiHeader.biBitCount = 32;
    info.bmiHeader.biCompression = BI_RGB;
    void* bits = nullptr;
    *bitmap_.put() = CreateDIBSection(dc_.get(), &info, DIB_RGB_COLORS, &bits, nullptr, 0);
    if (!bitmap_) {
        std::fputs("NRDM: failed to create bitmap\n", stderr);
        return;
    }
    previous_ = SelectObject(dc_.get(), bitmap_.get());
    pixels_ = static_cast<std::uint32_t*>(bits);
    view_ = std::make_unique<Gdiplus::Bitmap>(size_.cx, size_.cy, size_.cx * 4, PixelFormat32bppRGB,
                                              static_cast<BYTE*>(bits));
    graphics_ = std::make_unique<Gdiplus::Graphics>(view_.get());
    graphics_->SetTextRenderingHint(Gdiplus::TextRenderingHintAntiAliasGridFit);
    graphics_->SetSmoothingMode(Gdiplus::SmoothingModeAntiAlias);
    graphics_->SetPixelOffsetMode(Gdiplus::PixelOffsetModeHalf);
}

Surface::~Surface() {
    graphics_.reset();
    view_.reset();
    if (previous_ != nullptr) SelectObject(dc_.get(), previous_);
}

void Surface::setClip(const RECT& clip) {
    const RECT whole{0, 0, size_.cx, size_.cy};
    if (!IntersectRect(&clip_, &whole, &clip)) clip_ = {};
    if (graphics_)
        graphics_->SetClip(Gdiplus::Rect(clip_.left, clip_.top, clip_.right - clip_.left,
                                         clip_.bottom - clip_.top));
}

HDC Surface::dc() {
    if (graphics_) graphics_->Flush(Gdiplus::FlushIntentionSync);
    return dc_.get();
}

std::span<std::uint32_t> Surface::row(int y) noexcept {
    GdiFlush();
    return {pixels_ + static_cast<std::ptrdiff_t>(y) * size_.cx,
            static_cast<std::size_t>(size_.cx)};
}

void Surface::copyTo(HDC target, const RECT& area) {
    if (*this)
        BitBlt(target, area.left, area.top, area.right - area.left, area.bottom - area.top, dc(),
               area.left, area.top, SRCCOPY);
}

} // namespace NRDM

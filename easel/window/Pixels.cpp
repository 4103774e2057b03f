#include "easel/window/Pixels.h"

#include <algorithm>
#include <new>
#include <utility>

namespace easel::window {

Pixels::Pixels(int width, int height) : width_(width), height_(height) {
    BITMAPINFO form{};
    form.bmiHeader.biSize = sizeof form.bmiHeader;
    form.bmiHeader.biWidth = width;
    form.bmiHeader.biHeight = -height; // from the top
    form.bmiHeader.biPlanes = 1;
    form.bmiHeader.biBitCount = 32;
    void* bits = nullptr;
    bitmap_ = CreateDIBSection(nullptr, &form, DIB_RGB_COLORS, &bits, nullptr, 0);
    if (bitmap_ == nullptr) throw std::bad_alloc{};
    data_ = static_cast<std::uint32_t*>(bits);
}

Pixels::~Pixels() {
    if (bitmap_ != nullptr) DeleteObject(bitmap_);
}

void Pixels::swap(Pixels& other) noexcept {
    std::swap(width_, other.width_);
    std::swap(height_, other.height_);
    std::swap(data_, other.data_);
    std::swap(bitmap_, other.bitmap_);
}

void Pixels::copyFrom(const Pixels& other, const RECT& area) const {
    for (LONG y = area.top; y < area.bottom; ++y) {
        const std::ptrdiff_t row = std::ptrdiff_t{y} * width_;
        std::copy(other.data_ + row + area.left, other.data_ + row + area.right,
                  data_ + row + area.left);
    }
}

void Pixels::show(HDC target, const RECT& area) const {
    const HDC source = CreateCompatibleDC(target);
    const HGDIOBJ former = SelectObject(source, bitmap_);
    BitBlt(target, area.left, area.top, area.right - area.left, area.bottom - area.top, source,
           area.left, area.top, SRCCOPY);
    SelectObject(source, former);
    DeleteDC(source);
}

} // namespace easel::window

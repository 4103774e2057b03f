#pragma once

#include <windows.h>

#include <cstdint>

namespace easel::window {

/// Pixels in memory that GDI can show, in rows from the top: Windows' order, multiplied by alpha.
class Pixels {
public:
    Pixels() = default;
    Pixels(int width, int height);
    ~Pixels();
    Pixels(Pixels&& other) noexcept { swap(other); }
    Pixels& operator=(Pixels&& other) noexcept {
        swap(other);
        return *this;
    }

    [[nodiscard]] int width() const noexcept { return width_; }
    [[nodiscard]] int height() const noexcept { return height_; }
    [[nodiscard]] std::uint32_t* data() const noexcept { return data_; }
    [[nodiscard]] HBITMAP bitmap() const noexcept { return bitmap_; }
    void copyFrom(const Pixels& other, const RECT& area) const;
    void show(HDC target, const RECT& area) const;

private:
    void swap(Pixels& other) noexcept;

    int width_ = 0;
    int height_ = 0;
    std::uint32_t* data_ = nullptr;
    HBITMAP bitmap_ = nullptr;
};

} // namespace easel::window

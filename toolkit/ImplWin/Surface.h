#pragma once

#include "host/Owned.h"
#include "toolkit/ImplCommon/Colour.h"
#include "toolkit/ImplWin/GdiPlus.h"

#include <cstdint>
#include <memory>
#include <span>

namespace NRDM {

struct MemoryDcTraits {
    using Ref = HDC;
    static void release(Ref dc) noexcept { DeleteDC(dc); }
};

template <typename Handle> struct GdiObjectTraits {
    using Ref = Handle;
    static void release(Ref object) noexcept { DeleteObject(object); }
};

[[nodiscard]] constexpr COLORREF toColorRef(Colour colour) {
    return RGB(colour.red, colour.green, colour.blue);
}

/// Off-screen pixels, opaque, 32 bits each: what a control is drawn on before it is copied to its
/// window at once. GDI, GDI+ and our own shapes draw on the same pixels.
class Surface {
public:
    /// Black at first. When the system has no device context or bitmap to give, that is reported
    /// and the surface has no pixels: all drawing on it does nothing.
    explicit Surface(SIZE size);
    ~Surface();
    Surface(const Surface&) = delete;
    Surface& operator=(const Surface&) = delete;

    [[nodiscard]] explicit operator bool() const noexcept { return graphics_ != nullptr; }
    [[nodiscard]] SIZE size() const noexcept { return size_; }

    /// All drawing but GDI's keeps inside `clip` from now on.
    void setClip(const RECT& clip);
    [[nodiscard]] const RECT& clip() const noexcept { return clip_; }

    /// Through GDI+; not to be asked of a surface without pixels.
    [[nodiscard]] Gdiplus::Graphics& graphics() noexcept { return *graphics_; }

    /// Through GDI; what GDI+ has drawn is finished first.
    [[nodiscard]] HDC dc();

    /// A row of pixels, 0xRRGGBB, from the left; rows count from the top.
    [[nodiscard]] std::span<std::uint32_t> row(int y) noexcept;

    /// What lies in `area` goes to the same place on `target`.
    void copyTo(HDC target, const RECT& area);

private:
    SIZE size_;
    RECT clip_;
    ai::Owned<MemoryDcTraits> dc_;
    ai::Owned<GdiObjectTraits<HBITMAP>> bitmap_;
    HGDIOBJ previous_ = nullptr;
    std::uint32_t* pixels_ = nullptr;
    std::unique_ptr<Gdiplus::Bitmap> view_; ///< GDI+ smooths text on bitmaps only, not on contexts.
    std::unique_ptr<Gdiplus::Graphics> graphics_;
};

} // namespace NRDM

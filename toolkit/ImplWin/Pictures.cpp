#include "toolkit/ImplWin/Pictures.h"

#include <cmath>
#include <cstring>

namespace NRDM {
namespace {

constexpr int kDarkOffset = 1000;

struct StreamTraits {
    using Ref = IStream*;
    static void release(Ref stream) noexcept { stream->Release(); }
};

ai::Owned<StreamTraits> streamOf(std::span<const std::byte> bytes) {
    ai::Owned<StreamTraits> stream;
    const HGLOBAL memory = GlobalAlloc(GMEM_MOVEABLE, bytes.size());
    if (memory == nullptr) return stream;
    std::memcpy(GlobalLock(memory), bytes.data(), bytes.size());
    GlobalUnlock(memory);
    // The stream frees the memory; when there is none we do.
    if (FAILED(CreateStreamOnHGlobal(memory, TRUE, stream.put()))) GlobalFree(memory);
    return stream;
}

/// A copy that needs the bytes no longer.
std::unique_ptr<Gdiplus::Bitmap> decode(std::span<const std::byte> bytes) {
    if (bytes.empty()) return nullptr;
    const ai::Owned<StreamTraits> stream = streamOf(bytes);
    if (!stream) return nullptr;
    Gdiplus::Bitmap picture(stream.get());
    if (picture.GetLastStatus() != Gdiplus::Ok) return nullptr;
    const auto width = static_cast<INT>(picture.GetWidth());
    const auto height = static_cast<INT>(picture.GetHeight());
    auto copy = std::make_unique<Gdiplus::Bitmap>(width, height, PixelFormat32bppPARGB);
    Gdiplus::Graphics graphics(copy.get());
    graphics.DrawImage(&picture, Gdiplus::Rect(0, 0, width, height), 0, 0, width, height,
                       Gdiplus::UnitPixel);
    return copy;
}

/// Which variants to try for a scale: the sharpest first, then what is drawn larger than it is.
struct DensityRow {
    double scaleFrom;
    std::initializer_list<PictureDensity> tried;
};
const DensityRow kDensities[] = {
    {1.75, {PictureDensity::Two, PictureDensity::OneAndHalf, PictureDensity::One}},
    {1.25, {PictureDensity::OneAndHalf, PictureDensity::Two, PictureDensity::One}},
    {0.00, {PictureDensity::One, PictureDensity::OneAndHalf, PictureDensity::Two}},
};

double pixelsPerUnit(PictureDensity density) {
    return density == PictureDensity::Two ? 2.0 : density == PictureDensity::One ? 1.0 : 1.5;
}

} // namespace

Gdiplus::Bitmap* Pictures::load(int id, PictureDensity density) {
    const std::pair key{id, density};
    const auto known = loaded_.find(key);
    if (known != loaded_.end()) return known->second.get();
    return loaded_.emplace(key, decode(source_(id, density))).first->second.get();
}

Pictures::Choice Pictures::choose(int id, bool dark, Scale scale) {
    if (id == 0) return {};
    for (const auto& [scaleFrom, tried] : kDensities) {
        if (scale.factor < scaleFrom) continue;
        for (const int variant : {dark ? id + kDarkOffset : id, id})
            for (const PictureDensity density : tried)
                if (Gdiplus::Bitmap* const bitmap = load(variant, density))
                    return {bitmap, pixelsPerUnit(density)};
        break;
    }
    return {};
}

SIZE Pictures::size(int id, bool dark) {
    const auto [bitmap, density] = choose(id, dark, {1.0});
    if (bitmap == nullptr) return {};
    const Scale unit{density};
    return {unit.toUnits(static_cast<int>(bitmap->GetWidth())),
            unit.toUnits(static_cast<int>(bitmap->GetHeight()))};
}

void Pictures::draw(Surface& surface, int id, bool dark, Scale scale, int x, int y, Tint tint) {
    const auto [bitmap, density] = choose(id, dark, scale);
    if (bitmap == nullptr || !surface) return;
    const auto width = static_cast<INT>(bitmap->GetWidth());
    const auto height = static_cast<INT>(bitmap->GetHeight());
    const double enlarged = scale.factor / density;
    const Gdiplus::Rect place(x, y, static_cast<INT>(std::lround(width * enlarged)),
                              static_cast<INT>(std::lround(height * enlarged)));
    Gdiplus::ImageAttributes attributes;
    if (tint == Tint::Dimmed) {
        constexpr Gdiplus::REAL kShare = 0.4F;
        const Gdiplus::ColorMatrix matrix = {{{1, 0, 0, 0, 0},
                                              {0, 1, 0, 0, 0},
                                              {0, 0, 1, 0, 0},
                                              {0, 0, 0, kShare, 0},
                                              {0, 0, 0, 0, 1}}};
        attributes.SetColorMatrix(&matrix);
    }
    surface.graphics().DrawImage(bitmap, place, 0, 0, width, height, Gdiplus::UnitPixel,
                                 &attributes);
}

PictureSource picturesOf(HMODULE module) {
    const auto library = reinterpret_cast<SPPlatformAccessRef>(module);
    return [library](int id, PictureDensity density) { return findPicture(library, id, density); };
}

} // namespace NRDM

#pragma once

#include "toolkit/ImplCommon/PictureResources.h"
#include "toolkit/ImplWin/GdiPlus.h"
#include "toolkit/ImplWin/Scale.h"
#include "toolkit/ImplWin/Surface.h"

#include <cstddef>
#include <functional>
#include <map>
#include <memory>
#include <span>
#include <utility>

namespace NRDM {

/// The bytes of a PNG resource, empty when there is none: by the id of its variant at normal size.
using PictureSource = std::function<std::span<const std::byte>(int id, PictureDensity density)>;

/// The PNG resources that pictures are made of. A picture is known by the id of its light variant
/// at normal size; the one shown suits the interface's brightness and the display's scale.
class Pictures {
public:
    explicit Pictures(PictureSource source) : source_(std::move(source)) {}

    /// Size of picture `id` in units; nothing there is 0 by 0.
    [[nodiscard]] SIZE size(int id, bool dark);

    [[nodiscard]] bool exists(int id, bool dark) { return size(id, dark).cx > 0; }

    enum class Tint { None, Dimmed };

    /// Draws picture `id` with its top left corner at (`x`, `y`), in pixels.
    void draw(Surface& surface, int id, bool dark, Scale scale, int x, int y, Tint tint);

private:
    [[nodiscard]] Gdiplus::Bitmap* load(int id, PictureDensity density);

    /// The variant to show, and how many of its pixels a unit is.
    struct Choice {
        Gdiplus::Bitmap* bitmap = nullptr;
        double density = 1;
    };
    [[nodiscard]] Choice choose(int id, bool dark, Scale scale);

    PictureSource source_;
    std::map<std::pair<int, PictureDensity>, std::unique_ptr<Gdiplus::Bitmap>>
        loaded_; ///< null where there is no resource
};

/// The pictures among the resources of `module`.
[[nodiscard]] PictureSource picturesOf(HMODULE module);

} // namespace NRDM

#pragma once

#include "host/PathStyle.h"

#include <memory>
#include <vector>

namespace easel {

/// What a reader of drawings keeps of its source and nobody else understands; the room that made
/// it knows what is inside. Shared by copies of the art that carries it, and never changed.
class ForeignContent {
public:
    ForeignContent() = default;
    ForeignContent(const ForeignContent&) = delete;
    ForeignContent& operator=(const ForeignContent&) = delete;
    virtual ~ForeignContent() = default;
};

class Definition;

inline constexpr AIRealMatrix kIdentityMatrix{1, 0, 0, 1, 0, 0};

/// How art is painted: the host's record, and what drawings have beyond it.
struct ArtStyle {
    AIPathStyle path; ///< A colour of kind gradient or pattern is the definition below.
    AIReal opacity = 1;
    AIReal fillOpacity = 1;
    AIReal strokeOpacity = 1;
    /// The gradient or pattern that fills or strokes; the document owns it. Null: a plain colour.
    const Definition* fillDefinition = nullptr;
    const Definition* strokeDefinition = nullptr;
    /// From the definition's own space, as its drawing has it, to the document's soft coordinates.
    AIRealMatrix fillMatrix = kIdentityMatrix;
    AIRealMatrix strokeMatrix = kIdentityMatrix;
    std::vector<AIReal> longDash; ///< A dash pattern of more than six parts, whole; else empty.
    std::shared_ptr<const ForeignContent> foreign;
    /// What the art with `foreign` has been transformed by since it was read, in soft coordinates.
    AIRealMatrix foreignMatrix = kIdentityMatrix;

    ArtStyle() noexcept;
};

/// No fill, no stroke; width 1, butt caps, miter joins with limit 4.
[[nodiscard]] AIPathStyle unpaintedStyle() noexcept;
/// What a drawing tool starts with: white fill, black stroke of one point.
[[nodiscard]] AIPathStyle initialPathStyle() noexcept;
[[nodiscard]] AIColor rgbColor(AIReal red, AIReal green, AIReal blue) noexcept;

inline ArtStyle::ArtStyle() noexcept : path(unpaintedStyle()) {}

} // namespace easel

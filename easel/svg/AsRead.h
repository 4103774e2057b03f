#pragma once

#include "easel/svg/Content.h"

namespace easel::svg {

/// Compares art with what its elements said when the drawing was read.
class AsRead {
public:
    explicit AsRead(const DrawingSource& source) noexcept : source_(source) {}

    /// What was read; what it is now for art that was not.
    [[nodiscard]] const ArtContent& content(const Art& art) const;
    /// Does the element's tag still say all about the object but its look and shape?
    [[nodiscard]] bool hasSameState(const Art& art, const ArtSource& source) const;
    /// Moving the ruler's origin is no edit of the art.
    [[nodiscard]] bool hasSameShape(const Art& art) const;
    [[nodiscard]] bool hasSameMasks(const Art& group, const ArtSource& source) const;
    /// True only when nothing but look and shape can have changed, which is quickly found out for
    /// nearly all art of nearly all drawings.
    [[nodiscard]] bool isPlain(const Art& art, const ArtSource& source) const;
    /// The object that an element with a clip path was read as a group around; null when the group
    /// has become something of its own.
    [[nodiscard]] const Art* onlyShown(const Art& group, const ArtSource& source) const;

private:
    const DrawingSource& source_;
};

[[nodiscard]] const ArtContent& presentContent(const Art& art);
[[nodiscard]] bool isHidden(const ArtContent& content);
/// The effects of art if they have moved with it since it was read; otherwise null.
[[nodiscard]] const Effects* movedEffects(const Art& art);

} // namespace easel::svg

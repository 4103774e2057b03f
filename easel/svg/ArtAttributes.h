#pragma once

#include "easel/svg/Content.h"

#include <functional>
#include <vector>

namespace easel::svg {

/// The content of an object: as it is, or as it was read.
using ContentOf = std::function<const ArtContent&(const Art&)>;

/// What our own and other programs' attributes say of an object and of its layer, but for entries
/// and geometry; always in the same order.
[[nodiscard]] std::vector<AttributeText> artAttributes(const Art& art, const ContentOf& contentOf);

/// What members of a compound path have of their own; empty when that is nothing.
[[nodiscard]] std::string membersText(const std::vector<const Art*>& members);

/// The paths of a compound path, bottom-most first, whatever groups they are in; a path itself.
[[nodiscard]] std::vector<const Art*> membersOf(const Art& art);

/// A guide is seen by us alone: others would paint it.
[[nodiscard]] bool isGuide(const Art& art, const ContentOf& contentOf);

[[nodiscard]] bool isClipMask(const Art& art);

} // namespace easel::svg

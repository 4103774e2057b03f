#pragma once

#include "easel/document/Art.h"

#include <string>

namespace easel::validate {

/// What is wrong with a live layer whose copies should fit, judged by where its anchors lie; empty:
/// nothing. Art that nobody may edit is not mirrored, so nothing is asked of it, but it may be the
/// image of other art. `most` anchors, spread evenly, are looked at.
[[nodiscard]] std::string asymmetryOf(const Art& layer, std::size_t most);

/// More copies behind a source than one run makes, or marks where they mean nothing; empty: none.
[[nodiscard]] std::string strayCopies(const Art& layer);

} // namespace easel::validate

#pragma once

#include "easel/svg/Element.h"
#include "easel/svg/StyleText.h"
#include "easel/svg/TagText.h"

namespace easel::svg {

/// Sets the outline of a path or compound path.
void setShape(TagText& tag, const Art& art, const UserSpace& space);
/// Makes the tag of any shape that of a path with the outline of `art`.
void reshape(TagText& tag, const Element& element, const Art& art, const UserSpace& space);
/// Sets what of a style is otherwise than `then`. `servers` names the gradients and patterns.
void restyle(TagText& tag, const ArtStyle& now, const ArtStyle& then, const UserSpace& space,
             const ServerText& servers, bool inStyle);

} // namespace easel::svg

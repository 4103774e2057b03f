#pragma once

#include "easel/svg/StyleText.h"
#include "easel/svg/TagText.h"

/// What the tag of art's element says: state, outline and look.
namespace easel::svg {

/// Sets name, state, entries and all else that attributes say beside geometry and style. Without a
/// `source` the tag says it all, otherwise what differs from it.
void describe(TagText& tag, const Art& art, const ArtSource* source, const DrawingSource& drawing,
              bool namesLayers);

/// Sets the outline of a path or compound path.
void setShape(TagText& tag, const Art& art, const UserSpace& space);
/// Makes the tag of any shape that of a path with the outline of `art`.
void reshape(TagText& tag, const Element& element, const Art& art, const UserSpace& space);

/// Sets what of a style is otherwise than `then`. `servers` names the gradients and patterns.
void restyle(TagText& tag, const ArtStyle& now, const ArtStyle& then, const UserSpace& space,
             const ServerText& servers, bool inStyle);
/// Sets the properties that are otherwise `here`, where the element is to stand, and puts away
/// those that others would lend. `inStyle`: in the style attribute, which style sheets do not
/// override.
void setProperties(TagText& tag, const Properties& wanted, const Style& here, bool isText,
                   bool inStyle);

} // namespace easel::svg

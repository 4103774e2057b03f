#pragma once

#include "easel/svg/Style.h"
#include "easel/svg/TagText.h"

namespace easel::svg {

/// Sets the properties that are otherwise `here`, where the element is to stand, and puts away
/// those that others would lend. `inStyle`: in the style attribute, which style sheets do not
/// override.
void setProperties(TagText& tag, const Properties& wanted, const Style& here, bool isText,
                   bool inStyle);

} // namespace easel::svg

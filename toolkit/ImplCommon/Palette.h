#pragma once

#include "toolkit/ImplCommon/Colour.h"

#include <optional>

namespace NRDM {

struct Theme;

/// The colours of every part of a control, worked out from the host's few. All steps are shares of
/// the way between the host's background and its text, so that they suit each of its brightnesses.
struct Palette {
    explicit Palette(const Theme& theme);

    bool dark;
    Colour background;
    Colour text;
    Colour dimText; ///< Readable, but plainly not to be clicked.
    Colour accent;  ///< Focus marks, what is on, the default button.
    Colour onAccent;
    Colour field;
    Colour fieldText;
    Colour fieldBorder;
    Colour face; ///< Of buttons and popups.
    Colour faceHot;
    Colour facePressed;
    Colour faceBorder;
    Colour faceOn; ///< A picture button that stays down.
    Colour line;   ///< Separators and frames.
    Colour light;  ///< Upper edges of raised frames.
    Colour shadow; ///< Lower ones.
    Colour rowHot; ///< The entry below the pointer, in lists and menus.
    Colour menu;
    Colour tip;
};

/// One of ADM's numbered colours in `palette`; nothing for numbers without a colour.
[[nodiscard]] std::optional<Colour> admColour(int number, const Palette& palette);

} // namespace NRDM

#pragma once

/// How the parts of controls look: quiet and flat, every colour from the palette, every line on
/// whole pixels. Each function draws one part and knows nothing of windows or items. Rectangles are
/// pixels of the surface.

#include "toolkit/ImplCommon/Palette.h"
#include "toolkit/ImplWin/Scale.h"
#include "toolkit/ImplWin/Shapes.h"
#include "toolkit/ImplWin/Surface.h"

namespace NRDM {

/// What a control is drawn with.
struct Canvas {
    Surface& surface;
    const Palette& palette;
    Scale scale;
};

/// What a control shows of its state.
struct FaceState {
    bool enabled = true;
    bool hot = false; ///< The pointer rests on it.
    bool pressed = false;
    bool focused = false;
    bool on = false;
    bool mixed = false;       ///< Neither on nor off is known.
    bool isDefault = false;   ///< Enter chooses it.
    bool keyboardCues = true; ///< Windows shows focus and access keys.
};

/// The colour of text on a part.
[[nodiscard]] Colour textColour(const Palette& palette, const FaceState& state);

void drawBackground(const Canvas& canvas, const RECT& area);

/// A push button without its text or picture.
void drawButton(const Canvas& canvas, const RECT& area, const FaceState& state);

/// The background of a picture button: nothing at rest, a face below the pointer, sunken while on.
void drawToggle(const Canvas& canvas, const RECT& area, const FaceState& state);

/// The box of a check box, or the ring of a radio button, at the left of `area`; returns what is
/// left for the text.
RECT drawCheckBox(const Canvas& canvas, const RECT& area, const FaceState& state);
RECT drawRadioButton(const Canvas& canvas, const RECT& area, const FaceState& state);

/// The field of an edit, with its border.
void drawField(const Canvas& canvas, const RECT& area, const FaceState& state);

enum class Arrow { Up, Down, Left, Right };

/// A chevron in the middle of `area`.
void drawArrow(const Canvas& canvas, const RECT& area, Arrow arrow, Colour colour);

/// One of the two buttons at the side of a spin edit, or the arrow part of an edit with a popup.
void drawArrowPart(const Canvas& canvas, const RECT& area, Arrow arrow, const FaceState& state);

/// The face of a popup list or menu, its arrow to where that opens; returns what is left for the
/// text beside the arrow.
RECT drawPopup(const Canvas& canvas, const RECT& area, Arrow arrow, const FaceState& state);

/// The bar of a slider; `thumb` is the middle of its thumb.
void drawSlider(const Canvas& canvas, const RECT& area, int thumb, const FaceState& state);

/// Half the width of a slider's thumb.
[[nodiscard]] int thumbRadius(Scale scale);

/// ADM's frames by number: 0 black, 1 grey, 2 sunken, 3 raised, 4 etched. One too flat for two
/// sides is a separator line.
void drawFrame(const Canvas& canvas, const RECT& area, int style);

/// The background of one row of a list or menu.
enum class RowState { Plain, Hot, Chosen };
void drawRow(const Canvas& canvas, const RECT& area, RowState state, Colour plain);

/// The mark before a checked entry.
void drawCheckMark(const Canvas& canvas, const RECT& area, Colour colour);

/// The outline of menus, popups and tips.
void drawMenuFrame(const Canvas& canvas, const RECT& area);

} // namespace NRDM

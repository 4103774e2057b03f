#include "toolkit/ImplWin/Look.h"

#include "toolkit/ImplCommon/SliderScale.h"
#include <algorithm>
#include <array>
#include <cmath>

namespace NRDM {
namespace {

constexpr double kRadius = 3;
constexpr double kBoxSize = 13;
constexpr double kBoxGap = 6;

double px(const Canvas& canvas, double units) { return units * canvas.scale.factor; }

double hairline(const Canvas& canvas) { return canvas.scale.line(); }

Spot middleOf(const RECT& area) {
    return {(area.left + area.right) / 2.0, (area.top + area.bottom) / 2.0};
}

/// Disabled parts keep their shape and lose their contrast.
Colour dimmed(const Canvas& canvas, Colour colour, const FaceState& state) {
    return state.enabled ? colour : mix(canvas.palette.background, colour, 0.45);
}

/// A face with a border, and the focus mark in the border's place.
void drawFace(const Canvas& canvas, const RECT& area, double radius, Colour fill, Colour border,
              const FaceState& state) {
    const Box box = toBox(area);
    fillRound(canvas.surface, box, radius, border);
    fillRound(canvas.surface, inset(box, hairline(canvas)), radius - hairline(canvas), fill);
    if (state.focused && state.keyboardCues)
        strokeRound(canvas.surface, box, radius, px(canvas, 2), canvas.palette.accent);
}

/// The square for a box or ring: on whole pixels, in the middle of the height.
Box markBox(const Canvas& canvas, const RECT& area) {
    const int size = canvas.scale.toPixels(kBoxSize);
    const LONG top = area.top + (area.bottom - area.top - size + 1) / 2;
    return {static_cast<double>(area.left), static_cast<double>(top),
            static_cast<double>(area.left + size), static_cast<double>(top + size)};
}

RECT besideMark(const Canvas& canvas, const RECT& area) {
    return {area.left + canvas.scale.toPixels(kBoxSize + kBoxGap), area.top, area.right,
            area.bottom};
}

struct MarkColours {
    Colour fill;
    Colour border;
    Colour mark;
};

MarkColours markColours(const Canvas& canvas, const FaceState& state) {
    const Palette& palette = canvas.palette;
    if (state.on || state.mixed) {
        const Colour fill = state.enabled ? state.pressed ? mix(palette.accent, {0, 0, 0}, 0.2)
                                            : state.hot ? mix(palette.accent, {255, 255, 255}, 0.12)
                                                        : palette.accent
                                          : mix(palette.background, palette.text, 0.30);
        return {fill, fill, state.enabled ? palette.onAccent : palette.background};
    }
    const Colour fill = !state.enabled  ? mix(palette.background, palette.field, 0.4)
                        : state.pressed ? mix(palette.field, palette.text, 0.18)
                                        : palette.field;
    const Colour border = state.enabled && state.hot ? mix(palette.fieldBorder, palette.text, 0.45)
                                                     : palette.fieldBorder;
    return {fill, dimmed(canvas, border, state), palette.text};
}

void focusAround(const Canvas& canvas, Box box, double radius, const FaceState& state) {
    if (!state.focused || !state.keyboardCues) return;
    const double gap = hairline(canvas);
    strokeRound(canvas.surface, inset(box, -gap), radius + gap, hairline(canvas) + gap,
                state.on ? mix(canvas.palette.accent, canvas.palette.text, 0.55)
                         : canvas.palette.accent);
}

void strokeCheck(const Canvas& canvas, Box box, Colour colour) {
    const double width = box.right - box.left;
    const auto at = [&](double x, double y) {
        return Spot{box.left + x * width, box.top + y * width};
    };
    const std::array points{at(0.23, 0.52), at(0.42, 0.71), at(0.77, 0.31)};
    strokeLines(canvas.surface, points, width * 0.13, colour);
}

} // namespace

Colour textColour(const Palette& palette, const FaceState& state) {
    return state.enabled ? palette.text : palette.dimText;
}

void drawBackground(const Canvas& canvas, const RECT& area) {
    fillRect(canvas.surface, area, canvas.palette.background);
}

void drawButton(const Canvas& canvas, const RECT& area, const FaceState& state) {
    const Palette& palette = canvas.palette;
    const double radius = px(canvas, kRadius);
    if (state.isDefault && state.enabled) {
        const Colour fill = state.pressed ? mix(palette.accent, {0, 0, 0}, 0.22)
                            : state.hot   ? mix(palette.accent, {255, 255, 255}, 0.12)
                                          : palette.accent;
        drawFace(canvas, area, radius, fill, fill, {});
        if (state.focused && state.keyboardCues)
            strokeRound(canvas.surface, inset(toBox(area), hairline(canvas) * 2),
                        radius - hairline(canvas), hairline(canvas),
                        mix(fill, palette.onAccent, 0.75));
        return;
    }
    const Colour fill = !state.enabled  ? mix(palette.background, palette.face, 0.4)
                        : state.pressed ? palette.facePressed
                        : state.hot     ? palette.faceHot
                                        : palette.face;
    drawFace(canvas, area, radius, fill, dimmed(canvas, palette.faceBorder, state), state);
}

void drawToggle(const Canvas& canvas, const RECT& area, const FaceState& state) {
    const Palette& palette = canvas.palette;
    const double radius = px(canvas, kRadius);
    const bool sunken = state.on || state.pressed;
    if (sunken)
        drawFace(canvas, area, radius, dimmed(canvas, palette.faceOn, state),
                 dimmed(canvas, palette.faceBorder, state), state);
    else if (state.hot && state.enabled)
        drawFace(canvas, area, radius, palette.face, palette.face, state);
    else if (state.focused && state.keyboardCues)
        strokeRound(canvas.surface, toBox(area), radius, px(canvas, 2), palette.accent);
}

RECT drawCheckBox(const Canvas& canvas, const RECT& area, const FaceState& state) {
    const Box box = markBox(canvas, area);
    const auto [fill, border, mark] = markColours(canvas, state);
    const double radius = px(canvas, 2);
    fillRound(canvas.surface, box, radius, border);
    fillRound(canvas.surface, inset(box, hairline(canvas)), radius - hairline(canvas) / 2, fill);
    if (state.mixed) {
        const double inner = (box.right - box.left) * 0.26;
        const double middle = (box.top + box.bottom) / 2;
        const std::array bar{Spot{box.left + inner, middle}, Spot{box.right - inner, middle}};
        strokeLines(canvas.surface, bar, px(canvas, 1.7), mark);
    } else if (state.on) {
        strokeCheck(canvas, box, mark);
    }
    focusAround(canvas, box, radius, state);
    return besideMark(canvas, area);
}

RECT drawRadioButton(const Canvas& canvas, const RECT& area, const FaceState& state) {
    const Box box = markBox(canvas, area);
    const auto [fill, border, mark] = markColours(canvas, state);
    const double radius = (box.right - box.left) / 2;
    fillRound(canvas.surface, box, radius, border);
    fillRound(canvas.surface, inset(box, hairline(canvas)), radius, fill);
    if (state.on) fillRound(canvas.surface, inset(box, radius * 0.58), radius, mark);
    focusAround(canvas, box, radius, state);
    return besideMark(canvas, area);
}

void drawField(const Canvas& canvas, const RECT& area, const FaceState& state) {
    const Palette& palette = canvas.palette;
    const Colour fill =
        state.enabled ? palette.field : mix(palette.background, palette.field, 0.35);
    const Colour border = state.enabled && state.hot ? mix(palette.fieldBorder, palette.text, 0.30)
                                                     : palette.fieldBorder;
    const double radius = px(canvas, 2);
    drawFace(canvas, area, radius, fill, dimmed(canvas, border, state), {});
    // A field is typed into wherever the focus came from, so its mark is always there.
    if (state.focused)
        strokeRound(canvas.surface, toBox(area), radius, px(canvas, 1.5), palette.accent);
}

void drawArrow(const Canvas& canvas, const RECT& area, Arrow arrow, Colour colour) {
    const auto [x, y] = middleOf(area);
    const double half = px(canvas, 3);
    const double depth = px(canvas, 1.5);
    const bool vertical = arrow == Arrow::Up || arrow == Arrow::Down;
    const double tip = arrow == Arrow::Up || arrow == Arrow::Left ? -depth : depth;
    const std::array points =
        vertical ? std::array{Spot{x - half, y - tip}, Spot{x, y + tip}, Spot{x + half, y - tip}}
                 : std::array{Spot{x - tip, y - half}, Spot{x + tip, y}, Spot{x - tip, y + half}};
    strokeLines(canvas.surface, points, px(canvas, 1.35), colour);
}

void drawArrowPart(const Canvas& canvas, const RECT& area, Arrow arrow, const FaceState& state) {
    const Palette& palette = canvas.palette;
    if (state.enabled && (state.hot || state.pressed))
        fillRect(canvas.surface, area,
                 state.pressed ? mix(palette.field, palette.accent, 0.45)
                               : mix(palette.field, palette.fieldText, 0.12));
    drawArrow(canvas, area, arrow,
              state.enabled ? mix(palette.field, palette.fieldText, 0.78) : palette.dimText);
}

RECT drawPopup(const Canvas& canvas, const RECT& area, Arrow arrow, const FaceState& state) {
    FaceState face = state;
    face.isDefault = false;
    drawButton(canvas, area, face);
    const int arrowWidth = canvas.scale.toPixels(18);
    RECT part = area;
    part.left = part.right - arrowWidth;
    drawArrow(canvas, part, arrow, textColour(canvas.palette, state));
    return {area.left + canvas.scale.toPixels(7), area.top, part.left, area.bottom};
}

int thumbRadius(Scale scale) { return scale.toPixels(kThumbRadius); }

void drawSlider(const Canvas& canvas, const RECT& area, int thumb, const FaceState& state) {
    const Palette& palette = canvas.palette;
    const double middle = (area.top + area.bottom) / 2.0;
    const double radius = thumbRadius(canvas.scale);
    const double half = px(canvas, 1.5);
    const Box bar{area.left + radius - half, middle - half, area.right - radius + half,
                  middle + half};
    fillRound(canvas.surface, bar, half, dimmed(canvas, palette.fieldBorder, state));
    fillRound(canvas.surface, {bar.left, bar.top, static_cast<double>(thumb), bar.bottom}, half,
              state.enabled ? palette.accent : mix(palette.background, palette.text, 0.25));
    const Box disc{thumb - radius, middle - radius, thumb + radius, middle + radius};
    if (state.focused && state.keyboardCues)
        fillRound(canvas.surface, inset(disc, -px(canvas, 1)), radius + px(canvas, 1),
                  palette.accent);
    const Colour knob = palette.dark    ? mix(palette.background, {255, 255, 255},
                                           state.hot || state.pressed ? 0.95 : 0.80)
                        : state.pressed ? palette.facePressed
                                        : Colour{255, 255, 255};
    fillRound(canvas.surface, disc, radius,
              dimmed(canvas, palette.dark ? knob : palette.faceBorder, state));
    fillRound(canvas.surface, inset(disc, hairline(canvas)), radius, dimmed(canvas, knob, state));
}

void drawFrame(const Canvas& canvas, const RECT& area, int style) {
    const Palette& palette = canvas.palette;
    const int line = canvas.scale.line();
    if (area.bottom - area.top < 4 * line) {
        const LONG top = (area.top + area.bottom - line) / 2;
        fillRect(canvas.surface, {area.left, top, area.right, top + line}, palette.line);
        return;
    }
    RECT inner = area;
    InflateRect(&inner, -line, -line);
    switch (style) {
    case 2:
        frameRect(canvas.surface, area, line, palette.shadow);
        frameRect(canvas.surface, inner, line, palette.light);
        break;
    case 3:
        frameRect(canvas.surface, area, line, palette.light);
        frameRect(canvas.surface, inner, line, palette.shadow);
        break;
    case 4: {
        RECT below = area;
        OffsetRect(&below, line, line);
        frameRect(canvas.surface, below, line, palette.light);
        frameRect(canvas.surface, {area.left, area.top, area.right - line, area.bottom - line},
                  line, palette.line);
        break;
    }
    default:
        frameRect(canvas.surface, area, line, style == 0 ? palette.text : palette.line);
    }
}

void drawRow(const Canvas& canvas, const RECT& area, RowState state, Colour plain) {
    fillRect(canvas.surface, area,
             state == RowState::Chosen ? canvas.palette.accent
             : state == RowState::Hot  ? canvas.palette.rowHot
                                       : plain);
}

void drawCheckMark(const Canvas& canvas, const RECT& area, Colour colour) {
    strokeCheck(canvas, markBox(canvas, area), colour);
}

void drawMenuFrame(const Canvas& canvas, const RECT& area) {
    fillRect(canvas.surface, area, canvas.palette.menu);
    frameRect(canvas.surface, area, canvas.scale.line(), canvas.palette.faceBorder);
}

} // namespace NRDM

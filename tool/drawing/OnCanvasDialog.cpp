#include "tool/drawing/OnCanvasDialog.h"

#include "host/Error.h"
#include "host/Suites.h"
#include "host/UnicodeString.h"
#include "host/suites/AIAnnotatorDrawerSuite.h"

namespace facetta {
namespace {

constexpr AIReal kFontSize = 11.0F;
constexpr ai::int32 kTextIndent = 7;
constexpr ai::int32 kLastColumn = 191; ///< of what is drawn

/// Rows as drawn, in pixels from the dialog's top.
struct DrawnRow {
    DialogItem item;
    ai::int32 top;
    ai::int32 bottom;
    ai::int32 textBottom;
    const char* label;
};
constexpr ai::int32 kTitleBottom = 13;
constexpr DrawnRow kButtons[] = {
    {DialogItem::ApplyToSelection, 13, 42, 32, "Apply to Selection"},
    {DialogItem::ApplyToLayer, 42, 71, 61, "Apply to Layer (persistent)"},
    {DialogItem::Cancel, 71, 100, 90, "Cancel"},
};

/// Rows as hit: up to and with `last`, from after the row before. The row at 0 is outside.
struct HitRow {
    ai::int32 last;
    DialogItem item;
};
constexpr HitRow kHits[] = {
    {0, DialogItem::None},          {14, DialogItem::Title},   {44, DialogItem::ApplyToSelection},
    {74, DialogItem::ApplyToLayer}, {104, DialogItem::Cancel},
};
constexpr ai::int32 kLastHitRow = 104;

AIRect placed(DialogPosition position, ai::int32 top, ai::int32 bottom) {
    return {position.x, position.y + top, position.x + kLastColumn, position.y + bottom};
}

void drawBox(const Surface& surface, const AIRect& box, const AIRGBColor& fill) {
    ai::suites.annotatorDrawer->SetColor(surface.drawer, fill);
    ai::check(ai::suites.annotatorDrawer->DrawRect(surface.drawer, box, 1));
    ai::suites.annotatorDrawer->SetColor(surface.drawer, surface.colours.outline);
    ai::check(ai::suites.annotatorDrawer->DrawRect(surface.drawer, box, 0));
}

void drawButton(const Surface& surface, const ToolState& state, const DrawnRow& row) {
    const bool dead = state.zone == ToolZone::LayerLocked;
    const bool dimmed = dead || (row.item == DialogItem::ApplyToSelection && selectionEmpty(state));
    const bool hovered = state.hoverItem == row.item && !dimmed;
    drawBox(surface, placed(state.dialog, row.top, row.bottom),
            hovered ? surface.colours.hoveredFill : surface.colours.buttonFill);
    if (dimmed) ai::suites.annotatorDrawer->SetColor(surface.drawer, surface.colours.dimmedText);
    const ai::UnicodeString label{std::string_view(row.label)};
    const AIPoint bottomLeft{state.dialog.x + kTextIndent, state.dialog.y + row.textBottom};
    ai::check(ai::suites.annotatorDrawer->DrawText(surface.drawer, label, bottomLeft));
}

} // namespace

bool axesHaveDialog(const ToolSession& session) {
    return session.preferences.useAnnotationDialog && axesModified(session.state);
}

bool dialogIsShown(const ToolSession& session) {
    return axesHaveDialog(session) && session.state.zone != ToolZone::Canvas &&
           !session.dialogs.open;
}

DialogItem dialogItemAt(DialogPosition position, AIPoint viewPixels) {
    const ai::int32 x = viewPixels.h - position.x;
    const ai::int32 y = viewPixels.v - position.y;
    if (x < 0 || x >= kDialogWidth) return DialogItem::None;
    for (const HitRow& row : kHits)
        if (y <= row.last) return row.item;
    return DialogItem::None;
}

void drawDialog(const Surface& surface, const ToolSession& session) {
    if (!dialogIsShown(session)) return;
    ai::suites.annotatorDrawer->SetLineWidth(surface.drawer, 1.0F);
    ai::suites.annotatorDrawer->SetFontSize(surface.drawer, kFontSize);
    drawBox(surface, placed(session.state.dialog, 0, kTitleBottom), surface.colours.titleFill);
    for (const DrawnRow& row : kButtons)
        drawButton(surface, session.state, row);
}

void redrawDialog(const ToolSession& session) {
    invalidate(session.view, grown(placed(session.state.dialog, 0, kLastHitRow), 1));
}

void moveDialog(ToolSession& session, AIPoint by) {
    redrawDialog(session);
    session.state.dialog.x += by.h;
    session.state.dialog.y += by.v;
    redrawDialog(session);
}

} // namespace facetta

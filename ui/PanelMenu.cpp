#include "ui/PanelMenu.h"

#include "symmetry/AxisGuides.h"
#include "symmetry/LayerAxesStore.h"
#include "tool/CurrentView.h"
#include "tool/axes/Apply.h"
#include "tool/axes/LayerActions.h"
#include "tool/drawing/DialogPlacement.h"
#include "ui/PanelSize.h"

#include <iterator>

namespace facetta {
namespace {

bool always(const PanelSession&) { return true; }

bool onLayer(const PanelSession& session) { return axesOnLayer(session.tool.state); }

bool canPaste(const PanelSession& session) {
    const AILayerHandle layer = currentLayer();
    return session.copiedAxes.axisCount != 0 && layer != nullptr &&
           !LayerAxesStore::hasAxes(topLevelLayer(layer));
}

bool guidesCanChange(const PanelSession& session) {
    return layerAxesActive(session.tool.state) && session.tool.state.place.editable;
}

bool canAddGuides(const PanelSession& session) {
    return guidesCanChange(session) && !layerHasAxisGuides();
}

bool canRemoveGuides(const PanelSession& session) {
    return guidesCanChange(session) && layerHasAxisGuides();
}

bool someLayerCarriesAxes(const PanelSession&) { return someLayerHasAxes(); }

bool annotationMenuIsUp(const PanelSession& session) {
    const ToolState& state = session.tool.state;
    return session.tool.preferences.useAnnotationDialog && axesModified(state) &&
           !axesOnLayer(state) && annotationState(state) != 0;
}

void copyAxes(PanelSession& session) { session.copiedAxes = session.tool.state.axes; }

void pasteAsProvisional(PanelSession& session) { pasteAsPending(session.tool, session.copiedAxes); }

void pasteOnLayer(PanelSession& session) { pasteToLayer(session.tool, session.copiedAxes); }

void addAxisGuides(PanelSession& session) { addGuides(session.tool.state); }
void removeAxisGuides(PanelSession&) { removeGuides(); }

void removeAll(PanelSession& session) {
    removeAllLayerAxes(session.tool, guidesAsAskedFor(session.tool));
}

void centreAnnotationMenu(PanelSession& session) {
    session.tool.state.dialog = centredIn(session.tool.view.pixels);
    session.tool.preferences.dialogX = session.tool.state.dialog.x;
    session.tool.preferences.dialogY = session.tool.state.dialog.y;
    redrawOverlay(session.tool.view);
}

void openPreferences(PanelSession& session) { session.tool.dialogs.preferences(session.tool); }

void separator(PanelSession&) {}

/// By position, separators counted.
struct Row {
    bool (*canBeChosen)(const PanelSession&);
    void (*act)(PanelSession&);
};

constexpr Row kRows[] = {
    {always, togglePanelSize},     {always, separator},
    {onLayer, copyAxes},           {canPaste, pasteAsProvisional},
    {canPaste, pasteOnLayer},      {always, separator},
    {canAddGuides, addAxisGuides}, {canRemoveGuides, removeAxisGuides},
    {always, separator},           {someLayerCarriesAxes, removeAll},
    {always, separator},           {annotationMenuIsUp, centreAnnotationMenu},
    {always, separator},           {always, openPreferences},
};

} // namespace

void updatePanelMenu(PanelSession& session, ADMListRef entries) {
    const Adm& adm = session.adm;
    adm.entry->SetText(adm.list->IndexEntry(entries, 0),
                       isCompact(session.tool.preferences) ? "Expand Panel" : "Compact Panel");
    ADMInt32 position = 0;
    for (const Row& row : kRows)
        adm.entry->Enable(adm.list->IndexEntry(entries, position++), row.canBeChosen(session));
}

void choosePanelMenuEntry(PanelSession& session, int position) {
    if (position < 0 || position >= static_cast<int>(std::size(kRows))) return;
    kRows[position].act(session);
}

} // namespace facetta

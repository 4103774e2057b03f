#include "ui/PanelActions.h"

#include "host/Error.h"
#include "host/Suites.h"
#include "host/suites/AIDocumentSuite.h"
#include "tool/axes/Apply.h"
#include "tool/axes/CurrentAxes.h"
#include "tool/axes/LayerActions.h"
#include "ui/PanelShown.h"

#include <algorithm>
#include <numbers>

namespace facetta {
namespace {

using namespace panel_item;

void chooseMode(PanelSession& session, bool applyToSelection) {
    ToolSession& tool = session.tool;
    tool.preferences.applyToSelection = applyToSelection;
    offerUpdateByMode(session);
    if (tool.state.axes.axisCount > 0 && !axesOnLayer(tool.state)) axesChanged(tool);
    takeTool(tool);
    showState(session);
    session.adm.item->Update(session.item(kApply));
}

void chooseSelectionMode(PanelSession& session) { chooseMode(session, true); }
void chooseLayerMode(PanelSession& session) { chooseMode(session, false); }

void changeActive(PanelSession& session) {
    const bool active = session.adm.item->GetBooleanValue(session.item(kActive)) != 0;
    session.tool.preferences.autoMirror = active;
    if (layerAxesActive(session.tool.state)) setAutoMirror(session.tool, active);
    offerUpdateByLayer(session);
}

void update(PanelSession& session) {
    if (layerAxesActive(session.tool.state)) mirrorLayerNow(session.tool);
}

void apply(PanelSession& session) { applyAxes(session.tool); }

void cancel(PanelSession& session) {
    ToolSession& tool = session.tool;
    if (axesOnLayer(tool.state)) return removeLayerAxes(tool, guidesAsAskedFor(tool));
    cancelAxes(tool, LayerCopies::MadeAnew);
    axesChanged(tool);
    tool.updatePanel();
}

/// Changes the axes shown, if there are any, by `change`.
template <typename Change> void edit(PanelSession& session, CountsAs countsAs, Change change) {
    SymmetryAxes axes = session.tool.state.axes;
    if (axes.axisCount != 0) change(axes);
    editAxes(session.tool, axes, countsAs);
}

/// An origin that has moved along x alone is often still on its way: nothing comes up on the canvas
/// before y, angle or count are given.
void changeOriginX(PanelSession& session) {
    edit(session, CountsAs::Unmodified, [&](SymmetryAxes& axes) {
        axes = withOriginX(session.adm, session.item(kOriginX), axes);
    });
}

void changeOriginY(PanelSession& session) {
    edit(session, CountsAs::Modified, [&](SymmetryAxes& axes) {
        axes = withOriginY(session.adm, session.item(kOriginY), axes, session.tool.host);
    });
}

void changeAngle(PanelSession& session) {
    const auto degrees = static_cast<double>(session.adm.item->GetFloatValue(session.item(kAngle)));
    const double angle = normaliseAngle(degrees * std::numbers::pi / 180.0);
    session.tool.preferences.angle = angle;
    edit(session, CountsAs::Modified, [=](SymmetryAxes& axes) { axes.angle = angle; });
}

void changeCount(PanelSession& session) {
    const ADMInt32 count = session.adm.item->GetIntValue(session.item(kCount));
    session.tool.preferences.count = count;
    edit(session, CountsAs::Modified, [=](SymmetryAxes& axes) { axes.axisCount = count; });
}

void redrawIfShown(PanelSession& session) {
    if (session.tool.state.axes.axisCount != 0) redrawOverlay(session.tool.view);
}

void changeOverlay(PanelSession& session) {
    session.tool.preferences.useOverlay =
        session.adm.item->GetBooleanValue(session.item(kOverlay)) != 0;
    showState(session);
    redrawIfShown(session);
}

void changeOpacity(PanelSession& session) {
    const float percent = session.adm.item->GetFloatValue(session.item(kOpacity));
    session.tool.preferences.opacity = static_cast<double>(percent) / 100.0;
    showNumber(session.adm, session.item(kOpacitySlider), percent);
    redrawIfShown(session);
}

struct Row {
    ADMInt32 id;
    void (*act)(PanelSession&);
};

constexpr Row kRows[] = {
    {kSelectionMode, chooseSelectionMode},
    {kLayerMode, chooseLayerMode},
    {kActive, changeActive},
    {kUpdate, update},
    {kApply, apply},
    {kCancel, cancel},
    {kOriginX, changeOriginX},
    {kOriginY, changeOriginY},
    {kAngle, changeAngle},
    {kCount, changeCount},
    {kOverlay, changeOverlay},
    {kOpacity, changeOpacity},
};

} // namespace

void actOnItem(PanelSession& session, ADMInt32 id) {
    const auto row = std::ranges::find(kRows, id, &Row::id);
    if (row != std::end(kRows)) row->act(session);
}

void actOnSlider(PanelSession& session) {
    const float percent = session.adm.item->GetFloatValue(session.item(kOpacitySlider));
    session.tool.preferences.opacity = static_cast<double>(percent) / 100.0;
    showNumber(session.adm, session.item(kOpacity), percent);
    if (session.tool.state.axes.axisCount == 0) return;
    redrawOverlay(session.tool.view);
    ai::check(ai::suites.document->RedrawDocument());
}

} // namespace facetta

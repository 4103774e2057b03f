#include "shell/Notifications.h"

#include "host/Codes.h"
#include "host/MessageNames.h"
#include "host/Suites.h"
#include "host/suites/AINotifierSuite.h"
#include "shell/FacettaPlugin.h"
#include "shell/PreferenceStore.h"
#include "symmetry/LiveLayers.h"
#include "tool/CurrentAxes.h"
#include "tool/drawing/Preview.h"

#include <algorithm>

namespace facetta {
namespace {

constexpr char kRegistrationName[] = "FacettaPlugin";

void followLicence(FacettaPlugin& plugin) { plugin.licenceChanged = true; }

void followConstrainAngle(FacettaPlugin& plugin) {
    plugin.hostPreferences.constrainAngle = readConstrainAngle();
}

void fetchView(FacettaPlugin& plugin) {
    plugin.view = documentIsOpen() ? fetchCurrentView() : CurrentView{};
}

void fetchViewAndPlaceDialog(FacettaPlugin& plugin) {
    fetchView(plugin);
    if (plugin.view.handle != nullptr)
        plugin.tool.dialog = placedIn(plugin.view.pixels, plugin.tool.dialog);
}

void showPanel(FacettaPlugin& plugin) {
    if (plugin.panel) plugin.panel->show(true);
}

/// Known to the handlers that follow, with no reaction of its own.
void passOn(FacettaPlugin&) {}

/// May the art of a live layer, or which layer is current, be another than before?
enum class Document : bool { Same, MayHaveChanged };

struct Row {
    const char* type;
    void (*react)(FacettaPlugin&);
    Document document = Document::Same;
};

constexpr Row kRows[] = {
    {kLicenceChangedNotifier, followLicence},
    {kPreferenceChangedNotifier, followConstrainAngle},
    {"AI Document Opened Notifier", fetchViewAndPlaceDialog},
    {"AI Document Closed Notifier", fetchViewAndPlaceDialog, Document::MayHaveChanged},
    {"AI Document Changed Notifier", fetchViewAndPlaceDialog, Document::MayHaveChanged},
    {"AI Document View Changed Notifier", fetchViewAndPlaceDialog},
    {"AI Document View Style Active View Changed Notifier", fetchViewAndPlaceDialog},
    {"AI Document Write Preprocess Notifier", passOn},
    {kArtSelectionChangedNotifier, passOn, Document::MayHaveChanged},
    {kArtPropertiesChangedNotifier, passOn, Document::MayHaveChanged},
    {"AI Current Layer Notifier", passOn, Document::MayHaveChanged},
    {"AI Layer Set Notifier", passOn, Document::MayHaveChanged},
    {"AI Layer Options Notifier", passOn, Document::MayHaveChanged},
    {"AI Command Notifier: After Undo", passOn, Document::MayHaveChanged},
    {"AI Command Notifier: After Redo", passOn, Document::MayHaveChanged},
    {"AI Command Notifier: After Lock", passOn, Document::MayHaveChanged},
    {"AI Command Notifier: After Unlock All", passOn, Document::MayHaveChanged},
    {"AI Document Ruler Unit Changed Notifier", passOn},
    {"AI Tool Suspend Notifier", passOn},
    {"AI Tool Resume Notifier", passOn},
    {"AI Tool Suspended by Cmd Key Notifier", passOn},
    {"AI Tool Resumed by Cmd Key Notifier", passOn},
    {"AI Tool Suspended by Spacebar Notifier", passOn},
    {"AI Tool Resumed by Spacebar Notifier", passOn},
    {"AI Current Coordinate System Changed Notifier", fetchView},
    {"AI Document Ruler Origin Changed Notifier", passOn},
    {kShowAllPanelsNotifier, showPanel},
};
static_assert(std::size(kRows) == kNotifierCount);

/// Live layers are brought up to date, and the axes shown are those of the current layer.
void followDocument(FacettaPlugin& plugin) {
    // What a drag changes meanwhile it takes back.
    if (!plugin.tool.dragging) clearPreview(plugin.tool);
    if (!documentIsOpen()) {
        dropAxes(plugin.tool);
        plugin.updatePanel();
        return;
    }
    // While the art of a layer moves with its axes, the layer's own axes are where they were.
    if (plugin.tool.reposition) return;
    regenerateChangedLayers(plugin.mirroring());
    const SymmetryAxes before = plugin.tool.axes;
    followCurrentLayer(plugin.tool);
    if (plugin.tool.axes != before) redrawOverlay(plugin.view);
    plugin.updatePanel();
}

} // namespace

void registerNotifiers(SPPluginRef self, NotifierHandles& handles) {
    for (std::size_t i = 0; i < kNotifierCount; ++i) {
        const AIErr err =
            ai::suites.notifier->AddNotifier(self, kRegistrationName, kRows[i].type, &handles[i]);
        if (err != kNoErr) return;
    }
}

void handleNotification(FacettaPlugin& plugin, AINotifierHandle notifier) {
    const auto& handles = plugin.notifiers;
    const auto found = std::ranges::find(handles, notifier);
    if (notifier == nullptr || found == handles.end()) return;
    const Row& row = kRows[found - handles.begin()];
    row.react(plugin);
    if (row.document == Document::MayHaveChanged) followDocument(plugin);
}

} // namespace facetta

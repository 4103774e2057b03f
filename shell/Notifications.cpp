#include "shell/Notifications.h"

#include "host/Codes.h"
#include "host/Lent.h"
#include "host/MessageNames.h"
#include "host/Suites.h"
#include "host/suites/AINotifierSuite.h"
#include "shell/FacettaPlugin.h"
#include "shell/PreferenceStore.h"
#include "tool/axes/FollowDocument.h"
#include "tool/drawing/Preview.h"

#include <algorithm>
#include <utility>

namespace facetta {
namespace {

constexpr char kRegistrationName[] = "FacettaPlugin";

void followLicence(FacettaPlugin& plugin) { plugin.licenceHasChanged(); }

void followConstrainAngle(FacettaPlugin& plugin) {
    plugin.hostPreferences.constrainAngle = readConstrainAngle();
}

void fetchView(FacettaPlugin& plugin) { plugin.fetchView(); }

void fetchViewAndPlaceDialog(FacettaPlugin& plugin) { plugin.fetchViewAndPlaceDialog(); }

void showPanel(FacettaPlugin& plugin) {
    if (plugin.panel) plugin.panel->show(true);
}

/// No reaction of its own.
void passOn(FacettaPlugin&) {}

/// May there be other art than before?
enum class Art : bool { Same, MayHaveChanged };

struct Row {
    const char* type;
    void (*react)(FacettaPlugin&);
    Art art = Art::Same;
};

constexpr Row kRows[] = {
    {kLicenceChangedNotifier, followLicence},
    {kPreferenceChangedNotifier, followConstrainAngle},
    {"AI Document Opened Notifier", fetchViewAndPlaceDialog},
    {"AI Document Closed Notifier", fetchViewAndPlaceDialog, Art::MayHaveChanged},
    {"AI Document Changed Notifier", fetchViewAndPlaceDialog, Art::MayHaveChanged},
    {"AI Document View Changed Notifier", fetchViewAndPlaceDialog},
    {"AI Document View Style Active View Changed Notifier", fetchViewAndPlaceDialog},
    {"AI Document Write Preprocess Notifier", passOn},
    {kArtSelectionChangedNotifier, passOn, Art::MayHaveChanged},
    {kArtPropertiesChangedNotifier, passOn, Art::MayHaveChanged},
    {"AI Current Layer Notifier", passOn, Art::MayHaveChanged},
    {"AI Layer Set Notifier", passOn, Art::MayHaveChanged},
    {"AI Layer Options Notifier", passOn, Art::MayHaveChanged},
    {"AI Command Notifier: After Undo", passOn, Art::MayHaveChanged},
    {"AI Command Notifier: After Redo", passOn, Art::MayHaveChanged},
    {"AI Command Notifier: After Lock", passOn, Art::MayHaveChanged},
    {"AI Command Notifier: After Unlock All", passOn, Art::MayHaveChanged},
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

/// Overlay and panel follow the art and the current layer. Done at every notification: the host may
/// merge several, or send one late or without need.
void lookAfterDocument(FacettaPlugin& plugin, Art art) {
    const bool isOpen = documentIsOpen();
    if (isOpen && plugin.view.document == nullptr) return; // the host cannot tell which it is
    // What a drag changes meanwhile it takes back.
    if (art == Art::MayHaveChanged && !dragging(plugin.tool)) clearPreview(plugin.tool);
    if (std::exchange(plugin.liveLayers.mirrored, false)) redrawOverlay(plugin.view);
    const platform::KeyState noKeys;
    ToolSession session = plugin.toolSession(noKeys);
    followDocument(session);
    plugin.updatePanel();
}

} // namespace

void registerNotifiers(SPPluginRef self, NotifierHandles& handles) {
    for (std::size_t i = 0; i < kNotifierCount; ++i) {
        const AIErr err =
            ai::suites.notifier->AddNotifier(self, kRegistrationName, kRows[i].type, &handles[i]);
        if (!ai::isGiven(err, handles[i])) return;
    }
}

void handleNotification(FacettaPlugin& plugin, const AINotifierMessage& message) {
    const auto& handles = plugin.notifiers;
    const AINotifierHandle notifier = message.notifier;
    const auto found = std::ranges::find(handles, notifier);
    const Row* const row =
        notifier != nullptr && found != handles.end() ? &kRows[found - handles.begin()] : nullptr;
    plugin.followDocument();
    if (row != nullptr) row->react(plugin);
    plugin.licence->notified(message);
    lookAfterDocument(plugin, row != nullptr ? row->art : Art::Same);
}

} // namespace facetta

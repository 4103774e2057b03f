#include "shell/Notifications.h"

#include "host/Codes.h"
#include "host/MessageNames.h"
#include "host/Suites.h"
#include "host/suites/AIDocumentListSuite.h"
#include "host/suites/AINotifierSuite.h"
#include "shell/FacettaPlugin.h"
#include "shell/PreferenceStore.h"

#include <algorithm>

namespace facetta {
namespace {

constexpr char kRegistrationName[] = "FacettaPlugin";

bool documentsRemain() {
    ai::int32 count = 0;
    return ai::suites.documentList->Count(&count) == kNoErr && count > 0;
}

void followLicence(FacettaPlugin& plugin) { plugin.licenceChanged = true; }

void followConstrainAngle(FacettaPlugin& plugin) {
    plugin.hostPreferences.constrainAngle = readConstrainAngle();
}

void fetchView(FacettaPlugin& plugin) {
    plugin.view = fetchCurrentView();
    plugin.tool.dialog = placedIn(plugin.view.pixels, plugin.tool.dialog);
}

void fetchViewOfRemaining(FacettaPlugin& plugin) {
    if (documentsRemain())
        fetchView(plugin);
    else
        plugin.view = {};
}

void fetchViewOnly(FacettaPlugin& plugin) {
    if (documentsRemain()) plugin.view = fetchCurrentView();
}

/// Known to the handlers that follow, with no reaction of its own.
void passOn(FacettaPlugin&) {}

struct Row {
    const char* type;
    void (*react)(FacettaPlugin&);
};

constexpr Row kRows[] = {
    {kLicenceChangedNotifier, followLicence},
    {kPreferenceChangedNotifier, followConstrainAngle},
    {"AI Document Opened Notifier", fetchView},
    {"AI Document Closed Notifier", fetchViewOfRemaining},
    {"AI Document Changed Notifier", fetchViewOfRemaining},
    {"AI Document View Changed Notifier", fetchViewOfRemaining},
    {"AI Document View Style Active View Changed Notifier", fetchView},
    {"AI Document Write Preprocess Notifier", passOn},
    {kArtSelectionChangedNotifier, passOn},
    {kArtPropertiesChangedNotifier, passOn},
    {"AI Current Layer Notifier", passOn},
    {"AI Layer Set Notifier", passOn},
    {"AI Layer Options Notifier", passOn},
    {"AI Command Notifier: After Undo", passOn},
    {"AI Command Notifier: After Redo", passOn},
    {"AI Command Notifier: After Lock", passOn},
    {"AI Command Notifier: After Unlock All", passOn},
    {"AI Document Ruler Unit Changed Notifier", passOn},
    {"AI Tool Suspend Notifier", passOn},
    {"AI Tool Resume Notifier", passOn},
    {"AI Tool Suspended by Cmd Key Notifier", passOn},
    {"AI Tool Resumed by Cmd Key Notifier", passOn},
    {"AI Tool Suspended by Spacebar Notifier", passOn},
    {"AI Tool Resumed by Spacebar Notifier", passOn},
    {"AI Current Coordinate System Changed Notifier", fetchViewOnly},
    {"AI Document Ruler Origin Changed Notifier", passOn},
    {kShowAllPanelsNotifier, passOn}, // the panel shows itself here once there is one
};
static_assert(std::size(kRows) == kNotifierCount);

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
    kRows[found - handles.begin()].react(plugin);
}

} // namespace facetta

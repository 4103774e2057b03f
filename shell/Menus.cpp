#include "shell/Menus.h"

#include "host/Codes.h"
#include "host/Lent.h"
#include "host/Messages.h"
#include "host/Suites.h"
#include "host/UnicodeString.h"
#include "host/suites/AIMenuSuite.h"
#include "host/suites/AINotifierSuite.h"
#include "shell/FacettaPlugin.h"
#include "shell/Help.h"
#include "shell/Notifications.h"
#include "ui/AboutBox.h"

#include <string_view>

namespace facetta {
namespace {

/// Shared by all of the vendor's plug-ins: the first to start makes the group.
constexpr char kVendorGroup[] = "com.norvane.graphics";
constexpr char kHelpGroup[] = "FacettaHelpGroup";
constexpr char kWindowGroup[] = "FacettaWindowGroup";
constexpr char kShowAllPanelsItem[] = "NorvaneShowAllPanels";

// Groups of the host.
constexpr char kAboutMenu[] = "About";
constexpr char kHelpMenu[] = "Help Menu";
constexpr char kPanelList[] = "Tool Palettes";

struct HelpItem {
    const char* key;
    const char* label;
    void (*chosen)(FacettaPlugin& plugin, std::string_view topic);
    const char* topic = ""; ///< of the vendor's page
};

void openHelp(FacettaPlugin&, std::string_view) { openManual(); }

void openPage(FacettaPlugin& plugin, std::string_view topic) {
    openWebPage(*plugin.licence, topic);
}

void openLicensing(FacettaPlugin& plugin, std::string_view) {
    plugin.licence->openDialog();
    plugin.updatePanel();
}

constexpr HelpItem kHelpItems[kHelpItemCount] = {
    {"Facetta Help", "Help...", openHelp},
    {"Facetta Tutorial Movies", "Tutorial Movies...", openPage, "tutorialmovies"},
    {"Facetta Check for Updates", "Check for Updates...", openPage, "checkforupdates"},
    {"Facetta Licensing", "Licensing...", openLicensing},
    {"Facetta Buy License", "Buy/Upgrade License...", openPage, "buyupgrade"},
    {"Facetta Licensing Help", "Licensing Help...", openPage, "licensinghelp"},
};

void openAbout(FacettaPlugin& plugin) {
    plugin.licenceChanged = false;
    const AboutResult result = showAboutBox(plugin.self(), *plugin.licence, openManual);
    if (result == AboutResult::BuyNow) openWebPage(*plugin.licence, "aboutMenu");
    if (plugin.licenceChanged) plugin.updatePanel();
}

bool addItem(SPPluginRef self, const char* key, const char* label, const char* group,
             AIMenuItemHandle& item, AIMenuItemOption options = kMenuItemNoOptions) {
    AIPlatformAddMenuItemDataUS data{group, ai::UnicodeString(std::string_view(label))};
    return ai::isGiven(ai::suites.menu->AddMenuItem(self, key, &data, options, &item), item);
}

/// The host does not tolerate a group made twice, so it is looked for first.
bool groupExists(std::string_view name) {
    ai::int32 count = 0;
    if (ai::suites.menu->CountMenuGroups(&count) != kNoErr) return false;
    for (ai::int32 i = 0; i < count; ++i) {
        AIMenuGroup group = nullptr;
        const char* groupName = nullptr;
        if (ai::suites.menu->GetNthMenuGroup(i, &group) == kNoErr &&
            ai::suites.menu->GetMenuGroupName(group, &groupName) == kNoErr &&
            groupName != nullptr && name == groupName)
            return true;
    }
    return false;
}

/// The group `name`, made if need be as the submenu of an item `key` in the group `parent`.
bool ensureSubmenu(SPPluginRef self, const char* name, const char* key, const char* label,
                   const char* parent) {
    if (groupExists(name)) return true;
    AIMenuItemHandle opener = nullptr;
    AIMenuGroup group = nullptr;
    return addItem(self, key, label, parent, opener) &&
           ai::suites.menu->AddMenuGroupAsSubMenu(name, 0, opener, &group) == kNoErr;
}

AIMenuItemHandle findItem(std::string_view name) {
    ai::int32 count = 0;
    if (ai::suites.menu->CountMenuItems(&count) != kNoErr) return nullptr;
    for (ai::int32 i = 0; i < count; ++i) {
        AIMenuItemHandle item = nullptr;
        const char* key = nullptr;
        if (ai::suites.menu->GetNthMenuItem(i, &item) == kNoErr &&
            ai::suites.menu->GetMenuItemKeyboardShortcutDictionaryKey(item, &key) == kNoErr &&
            key != nullptr && name == key)
            return item;
    }
    return nullptr;
}

} // namespace

bool addAboutItem(SPPluginRef self, MenuItems& items) {
    return addItem(self, "Facetta About", "About Facetta...", kAboutMenu, items.about);
}

bool addHelpItems(SPPluginRef self, MenuItems& items) {
    if (!ensureSubmenu(self, kVendorGroup, kVendorGroup, "Norvane Graphics", kHelpMenu) ||
        !ensureSubmenu(self, kHelpGroup, kHelpGroup, "Facetta", kVendorGroup))
        return false;
    bool added = true;
    for (std::size_t i = 0; i < kHelpItemCount; ++i) {
        const HelpItem& item = kHelpItems[i];
        added = addItem(self, item.key, item.label, kHelpGroup, items.help[i]) && added;
    }
    return added;
}

bool addShowAllPanelsItem(SPPluginRef self, MenuItems& items) {
    items.showAllPanels = findItem(kShowAllPanelsItem);
    return items.showAllPanels != nullptr ||
           addItem(self, kShowAllPanelsItem, "Show All Norvane Graphics Panels", kPanelList,
                   items.showAllPanels);
}

bool addWindowGroup(SPPluginRef self) {
    return ensureSubmenu(self, kWindowGroup, kWindowGroup, "Facetta", kPanelList);
}

bool addPanelItem(SPPluginRef self, MenuItems& items) {
    // Its check mark follows the panel, so it asks to be told before the menu opens.
    return addItem(self, "Facetta Panel Menu Item", "Facetta Panel", kWindowGroup, items.panel,
                   kMenuItemWantsUpdateOption);
}

void chooseMenuItem(FacettaPlugin& plugin, AIMenuItemHandle item) {
    const MenuItems& items = plugin.menuItems;
    if (item == nullptr) return;
    if (item == items.about) openAbout(plugin);
    if (item == items.showAllPanels) ai::suites.notifier->Notify(kShowAllPanelsNotifier, nullptr);
    for (std::size_t i = 0; i < kHelpItemCount; ++i)
        if (item == items.help[i]) kHelpItems[i].chosen(plugin, kHelpItems[i].topic);
}

} // namespace facetta

#pragma once

#include "symmetry/LayerAxesStore.h"
#include "tests/tool/Drawing.h"
#include "tool/axes/LayerActions.h"
#include "tool/drawing/OnCanvasDialog.h"
#include "toolkit/ImplCommon/CoADMDialog.h"
#include "toolkit/ImplCommon/Dialogs.h"
#include "ui/PanelItems.h"

#include <string>

namespace facetta::tests {

/// The panel beside a drawing of one line, with pending axes above it.
class PanelInHand : public Drawing {
public:
    explicit PanelInHand(bool selected = false, TestLicence terms = {})
        : Drawing(selected, std::move(terms)) {}

    [[nodiscard]] static NRDM::CoADMDialog& panel() {
        for (const auto& dialog : NRDM::Dialogs::current().open())
            if (dialog->view().kind == NRDM::DialogKind::Panel) return *dialog;
        throw std::logic_error("there is no panel");
    }
    [[nodiscard]] static NRDM::CoADMItem& item(int id) {
        NRDM::CoADMItem* const found = panel().item(id);
        if (found == nullptr) throw std::logic_error("the panel has no item " + std::to_string(id));
        return *found;
    }
    [[nodiscard]] static std::string textOf(int id) { return item(id).text(); }
    [[nodiscard]] static bool isEnabled(int id) { return item(id).view().enabled; }
    [[nodiscard]] static bool isVisible(int id) { return item(id).view().visible; }

    // What a user does. A window would report what is thrown the same way.
    void click(int id) {
        act(host, [=] { item(id).clicked(); });
    }
    void type(int id, const std::string& text) {
        act(host, [&] {
            item(id).typed(text);
            item(id).commit();
        });
    }
    void slide(double value) {
        act(host, [=] { item(panel_item::kOpacitySlider).slide(value, NRDM::Phase::Complete); });
    }

    /// Can the entry at `position` of the flyout menu be chosen, as the menu opens now?
    bool offers(int position) { return flyout().items.at(asIndex(position)).enabled != 0; }
    void choose(int position) {
        host.chooseFlyoutItem(hostPanel(), static_cast<ai::uint32>(position) + 1);
    }
    [[nodiscard]] AIPanelRef hostPanel() const { return host.panels.named(U"Facetta"); }

    /// The layer's axes, and guides along them if these are wanted.
    void applyToLayer(bool withGuides = false) {
        click(panel_item::kApply);
        if (withGuides) choose(6);
    }
    void lockLayer() {
        host.edit("Lock", [](easel::Document& page) {
            page.state().currentLayer->write().attributes |= kArtLocked;
        });
    }
    [[nodiscard]] static SymmetryAxes stored() {
        SymmetryAxes axes;
        LayerAxesStore::read(nullptr, axes);
        return axes;
    }
    void notify(const char* type) { host.notifiers.notify(type); }
    [[nodiscard]] Preferences& preferences() const { return thePlugin->preferences; }

private:
    static std::size_t asIndex(int position) { return static_cast<std::size_t>(position); }
    const easel::FlyoutMenu& flyout() { return host.openFlyout(hostPanel()); }

    template <typename Act> static void act(easel::Host& host, Act act) {
        try {
            act();
        } catch (...) {
            NRDM::Dialogs::current().fail();
        }
        host.openMenus(); // the host has time for its notifications
    }
};

} // namespace facetta::tests

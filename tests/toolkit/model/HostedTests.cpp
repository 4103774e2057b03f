/// Dialogs that need a host: panels with their menus, and layouts from resources.

#include "tests/easel/runtime/TestPlugin.h"
#include "tests/toolkit/model/Stage.h"

#include "easel/suites/Suites.h"
#include "toolkit/ImplCommon/Exceptions.h"

#include <array>
#include <optional>

using namespace facetta::tests;
using namespace NRDM;

namespace {

/// A plug-in that a host has started, with dialogs of its own.
struct Hosted {
    easel::Host host{easel::sessionWithSuites()};
    TestPlugin plugin{host};
    std::optional<Stage> stage;

    Hosted() {
        plugin.on("SP Interface/Startup", [this](SPMessageData& message) {
            ai::basicSuite = message.basic;
            stage.emplace();
            return kNoErr;
        });
        plugin.on("SP Interface/Shutdown", [this](SPMessageData&) {
            stage.reset();
            ai::basicSuite = nullptr;
            return kNoErr;
        });
        host.start();
    }
    ~Hosted() { host.quit(); }

    CoADMDialog* create(ADMDialogStyle style, int resource) {
        CoADMDialog* dialog = nullptr;
        plugin.run([&] {
            dialog = stage->dialogs.create(
                {.plugin = plugin.self(), .name = "Facetta", .resource = resource, .style = style});
        });
        return dialog;
    }
};

struct Placed {
    int id;
    Bounds bounds;
};

} // namespace

TEST_CASE("a panel lies in the host's, follows its states and tells its sizes once") {
    Hosted hosted;
    CoADMDialog* const dialog = hosted.create(kADMTabbedFloatingDialogStyle, 16005); // no layout
    REQUIRE(dialog != nullptr);
    CHECK(dialog->items().empty());
    const AIPanelRef panel = hosted.host.panels.named(U"Facetta");
    dialog->procedures.notify = dialogHears;

    hosted.plugin.run([&] { dialog->setSize({240, 188}); });
    CHECK(hosted.host.panels.at(panel).size.height == 188);
    CHECK(takeHeard().empty()); // what code sets is not told
    hosted.plugin.run([&] { dialog->setPanelState(2); });
    CHECK(takeHeard().empty());
    hosted.host.cyclePanel(panel);
    CHECK(takeHeard() == Heard{"cycle in dialog"});
    hosted.plugin.run([&] { CHECK(dialog->panelState() == 1); });
    dialog->resized({240, 83});
    dialog->resized({240, 83}); // what is known is not told
    CHECK(dialog->view().size == Extent{240, 83});
    CHECK(takeHeard() == Heard{"bounds in dialog"});

    hosted.plugin.run([&] { CHECK_FALSE(dialog->isVisible()); });
    hosted.host.showPanel(panel, true);
    hosted.plugin.run([&] { CHECK(dialog->isVisible()); });
}

TEST_CASE("a panel asks its host for pixels, and keeps its size when it gets none") {
    Hosted hosted;
    CoADMDialog* const dialog = hosted.create(kADMTabbedFloatingDialogStyle, 16005);
    const AIPanelRef panel = hosted.host.panels.named(U"Facetta");
    hosted.plugin.run([&] { dialog->setSize({240, 83}); });

    hosted.stage->peers->pixelsInUnit = 1.5; // it is on another display now
    hosted.host.showPanel(panel, true);
    CHECK(hosted.host.panels.at(panel).size.width == 360);
    CHECK(hosted.host.panels.at(panel).size.height == 125);
    CHECK(dialog->view().size == Extent{240, 83});

    hosted.plugin.run([&] {
        easel::session().calls.arm({.mode = easel::FaultPlan::Mode::Once,
                                    .call = 1,
                                    .function = "AI Panel Suite.SetSize",
                                    .code = kOutOfMemoryErr});
        CHECK_THROWS(dialog->setSize({240, 188}));
        easel::session().calls.disarm();
        CHECK(dialog->view().size == Extent{240, 83});
        dialog->setSize({240, 188});
    });
    CHECK(hosted.host.panels.at(panel).size.height == 282);
}

TEST_CASE("the dialogs of the resources have their items where the layout puts them") {
    struct Row {
        int resource;
        std::string title;
        Extent size;
        std::vector<Placed> items;
    };
    const Row rows[] = {
        {16001,
         "Facetta Preferences",
         {268, 180},
         {{3, {16, 16, 210, 34}},
          {4, {16, 44, 252, 62}},
          {5, {16, 72, 186, 90}},
          {6, {16, 100, 216, 118}},
          {2, {32, 140, 122, 164}},
          {1, {146, 140, 236, 164}}}},
        {16002,
         "Edit Symmetry Axes",
         {374, 198},
         {{3, {20, 23, 74, 39}},
          {4, {76, 20, 172, 42}},
          {5, {202, 23, 256, 39}},
          {6, {258, 20, 354, 42}},
          {7, {20, 63, 56, 79}},
          {8, {58, 60, 154, 82}},
          {9, {156, 63, 198, 79}},
          {10, {20, 103, 110, 119}},
          {11, {112, 100, 172, 122}},
          {2, {85, 152, 175, 176}},
          {1, {199, 152, 289, 176}}}},
        {16003,
         "Facetta About",
         {632, 536},
         {{4, {16, 16, 616, 484}},
          {2, {88, 496, 184, 520}},
          {5, {208, 496, 304, 520}},
          {3, {328, 496, 424, 520}},
          {1, {448, 496, 544, 520}}}},
    };
    for (const auto& row : rows) {
        INFO(row.title);
        Hosted hosted;
        CoADMDialog* const dialog = hosted.create(kADMModalDialogStyle, row.resource);
        REQUIRE(dialog != nullptr);
        CHECK(dialog->view().title == row.title);
        CHECK(dialog->view().size == row.size);
        for (const Placed& placed : row.items) {
            INFO(placed.id);
            REQUIRE(dialog->item(placed.id) != nullptr);
            CHECK(dialog->item(placed.id)->view().bounds == placed.bounds);
        }
        CHECK(dialog->item(1)->view().isDefault);
    }
}

TEST_CASE("a modal dialog without its layout is none") {
    Hosted hosted;
    hosted.plugin.run([&] {
        CHECK_THROWS_WITH_AS(hosted.stage->dialogs.modal(
                                 {.plugin = hosted.plugin.self(), .name = "No", .resource = 16999}),
                             "Resource read failed", NRDMResourceException);
    });
    CHECK(hosted.stage->dialogs.open().empty());
}

TEST_CASE("strings and pictures come from the plug-in's resources") {
    Hosted hosted;
    hosted.plugin.run([&] {
        std::array<char, 256> text{};
        CHECK(kBasicSuite.GetIndexString(hosted.plugin.self(), 18000, 1, text.data(), 256) == 0);
        CHECK(std::string(text.data()) != "");
        CHECK(kBasicSuite.GetIndexString(hosted.plugin.self(), 18000, 99, text.data(), 256) != 0);
        CHECK(std::string(text.data()) == "");
        ADMIconRef icon = kIconSuite.GetFromResource(hosted.plugin.self(), nullptr, 2103, 0);
        CHECK(kIconSuite.GetType(icon) == kADMImageIconType);
        CHECK(kIconSuite.GetWidth(icon) > 0);
        kIconSuite.Destroy(icon);
        CHECK_THROWS_AS(kIconSuite.Destroy(icon), NRDMParameterException);
    });
}

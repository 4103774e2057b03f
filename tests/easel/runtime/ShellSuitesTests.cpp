#include "host/References.h"
#include "host/suites/AIAnnotatorDrawerSuite.h"
#include "host/suites/AIAnnotatorSuite.h"
#include "host/suites/AICursorSnapSuite.h"
#include "host/suites/AIDocumentViewSuite.h"
#include "tests/easel/runtime/TestPlugin.h"

#include "easel/document/ArtTree.h"
#include "easel/suites/Suites.h"

#include <doctest/doctest.h>

namespace facetta::tests {
namespace {

/// A host with an empty document of 600 by 400 points; its view is 1280 by 800 pixels.
struct Fixture {
    Fixture() {
        host.start();
        host.open(std::make_unique<easel::Document>(easel::session(), AISize{600, 400}));
    }
    ~Fixture() { host.quit(); }
    easel::Host host{easel::sessionWithSuites()};
    TestPlugin plugin{host};
};

AIPathSegment corner(AIReal h, AIReal v) { return {{h, v}, {h, v}, {h, v}, 1}; }

} // namespace

TEST_CASE("no drawing state leaks from one annotator to the next") {
    Fixture fixture;
    for (const char* name : {"First", "Second"}) {
        AIAnnotatorHandle annotator = nullptr;
        REQUIRE(ai::suites.annotator->AddAnnotator(fixture.plugin.self(), name, &annotator) ==
                kNoErr);
    }
    int draws = 0;
    fixture.plugin.on("AI Annotation/AI Draw", [&](SPMessageData& data) {
        const auto& message = messageOf<AIAnnotatorMessage>(data);
        CHECK(message.updateType == 5);
        CHECK(message.portType == 1);
        REQUIRE(message.drawer != nullptr);
        const auto& suite = *ai::suites.annotatorDrawer;
        suite.DrawLine(message.drawer, {0, 0}, {10, 20});
        suite.SetColor(message.drawer, {65535, 0, 0});
        suite.SetLineDashed(message.drawer, 1);
        suite.SetOpacity(message.drawer, 0.5F);
        suite.SetLineWidth(message.drawer, 3);
        suite.DrawRect(message.drawer, {1, 2, 3, 4}, 1);
        ++draws;
        return kNoErr;
    });
    const easel::DisplayList list = fixture.host.drawAnnotations(nullptr);
    CHECK(draws == 2);
    CHECK(easel::dump(list) == "line 0,0 10,20 #000000\n"
                               "rect 1,2 3,4 #ff0000 filled dashed\n"
                               "line 0,0 10,20 #000000\n"
                               "rect 1,2 3,4 #ff0000 filled dashed\n");
    CHECK(list[2].style.opacity == 1);
    CHECK(list[3].style.opacity == 0.5F);
}

TEST_CASE("view pixels run down from the top left, whatever centre and zoom") {
    Fixture fixture;
    const auto& suite = *ai::suites.documentView;
    fixture.host.centreOn({100, -50});
    fixture.host.zoom(2);
    struct Row {
        AIRealPoint artwork;
        AIPoint pixel;
    };
    const Row rows[] = {{{100, -50}, {640, 400}},
                        {{101, -50}, {642, 400}},
                        {{100, -49}, {640, 398}},
                        {{-220, 150}, {0, 0}}};
    for (const auto& [artwork, pixel] : rows) {
        AIPoint seen{};
        CHECK(suite.ArtworkPointToViewPoint(nullptr, &artwork, &seen) == kNoErr);
        CHECK(seen.h == pixel.h);
        CHECK(seen.v == pixel.v);
    }
    AIRealRect bounds{};
    suite.GetDocumentViewBounds(nullptr, &bounds);
    CHECK(bounds.left == -220);
    CHECK(bounds.top == 150);
    CHECK(bounds.right == 420);
    CHECK(bounds.bottom == -250);

    AIReal zoom = 0;
    fixture.host.zoom(1000);
    suite.GetDocumentViewZoom(nullptr, &zoom);
    CHECK(zoom == 64);
}

TEST_CASE("snapping searches the sources of the control string in its order") {
    Fixture fixture;
    easel::Document& document = easel::session().document();
    easel::Art& path =
        easel::createArt(document, kPathArt, easel::onTopOf(*document.state().currentLayer));
    path.write().segments.write() = {corner(100, -100), corner(200, -100)};
    easel::Art& arch =
        easel::createArt(document, kPathArt, easel::onTopOf(*document.state().currentLayer));
    arch.write().segments.write() = {{{300, -300}, {300, -300}, {300, -200}, 1},
                                     {{400, -300}, {400, -200}, {400, -300}, 1}};
    struct Row {
        std::string what;
        const char* control;
        AIRealPoint point;
        AIRealPoint expected;
    };
    const Row rows[] = {
        {"an anchor", "A v", {102, -101}, {100, -100}},
        {"the anchor before the line", "A v o", {103, -101}, {100, -100}},
        {"the line where no anchor is near", "A v o", {150, -102}, {150, -100}},
        {"a curve far from its ends", "A v o", {350, -222}, {350, -225}},
        {"nothing near", "A v o", {150, -110}, {150, -110}},
        {"no source opened", "v o", {102, -101}, {102, -101}},
        {"nothing searched", "AP", {102, -101}, {102, -101}},
        {"empty", "", {102, -101}, {102, -101}},
        {"a corner of the artboard", "AP v o", {602, 1}, {600, 0}},
        {"an edge of the artboard", "AP v o", {300, 2}, {300, 0}},
        {"sources that only real hosts know", "ATFGPLM v i o", {102, -101}, {100, -100}},
    };
    AIEvent event{};
    for (const auto& row : rows) {
        INFO(row.what);
        AIRealPoint result{-1, -1};
        CHECK(ai::suites.cursorSnap->Track(nullptr, row.point, &event, row.control, &result) ==
              kNoErr);
        CHECK(result.h == row.expected.h);
        CHECK(result.v == row.expected.v);
    }
    CHECK(fixture.host.cursorSnap.calls.size() == std::size(rows));
    CHECK(fixture.host.cursorSnap.calls.back().control == "ATFGPLM v i o");

    fixture.host.cursorSnap.enabled = false;
    AIRealPoint result{};
    ai::suites.cursorSnap->Track(nullptr, {102, -101}, nullptr, "A v", &result);
    CHECK(result.h == 102);
}

} // namespace facetta::tests

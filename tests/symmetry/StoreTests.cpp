#include "easel/document/Dump.h"
#include "easel/document/Layers.h"
#include "easel/document/Session.h"
#include "host/suites/AIArtSuite.h"
#include "symmetry/AxisGuides.h"
#include "symmetry/GuideTag.h"
#include "symmetry/LayerAxesStore.h"
#include "symmetry/MirrorTag.h"
#include "symmetry/RealText.h"
#include "tests/symmetry/EngineFixture.h"

#include <doctest/doctest.h>

#include <cmath>
#include <limits>
#include <string>

using namespace facetta;
using easel::Art;
using easel::Value;
using facetta::tests::EngineFixture;

namespace {

void store(easel::Dictionary& entries, const char* key, Value value) {
    entries.set(easel::internKey(key), std::move(value));
}

/// Gives the layer an entry "FacettaFT" and returns what is in it.
easel::Ref<easel::Dictionary> axesEntry(Art& layer) {
    easel::Ref entry(new easel::Dictionary);
    store(layer.dictionary(), "FacettaFT", entry);
    return entry;
}

SymmetryAxes readAxes(EngineFixture& fixture) {
    SymmetryAxes axes;
    CHECK(LayerAxesStore::read(fixture.layerHandle(), axes));
    return axes;
}

} // namespace

TEST_CASE("the axes are stored as texts with 15 decimals beside count, switch and version") {
    EngineFixture fixture;
    fixture.step([] {
        LayerAxesStore::write({.originX = 100, .originY = 0.1, .angle = -1e15, .axisCount = 7});
    });
    const std::string text = easel::dump(fixture.document());
    for (const char* entry : {
             R"(entry "FacettaFT" dictionary)",
             R"(entry "cx" string "100.000000000000000")",
             R"(entry "cy" string "0.100000000000000")",
             R"(entry "aa" string "-1000000000000000.000000000000000")",
             R"(entry "ac" integer 7)",
             R"(entry "au" boolean false)",
             R"(entry "ve" integer 1)",
         })
        CHECK_MESSAGE(text.find(entry) != std::string::npos, std::string(entry));
    CHECK(text.find("\"ts\"") == std::string::npos);
}

TEST_CASE("what was written is read, however large or fine") {
    const double numbers[] = {0.0, -0.0, 1.0 / 3, 16383.0, -2.5, 1e-15, 5e300, 123456789.123456789};
    for (const double number : numbers) {
        INFO(number);
        EngineFixture fixture;
        const SymmetryAxes written{.originX = number,
                                   .originY = -number,
                                   .angle = number,
                                   .axisCount = 72,
                                   .onLayer = true,
                                   .autoMirror = true};
        fixture.step([&] { LayerAxesStore::write(written); });
        const SymmetryAxes found = readAxes(fixture);
        CHECK(std::abs(found.originX - number) <= 5e-16);
        CHECK(found.originY == -found.originX);
        CHECK(found.angle == found.originX);
        CHECK(found.axisCount == 72);
        CHECK(found.autoMirror);
        CHECK(found.onLayer);
    }
}

TEST_CASE("a bad or missing value reads as its default, the others as they are") {
    constexpr double kMax = std::numeric_limits<double>::max();
    const struct {
        std::string text;
        double value;
    } texts[] = {
        {"12.5", 12.5},     {" \t-3", -3.0}, {"+7", 7.0},      {"1e3", 1000.0},
        {"4 points", 4.0},  {"", 0.0},       {"east", 0.0},    {"inf", 0.0},
        {"-infinity", 0.0}, {"nan", 0.0},    {"1e400", 0.0},   {"0x1p3", 0.0},
        {"1,5", 1.0},       {"+-1", 0.0},    {"1e300", 1e300}, {realText(kMax), kMax},
    };
    for (const auto& row : texts) {
        INFO(row.text);
        EngineFixture fixture;
        const easel::Ref entry = axesEntry(fixture.layer());
        for (const char* key : {"cx", "cy", "aa"})
            store(*entry, key, easel::textValue(row.text));
        const SymmetryAxes axes = readAxes(fixture);
        CHECK(axes.originX == row.value);
        CHECK(axes.originY == row.value);
        CHECK(axes.angle == row.value);
    }

    const struct {
        std::string what;
        const char* key;
        Value value;
        SymmetryAxes expected;
    } rows[] = {
        {"nothing", "??", ai::int32{1}, {.axisCount = 1, .autoMirror = true}},
        {"no axis", "ac", ai::int32{0}, {.axisCount = 1, .autoMirror = true}},
        {"fewer than none", "ac", ai::int32{-5}, {.axisCount = 1, .autoMirror = true}},
        {"most axes", "ac", ai::int32{72}, {.axisCount = 72, .autoMirror = true}},
        {"too many", "ac", ai::int32{73}, {.axisCount = 72, .autoMirror = true}},
        {"a count in words", "ac", easel::textValue("3"), {.axisCount = 1, .autoMirror = true}},
        {"not automatic", "au", easel::Boolean{false}, {.axisCount = 1}},
        {"a switch in words", "au", easel::textValue("0"), {.axisCount = 1, .autoMirror = true}},
        {"a number for a text", "cx", ai::int32{5}, {.axisCount = 1, .autoMirror = true}},
    };
    for (const auto& row : rows) {
        INFO(row.what);
        EngineFixture fixture;
        store(*axesEntry(fixture.layer()), row.key, row.value);
        SymmetryAxes onLayer = row.expected;
        onLayer.onLayer = true;
        CHECK(readAxes(fixture) == onLayer);
    }
}

TEST_CASE("axes belong to the top-level layer") {
    EngineFixture fixture;
    fixture.build(fixture.layer(), "l1(l2(a)) b");
    Art& inner = *fixture.layer().firstChild()->firstChild();
    const AILayerHandle innerLayer = easel::layerHandle(&inner);
    fixture.step([&] {
        easel::setCurrentLayer(fixture.document(), inner);
        LayerAxesStore::write({.originX = 4, .axisCount = 3});
    });
    CHECK(topLevelLayer(innerLayer) == fixture.layerHandle());
    CHECK(topLevelLayer(nullptr) == fixture.layerHandle());
    CHECK(LayerAxesStore::hasAxes(fixture.layerHandle()));
    CHECK_FALSE(LayerAxesStore::hasAxes(innerLayer)); // asks for no parents
    SymmetryAxes axes;
    CHECK(LayerAxesStore::read(innerLayer, axes));
    CHECK(axes.originX == 4);

    fixture.step([&] { LayerAxesStore::remove(innerLayer, /*resolveTopLevel*/ false); });
    CHECK(LayerAxesStore::read(innerLayer, axes));
    fixture.step([&] { LayerAxesStore::remove(innerLayer, /*resolveTopLevel*/ true); });
    CHECK_FALSE(LayerAxesStore::read(innerLayer, axes));
    CHECK(axes.axisCount == 0);
}

TEST_CASE("removing axes frees the copies of the layer that was given") {
    const struct {
        std::string before;
        std::string after;
    } rows[] = {
        {"a a'", "a a"},
        {"#g(a a') #b", "#g(a a) #b"},
        {"l(a a') b b'", "l(a a) b b"},
        {"k(!a b) k'(!a b) ^d", "k(!a b) k(!a b) d"},
        {"", ""},
    };
    for (const auto& row : rows) {
        INFO(row.before);
        EngineFixture fixture;
        fixture.build(fixture.layer(), row.before);
        fixture.step([] {
            LayerAxesStore::write({.axisCount = 2});
            LayerAxesStore::remove(nullptr, /*resolveTopLevel*/ true);
        });
        CHECK(fixture.notationOf(fixture.layer()) == row.after);
        CHECK_FALSE(LayerAxesStore::hasAxes(fixture.layerHandle()));
    }
}

TEST_CASE("without a document there is nothing to read or write") {
    EngineFixture fixture;
    easel::session().current = nullptr;
    SymmetryAxes axes{.axisCount = 5};
    CHECK_FALSE(LayerAxesStore::read(nullptr, axes));
    CHECK(axes.axisCount == 0);
    CHECK_FALSE(LayerAxesStore::hasAxes(nullptr));
    CHECK(LayerAxesStore::stampOf(nullptr) == 0);
    LayerAxesStore::write({.axisCount = 3});
    LayerAxesStore::remove(nullptr, true);
    LayerAxesStore::stamp(nullptr);
    MirrorTag::set(nullptr, 1);
    GuideTag::set(nullptr);
    CHECK(MirrorTag::get(nullptr) == 0);
    CHECK_FALSE(GuideTag::has(nullptr));
    CHECK_FALSE(layerHasAxisGuides());
    CHECK_FALSE(removeAxisGuides(nullptr, false));
    easel::session().current = &fixture.document();
}

TEST_CASE("something else under the key is no axes") {
    EngineFixture fixture;
    store(fixture.layer().dictionary(), "FacettaFT", easel::textValue("axes"));
    SymmetryAxes axes;
    CHECK_FALSE(LayerAxesStore::read(nullptr, axes));
    fixture.step([] { LayerAxesStore::write({.axisCount = 3}); });
    CHECK(readAxes(fixture).axisCount == 3);
}

TEST_CASE("the mirror tag reads as 0, 1 or 2 whatever is stored") {
    const struct {
        std::string what;
        Value value;
        ai::int32 read;
    } rows[] = {
        {"a copy", ai::int32{1}, 1},
        {"kept", ai::int32{2}, 2},
        {"zero", ai::int32{0}, 1},
        {"negative", ai::int32{-3}, 1},
        {"beyond", ai::int32{7}, 2},
        {"a text", easel::textValue("2"), 1},
        {"a switch", easel::Boolean{true}, 1},
    };
    for (const auto& row : rows) {
        INFO(row.what);
        EngineFixture fixture;
        fixture.build(fixture.layer(), "a");
        Art& art = *fixture.layer().firstChild();
        store(art.dictionary(), "FTMirroredv1", row.value);
        CHECK(MirrorTag::get(art.handle()) == row.read);
        fixture.step([&] { MirrorTag::set(art.handle(), 2); }); // never overwritten
        CHECK(MirrorTag::get(art.handle()) == row.read);
    }
}

TEST_CASE("ancestors are asked from the parent upwards") {
    EngineFixture fixture;
    fixture.build(fixture.layer(), "^g1(g2'(a) b) d'");
    const Art& kept = *fixture.layer().firstChild();
    const AIArtHandle copied = kept.firstChild()->handle();
    const AIArtHandle inCopy = kept.firstChild()->firstChild()->handle();
    CHECK(MirrorTag::anyAncestorIsCopy(inCopy));
    CHECK_FALSE(MirrorTag::anyAncestorIsCopy(copied)); // not the object itself
    CHECK(MirrorTag::anyAncestorTagged(copied));
    CHECK_FALSE(MirrorTag::anyAncestorTagged(kept.handle()));
}

TEST_CASE("a generated copy never becomes an axis guide") {
    EngineFixture fixture;
    fixture.build(fixture.layer(), "a b'");
    const AIArtHandle plain = fixture.layer().firstChild()->handle();
    const AIArtHandle copy = fixture.layer().lastChild()->handle();
    fixture.step([&] {
        GuideTag::set(plain);
        GuideTag::set(copy);
    });
    CHECK(GuideTag::has(plain));
    CHECK_FALSE(GuideTag::has(copy));
    fixture.step([&] { GuideTag::clear(plain); });
    CHECK_FALSE(GuideTag::has(plain));
}

#include "easel/document/Art.h"
#include "easel/document/Attributes.h"
#include "symmetry/LayerArt.h"
#include "tests/symmetry/EngineFixture.h"

#include <doctest/doctest.h>

#include <cmath>

using namespace facetta;
using facetta::tests::EngineFixture;

namespace {

struct WorkSetRow {
    std::string what;
    std::string before;
    std::string layerAfter;     ///< After a layer run.
    std::string selectionAfter; ///< After a run on all that can be selected.
};

// One axis, so that each source has one copy.
const WorkSetRow kRows[] = {
    {"paths: copies lie behind their sources", "a b", "a a' b b'", "a a b b"},
    {"former copies are replaced", "a a' b b'", "a a' b b'", "a a a' b b b'"},
    {"a copy whose source is gone goes", "a'", "", "a'"},
    {"a group stays a group", "g(a b) d", "g(a a' b b') d d'", "g(a a b b) d d"},
    {"groups in groups", "g1(g2(a) g3())", "g1(g2(a a') g3())", "g1(g2(a a) g3())"},
    {"a copied compound goes whole", "c'(a b) d", "d d'", "c'(a b) d d"},
    {"even when it was unlocked", "%c(a b) d", "d d'", "%c(a b) c(a b) d d"},
    {"locked art is no source, and loses its copies", "#a a' b", "#a b b'", "#a a' b b"},
    {"nor is hidden art", "-a a' b", "-a b b'", "-a a' b b"},
    {"copies in a locked group are found", "#g(a a') b", "#g(a) b b'", "#g(a a') b b"},
    {"copies in a hidden sublayer are found", "-l(a a') b", "-l(a) b b'", "-l(a a') b b"},
    {"a sublayer is mirrored within itself", "l(a) b", "l(a a') b b'", "l(a a) b b"},
    {"a sublayer is no copy, whatever it carries", "%l(a) b", "%l(a a') b b'", "%l(a a) b b"},
    {"in a locked sublayer nothing is", "#l(g(a)) b", "#l(g(a)) b b'", "#l(g(a)) b b"},
    {"guides stay alone", "~a b", "~a b b'", "~a b b"},
    {"and so does a compound of guides", "c(~a b) d", "c(~a b) d d'", "c(~a b) d d"},
    {"a compound is one unit", "c(a b)", "c(a b) c'(a b)", "c(a b) c(a b)"},
    {"so is one with groups", "c(g(a) b)", "c(g(a) b) c'(g(a) b)", "c(g(a) b) c(g(a) b)"},
    {"a clip group is one unit", "k(!a b)", "k(!a b) k'(!a b)", "k(!a b) k(!a b)"},
    {"whatever is inside", "k(!a g(b k2(!d t)))", "k(!a g(b k2(!d t))) k'(!a g(b k2(!d t)))",
     "k(!a g(b k2(!d t))) k(!a g(b k2(!d t)))"},
    {"a clip group without a mask clips nothing", "k(a b)", "k(a a' b b')", "k(a a b b)"},
    {"a copy that came into a clip group goes", "k(!a b')", "k(!a) k'(!a)", "k(!a b') k(!a b')"},
    {"even a mask, and nothing is clipped then", "k(!%a b)", "k(b b')", "k(!%a b) k(!%a b)"},
    {"a plug-in group is one unit", "p(a) b", "p(a) p'(a) b b'", "p(a) p(a) b b"},
    {"text, symbols and pictures", "t s i", "t t' s s' i i'", "t t s s i i"},
    {"art tagged 2 is source art", "^a", "^a a'", "^a a"},
    {"but not when it is locked", "#^a b", "#^a b b'", "#^a b b"},
    {"nothing at all", "", "", ""},
};

/// The first anchor of each path in `parent`, at any depth.
std::string placesIn(const easel::Art& parent) {
    std::string places;
    for (const easel::Art* art = parent.firstChild(); art != nullptr; art = art->next()) {
        if (!art->segments().empty()) {
            const AIRealPoint place = art->segments().front().p;
            places += std::to_string(std::lround(10 * place.h)) + ',' +
                      std::to_string(std::lround(10 * place.v)) + ' ';
        }
        places += placesIn(*art);
    }
    return places;
}

} // namespace

TEST_CASE(
    "a layer run takes all sources and replaces all copies; a selection run leaves plain art") {
    for (const WorkSetRow& row : kRows) {
        INFO(row.what);
        {
            EngineFixture fixture;
            fixture.build(fixture.layer(), row.before);
            fixture.setAxes(1);
            fixture.attach();
            CHECK(fixture.notationOf(fixture.layer()) == row.layerAfter);
            fixture.regenerate();
            CHECK(fixture.notationOf(fixture.layer()) == row.layerAfter);
        }
        EngineFixture fixture;
        fixture.build(fixture.layer(), row.before);
        fixture.setAxes(1);
        fixture.step([&] { easel::selectAll(fixture.document()); });
        fixture.mirrorSelection();
        CHECK(fixture.notationOf(fixture.layer()) == row.selectionAfter);
    }
}

TEST_CASE("what is in a container goes with it, locked or not, whatever the host does by itself") {
    const struct {
        const char* what;
        bool easel::Switches::*refused;
    } hosts[] = {
        {"a container holds what is locked in it", &easel::Switches::lockedMembersGoAlong},
        {"it is transformed without its members", &easel::Switches::transformReachesMembers},
    };
    for (const char* const drawing : {"k(!a #b)", "k(#!a #g(#b t))", "p(#a)", "p(g(a b))",
                                      "c(a #b)", "k(!a -b)", "k(!a -g(-b t))"}) {
        INFO(drawing);
        const auto drawn = [&](easel::Switches switches) {
            EngineFixture fixture{switches};
            fixture.build(fixture.layer(), drawing);
            fixture.setAxes(3);
            fixture.attach();
            fixture.regenerate();
            const ai::ArtSet art = collectLayerArt();
            fixture.step([&] { moveArt(art, {0, 1, -1, 0, 50, 70}); });
            return fixture.notationOf(fixture.layer()) + '\n' + placesIn(fixture.layer());
        };
        const std::string usual = drawn({});
        for (const auto& host : hosts) {
            INFO(host.what);
            easel::Switches switches;
            switches.*host.refused = false;
            CHECK(drawn(switches) == usual);
        }
    }
}

TEST_CASE("part of a unit stands for the whole, and the rest of the layer is let alone") {
    const struct {
        std::string before;
        std::string after;
    } rows[] = {
        {"@a b", "a a b"},
        {"g(@a b) d", "g(a a b) d"},
        {"k(!a @b) d", "k(!a b) k(!a b) d"},
        {"c(@a b) d", "c(a b) c(a b) d"},
        {"p(a @b) d", "p(a b) p(a b) d"},
        {"k(!@a @b) k2(!d e)", "k(!a b) k(!a b) k2(!d e)"},
        {"a b", "a b"},
    };
    for (const auto& row : rows) {
        INFO(row.before);
        EngineFixture fixture;
        fixture.build(fixture.layer(), row.before);
        fixture.setAxes(1);
        fixture.mirrorSelection();
        CHECK(fixture.notationOf(fixture.layer()) == row.after);
    }
}

#include "easel/document/Attributes.h"
#include "easel/document/Dump.h"
#include "easel/document/Session.h"
#include "host/Error.h"
#include "symmetry/LiveLayers.h"
#include "tests/FallibleCalls.h"
#include "tests/symmetry/EngineFixture.h"

#include <doctest/doctest.h>

#include <algorithm>
#include <string_view>
#include <vector>

using namespace facetta;
using facetta::tests::EngineFixture;

namespace {

constexpr AIErr kInjected = fourCharacterCode("FAIL");

/// A scope that ends gives back and puts back what it took without looking at it.
constexpr std::string_view kUnreported[] = {
    "AI Art Set Suite.DisposeArtSet",
    "AI Context Suite.AllowAllChanges",
};

struct Action {
    std::string what;
    void (*act)(EngineFixture&);
};

const Action kActions[] = {
    {"attach",
     [](EngineFixture& fixture) { attachAxes(fixture.axes, fixture.environment(), true); }},
    {"regenerate",
     [](EngineFixture& fixture) {
         regenerateLayer(fixture.environment(), false, fixture.layerHandle());
     }},
    {"mirror the selection",
     [](EngineFixture& fixture) {
         MirrorEngine{fixture.environment()}.run(true, false, false, nullptr);
     }},
    {"release",
     [](EngineFixture& fixture) {
         releaseLayer(fixture.environment(), nullptr, ResolveTopLevel::Yes);
     }},
};

void prepare(EngineFixture& fixture) {
    fixture.build(fixture.layer(), "~x #y a c(d e) k(!h i) l(g(b) t) p(m) s");
    fixture.step([&] {
        fixture.addPath(fixture.layer(), {{100, 0}, {80, 30}, {0, 100}}, false);
        fixture.addPath(fixture.layer(), {{50, -20}, {80, 30}, {10, 60}}, true);
        fixture.addPath(fixture.layer(), {{-50, -20}, {-80, -30}, {-60, -60}}, true);
    });
    fixture.setAxes(2);
    fixture.removePoints = true;
    fixture.attach();
    fixture.step([&] { easel::selectAll(fixture.document()); });
}

std::vector<std::string> callsOf(const Action& action) {
    EngineFixture fixture;
    prepare(fixture);
    return tests::fallibleCalls([&] { fixture.step([&] { action.act(fixture); }); });
}

using easel::FaultPlan;
using Mode = FaultPlan::Mode;

/// Runs `action` in a fresh document with calls failing as `plan` says, first one of `function`.
void failAt(const Action& action, const FaultPlan& plan, const std::string& function) {
    INFO(action.what, ", call ", plan.call, ": ", function,
         ", all from then on: ", plan.mode == Mode::FromThenOn, ", and call ", plan.second);
    EngineFixture fixture;
    prepare(fixture);
    const std::string before = easel::dump(fixture.document());
    const SymmetryAxes axesBefore = fixture.axes;

    easel::session().calls.arm(plan);
    AIErr code = kNoErr;
    fixture.step([&] {
        try {
            action.act(fixture);
        } catch (const ai::Error& error) {
            code = error.code;
        }
    });
    CHECK(easel::session().calls.fired());
    easel::session().calls.disarm();
    CHECK((code == plan.code || std::ranges::count(kUnreported, function) != 0));
    CHECK(fixture.axes.axisCount == axesBefore.axisCount);
    if (easel::dump(fixture.document()) != before) fixture.document().undo().undo();
    CHECK(easel::dump(fixture.document()) == before);
}

} // namespace

TEST_CASE("whichever host call fails, its code comes back, nothing is kept, one undo mends all") {
    for (const Action& action : kActions) {
        const std::vector<std::string> calls = callsOf(action);
        REQUIRE(calls.size() > 100); // the action does reach the host
        for (std::size_t i = 0; i < calls.size(); ++i) {
            const std::uint64_t call = i + 1;
            // On its own, then with all later calls, with the next one, and with a meaningful code.
            const FaultPlan further[] = {
                {Mode::FromThenOn, call, {}, kInjected},
                {Mode::Once, call, {}, kInjected, call + 1},
                {Mode::Once, call, {}, kUntouchableArtObjectErr},
            };
            failAt(action, {Mode::Once, call, {}, kInjected}, calls[i]);
            failAt(action, further[i % std::size(further)], calls[i]);
        }
    }
}

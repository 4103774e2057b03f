#include "easel/runtime/Preferences.h"
#include "easel/suites/Suites.h"

#include "host/UnicodeString.h"
#include "host/suites/AIPreferenceSuite.h"
#include "tests/easel/runtime/TestPlugin.h"

#include <doctest/doctest.h>

#include <limits>

namespace facetta::tests {
namespace {

constexpr const char* kPrefix = "Facetta";

struct Fixture {
    Fixture() { host.start(); }
    ~Fixture() { host.quit(); }
    easel::Host host{easel::sessionWithSuites()};
    TestPlugin plugin{host};
    const AIPreferenceSuite& suite = *ai::suites.preference;
};

} // namespace

TEST_CASE("reading what was never written leaves the default in place") {
    struct Row {
        bool succeeds;
        AIErr code;
    };
    for (const auto& [succeeds, code] : {Row{true, kNoErr}, Row{false, kBadParameterErr}}) {
        Fixture fixture;
        easel::session().switches.absentPreferenceSucceeds = succeeds;
        const auto& suite = *ai::suites.preference;
        AIBoolean flag = 1;
        ai::int32 number = 7;
        double real = 0.25;
        char text[1024] = "default";
        CHECK(suite.GetBooleanPreference(kPrefix, "none", &flag) == code);
        CHECK(suite.GetIntegerPreference(kPrefix, "none", &number) == code);
        CHECK(suite.GetRealPreference(kPrefix, "none", &real) == code);
        CHECK(suite.GetStringPreference(kPrefix, "none", text) == code);
        CHECK(flag == 1);
        CHECK(number == 7);
        CHECK(real == 0.25);
        CHECK(std::string(text) == "default");
        easel::session().switches = {};
    }
}

} // namespace facetta::tests

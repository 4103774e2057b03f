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

TEST_CASE("numbers and booleans convert into each other, texts into neither") {
    Fixture fixture;
    const auto& suite = *ai::suites.preference;
    suite.PutRealPreference(kPrefix, "real", 3.75);
    suite.PutIntegerPreference(kPrefix, "integer", 2);
    suite.PutBooleanPreference(kPrefix, "boolean", 55);
    suite.PutStringPreference(kPrefix, "text", "1");
    suite.PutRealPreference(kPrefix, "huge", 1e300);

    struct Row {
        std::string name;
        AIBoolean asBoolean;
        ai::int32 asInteger;
        double asReal;
    };
    constexpr ai::int32 kMost = std::numeric_limits<ai::int32>::max();
    const Row rows[] = {{"real", 1, 3, 3.75},
                        {"integer", 1, 2, 2},
                        {"boolean", 1, 1, 1},
                        {"text", -9, -9, -9},
                        {"huge", 1, kMost, 1e300}};
    for (const auto& row : rows) {
        INFO(row.name);
        AIBoolean boolean = -9;
        ai::int32 integer = -9;
        double real = -9;
        suite.GetBooleanPreference(kPrefix, row.name.c_str(), &boolean);
        suite.GetIntegerPreference(kPrefix, row.name.c_str(), &integer);
        suite.GetRealPreference(kPrefix, row.name.c_str(), &real);
        CHECK(boolean == row.asBoolean);
        CHECK(integer == row.asInteger);
        CHECK(real == row.asReal);
    }
}

} // namespace facetta::tests

#include "easel/core/Ledger.h"
#include "easel/core/SuiteServer.h"
#include "easel/suites/Suites.h"
#include "host/FilePath.h"
#include "host/References.h"
#include "host/UnicodeString.h"
#include "host/suites/AIArtSetSuite.h"
#include "host/suites/AIDictionarySuite.h"
#include "host/suites/AIDocumentSuite.h"
#include "host/suites/AIEntrySuite.h"
#include "host/suites/AIFilePathSuite.h"
#include "host/suites/AIHitTestSuite.h"
#include "host/suites/AIUnicodeStringSuite.h"
#include "host/suites/SPBasicSuite.h"
#include "tests/easel/runtime/TestPlugin.h"

#include <doctest/doctest.h>

#include <algorithm>

namespace facetta::tests {
namespace {

using easel::Lent;

/// Storage for a string or a path whose destructor never runs.
template <typename Object> struct Unowned {
    void* pointer = nullptr;
    Object& object() { return reinterpret_cast<Object&>(pointer); }
};

/// One family of things lent: how a plug-in comes by one, and how it gives it back.
struct Family {
    std::string name;
    std::function<void()> acquire;
    std::function<AIErr()> release;
    const char* lender;
    bool keptBeyondMessage;
};

struct Fixture {
    Fixture() {
        host.start();
        host.open(std::make_unique<easel::Document>(easel::session(), AISize{600, 400}));
    }
    easel::Host host{easel::sessionWithSuites()};
    TestPlugin plugin{host};

    const SPBasicSuite& basic = *static_cast<const SPBasicSuite*>(
        easel::session().suites.functions(kSPBasicSuite, kSPBasicSuiteVersion));
    AIDictionaryRef dictionary = nullptr;
    AIEntryRef entry = nullptr;
    AIArtSet artSet = nullptr;
    AIHitRef hit = nullptr;
    void* block = nullptr;
    SPAccessRef access = nullptr;
    Unowned<ai::UnicodeString> string;
    Unowned<ai::FilePath> path;

    [[nodiscard]] std::vector<Family> families() {
        const ai::Suites& s = ai::suites;
        return {
            {"dictionary", [&] { s.dictionary->CreateDictionary(&dictionary); },
             [&] { return s.dictionary->Release(dictionary) < 0 ? kBadParameterErr : kNoErr; },
             "AI Dictionary Suite.CreateDictionary", false},
            {"entry", [&] { entry = s.entry->FromString("one"); },
             [&] { return s.entry->Release(entry) < 0 ? kBadParameterErr : kNoErr; },
             "AI Entry Suite.FromString", false},
            {"art set", [&] { s.artSet->NewArtSet(&artSet); },
             [&] { // the suite forgets the set for its caller; the test remembers it
                 AIArtSet set = artSet;
                 return s.artSet->DisposeArtSet(&set);
             },
             "AI Art Set Suite.NewArtSet", true},
            {"string", [&] { s.unicodeString->Initialize(string.object(), "x", 1, 1); },
             [&] {
                 Unowned<ai::UnicodeString> same = string;
                 return s.unicodeString->Destroy(same.object());
             },
             "AI Unicode String Suite.Initialize", false},
            {"file path", [&] { s.filePath->NewFilePath(path.object()); },
             [&] {
                 Unowned<ai::FilePath> same = path;
                 return s.filePath->DeleteFilePath(same.object());
             },
             "AI File Path Suite.NewFilePath", false},
            {"block", [&] { basic.AllocateBlock(8, &block); },
             [&] { return basic.FreeBlock(block); }, "SP Basic Suite.AllocateBlock", true},
            {"plug-in access", [&] { s.access->AcquirePlugin(plugin.self(), &access); },
             [&] { return s.access->ReleasePlugin(access); }, "SP Access Suite.AcquirePlugin",
             true},
        };
    }
};

bool anyContains(const std::vector<std::string>& lines, const std::string& text) {
    return std::any_of(lines.begin(), lines.end(), [&](const std::string& line) {
        return line.find(text) != std::string::npos;
    });
}

} // namespace

TEST_CASE("a leak of any family is reported with the call that lent it, a second release refused") {
    const std::size_t families = Fixture{}.families().size();
    for (std::size_t i = 0; i < families; ++i) {
        Fixture fixture;
        const Family family = fixture.families()[i];
        const easel::Ledger& ledger = easel::session().ledger;
        INFO(family.name);
        fixture.plugin.run(family.acquire);
        const std::string loan = std::string(family.name) + " x1 lent by " + family.lender;
        CHECK(anyContains(ledger.problems(), loan + " is kept after AI Filter/AI Go") !=
              family.keptBeyondMessage);
        CHECK(anyContains(fixture.host.complaints(), loan));

        fixture.plugin.run([&] { CHECK(family.release() == kNoErr); });
        CHECK(ledger.outstanding().size() == 1); // the suites the plug-in holds
        const std::size_t before = ledger.problems().size();
        AIErr second = kNoErr;
        fixture.plugin.run([&] { second = family.release(); });
        CHECK((second != kNoErr || ledger.problems().size() == before + 1));
        fixture.host.quit();
    }
}

TEST_CASE("a suite that is never released is named at the end") {
    Fixture fixture;
    fixture.plugin.on("SP Interface/About", [](SPMessageData& data) {
        const void* functions = nullptr;
        return data.basic->AcquireSuite("AI Tool Suite", 12, &functions);
    });
    SPInterfaceMessage about{};
    fixture.host.send(fixture.plugin.self(), "SP Interface", "About", about);
    fixture.host.quit();
    CHECK(anyContains(fixture.host.complaints(), "AI Tool Suite 12"));
    // Given back, because the tables outlive this host and must be right for the next one.
    CHECK(about.d.basic->ReleaseSuite("AI Tool Suite", 12) == kNoErr);
    CHECK(about.d.basic->ReleaseSuite("AI Tool Suite", 12) == kSPSuiteAlreadyReleasedError);
    CHECK(fixture.host.complaints().empty());
}

TEST_CASE("a reference lent several times is back when each lending is") {
    const easel::HostCalls calls;
    easel::Ledger book{calls};
    int thing = 0;
    book.lend(Lent::Dictionary, &thing);
    book.lend(Lent::Dictionary, &thing);
    book.lend(Lent::Array, &thing); // a loan of its own, though at the same address
    CHECK(book.count(Lent::Dictionary) == 2);
    book.takeBack(Lent::Dictionary, &thing);
    CHECK(book.isLent(Lent::Dictionary, &thing));
    book.takeBack(Lent::Dictionary, &thing);
    CHECK_FALSE(book.isLent(Lent::Dictionary, &thing));
    CHECK_THROWS_AS(book.require(Lent::Dictionary, &thing), ai::Error);
    REQUIRE(book.outstanding().size() == 1);
    CHECK(easel::describe(book.outstanding()[0]) == "array x1 lent by Easel");
    REQUIRE(book.problems().size() == 1);
    CHECK(book.problems()[0] == "Easel: dictionary used after it was given back by Easel");
}

} // namespace facetta::tests

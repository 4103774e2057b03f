#include "easel/core/HostObjects.h"
#include "easel/core/Ledger.h"
#include "easel/core/Text.h"
#include "easel/suites/Suites.h"
#include "host/UnicodeString.h"
#include "host/suites/AIUnicodeStringSuite.h"
#include "tests/easel/runtime/TestPlugin.h"

#include <doctest/doctest.h>

#include <cstring>
#include <utility>

namespace facetta::tests {
namespace {

struct Fixture {
    Fixture() { host.start(); }
    ~Fixture() {
        CHECK(easel::session().ledger.count(easel::Lent::String) == 0);
        host.quit();
    }
    easel::Host host{easel::sessionWithSuites()};
    TestPlugin plugin{host};
};

} // namespace

TEST_CASE("text survives the way into the host and back") {
    const std::string texts[] = {"",       "plain",        "Größe 10 µm",
                                 "日本語", "𝄞 clef and 😀", "\xF4\x8F\xBF\xBF"};
    Fixture fixture;
    for (const std::string& text : texts) {
        INFO(text);
        const ai::UnicodeString first{text};
        CHECK(first.utf8() == text);
        const ai::UnicodeString second{std::u16string_view(first.utf16())};
        CHECK(second.utf8() == text);
        CHECK(easel::readUtf8(easel::session().ledger, second) == text);
    }
}

TEST_CASE("positions count characters, not UTF-16 units") {
    Fixture fixture;
    const auto& suite = *ai::suites.unicodeString;
    const ai::UnicodeString clef{std::string_view("a𝄞b")};
    ai::uint32 character = 0;
    CHECK(suite.GetChar(clef, 1, character) == kNoErr);
    CHECK(character == 0x1D11E);
    CHECK(suite.GetChar(clef, 3, character) == kStringIndexErr);
}

TEST_CASE("malformed text is refused and leaves no string behind") {
    Fixture fixture;
    const auto& suite = *ai::suites.unicodeString;
    struct Row {
        std::string what;
        const char* bytes;
    };
    const Row rows[] = {{"a lone continuation", "\x80"},
                        {"cut off", "\xE2\x82"},
                        {"overlong", "\xC0\xAF"},
                        {"a surrogate", "\xED\xA0\x80"},
                        {"beyond the last", "\xF4\x90\x80\x80"},
                        {"no lead", "\xFF"}};
    for (const auto& row : rows) {
        INFO(row.what);
        void* pointer = nullptr;
        auto& string = reinterpret_cast<ai::UnicodeString&>(pointer);
        CHECK(suite.Initialize(string, row.bytes, static_cast<ai::int64>(std::strlen(row.bytes)),
                               1) == kStringMalformedErr);
        CHECK(pointer == nullptr);
    }
    CHECK(easel::utf8FromUtf16(u"\xD800x") == "\xEF\xBF\xBDx");
}

} // namespace facetta::tests

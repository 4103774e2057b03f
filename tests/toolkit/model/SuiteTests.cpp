#include "tests/toolkit/model/Stage.h"
#include "tests/toolkit/model/Stubs.h"

#include "host/Codes.h"
#include "toolkit/ImplCommon/Exceptions.h"
#include "toolkit/ImplCommon/Text.h"

#include <algorithm>
#include <array>
#include <cstdio>
#include <cstdlib>
#include <cstring>

using namespace facetta::tests;
using namespace NRDM;

namespace {

int askedOfHost = 0; // NOLINT(cppcoreguidelines-avoid-non-const-global*)

SPErr hostAcquires(const char*, ai::int32, const void** functions) {
    ++askedOfHost;
    *functions = nullptr;
    return kSPSuiteNotFoundError;
}
SPErr hostReleases(const char*, ai::int32) {
    ++askedOfHost;
    return kNoErr;
}

/// What `work` prints on standard error.
template <typename Work> std::string printedBy(Work work) {
    char* text = nullptr;
    std::size_t length = 0;
    std::FILE* const saved = stderr;
    stderr = open_memstream(&text, &length);
    work();
    std::fclose(stderr);
    stderr = saved;
    const std::string result(text, length);
    std::free(text);
    return result;
}

} // namespace

TEST_CASE("the toolkit's suites are acquired like the host's, before it is asked") {
    SPBasicSuite host{};
    host.AcquireSuite = hostAcquires;
    host.ReleaseSuite = hostReleases;
    const SPBasicSuite& basic = *offeringSuites(&host);
    askedOfHost = 0;
    for (const SuiteTable& table : suiteTables()) {
        INFO(std::string(table.name));
        const void* functions = nullptr;
        CHECK(basic.AcquireSuite(table.name, table.version, &functions) == kNoErr);
        CHECK(functions == table.functions);
        CHECK(basic.ReleaseSuite(table.name, table.version) == kNoErr);
        CHECK(askedOfHost == 0);
        CHECK(basic.AcquireSuite(table.name, table.version + 1, &functions) != kNoErr);
        CHECK(std::exchange(askedOfHost, 0) == 1);
    }
    const void* functions = nullptr;
    CHECK(basic.AcquireSuite("ADM Dialog Group Suite", 6, &functions) == kSPSuiteNotFoundError);
    CHECK(basic.ReleaseSuite("AI Art Suite", 22) == kNoErr);
    CHECK(askedOfHost == 2);
}

TEST_CASE("every slot is filled") {
    std::size_t total = 0;
    for (const SuiteTable& table : suiteTables()) {
        INFO(std::string(table.name));
        std::vector<void*> slots(table.slots);
        std::memcpy(slots.data(), table.functions, slots.size() * sizeof(void*));
        CHECK(std::ranges::count(slots, nullptr) == 0);
        total += table.slots;
    }
    CHECK(total == 560);
}

TEST_CASE("each function that is not offered says which one it is") {
    CHECK(stubSlots().size() > 200);
    for (const auto& [name, call] : stubSlots()) {
        const std::string printed = printedBy([call = call] {
            CHECK_THROWS_WITH_AS(call(), "NRDM: Function not implemented", NRDMNotImpl);
        });
        CHECK(printed == std::string("Not implemented: ") + name + "\n");
    }
}

TEST_CASE("texts are cut to the buffer, and numbers to their limits") {
    Stage stage;
    const ADMItemSuite& items = kItemSuite;
    ADMItemRef item = &Stage::add(stage.dialog(), 9, kADMTextEditType);
    items.SetUnits(item, kADMInchUnits);
    items.SetPrecision(item, 2);
    items.ShowUnits(item, true);
    items.SetMaxIntValue(item, 720);
    items.SetFloatValue(item, 108);
    std::array<char, 16> text{};
    items.GetText(item, text.data(), text.size());
    CHECK(std::string(text.data()) == "1.50 in");
    items.GetText(item, text.data(), 4);
    CHECK(std::string(text.data()) == "1.5");
    items.SetIntValue(item, 9999);
    CHECK(items.GetIntValue(item) == 720);
    CHECK(items.GetSmallIncrement(item) == 72);
    items.SetTipString(item, "45\u00B0");
    items.GetTipString(item, text.data(), 4); // no half characters
    CHECK(std::string(text.data()) == "45");
}

TEST_CASE("texts in UTF-16 arrive as they are, and what is no text is marked") {
    Stage stage;
    ADMItemRef item = &Stage::add(stage.dialog(), 3, kADMTextStaticType);
    const ADMUnicode clef[] = {0xD834, 0xDD1E, 'a', 0};
    kItemSuite.SetTextW(item, clef);
    CHECK(item->text() == "\U0001D11Ea");
    CHECK(kItemSuite.GetTextLength(item) == 2);
    CHECK(utf16Of("\U0001D11Ea") == u"\U0001D11Ea");
    const ADMUnicode broken[] = {0xDD1E, 'b', 0xD834, 0};
    kItemSuite.SetTextW(item, broken);
    CHECK(item->text() == "\uFFFDb\uFFFD");
    CHECK(utf16Of("a\xC3\x28\xED\xA0\x80") == u"a\uFFFD(\uFFFD");
}

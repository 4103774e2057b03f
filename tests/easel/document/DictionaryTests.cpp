#include "host/Error.h"
#include "tests/easel/document/Plugin.h"

#include <utility>

namespace easel::tests {
namespace {

/// A dictionary of its own, held for the length of a test.
struct OwnDictionary {
    OwnDictionary() { REQUIRE(dictionary().CreateDictionary(&ref) == kNoErr); }
    ~OwnDictionary() { dictionary().Release(ref); }
    OwnDictionary(const OwnDictionary&) = delete;
    OwnDictionary& operator=(const OwnDictionary&) = delete;
    AIDictionaryRef ref = nullptr;
};

AIDictKey key(const char* text) { return dictionary().Key(text); }

TEST_CASE("every type of entry comes back as it was put, and as nothing else") {
    const Drawing drawing;
    const OwnDictionary own;
    const AIRealPoint point{1, 2};
    const AIRealMatrix matrix{1, 2, 3, 4, 5, 6};
    const OwnDictionary child;
    struct Row {
        AIEntryType type;
        AIEntryRef entry;
    };
    AIArrayRef list = nullptr;
    REQUIRE(array().CreateArray(&list) == kNoErr);
    char bytes[] = {1, 0, 2};
    const Row rows[] = {
        {kIntegerEntry, entry().FromInteger(-7)},
        {kBooleanEntry, entry().FromBoolean(5)},
        {kRealEntry, entry().FromReal(0.1F)},
        {kStringEntry, entry().FromString("text")},
        {kPointEntry, entry().FromRealPoint(&point)},
        {kMatrixEntry, entry().FromRealMatrix(&matrix)},
        {kDictionaryEntry, entry().FromDict(child.ref)},
        {kArrayEntry, entry().FromArray(list)},
        {kBinaryEntry, entry().FromBinary(bytes, sizeof bytes)},
    };
    array().Release(list);
    for (const auto& [type, fresh] : rows) {
        CHECK(dictionary().Set(own.ref, key("k"), fresh) == kNoErr);
        AIEntryType found = kUnknownEntry;
        CHECK(dictionary().GetEntryType(own.ref, key("k"), &found) == kNoErr);
        CHECK(found == type);
        ai::int32 integer = 99;
        const AIErr expected = type == kIntegerEntry ? kNoErr : kWrongEntryType;
        CHECK(dictionary().GetIntegerEntry(own.ref, key("k"), &integer) == expected);
        CHECK(integer == (type == kIntegerEntry ? -7 : 99));
        AIBoolean flag = 99;
        const AIErr forFlag = type == kBooleanEntry ? kNoErr : kWrongEntryType;
        CHECK(entry().ToBoolean(dictionary().Get(own.ref, key("k")), &flag) == forFlag);
        CHECK(flag == (type == kBooleanEntry ? 1 : 99));
    }
    CHECK(dictionary().Size(own.ref) == 1);
}

TEST_CASE("absent entries leave the output alone and say so") {
    const Drawing drawing;
    const OwnDictionary own;
    ai::int32 integer = 42;
    const char* text = "preset";
    CHECK(dictionary().IsKnown(own.ref, key("none")) == 0);
    CHECK(dictionary().GetIntegerEntry(own.ref, key("none"), &integer) == kNoSuchKey);
    CHECK(integer == 42);
    CHECK(dictionary().Get(own.ref, key("none")) == nullptr);
    CHECK(entry().ToString(nullptr, &text) == kNoSuchEntry);
    CHECK(std::string(text) == "preset");
    CHECK(dictionary().DeleteEntry(own.ref, key("none")) == kNoSuchKey);
}

TEST_CASE("entries are consumed by setting and reading, whether or not that works") {
    const Drawing drawing;
    const OwnDictionary own;
    const auto lent = [] { return ledger().count(Lent::Entry); };
    CHECK(dictionary().Set(own.ref, key("a"), entry().FromInteger(1)) == kNoErr);
    CHECK(lent() == 0);
    AIReal real = 0;
    CHECK(entry().ToReal(dictionary().Get(own.ref, key("a")), &real) == kWrongEntryType);
    CHECK(lent() == 0);
    CHECK(dictionary().Set(nullptr, key("a"), entry().FromInteger(1)) == kBadParameterErr);
    CHECK(lent() == 0);
    const AIEntryRef held = dictionary().Get(own.ref, key("a"));
    CHECK(entry().GetType(held) == kIntegerEntry); // asking for the type consumes nothing
    CHECK(lent() == 1);
    CHECK(entry().Release(held) == 0);
    CHECK(lent() == 0);
}

TEST_CASE("a reference released too often, or used after, is refused and noted") {
    const Drawing drawing;
    AIDictionaryRef made = nullptr;
    REQUIRE(dictionary().CreateDictionary(&made) == kNoErr);
    CHECK(dictionary().AddRef(made) == 2);
    const auto& countedObjects =
        suite<AICountedObjectSuite>(kAICountedObjectSuite, kAICountedObjectSuiteVersion);
    CHECK(countedObjects.Release(made) == 1);
    CHECK(dictionary().Release(made) == 0);
    const std::size_t noted = ledger().problems().size();
    dictionary().Release(made);
    CHECK(ledger().problems().size() == noted + 1);
    CHECK(dictionary().SetIntegerEntry(made, key("a"), 1) == kBadParameterErr);
    CHECK(ledger().problems().size() == noted + 2);
    CHECK(countedObjects.Release(nullptr) == 0);
}

TEST_CASE("a nested dictionary is shared, and belongs to the art it hangs on") {
    Drawing drawing;
    const AIArtHandle made = drawing.make(kPathArt);
    const std::string before = dump(drawing.document);
    {
        const Record record(drawing.document);
        AIDictionaryRef root = nullptr;
        REQUIRE(art().GetDictionary(made, &root) == kNoErr);
        const OwnDictionary child;
        CHECK(dictionary().SetDictEntry(root, key("child"), child.ref) == kNoErr);
        CHECK(dictionary().SetIntegerEntry(child.ref, key("late"), 5) == kNoErr);
        AIDictionaryRef read = nullptr;
        CHECK(entry().ToDict(dictionary().Get(root, key("child")), &read) == kNoErr);
        ai::int32 late = 0;
        CHECK(dictionary().GetIntegerEntry(read, key("late"), &late) == kNoErr);
        CHECK(late == 5);
        // A dictionary inside itself would never end.
        CHECK(dictionary().SetDictEntry(child.ref, key("loop"), root) == kBadParameterErr);
        dictionary().Release(read);
        dictionary().Release(root);
    }
    drawing.document.undo().undo();
    CHECK(dump(drawing.document) == before);
}

TEST_CASE("nesting has an end, in depth and in number") {
    const Drawing drawing;
    Ref<Dictionary> deep(new Dictionary);
    Ref<Dictionary> doubled(new Dictionary);
    AIErr deepCode = kNoErr;
    AIErr doubledCode = kNoErr;
    const auto wrap = [](Ref<Dictionary>& inner, bool twice, AIErr& code) {
        try {
            Ref<Dictionary> outer(new Dictionary);
            outer->set(internKey("a"), inner);
            if (twice) outer->set(internKey("b"), inner);
            inner = std::move(outer);
        } catch (const ai::Error& error) {
            code = error.code;
        }
    };
    for (int i = 0; i < 200; ++i) {
        wrap(deep, false, deepCode);
        wrap(doubled, true, doubledCode);
    }
    CHECK(deepCode == kTooDeepNestingErr);
    CHECK(doubledCode == kTooDeepNestingErr);
}

TEST_CASE("pointers are kept under temporary keys only") {
    const Drawing drawing;
    const OwnDictionary own;
    CHECK(dictionary().SetPointerEntry(own.ref, key("p"), 5) == kBadParameterErr);
    CHECK(dictionary().SetPointerEntry(own.ref, key("-p"), 5) == kNoErr);
    CHECK(isTemporary(internKey("-p")));
}

TEST_CASE("copies and clones are deep, moves and swaps are not copies") {
    const Drawing drawing;
    const OwnDictionary own;
    const OwnDictionary child;
    CHECK(dictionary().SetIntegerEntry(child.ref, key("n"), 1) == kNoErr);
    CHECK(dictionary().SetDictEntry(own.ref, key("child"), child.ref) == kNoErr);
    AIDictionaryRef clone = nullptr;
    CHECK(dictionary().Clone(own.ref, &clone) == kNoErr);
    CHECK(dictionary().SetIntegerEntry(child.ref, key("n"), 2) == kNoErr);
    AIDictionaryRef cloned = nullptr;
    CHECK(dictionary().GetDictEntry(clone, key("child"), &cloned) == kNoErr);
    ai::int32 n = 0;
    CHECK(dictionary().GetIntegerEntry(cloned, key("n"), &n) == kNoErr);
    CHECK(n == 1);
    CHECK(dictionary().SwapEntries(cloned, child.ref, key("n"), key("n")) == kNoErr);
    CHECK(dictionary().GetIntegerEntry(cloned, key("n"), &n) == kNoErr);
    CHECK(n == 2);
    CHECK(dictionary().MoveEntry(cloned, child.ref, key("n"), key("m")) == kNoErr);
    CHECK(dictionary().IsKnown(cloned, key("n")) == 0);
    CHECK(dictionary().Size(child.ref) == 2);
    dictionary().Release(cloned);
    dictionary().Release(clone);
}

TEST_CASE("values convert to and from text when asked to") {
    const Drawing drawing;
    struct Row {
        const char* text;
        AIErr booleanCode;
        AIErr integerCode;
        AIErr realCode;
    };
    const Row rows[] = {
        {"1", kNoErr, kNoErr, kNoErr},
        {"false", kNoErr, kNoConversionErr, kNoConversionErr},
        {"2.5", kNoConversionErr, kNoErr, kNoErr},
        {"", kNoConversionErr, kNoConversionErr, kNoConversionErr},
    };
    for (const auto& row : rows) {
        INFO(row.text);
        AIBoolean flag = 0;
        ai::int32 integer = 0;
        AIReal real = 0;
        CHECK(entry().AsBoolean(entry().FromString(row.text), &flag) == row.booleanCode);
        CHECK(entry().AsInteger(entry().FromString(row.text), &integer) == row.integerCode);
        CHECK(entry().AsReal(entry().FromString(row.text), &real) == row.realCode);
    }
    const char* text = nullptr;
    CHECK(entry().AsString(entry().FromInteger(-12), &text) == kNoErr);
    CHECK(std::string(text) == "-12");
}

TEST_CASE("host strings keep characters beyond the basic plane") {
    const Drawing drawing;
    const OwnDictionary own;
    const std::string text = "caf\xC3\xA9 \xF0\x9F\xA6\x8B";
    const HostText given(text);
    CHECK(dictionary().SetUnicodeStringEntry(own.ref, key("u"), given.string) == kNoErr);
    HostText found;
    CHECK(entry().ToUnicodeString(dictionary().Get(own.ref, key("u")), found.string) == kNoErr);
    CHECK(readUtf8(found.string) == text);
}

TEST_CASE("arrays are lists with the same entries") {
    const Drawing drawing;
    AIArrayRef list = nullptr;
    REQUIRE(array().CreateArray(&list) == kNoErr);
    for (ai::int32 i = 0; i < 3; ++i)
        CHECK(array().AppendEntry(list, entry().FromInteger(i)) == kNoErr);
    CHECK(array().InsertEntry(list, 1) == kNoErr);
    CHECK(array().SetStringEntry(list, 1, "between") == kNoErr);
    CHECK(array().DeleteEntry(list, 0) == kNoErr);
    CHECK(array().Size(list) == 3);
    const char* text = nullptr;
    ai::int32 last = 0;
    CHECK(array().GetStringEntry(list, 0, &text) == kNoErr);
    CHECK(std::string(text) == "between");
    CHECK(array().GetIntegerEntry(list, 2, &last) == kNoErr);
    CHECK(last == 2);
    for (const ai::int32 outside : {-1, 3}) {
        CHECK(array().GetIntegerEntry(list, outside, &last) == kNoSuchEntry);
        CHECK(array().SetIntegerEntry(list, outside, 1) == kNoSuchEntry);
        CHECK(array().Get(list, outside) == nullptr);
    }
    CHECK(array().SetArrayEntry(list, 0, list) == kBadParameterErr);
    array().Release(list);
}

} // namespace
} // namespace easel::tests

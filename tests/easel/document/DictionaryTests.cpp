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

TEST_CASE("entries are consumed by setting and reading, whether or not that works") {
    const Drawing drawing;
    const OwnDictionary own;
    const auto lent = [] { return session().ledger.count(Lent::Entry); };
    CHECK(dictionary().Set(own.ref, key("a"), entry().FromString("one")) == kNoErr);
    CHECK(lent() == 0);
    AIDictionaryRef none = nullptr;
    CHECK(entry().ToDict(dictionary().Get(own.ref, key("a")), &none) == kWrongEntryType);
    CHECK(lent() == 0);
    CHECK(dictionary().Set(nullptr, key("a"), entry().FromString("one")) == kBadParameterErr);
    CHECK(lent() == 0);
    const AIEntryRef held = dictionary().Get(own.ref, key("a"));
    CHECK(lent() == 1);
    CHECK(entry().Release(held) == 0);
    CHECK(lent() == 0);
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
        CHECK(dictionary().Set(root, key("child"), entry().FromDict(child.ref)) == kNoErr);
        CHECK(dictionary().SetIntegerEntry(child.ref, key("late"), 5) == kNoErr);
        AIDictionaryRef read = nullptr;
        CHECK(entry().ToDict(dictionary().Get(root, key("child")), &read) == kNoErr);
        ai::int32 late = 0;
        CHECK(dictionary().GetIntegerEntry(read, key("late"), &late) == kNoErr);
        CHECK(late == 5);
        // A dictionary inside itself would never end.
        CHECK(dictionary().Set(child.ref, key("loop"), entry().FromDict(root)) == kBadParameterErr);
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

} // namespace
} // namespace easel::tests

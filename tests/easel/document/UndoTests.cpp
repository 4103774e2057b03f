#include "tests/Seed.h"
#include "tests/easel/document/Plugin.h"

#include <random>

namespace easel::tests {
namespace {

TEST_CASE("each kind of change is undone and redone exactly") {
    struct Row {
        const char* what;
        void (*change)(Document&, Art& group, Art& path);
    };
    const Row rows[] = {
        {"new art", [](Document& d, Art& group, Art&) { createArt(d, kPathArt, onTopOf(group)); }},
        {"deletion of a group", [](Document&, Art& group, Art&) { disposeArt(group); }},
        {"move", [](Document&, Art& group, Art& path) { moveArt(path, behind(group)); }},
        {"copy and deletion of the original",
         [](Document&, Art& group, Art& path) {
             duplicateArt(group, behind(group));
             disposeArt(path);
         }},
        {"segments", [](Document&, Art&, Art& path) { path.write().segments.write().resize(1); }},
        {"style", [](Document&, Art&, Art& path) { path.write().style.write().opacity = 0.5F; }},
        {"locks", [](Document&, Art& group, Art&) { setUserAttributes(group, kArtLocked, 2); }},
        {"selection of one anchor",
         [](Document&, Art&, Art& path) { setSegmentSelection(path, 0, kSegmentOutSelected); }},
        {"dictionary entry",
         [](Document&, Art&, Art& path) { path.dictionary().set(internKey("new"), 1); }},
        {"entry of a nested dictionary",
         [](Document&, Art&, Art& path) {
             const Value* nested = path.dictionary().find(internKey("nested"));
             std::get<Ref<Dictionary>>(*nested)->set(internKey("deep"), 2);
         }},
        {"document dictionary",
         [](Document& d, Art&, Art&) { d.recordedDictionary().set(internKey("k"), 3); }},
        {"layers",
         [](Document& d, Art&, Art&) {
             setCurrentLayer(d, createLayer(d, "Top", onTopOf(d.root())));
             deleteLayer(*findLayer(d, "Layer 1"));
         }},
        {"ruler origin",
         [](Document& d, Art&, Art&) {
             d.setRulerOrigin({100, 200});
         }},
    };
    for (const auto& row : rows) {
        INFO(row.what);
        Drawing drawing;
        Document& document = drawing.document;
        const AIArtHandle group = drawing.make(kGroupArt);
        const AIArtHandle made = drawing.makePath({{0, 0}, {10, 20}});
        moveArt(session().artOf(made), onTopOf(session().artOf(group)));
        Ref<Dictionary> nested(new Dictionary);
        session().artOf(made).dictionary().set(internKey("nested"), nested);
        const std::string before = dump(document);
        {
            const Record record(document);
            row.change(document, session().artOf(group), session().artOf(made));
        }
        const std::string after = dump(document);
        CHECK(after != before);
        for (int round = 0; round < 3; ++round) {
            CHECK(document.undo().undo());
            CHECK(dump(document) == before);
            CHECK(session().artOf(made).handle() == made); // the same object by the same handle
            CHECK(document.undo().redo());
            CHECK(dump(document) == after);
        }
    }
}

/// A random edit of a random object.
class RandomEditor {
public:
    RandomEditor(Document& document, std::uint64_t seed) : document_(document), random_(seed) {}

    void edit() {
        Art& art = anyArt();
        switch (below(8)) {
        case 0:
            createArt(document_, below(3) == 0 ? kGroupArt : kPathArt, anyPlace());
            break;
        case 1:
            if (!art.isLayer()) disposeArt(art);
            break;
        case 2:
            if (const Position place = anyPlace(); !art.isLayer() && !isInside(*place.parent, art))
                moveArt(art, place);
            break;
        case 3:
            if (!art.isLayer() && below(3) == 0) duplicateArt(art, anyPlace());
            break;
        case 4:
            art.dictionary().set(internKey(std::string(1, static_cast<char>('a' + below(4)))),
                                 static_cast<ai::int32>(below(100)));
            break;
        case 5:
            if (art.type() == kPathArt) art.write().segments.write().resize(below(5));
            break;
        case 6:
            setUserAttributes(art, kArtHidden, below(2) == 0 ? 0 : kArtHidden);
            break;
        default:
            select(art, below(2) == 0);
        }
    }
    std::size_t below(std::size_t limit) { return random_() % limit; }

private:
    Art& anyArt() {
        std::vector<Art*> all;
        Art& root = document_.root();
        for (Art* each = root.firstChild(); each != nullptr; each = nextInPreorder(*each, root))
            all.push_back(each);
        return *all[below(all.size())];
    }
    Position anyPlace() {
        Art* parent = &anyArt();
        while (parent->type() != kGroupArt)
            parent = parent->parent();
        return below(2) == 0 ? onTopOf(*parent) : atBottomOf(*parent);
    }

    Document& document_;
    std::mt19937_64 random_;
};

TEST_CASE("any sequence of records is undone to the start and redone to the end") {
    for (std::uint64_t round = 0; round < 20; ++round) {
        Drawing drawing;
        Document& document = drawing.document;
        session().allowAllChanges = true;
        RandomEditor editor(document, facetta::tests::seed() + round);
        INFO("seed " << facetta::tests::seed() + round);
        std::vector<std::string> states{dump(document)};
        for (int step = 0; step < 40; ++step) {
            {
                const Record record(document);
                for (std::size_t edits = editor.below(6) + 1; edits > 0; --edits)
                    editor.edit();
                if (editor.below(5) == 0) document.undo().revert();
            }
            // A record that leaves nothing changed is not a step.
            if (document.undo().pastSteps() == std::ssize(states)) states.push_back(dump(document));
            CHECK(dump(document) == states.back());
        }
        for (auto state = states.rbegin(); state != states.rend(); ++state) {
            CHECK(dump(document) == *state);
            document.undo().undo();
        }
        for (const std::string& state : states) {
            CHECK(dump(document) == state);
            document.undo().redo();
        }
    }
}

TEST_CASE("reverting brings back the start of the record and kills what it made") {
    Drawing drawing;
    Document& document = drawing.document;
    const AIArtHandle old = drawing.makePath({{0, 0}, {1, 1}});
    session().artOf(old).dictionary().set(internKey("tag"), 1);
    const std::string before = dump(document);
    const Record record(document);
    AIArtHandle made = nullptr;
    std::string first;
    for (int drag = 0; drag < 3; ++drag) {
        CHECK(undo().UndoChanges() == kNoErr);
        CHECK(dump(document) == before);
        CHECK(art().ValidArt(made, 1) == 0);
        CHECK(art().DuplicateArt(old, kPlaceAbove, old, &made) == kNoErr);
        session().artOf(made).dictionary().set(internKey("tag"), 2);
        session().artOf(old).dictionary().erase(internKey("tag"));
        CHECK(art().DisposeArt(old) == kNoErr);
        if (drag == 0) first = dump(document);
        CHECK(dump(document) == first);
    }
}

TEST_CASE("steps are counted, named and thrown away as the user expects") {
    Drawing drawing;
    Document& document = drawing.document;
    const auto step = [&](const char* name, AIUndoContextKind kind) {
        const Record record(document);
        drawing.make(kPathArt);
        const HostText undoText(std::string("Undo ") + name);
        const HostText redoText(std::string("Redo ") + name);
        CHECK(undo().SetUndoTextUS(undoText.string, redoText.string) == kNoErr);
        CHECK(undo().SetKind(kind) == kNoErr);
    };
    const auto counts = [] {
        ai::int32 past = -1;
        ai::int32 future = -1;
        CHECK(undo().CountTransactions(&past, &future) == kNoErr);
        return std::pair(past, future);
    };
    step("one", kStandardUndoContext);
    const std::string one = dump(document);
    step("two", kStandardUndoContext);
    step("quietly", kSilentUndoContext);
    step("more", kAppendUndoContext);
    const std::string all = dump(document);
    CHECK(counts() == std::pair(2, 0));
    CHECK(document.undo().undoText() == "Undo two");
    document.undo().undo(); // takes back what was joined to it as well
    CHECK(dump(document) == one);
    CHECK(counts() == std::pair(1, 1));
    CHECK(document.undo().redoText() == "Redo two");
    step("unseen", kSilentUndoContext); // discards no redo, and gives way to it
    {
        const Record record(document);
        Art* const kept = drawing.layerGroup().firstChild();
        CHECK(path().SetPathClosed(kept->handle(), 1) == kNoErr);
        CHECK(undo().SetKind(kSilentUndoContext) == kNoErr);
    }
    CHECK(counts() == std::pair(1, 1));
    document.undo().redo();
    CHECK(dump(document) == all);
    document.undo().undo();
    step("three", kStandardUndoContext);
    CHECK(counts() == std::pair(2, 0));
    { const Record nothing(document); }
    CHECK(counts() == std::pair(2, 0));
}

TEST_CASE("deleted art lives only as long as a step needs it") {
    Drawing drawing;
    Document& document = drawing.document;
    const std::size_t before = session().handles.used();
    {
        const Record record(document);
        const AIArtHandle made = drawing.make(kPathArt);
        drawing.make(kPathArt);
        CHECK(art().DisposeArt(made) == kNoErr); // made and gone in one step: freed at its end
    }
    CHECK(session().handles.used() == before + 1);
    document.undo().undo();
    CHECK(session().handles.used() == before + 1);
    document.undo().clear();
    CHECK(session().handles.used() == before);
}

TEST_CASE("the history has an end, and what falls out of it is freed") {
    Drawing drawing;
    Document& document = drawing.document;
    const std::size_t before = session().handles.used();
    for (int step = 0; step < 300; ++step) {
        AIArtHandle made = nullptr;
        {
            const Record record(document);
            made = drawing.make(kPathArt);
        }
        const Record record(document);
        CHECK(art().DisposeArt(made) == kNoErr);
    }
    CHECK(document.undo().pastSteps() == 200);
    CHECK(session().handles.used() == before + 100); // one object for two steps
    while (document.undo().undo()) {
    }
    CHECK(document.undo().futureSteps() == 200);
}

TEST_CASE("a change outside any record cannot be undone and ends the history before it") {
    Drawing drawing;
    Document& document = drawing.document;
    {
        const Record record(document);
        drawing.make(kPathArt);
    }
    drawing.make(kPathArt);
    CHECK(document.undo().pastSteps() == 0);
    CHECK_FALSE(document.undo().undo());
}

TEST_CASE("a dictionary that outlives its document records nothing and harms nobody") {
    Ref<Dictionary> survivor;
    {
        Drawing drawing;
        const AIArtHandle made = drawing.make(kPathArt);
        survivor = Ref<Dictionary>(&session().artOf(made).dictionary());
        const Record record(drawing.document);
        survivor->set(internKey("a"), 1);
    }
    survivor->set(internKey("b"), 2);
    CHECK(survivor->items().size() == 2);
}

} // namespace
} // namespace easel::tests

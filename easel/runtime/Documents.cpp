#include "easel/runtime/Documents.h"

#include "easel/document/Session.h"
#include "easel/runtime/Contexts.h"
#include "easel/runtime/Notifiers.h"
#include "easel/runtime/Views.h"
#include "host/MessageNames.h"

#include <algorithm>

namespace easel {
Documents::~Documents() { session_.current = nullptr; }

Document& Documents::open(std::unique_ptr<Document> opened) {
    Document& document = *all_.emplace_back(std::move(opened));
    views_.open(document);
    static_cast<void>(document.takeChanges()); // reading it is no change
    notifiers_.queue("AI Document Opened Notifier");
    return document;
}

bool Documents::activate(Document& document) {
    if (session_.current == &document) return false;
    contexts_.switchTo(&document);
    notifiers_.queue("AI Document View Style Active View Changed Notifier");
    notifiers_.queue("AI Document Changed Notifier");
    return true;
}

void Documents::close(Document& document) {
    notifiers_.notify("AI Document About To Close Notifier");
    const auto isIt = [&](const auto& each) { return each.get() == &document; };
    if (session_.current == &document) {
        const auto other = std::find_if_not(all_.begin(), all_.end(), isIt);
        contexts_.switchTo(other == all_.end() ? nullptr : other->get());
    }
    views_.removeIf([&](const DocumentView& each) { return each.document == &document; });
    std::erase_if(all_, isIt);
    notifiers_.queue("AI Document Closed Notifier");
}

void Documents::beforeSaving() {
    ai::int32 version = 16; // of the format being written: this generation's
    notifiers_.notify("AI Document Write Preprocess Notifier", &version);
}

void Documents::afterSaving() {
    session_.document().setModified(false);
    notifiers_.queue("AI Document Saved Notifier");
}

bool Documents::walk(const std::string& command, bool (UndoLog::*step)()) {
    notifiers_.notify("AI Command Notifier: Before " + command);
    const bool done = (session_.document().undo().*step)();
    notifiers_.queue("AI Command Notifier: After " + command);
    return done;
}

void Documents::edit(const std::string& undoText, const std::function<void(Document&)>& change,
                     AIUndoContextKind kind) {
    Document& document = session_.document();
    const AIAppContextHandle context = contexts_.push(nullptr, kind);
    document.undo().setTexts("Undo " + undoText, "Redo " + undoText);
    try {
        change(document);
    } catch (...) {
        contexts_.pop(context);
        throw;
    }
    contexts_.pop(context);
}

DocumentChanges Documents::collectChanges() {
    struct Row {
        bool DocumentChanges::*what;
        std::string_view type;
    };
    static constexpr Row kRows[] = {
        {&DocumentChanges::rulerOrigin, "AI Document Ruler Origin Changed Notifier"},
        {&DocumentChanges::currentLayer, "AI Current Layer Notifier"},
        {&DocumentChanges::layerSet, "AI Layer Set Notifier"},
        {&DocumentChanges::layerDeleted, "AI Layer Deletion Notifier"},
        {&DocumentChanges::layerOptions, "AI Layer Options Notifier"},
        // The real host cannot tell a new selection from edited art.
        {&DocumentChanges::selection, kArtSelectionChangedNotifier},
        {&DocumentChanges::art, kArtSelectionChangedNotifier},
        {&DocumentChanges::selection, kArtPropertiesChangedNotifier},
        {&DocumentChanges::art, kArtPropertiesChangedNotifier},
        {&DocumentChanges::art, "AI Document Changed Notifier"},
    };
    DocumentChanges all;
    for (const auto& document : all_) {
        const DocumentChanges changes = document->takeChanges();
        for (const Row& row : kRows) {
            if (!(changes.*row.what)) continue;
            all.*row.what = true;
            notifiers_.queue(row.type);
        }
    }
    return all;
}

} // namespace easel

#pragma once

#include "easel/document/Document.h"
#include "host/Art.h"

#include <functional>
#include <memory>
#include <string>
#include <vector>

namespace easel {

class Contexts;
class Notifiers;
class Views;

/// The open documents, one of which is current, and what the user does to them without any plug-in.
class Documents {
public:
    Documents(Session& session, Contexts& contexts, Notifiers& notifiers, Views& views)
        : session_(session), contexts_(contexts), notifiers_(notifiers), views_(views) {}
    ~Documents();
    Documents(const Documents&) = delete;
    Documents& operator=(const Documents&) = delete;

    /// It is not yet current.
    Document& open(std::unique_ptr<Document> document);
    void close(Document& document);
    /// False when it is current already.
    bool activate(Document& document);
    [[nodiscard]] const std::vector<std::unique_ptr<Document>>& all() const noexcept {
        return all_;
    }
    /// Tells that the current document is about to be written; what plug-ins change then is saved.
    void beforeSaving();
    void afterSaving();
    /// False when there was nothing to undo.
    bool undo() { return walk("Undo", &UndoLog::undo); }
    bool redo() { return walk("Redo", &UndoLog::redo); }
    /// One undo step with that menu text. Choosing what is selected is a silent one.
    void edit(const std::string& undoText, const std::function<void(Document&)>& change,
              AIUndoContextKind kind);
    /// Queues notifications of what has changed, and returns that, of all documents together.
    DocumentChanges collectChanges();

private:
    bool walk(const std::string& command, bool (UndoLog::*step)());

    Session& session_;
    Contexts& contexts_;
    Notifiers& notifiers_;
    Views& views_;
    std::vector<std::unique_ptr<Document>> all_;
};

} // namespace easel

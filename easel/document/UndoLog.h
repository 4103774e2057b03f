#pragma once

#include "easel/document/Art.h"
#include "host/Art.h"

#include <deque>
#include <memory>
#include <string>
#include <vector>

namespace easel {

/// A former state that can be exchanged with the present one, any number of times.
class KeptState {
public:
    KeptState() = default;
    KeptState(const KeptState&) = delete;
    KeptState& operator=(const KeptState&) = delete;
    virtual ~KeptState() = default;
    virtual void exchange() = 0;
};

/// The undo history of one document.
///
///   1. `open` begins a record; contexts nest, so records are counted and only the outermost one
///      is made.
///   2. Whoever changes something first hands in its former state, once in a record.
///   3. `revert` takes back what the record holds so far; the record goes on.
///   4. `close` ends it: dropped when empty, otherwise kept as `kind` says.
///   5. `undo` and `redo` exchange states, last to first and first to last.
///
/// Without an open record changes cannot be taken back, and the history before them is forgotten.
/// A plug-in that changes something then is refused: throws 'DOC?' out of whatever keeps or notes.
class UndoLog {
public:
    explicit UndoLog(Document& document) noexcept;
    ~UndoLog();
    UndoLog(const UndoLog&) = delete;
    UndoLog& operator=(const UndoLog&) = delete;

    void open();
    void close();
    void revert();
    /// Of the record being made; nothing happens when there is none.
    void setKind(AIUndoContextKind kind) noexcept;
    [[nodiscard]] AIUndoContextKind kind() const noexcept { return open_.kind; }
    /// The full menu texts of the record being made, UTF-8. The last call in a record wins.
    void setTexts(std::string undo, std::string redo);

    /// False when there is nothing to undo or redo. No record may be open.
    bool undo();
    bool redo();
    /// Steps that a user can undo and redo: neither silent nor appended ones.
    [[nodiscard]] ai::int32 pastSteps() const noexcept;
    [[nodiscard]] ai::int32 futureSteps() const noexcept;
    /// Menu texts of the steps that would be undone and redone next; empty: none, or not set.
    [[nodiscard]] std::string undoText() const;
    [[nodiscard]] std::string redoText() const;
    /// Forgets all records, and frees what only they kept.
    void clear();
    /// The document goes away; dictionaries that outlive it record nothing any more.
    void detach();

    // For those who change something.

    /// Differs in each record and after each revert: a state kept in the present epoch need not be
    /// kept again. 0 while no record is open.
    [[nodiscard]] std::uint64_t epoch() const noexcept { return depth_ > 0 ? epoch_ : 0; }
    /// Must be called before any change that is not of an art object. `keptIn` belongs to what is
    /// changed. True when the caller has to hand in its former state with `keep`.
    [[nodiscard]] bool mustKeep(std::uint64_t& keptIn);
    void keep(std::unique_ptr<KeptState> state);

    void keepContent(Art& art);
    void keepLinks(Art& art);
    void noteMade(Art& art);
    void noteDisposed(Art& art);

private:
    /// A state to exchange, or an object to bring to life or to end.
    struct Step {
        Art* lives;
        std::unique_ptr<KeptState> state;
    };
    struct Record {
        std::vector<Step> steps;
        AIUndoContextKind kind = kStandardUndoContext;
        std::string undoText;
        std::string redoText;
        bool madeBeforeRedo = false; ///< Silent, and made while steps waited to be redone.
    };
    struct ContentState;
    struct LinksState;

    [[nodiscard]] bool isOwnStep(const Record& record) const noexcept;
    /// That of the last standard record; empty when there is none.
    [[nodiscard]] static std::string lastText(const std::deque<Record>& records,
                                              std::string Record::*text);
    [[nodiscard]] bool recording();
    void keepLife(Art& art);
    static void releaseLife(Art& art);
    void exchange(Step& step);
    void takeBack(Record& record);
    void bringBack(Record& record);
    static void forget(Record& record);
    void dropBriefLives();
    void discardFuture();
    void limitHistory();
    void noteEverything();

    Session& session_;
    Document* document_;
    std::deque<Record> past_;
    std::deque<Record> future_; ///< The next to be redone at the back.
    Record open_;
    int depth_ = 0;
    std::uint64_t epoch_ = 0;
};

} // namespace easel

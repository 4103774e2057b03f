#pragma once

#include "host/Art.h"
#include "host/Handles.h"

#include <cstddef>
#include <cstdint>
#include <memory>
#include <vector>

namespace easel {

class Document;
struct Session;
class UndoLog;

/// The stack of application contexts. A context says which document is meant by calls that name
/// none, and the outermost one is one step for undo:
///
///   1. The host pushes a context before each message, a plug-in before its own work outside one.
///   2. The outermost push opens an undo record in the current document.
///   3. Contexts nest strictly; the outermost pop closes the record.
///   4. What is done while a plug-in is executing, for it or by it, is done in a nested context: in
///      that the kind of the undo step cannot be chosen.
class Contexts {
public:
    enum class Nested : std::uint8_t { No, Yes };

    explicit Contexts(Session& session) noexcept : session_(session) {}
    ~Contexts();
    Contexts(const Contexts&) = delete;
    Contexts& operator=(const Contexts&) = delete;

    /// `kind` matters for the outermost context only. A context inside a nested one is nested.
    [[nodiscard]] AIAppContextHandle push(SPPluginRef plugin,
                                          AIUndoContextKind kind = kStandardUndoContext,
                                          Nested nested = Nested::No);
    /// Throws 'PARM' unless `context` is the innermost one.
    void pop(AIAppContextHandle context);
    [[nodiscard]] std::size_t depth() const noexcept { return stack_.size(); }
    /// The innermost context; null when there is none.
    [[nodiscard]] AIAppContextHandle top() const noexcept;

    /// Whether changes under locked or hidden parents are allowed in the innermost context; returns
    /// whether they were. Throws 'CLSH' when there is none.
    bool allowAllChanges(bool allow);

    /// Makes `document` current; what was done so far in the former one becomes a step of its own.
    void switchTo(Document* document);

private:
    struct Context {
        AIAppContextHandle handle;
        SPPluginRef plugin;
        bool nested;
        bool allowAllChanges;
    };

    void openRecord();
    void closeRecord();
    void applyTop() const noexcept;

    Session& session_;
    std::vector<Context> stack_;
    std::shared_ptr<UndoLog> record_; ///< The history in which the outermost context records.
};

} // namespace easel

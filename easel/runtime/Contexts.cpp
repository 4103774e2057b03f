#include "easel/runtime/Contexts.h"

#include "easel/core/Registry.h"
#include "easel/document/Session.h"

#include <utility>

namespace easel {

Contexts::~Contexts() {
    closeRecord();
    session_.allowAllChanges = false;
    session_.contextIsNested = false;
}

AIAppContextHandle Contexts::push(SPPluginRef plugin, AIUndoContextKind kind, Nested nested) {
    const auto handle = reinterpret_cast<AIAppContextHandle>(nextHandleValue());
    const bool isNested = !stack_.empty() && (nested == Nested::Yes || stack_.back().nested);
    stack_.push_back({handle, plugin, isNested, false});
    applyTop();
    if (stack_.size() == 1) {
        openRecord();
        if (record_ != nullptr) record_->setKind(kind);
    }
    return handle;
}

void Contexts::pop(AIAppContextHandle context) {
    if (stack_.empty() || stack_.back().handle != context) throw ai::Error{kBadParameterErr};
    stack_.pop_back();
    applyTop();
    if (stack_.empty()) closeRecord();
}

AIAppContextHandle Contexts::top() const noexcept {
    return stack_.empty() ? nullptr : stack_.back().handle;
}

bool Contexts::allowAllChanges(bool allow) {
    if (stack_.empty()) throw ai::Error{kSelectorClashErr};
    const bool before = std::exchange(stack_.back().allowAllChanges, allow);
    applyTop();
    return before;
}

void Contexts::switchTo(Document* document) {
    closeRecord();
    session_.current = document;
    if (!stack_.empty()) openRecord();
}

void Contexts::openRecord() {
    Document* const document = session_.current;
    if (document == nullptr) return;
    record_ = document->sharedUndo();
    record_->open();
}

void Contexts::closeRecord() {
    if (record_ != nullptr) std::exchange(record_, nullptr)->close();
}

void Contexts::applyTop() const noexcept {
    session_.allowAllChanges = !stack_.empty() && stack_.back().allowAllChanges;
    session_.contextIsNested = !stack_.empty() && stack_.back().nested;
}

} // namespace easel

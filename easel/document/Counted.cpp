#include "easel/document/Counted.h"

#include "easel/document/Session.h"
#include "host/Error.h"

namespace easel {

void* Counted::lend() {
    if (handle_ == nullptr) handle_ = session().handles.add(kind_, this);
    ledger().lend(loan_, handle_);
    ++lent_;
    retain();
    return handle_;
}

ai::int32 Counted::takeBack() {
    ledger().takeBack(loan_, handle_);
    if (--lent_ == 0) session().handles.remove(std::exchange(handle_, nullptr));
    const auto left = static_cast<ai::int32>(owners_ - 1);
    release();
    return left;
}

Counted& counted(HandleKind kind, Lent loan, const void* handle) {
    void* object = session().handles.find(kind, handle);
    if (object == nullptr) {
        if (handle != nullptr) ledger().require(loan, handle);
        throw ai::Error{kBadParameterErr};
    }
    return *static_cast<Counted*>(object);
}

} // namespace easel

#include "easel/document/Counted.h"

#include "easel/document/Session.h"

namespace easel {

void* Counted::lend(Session& session) {
    if (handle_ == nullptr) handle_ = session.handles.add(kind_, this);
    session.ledger.lend(loan_, handle_);
    ++lent_;
    retain();
    return handle_;
}

ai::int32 Counted::takeBack(Session& session) {
    session.ledger.takeBack(loan_, handle_);
    if (--lent_ == 0) session.handles.remove(std::exchange(handle_, nullptr));
    const auto left = static_cast<ai::int32>(owners_ - 1);
    release();
    return left;
}

} // namespace easel

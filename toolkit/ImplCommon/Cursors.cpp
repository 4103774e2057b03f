#include "toolkit/ImplCommon/Cursors.h"

#include "host/Codes.h"
#include "host/UserSuiteLayout.h"

#include <utility>

namespace NRDM {

Cursors::Cursors(SPPluginRef self) : self_(self) {
    // The functions that show cursors lie late in the suite.
    if (user_.acquire() == kNoErr && !ai::liesAsDeclared(*user_)) user_.release();
}

void Cursors::show(ai::int32 id) { static_cast<void>(showByHost(id)); }

bool Cursors::showByHost(ai::int32 id) {
    if (!user_) return false;
    if (manager_ == nullptr) user_->CreateCursorResourceMgr(self_, &manager_);
    return manager_ != nullptr && user_->SetCursor(id, manager_) == kNoErr;
}

void Cursors::close() noexcept {
    if (manager_ != nullptr) user_->DisposeCursorResourceMgr(std::exchange(manager_, nullptr));
    user_.release();
}

} // namespace NRDM

#include "toolkit/Cursors.h"

#include "host/Error.h"
#include "host/Lent.h"
#include "host/UserSuiteLayout.h"
#include "toolkit/ImplCommon/Resources.h"

#include <utility>

namespace NRDM {

Cursors::Cursors(SPPluginRef self) : self_(self) {
    // The functions that show cursors lie late in the suite.
    if (user_.acquire() == kNoErr && !ai::liesAsDeclared(*user_)) user_.release();
}

void Cursors::show(ai::int32 id) {
    if (closed_ || showByHost(id)) return;
    // A host that cannot tell where the resources are leaves the cursor that is there.
    static_cast<void>(ai::codeOf([&] {
        system_.show(resourceLibrary(self_), id);
        return kNoErr;
    }));
}

bool Cursors::showByHost(ai::int32 id) {
    if (!user_) return false;
    const bool made = manager_ != nullptr ||
                      ai::isGiven(user_->CreateCursorResourceMgr(self_, &manager_), manager_);
    return made && manager_ != nullptr && user_->SetCursor(id, manager_) == kNoErr;
}

void Cursors::close() noexcept {
    if (manager_ != nullptr) user_->DisposeCursorResourceMgr(std::exchange(manager_, nullptr));
    user_.release();
    closed_ = true;
}

} // namespace NRDM

#pragma once

#include "easel/core/Ledger.h"

#include <memory>
#include <utility>

/// Objects of Easel's behind those of the plug-in that consist of one pointer: strings and paths. A
/// null pointer is an object never set. The ledger has what is behind one on loan.
namespace easel {

template <typename Holder> [[nodiscard]] void*& pointerIn(Holder& holder) noexcept {
    return reinterpret_cast<void*&>(holder);
}

/// Null for one never set. Throws 'PARM' when it is not one of ours or was destroyed.
template <typename Object, Lent kind, typename Holder>
[[nodiscard]] Object* objectIn(Ledger& ledger, const Holder& holder) {
    void* const object = reinterpret_cast<void* const&>(holder);
    if (object != nullptr) ledger.require(kind, object);
    return static_cast<Object*>(object);
}

/// Makes the object when there is none.
template <typename Object, Lent kind, typename Holder>
void setObject(Ledger& ledger, Holder& holder, Object value) {
    if (Object* const known = objectIn<Object, kind>(ledger, holder)) {
        *known = std::move(value);
        return;
    }
    auto object = std::make_unique<Object>(std::move(value));
    ledger.lend(kind, object.get());
    pointerIn(holder) = object.release();
}

template <typename Object, Lent kind, typename Holder>
void destroyObject(Ledger& ledger, Holder& holder) {
    void* const object = std::exchange(pointerIn(holder), nullptr);
    if (object == nullptr) return;
    ledger.takeBack(kind, object);
    delete static_cast<Object*>(object);
}

} // namespace easel

#include "toolkit/Headless/Keyboard.h"

#include "toolkit/Headless/HeadlessItem.h"

#include <utility>

namespace NRDM {

void Keyboard::moveTo(HeadlessItem* item) {
    if (item == owner_) return;
    HeadlessItem* const former = std::exchange(owner_, item);
    if (former != nullptr && !former->loseKeyboard()) {
        owner_ = former; // a dialog asks once more for what cannot be taken over
        return;
    }
    if (owner_ == item && item != nullptr) item->gainKeyboard();
}

} // namespace NRDM

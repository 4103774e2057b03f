#include "easel/document/MessageLoans.h"

#include "easel/document/Session.h"

#include <algorithm>

namespace easel {

const char* MessageLoans::characters(SharedText text) {
    if (!session_.switches.entryStringsLast) {
        fleeting_.assign(text->c_str(), text->c_str() + text->size() + 1);
        return fleeting_.data();
    }
    // Read again and again, one text is kept once.
    if (texts_.empty() || texts_.back() != text) texts_.push_back(std::move(text));
    return texts_.back()->c_str();
}

void MessageLoans::dictionaryCalled() noexcept {
    if (!fleeting_.empty()) std::fill(fleeting_.begin(), fleeting_.end() - 1, '?');
}

void MessageLoans::keep(Ref<Hit> hit) { hits_.push_back(std::move(hit)); }

void MessageLoans::clear() {
    texts_.clear();
    fleeting_.clear();
    for (const Ref<Hit>& hit : hits_)
        while (hit->lent() > 0)
            hit->takeBack(session_);
    hits_.clear();
}

} // namespace easel

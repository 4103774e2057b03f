#pragma once

#include <utility>
#include <vector>

namespace facetta {

/// Storage for values that are made and done with again and again: a vector is taken, and given
/// back when the value that it went into is no longer needed. It still holds what it held then:
/// elements that are assigned to cost less than new ones. One that is not given back is lost
/// storage and nothing worse.
template <typename Element> class Spares {
public:
    [[nodiscard]] std::vector<Element> take() {
        if (spares_.empty()) return {};
        std::vector<Element> storage = std::move(spares_.back());
        spares_.pop_back();
        return storage;
    }

    void giveBack(std::vector<Element>&& storage) {
        if (storage.capacity() == 0) return;
        spares_.push_back(std::move(storage));
    }

private:
    std::vector<std::vector<Element>> spares_;
};

} // namespace facetta

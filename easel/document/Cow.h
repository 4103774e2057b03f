#pragma once

#include "easel/document/Counted.h"

#include <cstdint>
#include <utility>

namespace easel {

/// A value that copies share until one of them is written: a copy costs one pointer. One that was
/// never written reads as a default-constructed value and costs nothing. For one thread.
template <typename T> class Cow {
public:
    Cow() noexcept = default;
    explicit Cow(T value) : node_(new Node{std::move(value)}) {}

    [[nodiscard]] const T& operator*() const noexcept { return node_ ? node_->value : unwritten(); }
    [[nodiscard]] const T* operator->() const noexcept { return &**this; }

    /// The value for writing, no longer shared. Valid until the next copy is made.
    [[nodiscard]] T& write() {
        if (!node_)
            *this = Cow(T{});
        else if (node_->owners > 1)
            *this = Cow(node_->value);
        return node_->value;
    }

    [[nodiscard]] bool sharesWith(const Cow& other) const noexcept { return node_ == other.node_; }

private:
    struct Node {
        T value;
        std::uint32_t owners = 0;
        void retain() noexcept { ++owners; }
        void release() noexcept {
            if (--owners == 0) delete this;
        }
    };
    [[nodiscard]] static const T& unwritten() noexcept {
        static const T value{};
        return value;
    }

    Ref<Node> node_;
};

} // namespace easel

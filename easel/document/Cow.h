#pragma once

#include <cstdint>
#include <utility>

namespace easel {

/// A value that copies share until one of them is written: a copy costs one pointer. One that was
/// never written reads as a default-constructed value and costs nothing. For one thread.
template <typename T> class Cow {
public:
    Cow() noexcept = default;
    explicit Cow(T value) : node_(new Node{std::move(value), 1}) {}
    Cow(const Cow& other) noexcept : node_(other.node_) {
        if (node_ != nullptr) ++node_->owners;
    }
    Cow(Cow&& other) noexcept : node_(std::exchange(other.node_, nullptr)) {}
    Cow& operator=(Cow other) noexcept {
        std::swap(node_, other.node_);
        return *this;
    }
    ~Cow() {
        if (node_ != nullptr && --node_->owners == 0) delete node_;
    }

    [[nodiscard]] const T& operator*() const noexcept {
        return node_ != nullptr ? node_->value : unwritten();
    }
    [[nodiscard]] const T* operator->() const noexcept { return &**this; }

    /// The value for writing, no longer shared. Valid until the next copy is made.
    [[nodiscard]] T& write() {
        if (node_ == nullptr)
            *this = Cow(T{});
        else if (node_->owners > 1)
            *this = Cow(node_->value);
        return node_->value;
    }

    [[nodiscard]] bool sharesWith(const Cow& other) const noexcept { return node_ == other.node_; }

private:
    struct Node {
        T value;
        std::uint32_t owners;
    };
    [[nodiscard]] static const T& unwritten() noexcept {
        static const T value{};
        return value;
    }

    Node* node_ = nullptr;
};

} // namespace easel

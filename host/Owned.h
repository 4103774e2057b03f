#pragma once

#include <utility>

namespace ai {

/// The one owner of what the host lends: move-only, given back on every path. `Traits` names the
/// reference type `Ref` (a pointer) and a `release(Ref) noexcept`.
template <typename Traits> class Owned {
public:
    using Ref = typename Traits::Ref;

    Owned() noexcept = default;
    explicit Owned(Ref ref) noexcept : ref_(ref) {}
    Owned(Owned&& other) noexcept : ref_(std::exchange(other.ref_, nullptr)) {}
    Owned& operator=(Owned&& other) noexcept {
        if (this != &other) {
            reset();
            ref_ = std::exchange(other.ref_, nullptr);
        }
        return *this;
    }
    Owned(const Owned&) = delete;
    Owned& operator=(const Owned&) = delete;
    ~Owned() { reset(); }

    [[nodiscard]] Ref get() const noexcept { return ref_; }
    [[nodiscard]] explicit operator bool() const noexcept { return ref_ != nullptr; }

    /// For the out-parameter of a host function; what was held before is given back.
    [[nodiscard]] Ref* put() noexcept {
        reset();
        return &ref_;
    }

    /// Hands the reference on to a call that consumes it.
    [[nodiscard]] Ref release() noexcept { return std::exchange(ref_, nullptr); }

    void reset() noexcept {
        if (ref_ != nullptr) Traits::release(std::exchange(ref_, nullptr));
    }

private:
    Ref ref_ = nullptr;
};

} // namespace ai

#pragma once

#include "easel/core/Ledger.h"
#include "easel/document/HandleTable.h"
#include "host/Handles.h"

#include <cstdint>
#include <utility>

namespace easel {

struct Session;

/// An object that the plug-in may hold counted references to, and Easel as well.
///
/// It lives while anybody holds it. Its handle exists only while the plug-in holds it, so that a
/// handle used after the last release finds nothing.
class Counted {
public:
    Counted(HandleKind kind, Lent loan) noexcept : kind_(kind), loan_(loan) {}
    Counted(const Counted&) = delete;
    Counted& operator=(const Counted&) = delete;

    /// Adds a reference for the plug-in and notes it in the ledger. Returns the handle.
    [[nodiscard]] void* lend(Session& session);
    /// Ends one of the plug-in's references. The object may be gone afterwards. Returns how many
    /// references to it are left, Easel's own among them.
    ai::int32 takeBack(Session& session);

    void retain() noexcept { ++owners_; }
    void release() noexcept {
        if (--owners_ == 0) delete this;
    }
    [[nodiscard]] std::uint32_t owners() const noexcept { return owners_; }
    /// References that the plug-in holds.
    [[nodiscard]] std::uint32_t lent() const noexcept { return lent_; }

protected:
    virtual ~Counted() = default;

private:
    void* handle_ = nullptr;
    std::uint32_t owners_ = 0; ///< Easel's references and the plug-in's.
    std::uint32_t lent_ = 0;   ///< The plug-in's references.
    HandleKind kind_;
    Lent loan_;
};

/// Easel's own reference to a counted object.
template <typename T> class Ref {
public:
    Ref() noexcept = default;
    explicit Ref(T* object) noexcept : object_(object) {
        if (object_ != nullptr) object_->retain();
    }
    Ref(const Ref& other) noexcept : Ref(other.object_) {}
    Ref(Ref&& other) noexcept : object_(std::exchange(other.object_, nullptr)) {}
    Ref& operator=(Ref other) noexcept {
        std::swap(object_, other.object_);
        return *this;
    }
    ~Ref() {
        if (object_ != nullptr) object_->release();
    }
    [[nodiscard]] T* get() const noexcept { return object_; }
    [[nodiscard]] T* operator->() const noexcept { return object_; }
    [[nodiscard]] T& operator*() const noexcept { return *object_; }
    [[nodiscard]] explicit operator bool() const noexcept { return object_ != nullptr; }
    [[nodiscard]] bool operator==(const Ref&) const noexcept = default;

private:
    T* object_ = nullptr;
};

} // namespace easel

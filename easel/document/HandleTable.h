#pragma once

#include <cstddef>
#include <cstdint>
#include <vector>

namespace easel {

/// What a handle stands for.
enum class HandleKind : std::uint8_t {
    None,
    Art,
    Layer, ///< A layer is its group art: its handle is that of the art with this kind.
    Document,
    Dictionary,
    Array,
    Entry,
    Key,
    ArtSet,
    Hit,
    Definition,
};

/// Turns objects into the opaque handles that the plug-in holds, and back.
///
/// A handle is a number, never an address: the index of a slot, the kind of object, and a
/// generation that grows each time the slot is used anew. A handle that was invented, that is of
/// another kind, or that outlived its object finds nothing.
class HandleTable {
public:
    /// A handle for `object`; never null, and not the handle of anything else until 16 million
    /// more objects have used its slot.
    [[nodiscard]] void* add(HandleKind kind, void* object);
    void remove(const void* handle) noexcept;

    /// The object behind `handle`; null unless it is a live handle of that kind.
    [[nodiscard]] void* find(HandleKind kind, const void* handle) const noexcept {
        const auto bits = reinterpret_cast<std::uintptr_t>(handle);
        const std::size_t index = bits & kIndexMask;
        if (index >= slots_.size()) return nullptr;
        const Slot& slot = slots_[index];
        const bool same = slot.tag == bits >> kTagShift && kindOf(handle) == kind;
        return same ? slot.object : nullptr;
    }

    /// The kind that a handle claims, whether it is live or not.
    [[nodiscard]] static HandleKind kindOf(const void* handle) noexcept {
        const auto bits = reinterpret_cast<std::uintptr_t>(handle);
        return static_cast<HandleKind>((bits >> kTagShift) & kKindMask);
    }
    /// The same slot and generation, claimed to be of another kind.
    [[nodiscard]] static void* withKind(const void* handle, HandleKind kind) noexcept;

    [[nodiscard]] std::size_t used() const noexcept { return used_; }

private:
    static constexpr std::uintptr_t kIndexMask = 0xFFFFFFFF;
    static constexpr unsigned kTagShift = 32;
    static constexpr std::uintptr_t kKindMask = 0xFF;
    static constexpr unsigned kKindBits = 8;

    struct Slot {
        void* object;      ///< Null: the slot is free.
        std::uint32_t tag; ///< Generation above, kind in the low byte.
        std::uint32_t nextFree;
    };

    std::vector<Slot> slots_{Slot{nullptr, 0, 0}}; ///< The first is never used: null is no handle.
    std::uint32_t firstFree_ = 0;
    std::size_t used_ = 0;
};

} // namespace easel

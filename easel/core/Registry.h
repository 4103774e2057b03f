#pragma once

#include "host/Error.h"

#include <cstdint>
#include <memory>
#include <utility>
#include <vector>

namespace easel {

/// The next handle value of this process. No two handles of any kind are ever equal, so that a
/// stale or foreign one is always recognised.
[[nodiscard]] inline std::uintptr_t nextHandleValue() noexcept {
    // Unaligned and far from any real address, so that following one faults at once.
    constexpr std::uintptr_t kFirst = 0x5EA5E10000000001;
    constexpr std::uintptr_t kStep = 16;
    static std::uintptr_t issued = 0;
    return kFirst + kStep * issued++;
}

/// What plug-ins have registered, in the order of registration: notifiers, menu items, tools.
/// A handle is a number in the guise of a pointer and leads nowhere.
template <typename Handle, typename Object> class Registry {
public:
    struct Entry {
        Handle handle;
        std::unique_ptr<Object> object;
    };

    Handle add(Object object) {
        const auto handle = reinterpret_cast<Handle>(nextHandleValue());
        entries_.push_back({handle, std::make_unique<Object>(std::move(object))});
        return handle;
    }
    [[nodiscard]] Object* find(Handle handle) const noexcept {
        for (const Entry& entry : entries_)
            if (entry.handle == handle) return entry.object.get();
        return nullptr;
    }
    /// Throws 'PARM' for a handle that is not, or no longer, registered here.
    [[nodiscard]] Object& at(Handle handle) const {
        Object* const object = find(handle);
        if (object == nullptr) throw ai::Error{kBadParameterErr};
        return *object;
    }
    void remove(Handle handle) {
        if (std::erase_if(entries_, [&](const Entry& e) { return e.handle == handle; }) == 0)
            throw ai::Error{kBadParameterErr};
    }
    template <typename Predicate> void removeIf(Predicate predicate) {
        std::erase_if(entries_, [&](const Entry& entry) { return predicate(*entry.object); });
    }

    [[nodiscard]] ai::int32 count() const noexcept {
        return static_cast<ai::int32>(entries_.size());
    }
    /// `index` from 0. Throws 'PARM' outside.
    [[nodiscard]] Handle nth(ai::int32 index) const {
        if (index < 0 || index >= count()) throw ai::Error{kBadParameterErr};
        return entries_[static_cast<std::size_t>(index)].handle;
    }
    /// The first whose object satisfies `predicate`; null when none does.
    template <typename Predicate> [[nodiscard]] Handle findIf(Predicate predicate) const {
        for (const Entry& entry : entries_)
            if (predicate(*entry.object)) return entry.handle;
        return nullptr;
    }
    /// The handles of now: what is registered may change while they are walked.
    [[nodiscard]] std::vector<Handle> handles() const {
        std::vector<Handle> all;
        for (const Entry& entry : entries_)
            all.push_back(entry.handle);
        return all;
    }

    [[nodiscard]] auto begin() const noexcept { return entries_.begin(); }
    [[nodiscard]] auto end() const noexcept { return entries_.end(); }

private:
    std::vector<Entry> entries_;
};

} // namespace easel

#include "host/SuiteHolder.h"

#include "host/SuiteTable.h"

#include <cassert>

namespace ai {
namespace {

/// Acquires one row; null is stored when the host refuses.
AcquiredSuite acquireRow(const SuiteRow& row) noexcept {
    const AcquiredSuite acquired = acquireSuite(row.name, row.version, row.fallbacks);
    row.store(acquired.functions);
    return acquired;
}

} // namespace

AcquiredSuite acquireSuite(const char* name, ai::int32 version,
                           std::span<const ai::int32> fallbacks) noexcept {
    const auto acquire = [name](ai::int32 wanted) {
        const void* table = nullptr;
        const SPErr error = basicSuite->AcquireSuite(name, wanted, &table);
        return error == 0 ? AcquiredSuite{0, wanted, table} : AcquiredSuite{error, 0, nullptr};
    };
    const AcquiredSuite first = acquire(version);
    if (first.error == 0) return first;
    for (const ai::int32 fallback : fallbacks)
        if (const AcquiredSuite other = acquire(fallback); other.error == 0) return other;
    return first;
}

SPErr SuiteHolder::acquire() noexcept {
    const auto rows = suiteTable();
    assert(rows.size() <= kMostSuites);
    for (std::size_t i = 0; i < rows.size(); ++i) {
        const AcquiredSuite acquired = acquireRow(rows[i]);
        held_[i] = acquired.version;
        if (acquired.error != 0 && rows[i].need == Need::Required) {
            release();
            return acquired.error;
        }
    }
    return 0;
}

void SuiteHolder::acquireOptional() noexcept {
    const auto rows = suiteTable();
    for (std::size_t i = 0; i < rows.size(); ++i) {
        if (rows[i].need == Need::Optional && held_[i] == 0) held_[i] = acquireRow(rows[i]).version;
    }
}

SPErr SuiteHolder::refresh() noexcept {
    const auto rows = suiteTable();
    for (std::size_t i = 0; i < rows.size(); ++i) {
        if (held_[i] == 0) continue;
        const AcquiredSuite acquired = acquireRow(rows[i]);
        if (acquired.error != 0) {
            release();
            return acquired.error;
        }
        basicSuite->ReleaseSuite(rows[i].name, held_[i]); // held once before, held once now
        held_[i] = acquired.version;
    }
    return 0;
}

void SuiteHolder::release() noexcept {
    const auto rows = suiteTable();
    for (std::size_t i = rows.size(); i-- > 0;) {
        if (held_[i] == 0) continue;
        rows[i].store(nullptr);
        basicSuite->ReleaseSuite(rows[i].name, held_[i]);
        held_[i] = 0;
    }
}

} // namespace ai

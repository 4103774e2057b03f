#include "host/SuiteHolder.h"

#include "host/SuiteTable.h"

#include <cassert>

namespace ai {
namespace {

/// Acquires one row; null is stored when the host refuses.
SPErr acquireRow(const SuiteRow& row) noexcept {
    const void* table = nullptr;
    const SPErr err = basicSuite->AcquireSuite(row.name, row.version, &table);
    row.store(err == 0 ? table : nullptr);
    return err;
}

} // namespace

SPErr SuiteHolder::acquire() noexcept {
    const auto rows = suiteTable();
    assert(rows.size() <= kMostSuites);
    for (std::size_t i = 0; i < rows.size(); ++i) {
        const SPErr err = acquireRow(rows[i]);
        held_[i] = err == 0;
        if (err != 0 && rows[i].need == Need::Required) {
            release();
            return err;
        }
    }
    return 0;
}

void SuiteHolder::acquireOptional() noexcept {
    const auto rows = suiteTable();
    for (std::size_t i = 0; i < rows.size(); ++i) {
        if (rows[i].need == Need::Optional && !held_[i]) held_[i] = acquireRow(rows[i]) == 0;
    }
}

SPErr SuiteHolder::refresh() noexcept {
    const auto rows = suiteTable();
    for (std::size_t i = 0; i < rows.size(); ++i) {
        if (!held_[i]) continue;
        const SPErr err = acquireRow(rows[i]);
        if (err != 0) {
            release();
            return err;
        }
        basicSuite->ReleaseSuite(rows[i].name, rows[i].version); // held once before, held once now
    }
    return 0;
}

void SuiteHolder::release() noexcept {
    const auto rows = suiteTable();
    for (std::size_t i = rows.size(); i-- > 0;) {
        if (!held_[i]) continue;
        rows[i].store(nullptr);
        basicSuite->ReleaseSuite(rows[i].name, rows[i].version);
        held_[i] = false;
    }
}

} // namespace ai

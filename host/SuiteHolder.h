#pragma once

#include "host/Suites.h"
#include "host/suites/SPBasicSuite.h"

#include <bitset>
#include <cstddef>

namespace ai {

/// Acquires the suites of `suiteTable()` into `ai::suites` and gives them back.
///
/// Keeps no address inside the library, so that it survives the library being loaded again at
/// another place.
class SuiteHolder {
public:
    SuiteHolder() noexcept = default;
    ~SuiteHolder() { release(); }
    SuiteHolder(const SuiteHolder&) = delete;
    SuiteHolder& operator=(const SuiteHolder&) = delete;

    /// Acquires the table in order. At the first required suite that the host refuses, everything
    /// goes back and the host's code is the answer; a missing optional suite is passed over.
    [[nodiscard]] SPErr acquire() noexcept;

    /// Tries the optional suites that were missing once more.
    void acquireOptional() noexcept;

    /// Fetches the tables of the suites held once more, after the library has been loaded again
    /// with its `ai::suites` empty. The host's counts stay as they are. Fails as `acquire` does.
    [[nodiscard]] SPErr refresh() noexcept;

    void release() noexcept;

private:
    static constexpr std::size_t kMostSuites = 192; // the table has some 140 rows

    std::bitset<kMostSuites> held_;
};

/// One suite held apart from the table, by whoever starts before the table is acquired.
template <typename Suite, const char* Name, ai::int32 Version> class SuiteLease {
public:
    SuiteLease() noexcept = default;
    ~SuiteLease() { release(); }
    SuiteLease(const SuiteLease&) = delete;
    SuiteLease& operator=(const SuiteLease&) = delete;

    [[nodiscard]] SPErr acquire() noexcept {
        const void* table = nullptr;
        const SPErr err = basicSuite->AcquireSuite(Name, Version, &table);
        functions_ = err == 0 ? static_cast<const Suite*>(table) : nullptr;
        return err;
    }

    void release() noexcept {
        if (functions_ != nullptr) basicSuite->ReleaseSuite(Name, Version);
        functions_ = nullptr;
    }

    [[nodiscard]] explicit operator bool() const noexcept { return functions_ != nullptr; }
    const Suite* operator->() const noexcept { return functions_; }
    const Suite& operator*() const noexcept { return *functions_; }

private:
    const Suite* functions_ = nullptr;
};

/// Sees to it that one pointer of `ai::suites` is filled for a while: borrows the suite when nobody
/// holds it, as before start-up and after a failed one.
template <auto Member, const char* Name, ai::int32 Version> class BorrowedSuite {
public:
    BorrowedSuite() noexcept {
        if (suites.*Member != nullptr) return;
        const void* table = nullptr;
        if (basicSuite->AcquireSuite(Name, Version, &table) != 0) return;
        suites.*Member = static_cast<decltype(+(suites.*Member))>(table);
        borrowed_ = true;
    }
    ~BorrowedSuite() {
        if (!borrowed_) return;
        suites.*Member = nullptr;
        basicSuite->ReleaseSuite(Name, Version);
    }
    BorrowedSuite(const BorrowedSuite&) = delete;
    BorrowedSuite& operator=(const BorrowedSuite&) = delete;

    /// Is the suite there, borrowed or not?
    [[nodiscard]] explicit operator bool() const noexcept { return suites.*Member != nullptr; }

private:
    bool borrowed_ = false;
};

} // namespace ai

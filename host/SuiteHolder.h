#pragma once

#include "host/SuiteId.h"
#include "host/Suites.h"
#include "host/suites/SPBasicSuite.h"

#include <array>
#include <cstddef>
#include <span>

namespace ai {

/// What a host answers to the wish for a suite. The version is that to release.
struct AcquiredSuite {
    SPErr error = 0;
    ai::int32 version = 0;           ///< 0: not acquired.
    const void* functions = nullptr; ///< Null: not acquired.
};

/// Acquires the suite in this version, or in the first of `fallbacks` that the host has. When it
/// has none, the error is the one for `version`.
[[nodiscard]] AcquiredSuite acquireSuite(const char* name, ai::int32 version,
                                         std::span<const ai::int32> fallbacks) noexcept;

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

    /// The version in which each row is held, 0 where it is not.
    std::array<ai::int32, kMostSuites> held_{};
};

/// One suite held apart from the table, by whoever starts before the table is acquired.
template <typename Suite> class SuiteLease {
public:
    SuiteLease() noexcept = default;
    ~SuiteLease() { release(); }
    SuiteLease(const SuiteLease&) = delete;
    SuiteLease& operator=(const SuiteLease&) = delete;

    [[nodiscard]] SPErr acquire() noexcept {
        acquired_ = acquireSuite(Id::name, Id::version, Id::fallbacks);
        return acquired_.error;
    }

    void release() noexcept {
        if (acquired_.functions != nullptr) basicSuite->ReleaseSuite(Id::name, acquired_.version);
        acquired_ = {};
    }

    [[nodiscard]] explicit operator bool() const noexcept { return acquired_.functions != nullptr; }
    const Suite* operator->() const noexcept {
        return static_cast<const Suite*>(acquired_.functions);
    }
    const Suite& operator*() const noexcept { return *operator->(); }

private:
    using Id = SuiteId<Suite>;

    AcquiredSuite acquired_;
};

/// Sees to it that one pointer of `ai::suites` is filled for a while: borrows the suite when nobody
/// holds it, as before start-up and after a failed one.
template <auto Member> class BorrowedSuite {
public:
    BorrowedSuite() noexcept {
        if (suites.*Member != nullptr) return;
        const AcquiredSuite acquired = acquireSuite(Id::name, Id::version, Id::fallbacks);
        suites.*Member = static_cast<const SuiteAt<Member>*>(acquired.functions);
        borrowedVersion_ = acquired.version;
    }
    ~BorrowedSuite() {
        if (borrowedVersion_ == 0) return;
        suites.*Member = nullptr;
        basicSuite->ReleaseSuite(Id::name, borrowedVersion_);
    }
    BorrowedSuite(const BorrowedSuite&) = delete;
    BorrowedSuite& operator=(const BorrowedSuite&) = delete;

    /// Is the suite there, borrowed or not?
    [[nodiscard]] explicit operator bool() const noexcept { return suites.*Member != nullptr; }

private:
    using Id = SuiteId<SuiteAt<Member>>;

    ai::int32 borrowedVersion_ = 0;
};

} // namespace ai

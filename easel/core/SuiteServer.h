#pragma once

#include "easel/core/HostCalls.h"
#include "host/SuiteId.h"

#include <algorithm>
#include <map>
#include <memory>
#include <string>
#include <string_view>
#include <utility>
#include <vector>

namespace easel {

/// The table of one suite, every slot filled: with an answer "not implemented" that tells its name,
/// until a function of Easel is exposed in it.
class AnySuiteTable {
public:
    AnySuiteTable(std::string suite, ai::int32 version, HostCalls& calls)
        : name_(std::move(suite)), version_(version), calls_(calls) {}
    void addSlot(std::string_view function, bool returnsError);
    /// For a suite whose functions are not known: many slots that tell the suite's name only.
    void addUnknownSlots();
    /// Takes every function out again.
    void clear() noexcept { std::copy(empty_.begin(), empty_.end(), slots_.begin()); }

    [[nodiscard]] const std::string& name() const noexcept { return name_; }
    [[nodiscard]] ai::int32 version() const noexcept { return version_; }
    [[nodiscard]] void* slots() noexcept { return slots_.data(); }
    [[nodiscard]] SlotRecord& recordAt(std::size_t slot) { return *records_.at(slot); }
    [[nodiscard]] std::size_t size() const noexcept { return slots_.size(); }

    int acquired = 0; ///< Acquisitions not yet released.

private:
    std::string name_;
    ai::int32 version_;
    HostCalls& calls_;
    std::vector<void (*)()> slots_;
    std::vector<void (*)()> empty_; ///< As long as no function is exposed.
    std::vector<SlotRecord*> records_;
};

/// The same, seen as the suite's record of functions.
template <typename Suite> class SuiteTable {
public:
    explicit SuiteTable(AnySuiteTable& table) : table_(table) {}
    void clear() noexcept { table_.clear(); }
    [[nodiscard]] Suite& functions() { return *static_cast<Suite*>(table_.slots()); }

    template <typename Function> [[nodiscard]] SlotRecord& record(Function Suite::*slot) {
        // The distance of the slot from the start of the table is its number.
        static_assert(sizeof(Function) == sizeof(void (*)()));
        const auto* first = reinterpret_cast<const char*>(&functions());
        const auto* member = reinterpret_cast<const char*>(&(functions().*slot));
        return table_.recordAt(static_cast<std::size_t>(member - first) / sizeof(Function));
    }

private:
    AnySuiteTable& table_;
};

/// All suites that Easel offers, found by name and exactly the right version. The tables live as
/// long as the server and never move.
class SuiteServer {
public:
    /// One table for every suite in the slot tables and every text suite. `calls` counts what comes
    /// through them, and outlives the server.
    explicit SuiteServer(HostCalls& calls);

    /// The table of a declared suite, to expose functions in.
    template <typename Suite>
    [[nodiscard]] SuiteTable<Suite> table(std::string_view name, ai::int32 version) {
        return SuiteTable<Suite>(at(name, version));
    }

    template <typename Suite> [[nodiscard]] SuiteTable<Suite> table() {
        return table<Suite>(ai::SuiteId<Suite>::name, ai::SuiteId<Suite>::version);
    }

    /// Offers a suite under another version than it has, as a host of another generation does.
    /// Nobody may hold it.
    void renumber(std::string_view name, ai::int32 from, ai::int32 to);

    /// 'S!Fd' and null when there is no such suite, or when acquiring it is made to fail.
    SPErr acquire(const char* name, ai::int32 version, const void** functions);
    /// The table of a suite, without counting; null when there is no such suite.
    [[nodiscard]] const void* functions(const char* name, ai::int32 version) const;
    /// 'SRel' when it is released more often than acquired.
    SPErr release(const char* name, ai::int32 version);
    /// "name version" of every suite still held.
    [[nodiscard]] std::vector<std::string> outstanding() const;

    /// A new host begins: what was never released in the last one is no concern of its.
    void forgetAcquisitions() noexcept;

    /// The acquisitions to refuse, counted from 1 over all that follow; 0 refuses none.
    void refuseAcquisition(int number, int second = 0) noexcept {
        refuse_ = number;
        refuseToo_ = second;
        acquisitions_ = 0;
    }
    /// Since `refuseAcquisition`.
    [[nodiscard]] int acquisitions() const noexcept { return acquisitions_; }

private:
    [[nodiscard]] AnySuiteTable& at(std::string_view name, ai::int32 version);
    [[nodiscard]] AnySuiteTable* find(const char* name, ai::int32 version) const;

    std::map<std::pair<std::string, ai::int32>, std::unique_ptr<AnySuiteTable>, std::less<>>
        tables_;
    int refuse_ = 0;
    int refuseToo_ = 0;
    int acquisitions_ = 0;
};

} // namespace easel

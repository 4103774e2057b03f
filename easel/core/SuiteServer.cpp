#include "easel/core/SuiteServer.h"

#include "easel/core/Expose.h"
#include "easel/core/SlotTables.h"

#include <array>
#include <charconv>
#include <cstdio>
#include <stdexcept>

namespace easel {
namespace {

constexpr std::size_t kMostSlots = 1920;
/// Slots of a suite of which only name and version are known.
constexpr std::size_t kUnknownSuiteSlots = 128;
/// The one suite of the plug-in's table that no slot is known of and that is no text suite.
constexpr std::string_view kMeshSegmentSuite = "AI Mesh Segment Suite";
constexpr ai::int32 kMeshSegmentSuiteVersion = 2;

std::array<std::unique_ptr<SlotRecord>, kMostSlots>& records() {
    static std::array<std::unique_ptr<SlotRecord>, kMostSlots> all;
    return all;
}

/// What an unimplemented slot does: tells its name, answers '!IMP', or nothing where a value is
/// wanted.
AIErr answerNotImplemented(std::size_t index) {
    SlotRecord& record = *records()[index];
    const HostCallScope scope{record};
    std::fprintf(stderr, "easel: %s is not implemented\n", record.name.c_str());
    return record.returnsError ? kNotImplementedErr : kNoErr;
}

/// A function for each slot: only the address tells which slot was called. There are many, so that
/// each does nothing but pass its number on.
template <std::size_t Index> AIErr notImplemented() { return answerNotImplemented(Index); }

template <std::size_t... Index>
constexpr auto notImplementedThunks(std::index_sequence<Index...> /*indexes*/) {
    return std::array<AIErr (*)(), sizeof...(Index)>{&notImplemented<Index>...};
}
constexpr auto kThunks = notImplementedThunks(std::make_index_sequence<kMostSlots>{});

std::size_t addRecord(SlotRecord record) {
    auto& all = records();
    const auto free = std::find(all.begin(), all.end(), nullptr);
    if (free == all.end()) throw std::length_error("more slots than thunks: raise kMostSlots");
    *free = std::make_unique<SlotRecord>(std::move(record));
    return static_cast<std::size_t>(free - all.begin());
}

/// The tab-separated fields of the lines of `table`, headings left out.
std::vector<std::vector<std::string_view>> rows(std::string_view table) {
    std::vector<std::vector<std::string_view>> all;
    while (!table.empty()) {
        std::string_view line = table.substr(0, table.find('\n'));
        table.remove_prefix(std::min(table.size(), line.size() + 1));
        std::vector<std::string_view> fields;
        for (std::size_t tab = 0; tab != std::string_view::npos;) {
            tab = line.find('\t');
            fields.push_back(line.substr(0, tab));
            if (tab != std::string_view::npos) line.remove_prefix(tab + 1);
        }
        all.push_back(std::move(fields));
    }
    if (!all.empty()) all.erase(all.begin());
    return all;
}

ai::int32 number(std::string_view text) {
    ai::int32 value = 0;
    std::from_chars(text.data(), text.data() + text.size(), value);
    return value;
}

} // namespace

void AnySuiteTable::addSlot(std::string_view function, bool returnsError) {
    const std::size_t index = addRecord({.name = name_ + '.' + std::string(function),
                                         .counter = &calls_,
                                         .returnsError = returnsError});
    slots_.push_back(reinterpret_cast<void (*)()>(kThunks[index]));
    empty_.push_back(slots_.back());
    records_.push_back(records()[index].get());
}

void AnySuiteTable::addUnknownSlots() {
    addSlot("?", true);
    slots_.assign(kUnknownSuiteSlots, slots_.front());
    empty_ = slots_;
    records_.assign(kUnknownSuiteSlots, records_.front());
}

SuiteServer::SuiteServer(HostCalls& calls) {
    const auto table = [&](std::string_view name, ai::int32 version) -> AnySuiteTable& {
        auto& entry = tables_[{std::string(name), version}];
        if (entry == nullptr)
            entry = std::make_unique<AnySuiteTable>(std::string(name), version, calls);
        return *entry;
    };
    for (const auto& row : rows(kSuiteSlots))
        if (row.size() > 5)
            table(row[0], number(row[1])).addSlot(row[4], row[5] == "AIErr" || row[5] == "SPErr");
    for (const auto& row : rows(kTextSuites))
        if (row.size() > 1) table(row[0], number(row[1])).addUnknownSlots();
    table(kMeshSegmentSuite, kMeshSegmentSuiteVersion).addUnknownSlots();
}

AnySuiteTable& SuiteServer::at(std::string_view name, ai::int32 version) {
    return *tables_.at({std::string(name), version});
}

AnySuiteTable* SuiteServer::find(const char* name, ai::int32 version) const {
    if (name == nullptr) return nullptr;
    const auto found = tables_.find({std::string(name), version});
    return found == tables_.end() ? nullptr : found->second.get();
}

void SuiteServer::renumber(std::string_view name, ai::int32 from, ai::int32 to) {
    auto table = tables_.extract({std::string(name), from});
    table.key().second = to;
    tables_.insert(std::move(table));
}

SPErr SuiteServer::acquire(const char* name, ai::int32 version, const void** functions) {
    if (name == nullptr || functions == nullptr) return kSPBadParameterError;
    *functions = nullptr;
    AnySuiteTable* const found = find(name, version);
    ++acquisitions_;
    const bool refused = acquisitions_ == refuse_ || acquisitions_ == refuseToo_;
    if (found == nullptr || refused) return kSPSuiteNotFoundError;
    ++found->acquired;
    *functions = found->slots();
    return kNoErr;
}

const void* SuiteServer::functions(const char* name, ai::int32 version) const {
    AnySuiteTable* const found = find(name, version);
    return found == nullptr ? nullptr : found->slots();
}

SPErr SuiteServer::release(const char* name, ai::int32 version) {
    if (name == nullptr) return kSPBadParameterError;
    AnySuiteTable* const found = find(name, version);
    if (found == nullptr) return kSPSuiteNotFoundError;
    if (found->acquired == 0) return kSPSuiteAlreadyReleasedError;
    --found->acquired;
    return kNoErr;
}

void SuiteServer::forgetAcquisitions() noexcept {
    for (const auto& [key, table] : tables_)
        table->acquired = 0;
}

std::vector<std::string> SuiteServer::outstanding() const {
    std::vector<std::string> held;
    for (const auto& [key, table] : tables_)
        if (table->acquired != 0) held.push_back(key.first + ' ' + std::to_string(key.second));
    return held;
}

} // namespace easel

#include "easel/core/Ledger.h"

#include "host/Error.h"

#include <algorithm>
#include <map>
#include <utility>

namespace easel {
namespace {

/// Ended loans that are remembered. A release comes twice soon or never.
constexpr std::size_t kEndedKept = 256;

constexpr std::array<const char*, kLentKinds> kKindNames = {
    "dictionary",     "entry", "array",
    "art set",        "hit",   "string",
    "file path",      "block", "application context",
    "plug-in access", "suite",
};

const char* kindName(Lent kind) { return kKindNames[static_cast<std::size_t>(kind)]; }

std::string callName(const SlotRecord* slot) { return slot == nullptr ? "Easel" : slot->name; }

} // namespace

std::string describe(const OpenLoan& loan) {
    return std::string(kindName(loan.kind)) + " x" + std::to_string(loan.count) + " lent by " +
           callName(loan.lender);
}

std::size_t Ledger::KeyHash::operator()(const Key& key) const noexcept {
    // Kinds share an address rarely; the multiplication spreads the aligned low bits.
    constexpr std::uint64_t kSpread = 0x9E3779B97F4A7C15;
    const auto address = reinterpret_cast<std::uintptr_t>(key.reference);
    return static_cast<std::size_t>((address + index(key.kind)) * kSpread >> 20);
}

std::array<LoanTerm, kLentKinds> Ledger::defaultTerms() noexcept {
    std::array<LoanTerm, kLentKinds> terms{};
    terms.fill(LoanTerm::Message);
    // A plug-in keeps its suites and itself, and may keep its state in blocks of the host; a tool
    // keeps the art it has taken up until its user puts it down.
    for (const Lent kind : {Lent::ArtSet, Lent::Block, Lent::PluginAccess, Lent::Suite})
        terms[index(kind)] = LoanTerm::Life;
    return terms;
}

void Ledger::lend(Lent kind, const void* reference) {
    const SlotRecord* lender = calls_.current();
    const auto [loan, isNew] = loans_.try_emplace({kind, reference}, Loan{lender, serial_, {}});
    if (!isNew) {
        loan->second.earlier.push_back(std::exchange(loan->second.lender, lender));
        loan->second.serial = serial_;
    }
    ++serial_;
    ++counts_[index(kind)];
}

void Ledger::takeBack(Lent kind, const void* reference) {
    const Key key{kind, reference};
    const auto loan = loans_.find(key);
    if (loan == loans_.end()) refuse(key, "released");
    --counts_[index(kind)];
    if (!loan->second.earlier.empty()) {
        loan->second.lender = loan->second.earlier.back();
        loan->second.earlier.pop_back();
        return;
    }
    loans_.erase(loan);
    if (ended_.size() == kEndedKept) ended_.pop_front();
    ended_.push_back({key, calls_.current()});
}

void Ledger::require(Lent kind, const void* reference) {
    if (!isLent(kind, reference)) refuse({kind, reference}, "used");
}

bool Ledger::isLent(Lent kind, const void* reference) const noexcept {
    return loans_.find({kind, reference}) != loans_.end();
}

void Ledger::forget(Lent kind, const void* reference) noexcept {
    const auto loan = loans_.find({kind, reference});
    if (loan == loans_.end()) return;
    counts_[index(kind)] -= 1 + loan->second.earlier.size();
    loans_.erase(loan);
}

void Ledger::refuse(const Key& key, std::string_view act) {
    const auto ended = std::find_if(ended_.rbegin(), ended_.rend(),
                                    [&](const Ended& past) { return past.key == key; });
    std::string problem = callName(calls_.current()) + ": " + kindName(key.kind) + ' ';
    problem.append(act);
    if (ended == ended_.rend())
        problem += " that was never lent";
    else
        problem += " after it was given back by " + callName(ended->by);
    report(std::move(problem));
    throw ai::Error{kBadParameterErr};
}

void Ledger::endMessage(std::uint64_t mark, std::string_view message) {
    if (mark == serial_) return;
    std::map<std::pair<Lent, const SlotRecord*>, std::size_t> kept;
    for (const auto& [key, loan] : loans_)
        if (loan.serial >= mark && terms_[index(key.kind)] == LoanTerm::Message)
            ++kept[{key.kind, loan.lender}];
    for (const auto& [which, count] : kept)
        report(describe({which.first, which.second, count}) + " is kept after " +
               std::string(message));
}

std::vector<OpenLoan> Ledger::outstanding() const {
    std::map<std::pair<Lent, const SlotRecord*>, std::size_t> open;
    for (const auto& [key, loan] : loans_) {
        ++open[{key.kind, loan.lender}];
        for (const SlotRecord* lender : loan.earlier)
            ++open[{key.kind, lender}];
    }
    std::vector<OpenLoan> list;
    list.reserve(open.size());
    for (const auto& [which, count] : open)
        list.push_back({which.first, which.second, count});
    return list;
}

void Ledger::report(std::string problem) { problems_.push_back(std::move(problem)); }

void Ledger::clear() {
    loans_.clear();
    counts_.fill(0);
    terms_ = defaultTerms();
    ended_.clear();
    problems_.clear();
}

} // namespace easel

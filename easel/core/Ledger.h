#pragma once

#include "easel/core/HostCalls.h"
#include "host/Codes.h"

#include <array>
#include <cstdint>
#include <deque>
#include <string>
#include <string_view>
#include <unordered_map>
#include <vector>

namespace easel {

/// What the host lends and wants back.
enum class Lent : std::uint8_t {
    Dictionary,
    Entry,
    Array,
    ArtSet,
    Hit,
    String,
    FilePath,
    Block,
    AppContext,
    PluginAccess,
    Suite,
};
inline constexpr std::size_t kLentKinds = static_cast<std::size_t>(Lent::Suite) + 1;

/// How long a plug-in may keep what it was lent.
enum class LoanTerm : std::uint8_t {
    Message, ///< Until it returns from the message in which it was lent.
    Life,    ///< Until it is shut down.
};

/// References of one kind lent by one call and not given back.
struct OpenLoan {
    Lent kind;
    const SlotRecord* lender; ///< Null: lent outside any host call.
    std::size_t count;
};

/// "dictionary x2 lent by AI Art Suite.GetDictionary".
[[nodiscard]] std::string describe(const OpenLoan& loan);

/// The book of everything lent to the plug-in: every reference with the host call that lent it.
///
///   1. A suite function that hands out a counted reference calls `lend`, once for each count.
///   2. One that uses a reference calls `require`, one that ends a count calls `takeBack`. Both
///      throw `ai::Error` and note a problem when the reference is not on loan: released already,
///      or never handed out.
///   3. What the host takes over itself by contract (an entry given to `Set`) is taken back alike.
///
/// The lender is the host function that is running, so callers name no call.
class Ledger {
public:
    /// `calls`, which outlives it, knows who lends.
    explicit Ledger(const HostCalls& calls) noexcept : calls_(calls) {}

    void lend(Lent kind, const void* reference);
    /// Throws 'PARM' unless `reference` is on loan.
    void takeBack(Lent kind, const void* reference);
    void require(Lent kind, const void* reference);
    [[nodiscard]] bool isLent(Lent kind, const void* reference) const noexcept;
    /// Ends every loan of `reference` without complaint: the host has dropped it.
    void forget(Lent kind, const void* reference) noexcept;

    /// Call before a message is sent; pass the result to `endMessage`.
    [[nodiscard]] std::uint64_t beginMessage() const noexcept { return serial_; }
    /// Notes a problem for every loan of message term made since `mark` and still open.
    void endMessage(std::uint64_t mark, std::string_view message);
    void setTerm(Lent kind, LoanTerm term) noexcept { terms_[index(kind)] = term; }

    [[nodiscard]] std::size_t count(Lent kind) const noexcept { return counts_[index(kind)]; }
    /// All open loans, those of one kind and lender together.
    [[nodiscard]] std::vector<OpenLoan> outstanding() const;
    /// Misuse seen so far, a line each.
    [[nodiscard]] const std::vector<std::string>& problems() const noexcept { return problems_; }
    /// Notes a misuse that another room has found.
    void report(std::string problem);
    /// Forgets loans and problems: a new session starts.
    void clear();

private:
    struct Key {
        Lent kind;
        const void* reference;
        bool operator==(const Key&) const = default;
    };
    struct KeyHash {
        std::size_t operator()(const Key& key) const noexcept;
    };
    /// A reference lent several times keeps its lenders, the last one in `lender`.
    struct Loan {
        const SlotRecord* lender;
        std::uint64_t serial;
        std::vector<const SlotRecord*> earlier;
    };
    struct Ended {
        Key key;
        const SlotRecord* by;
    };

    static constexpr std::size_t index(Lent kind) noexcept {
        return static_cast<std::size_t>(kind);
    }
    [[noreturn]] void refuse(const Key& key, std::string_view act);

    const HostCalls& calls_;
    std::unordered_map<Key, Loan, KeyHash> loans_;
    std::array<std::size_t, kLentKinds> counts_{};
    std::array<LoanTerm, kLentKinds> terms_ = defaultTerms();
    std::deque<Ended> ended_; ///< The last few loans that ended, to tell a double release.
    std::vector<std::string> problems_;
    std::uint64_t serial_ = 0;

    static std::array<LoanTerm, kLentKinds> defaultTerms() noexcept;
};

} // namespace easel

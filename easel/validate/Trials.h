#pragma once

#include "easel/validate/Options.h"

#include <array>
#include <ostream>
#include <random>
#include <string>
#include <string_view>

namespace easel::validate {

using Random = std::mt19937_64;

/// The tries of one check, told to the process that has started this one while they go on:
///
///   1. A check numbers what it tries. The numbers depend on nothing but the options, and each try
///      starts from scratch, so that one of them can be made again alone.
///   2. `begin` tells of the try before it is made: where the process ends or hangs, its parent
///      knows in which.
///   3. `fail` tells what was wrong in it.
class Trials {
public:
    /// A line each: the word, a tab, and what belongs to it.
    static constexpr std::string_view kTry = "try";         ///< NUMBER WHAT
    static constexpr std::string_view kFinding = "finding"; ///< WHAT
    static constexpr std::string_view kExplanation = "how"; ///< LINE
    static constexpr std::string_view kEnd = "end";         ///< NUMBER of tries

    Trials(const Options& options, std::ostream& out) : options_(options), out_(out) {}

    [[nodiscard]] const Options& options() const noexcept { return options_; }
    /// One of the five, as strict as is asked for.
    template <typename Value>
    [[nodiscard]] Value byStrictness(const std::array<Value, 5>& values) const {
        return values.at(static_cast<std::size_t>(options_.strictness - 1));
    }

    /// Is any try up to this number still to be made? What prepares for them is left out otherwise.
    [[nodiscard]] bool wantsUpTo(std::uint64_t last) const noexcept;
    /// False when the try is not to be made.
    [[nodiscard]] bool begin(std::uint64_t number, std::string_view what);
    /// In the try that was begun last.
    void fail(std::string_view what);
    /// Goes with the next `fail`: how the try came about, a line each.
    void explain(std::string_view lines);
    void end();

    /// For the choices of that try.
    [[nodiscard]] Random random(std::uint64_t number) const { return Random(mix(number)); }

private:
    [[nodiscard]] std::uint64_t mix(std::uint64_t number) const noexcept;
    void tell(std::string_view word, std::string_view what);

    const Options& options_;
    std::ostream& out_;
    std::uint64_t begun_ = 0;
};

} // namespace easel::validate

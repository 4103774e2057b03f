#pragma once

/// What was found, and what it may be at most.
///
/// A measure that could not be taken is not a number, and what is computed from it is none either.
/// A case that fails leaves its measures so: that nothing was measured is a miss, never a pass.

#include <filesystem>
#include <limits>
#include <string>
#include <vector>

namespace facetta::bench {

inline constexpr double kNotMeasured = std::numeric_limits<double>::quiet_NaN();

struct Finding {
    std::string measure;
    double measured = kNotMeasured;
};

using Findings = std::vector<Finding>;

/// A row of the table of limits.
struct Limit {
    std::string measure;
    std::string unit;
    double wanted = kNotMeasured; ///< What is promised, where something is.
    double last = kNotMeasured;   ///< As measured on a quiet machine, where it repeats well enough.

    /// A slowdown by half is a miss, however far the promise is.
    [[nodiscard]] double atMost() const;
};

/// Throws when the table cannot be read or names a measure twice.
[[nodiscard]] std::vector<Limit> readLimits(const std::filesystem::path& file);

/// What was found of one measure. The limit is not a number when the table has none for it.
struct Verdict {
    Limit limit;
    double measured = kNotMeasured;

    [[nodiscard]] bool isMet() const { return measured <= limit.atMost(); }
};

using Verdicts = std::vector<Verdict>;

/// One for each row, whether or not it was found, and for each finding that has no row.
[[nodiscard]] Verdicts judge(const Findings& findings, const std::vector<Limit>& limits);

[[nodiscard]] std::size_t countMisses(const Verdicts& verdicts);
/// As a table: measure, limit, measured, "ok" or "MISSED".
void print(const Verdicts& verdicts);
/// The same as JSON. Makes the folder when it is not there.
void write(const Verdicts& verdicts, const std::filesystem::path& file);

} // namespace facetta::bench

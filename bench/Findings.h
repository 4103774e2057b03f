#pragma once

/// What was found, beside what is wanted.

#include <filesystem>
#include <string>
#include <vector>

namespace facetta::bench {

struct Finding {
    std::string measure;
    double wanted;   ///< At most.
    double measured; ///< Not a number when it could not be measured, which is a miss.
    std::string unit;

    [[nodiscard]] bool isMet() const { return measured <= wanted; }
};

using Findings = std::vector<Finding>;

/// As a table: measure, wanted, measured, "ok" or "MISSED".
void print(const Findings& findings);
/// The same as JSON. Makes the folder when it is not there.
void write(const Findings& findings, const std::filesystem::path& file);

} // namespace facetta::bench

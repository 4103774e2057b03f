#include "bench/Findings.h"

#include <nlohmann/json.hpp>

#include <algorithm>
#include <cstdio>
#include <fstream>

namespace facetta::bench {

void print(const Findings& findings) {
    std::printf("\n%-70s %12s %12s\n", "measure", "wanted", "measured");
    for (const auto& [measure, wanted, measured, unit] : findings)
        std::printf("%-70s %9.4g %-4s %7.4g %-4s %s\n", measure.c_str(), wanted, unit.c_str(),
                    measured, unit.c_str(), measured <= wanted ? "ok" : "MISSED");
    const auto missed = std::ranges::count_if(findings, [](const auto& f) { return !f.isMet(); });
    std::printf("%zu measures, %td missed; every \"wanted\" is an upper limit\n", findings.size(),
                missed);
}

void write(const Findings& findings, const std::filesystem::path& file) {
    nlohmann::json rows = nlohmann::json::array();
    for (const Finding& finding : findings)
        rows.push_back({{"measure", finding.measure},
                        {"wanted", finding.wanted},
                        {"measured", finding.measured},
                        {"unit", finding.unit},
                        {"met", finding.isMet()}});
    std::filesystem::create_directories(file.parent_path());
    std::ofstream(file) << rows.dump(2) << '\n';
}

} // namespace facetta::bench

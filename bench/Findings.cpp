#include "bench/Findings.h"

#include <nlohmann/json.hpp>

#include <algorithm>
#include <cmath>
#include <cstdio>
#include <fstream>
#include <sstream>
#include <stdexcept>

namespace facetta::bench {
namespace {

constexpr double kSlowdown = 1.5;

/// A number, or "-" for none.
double readNumber(std::istream& words) {
    std::string text;
    words >> text;
    return text == "-" ? kNotMeasured : std::stod(text);
}

/// wanted, last, unit, measure; the measure is all that is left of the line.
Limit readRow(const std::string& line) try {
    std::istringstream words(line);
    Limit limit;
    limit.wanted = readNumber(words);
    limit.last = readNumber(words);
    words >> limit.unit >> std::ws;
    std::getline(words, limit.measure);
    if (std::isnan(limit.atMost()) || limit.measure.empty()) throw std::invalid_argument("a gap");
    return limit;
} catch (const std::logic_error&) {
    throw std::runtime_error("not a limit: " + line);
}

bool names(const Limit& limit, const std::string& measure) { return limit.measure == measure; }

std::string textOf(double value) {
    char text[32];
    std::snprintf(text, sizeof text, "%.4g", value);
    return std::isnan(value) ? "none" : text;
}

} // namespace

double Limit::atMost() const { return std::fmin(wanted, kSlowdown * last); }

std::vector<Limit> readLimits(const std::filesystem::path& file) {
    std::ifstream in(file);
    if (!in) throw std::runtime_error("no limits in " + file.string());
    std::vector<Limit> limits;
    for (std::string line; std::getline(in, line);) {
        if (line.empty() || line.front() == '#') continue;
        Limit limit = readRow(line);
        if (std::ranges::any_of(limits, [&](const Limit& l) { return names(l, limit.measure); }))
            throw std::runtime_error("two limits of " + limit.measure);
        limits.push_back(std::move(limit));
    }
    return limits;
}

Verdicts judge(const Findings& findings, const std::vector<Limit>& limits) {
    Verdicts verdicts;
    for (const Limit& limit : limits) {
        const auto found = std::ranges::find(findings, limit.measure, &Finding::measure);
        verdicts.push_back({limit, found == findings.end() ? kNotMeasured : found->measured});
    }
    for (const auto& [measure, measured] : findings)
        if (std::ranges::none_of(limits, [&](const Limit& l) { return names(l, measure); }))
            verdicts.push_back({{.measure = measure, .unit = ""}, measured});
    return verdicts;
}

std::size_t countMisses(const Verdicts& verdicts) {
    return static_cast<std::size_t>(
        std::ranges::count_if(verdicts, [](const Verdict& v) { return !v.isMet(); }));
}

void print(const Verdicts& verdicts) {
    std::printf("\n%-84s %10s %10s %10s\n", "measure", "wanted", "limit", "measured");
    for (const Verdict& v : verdicts)
        std::printf("%-84s %10s %10s %10s %-3s %s\n", v.limit.measure.c_str(),
                    textOf(v.limit.wanted).c_str(), textOf(v.limit.atMost()).c_str(),
                    textOf(v.measured).c_str(), v.limit.unit.c_str(), v.isMet() ? "ok" : "MISSED");
    std::printf("%zu measures, %zu missed\n", verdicts.size(), countMisses(verdicts));
}

void write(const Verdicts& verdicts, const std::filesystem::path& file) {
    nlohmann::json rows = nlohmann::json::array();
    for (const Verdict& v : verdicts)
        rows.push_back({{"measure", v.limit.measure},
                        {"wanted", v.limit.wanted},
                        {"last", v.limit.last},
                        {"limit", v.limit.atMost()},
                        {"measured", v.measured},
                        {"unit", v.limit.unit},
                        {"met", v.isMet()}});
    std::filesystem::create_directories(file.parent_path());
    std::ofstream(file) << rows.dump(2) << '\n';
}

} // namespace facetta::bench

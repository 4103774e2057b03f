#include "easel/cli/Statistics.h"

#include <nlohmann/json.hpp>

#include <algorithm>
#include <numeric>

namespace easel {
namespace {

using Json = nlohmann::ordered_json;

Json toJson(const Inventory& counts) {
    const auto* const paths = std::ranges::find(kKinds, kPathArt, &KindName::type);
    return {{"art", std::accumulate(counts.kinds.begin(), counts.kinds.end(), 0)},
            {"paths", counts.kinds[static_cast<std::size_t>(paths - kKinds)]},
            {"segments", counts.segments}};
}

} // namespace

void Stopwatch::begin(std::string phase) {
    end();
    phases_.emplace_back(std::move(phase), 0.0);
    began_ = Clock::now();
    running_ = true;
}

void Stopwatch::end() {
    if (!running_) return;
    phases_.back().second = std::chrono::duration<double>(Clock::now() - began_).count();
    running_ = false;
}

std::string toJson(const Statistics& statistics) {
    Json seconds = Json::object();
    for (const auto& [phase, duration] : statistics.time.phases())
        seconds[phase] = duration;
    const Json all = {{"before", toJson(statistics.before)},
                      {"after", toJson(statistics.after)},
                      {"hostCalls", statistics.hostCalls},
                      {"seconds", seconds}};
    return all.dump();
}

} // namespace easel

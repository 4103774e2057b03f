#include "easel/cli/Statistics.h"

#include <nlohmann/json.hpp>

namespace easel {
namespace {

using Json = nlohmann::ordered_json;

Json toJson(const ArtCounts& counts) {
    return {{"art", counts.art}, {"paths", counts.paths}, {"segments", counts.segments}};
}

} // namespace

ArtCounts countArt(const Document& document) {
    ArtCounts counts;
    const Art& root = document.root();
    for (const Art* art = nextInPreorder(root, root); art != nullptr;
         art = nextInPreorder(*art, root)) {
        if (art->isLayer()) continue;
        ++counts.art;
        if (art->type() != kPathArt) continue;
        ++counts.paths;
        counts.segments += art->segments().size();
    }
    return counts;
}

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

#include "bench/Floor.h"

#include "bench/Stopwatch.h"
#include "host/Art.h"

#include <benchmark/benchmark.h>

#include <cmath>
#include <vector>

namespace facetta::bench {
namespace {

static_assert(sizeof(AIPathSegment) == 28);

/// A reflection across a line through (4000, -4000).
struct Map {
    double a = std::cos(0.7);
    double b = std::sin(0.7);
    double tx = 4000.0 * (1.0 - a) + 4000.0 * b;
    double ty = -4000.0 * (1.0 + a) - 4000.0 * b;
};

AIRealPoint mapped(const Map& map, AIRealPoint point) {
    const auto x = static_cast<double>(point.h);
    const auto y = static_cast<double>(point.v);
    return {static_cast<AIReal>(map.a * x + map.b * y + map.tx),
            static_cast<AIReal>(map.b * x - map.a * y + map.ty)};
}

void mapAll(const Map& map, const std::vector<AIPathSegment>& from,
            std::vector<AIPathSegment>& to) {
    for (std::size_t i = 0; i < from.size(); ++i)
        to[i] = {mapped(map, from[i].p), mapped(map, from[i].in), mapped(map, from[i].out),
                 from[i].corner};
}

} // namespace

double floorSeconds(std::size_t segments) {
    const std::vector<AIPathSegment> from(segments,
                                          {{4100, -3900}, {4099, -3901}, {4101, -3899}, false});
    std::vector<AIPathSegment> to(segments);
    const Map map;
    const Stopwatch watch;
    mapAll(map, from, to);
    benchmark::ClobberMemory(); // what was stored counts as looked at
    return watch.processorSeconds();
}

} // namespace facetta::bench

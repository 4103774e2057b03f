#include "tool/InfoDisplay.h"

#include "host/Suites.h"
#include "host/suites/AIToolSuite.h"

#include <cmath>

namespace facetta {

void showDragInfo(const HostPreferences& host, Point from, Point to) noexcept {
    const Vector way = to - from;
    const double down = host.isRulerIn4thQuad ? -1.0 : 1.0;
    std::array<AIReal, 6> numbers{
        static_cast<AIReal>(to.x),
        static_cast<AIReal>(down * to.y),
        static_cast<AIReal>(std::abs(way.x)),
        static_cast<AIReal>(std::abs(way.y)),
        static_cast<AIReal>(std::hypot(way.x, way.y)),
        static_cast<AIReal>(std::atan2(way.y, way.x) * 180.0 / kPi),
    };
    std::array<void*, numbers.size()> values{};
    for (std::size_t i = 0; i < numbers.size(); ++i)
        values.at(i) = &numbers.at(i);
    static_cast<void>(ai::suites.tool->SetToolInfoVarValues(kInfoVariables.data(), values.data()));
}

} // namespace facetta

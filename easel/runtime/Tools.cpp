#include "easel/runtime/Tools.h"

#include <algorithm>
#include <iterator>

namespace easel {
namespace {

/// The host's own tools, numbered from 1 in this order.
constexpr const char* kBuiltInTools[] = {
    "Adobe Select Tool", "Adobe Direct Select Tool", "Adobe Reflect Tool",
    "Adobe Pen Tool",    "Adobe Zoom Tool",          "Adobe Scroll Tool",
};

} // namespace

AIToolType Tools::numberOf(const std::string& name) const {
    const auto* const builtIn = std::find(std::begin(kBuiltInTools), std::end(kBuiltInTools), name);
    if (builtIn != std::end(kBuiltInTools))
        return static_cast<AIToolType>(1 + (builtIn - std::begin(kBuiltInTools)));
    return tools.at(named(name)).number;
}

const char* Tools::nameOf(AIToolType number) const {
    if (number >= 1 && number <= std::ssize(kBuiltInTools)) return kBuiltInTools[number - 1];
    return tools.at(handleOf(number)).name.c_str();
}

AIToolHandle Tools::handleOf(AIToolType number) const {
    if (number >= 1 && number <= std::ssize(kBuiltInTools)) return nullptr;
    const AIToolHandle found =
        tools.findIf([&](const Tool& tool) { return tool.number == number; });
    if (found == nullptr) throw ai::Error{kBadParameterErr};
    return found;
}

AIToolHandle Tools::named(const std::string& name) const {
    return tools.findIf([&](const Tool& tool) { return tool.name == name; });
}

AIToolType Tools::currentNumber() const {
    return current == nullptr ? currentBuiltIn : tools.at(current).number;
}

} // namespace easel

#include "easel/svg/ReadingState.h"

#include "easel/svg/DictionaryJson.h"
#include "easel/svg/Numbers.h"

#include <algorithm>
#include <cmath>
#include <stdexcept>

namespace easel::svg {
namespace {

/// More comparisons of elements with style rules take longer than anyone would wait.
constexpr std::size_t kMostRuleChecks = 500'000'000;

/// More warnings help nobody.
constexpr std::size_t kMostWarnings = 20;

} // namespace

void ReadingState::countElement(const Element& element) {
    if (++elements_ > kMostElements + kMostReferencedElements)
        element.fail("references multiply the drawing beyond 2,000,000 elements; use fewer copies");
    ruleChecks_ += sheet.size();
    if (ruleChecks_ > kMostRuleChecks)
        element.fail("there are too many style rules for this many elements; remove unused rules");
}

void ReadingState::countReference(const Element& element) {
    if (++references_ > kMostReferences)
        element.fail("there are more than 500,000 references; use fewer copies");
}

void ReadingState::warn(const Element& element, const std::string& message) {
    std::string warning = std::to_string(element.line()) + ": " + message;
    if (warnings.size() < kMostWarnings && std::ranges::find(warnings, warning) == warnings.end())
        warnings.push_back(std::move(warning));
}

Context contextOf(const Element& element, const StyleSheet& sheet,
                  const std::vector<ElementName>& path, const Context& parent) {
    Context context{
        styleOf(element.properties(sheet, path), parent.style, parent.viewport.diagonal()),
        parent.matrix, parent.viewport};
    if (element.has("transform")) {
        const auto matrix = parseTransform(element.get("transform"));
        if (!matrix) {
            element.fail("the transform of <" + std::string{element.name()} +
                         "> is not understood; write matrix, translate, scale, rotate, skewX or "
                         "skewY with numbers");
        }
        context.matrix = parent.matrix * *matrix;
    }
    for (const double entry : {context.matrix.a, context.matrix.b, context.matrix.c,
                               context.matrix.d, context.matrix.e, context.matrix.f})
        if (!(std::abs(entry) <= kLargestCoordinate))
            element.fail("the transforms here lead beyond 1e9 user units; make them smaller");
    return context;
}

Context rootContext(const Element& root, const StyleSheet& sheet, Point size) {
    const Viewport viewport{size.x, size.y};
    const Properties properties = root.properties(sheet, {root.selectorName()});
    return {styleOf(properties, Style{}, viewport.diagonal()), Matrix{}, viewport};
}

void readEntries(const Element& element, std::string_view json, Dictionary& target) {
    try {
        readDictionaryJson(json, target);
    } catch (const std::invalid_argument& error) {
        element.fail("the entries of <" + std::string{element.name()} +
                     "> are broken: " + error.what());
    }
}

void ReadingState::checkNesting(const Element& element) const {
    if (nesting >= static_cast<int>(kMostNesting))
        element.fail("elements and references are nested more than 500 deep; use fewer levels");
}

} // namespace easel::svg

#pragma once

#include "easel/svg/ReadingState.h"

namespace easel::svg {

/// Is this the <defs> in which saving a drawing puts what it makes?
[[nodiscard]] bool isGenerated(const XmlTree& tree, NodeIndex node);

/// Is this element, as saving made it, a gradient or pattern put in its place for one shape, which
/// says where it comes from? Its source is in the drawing and no such element itself.
[[nodiscard]] bool isDerived(const XmlTree& tree, const Element& element);

/// The element, then those that it refers to for what it does not say itself, in that order.
[[nodiscard]] std::vector<Element> referenceChain(const XmlTree& tree, NodeIndex node);

/// The attribute of the first in the chain that has it; empty when none has.
[[nodiscard]] std::string attributeInChain(const std::vector<Element>& chain,
                                           std::string_view attribute);

/// A <linearGradient> or <radialGradient>; null for any other element.
[[nodiscard]] std::shared_ptr<const GradientContent>
gradientContent(ReadingState& state, NodeIndex node, const Viewport& viewport);

/// How a pattern covers a shape with these bounds, without what it shows. `chain` begins with the
/// <pattern>.
[[nodiscard]] std::shared_ptr<PatternContent>
patternTile(const std::vector<Element>& chain, const Viewport& viewport, const Box& bounds);

/// The gradientTransform or patternTransform that the definition's element has.
[[nodiscard]] Matrix ownTransform(const Definition& definition);

} // namespace easel::svg

/// Laws that hold for every layout, tried on random ones.

#include "tests/Seed.h"
#include "tests/toolkit/layout/LayoutTest.h"
#include "toolkit/layout/Nodes.h"

#include <doctest/doctest.h>

#include <random>

namespace NRDM::layout::tests {
namespace {

constexpr int kTrees = 3000;

enum class Guides { No, Yes };

/// Makes layouts of containers and items, small enough to be read when one fails.
class Generator {
public:
    explicit Generator(Guides guides) : guides_(guides) {}

    Layout layout() { return {"Random", container(Kind::Dialog, 3)}; }

private:
    int upTo(int most) { return std::uniform_int_distribution(0, most)(random_); }

    double length(int most) { return upTo(most); }

    Element container(Kind kind, int depth) {
        Element element{kind, {}, {}, {}};
        auto& attributes = element.attributes;
        attributes[Key::Placement] = 1.0 + upTo(2);
        attributes[Key::Spacing] = std::vector<double>{length(9), length(9)};
        attributes[Key::Margin] = std::vector{length(9), length(9), length(9), length(9)};
        if (upTo(2) == 0) attributes[Key::Frame] = length(4);
        if (upTo(2) == 0) attributes[Key::Width] = length(200);
        if (upTo(2) == 0) attributes[Key::Height] = length(200);
        if (upTo(4) == 0) attributes[Key::SuppressGuidePropagation] = true;
        const int children = upTo(3);
        for (int i = 0; i < children; ++i) {
            element.children.push_back(depth > 0 && upTo(2) == 0 ? container(Kind::Row, depth - 1)
                                                                 : item());
            align(element.children.back());
        }
        return element;
    }

    /// Aligned to the far end are only the last children, which are made so below: none here.
    void align(Element& child) {
        constexpr double kAlignments[] = {0, 2, 3, 4, 6};
        child.attributes[Key::Horizontal] = kAlignments[upTo(4)];
        child.attributes[Key::Vertical] = kAlignments[upTo(4)];
        if (upTo(3) == 0) child.attributes[Key::Indent] = length(20);
    }

    Element item() {
        Element element{Kind::EditText, {}, {}, {}};
        element.attributes[Key::Width] = length(60);
        element.attributes[Key::Height] = length(60);
        if (guides_ == Guides::No) return element;
        for (const Key key : {Key::Hsnap, Key::Vsnap})
            if (upTo(1) == 0) element.attributes[key] = std::vector{length(20), 20 + length(20)};
        return element;
    }

    std::mt19937_64 random_{facetta::tests::seed()};
    Guides guides_;
};

/// Gives the last children of every container the far alignment, which no other may have.
void alignLastToFarEnd(Element& element) {
    if (!element.children.empty())
        for (const Key key : {Key::Horizontal, Key::Vertical})
            element.children.back().attributes[key] = 1.0;
    for (Element& child : element.children)
        alignLastToFarEnd(child);
}

void forEachLayout(Guides guides, const auto& check) {
    Generator generator(guides);
    for (int i = 0; i < kTrees; ++i) {
        Layout layout = generator.layout();
        if (i % 2 == 1) alignLastToFarEnd(layout.dialog);
        INFO(print(layout));
        check(layout);
    }
}

engine::Nodes nodesOf(const Layout& layout) {
    MeasuredLayout tree = measured(layout, PlainSizes());
    layOutBothAxes(tree, PlainSizes());
    return std::move(tree.nodes);
}

/// The first gap that is smaller than asked for, or a child outside its container's room.
std::string faultOf(const engine::Nodes& nodes, const engine::Node& container, Axis axis) {
    const engine::NodeOnAxis& box = container.on(axis);
    const engine::Length low = box.position + box.frame.near + box.margin.near;
    const engine::Length high = box.position + box.length - box.frame.far - box.margin.far;
    const engine::NodeOnAxis* last = nullptr;
    for (const std::size_t index : container.children) {
        const engine::NodeOnAxis& child = nodes[index].on(axis);
        if (child.position < low || child.position + child.length > high)
            return "outside at " + std::to_string(child.position);
        if (last && runsAlong(container.stringing, axis) &&
            child.position < last->position + last->length + child.before)
            return "too near at " + std::to_string(child.position);
        last = &child;
    }
    return {};
}

/// The key that means on y what `key` means on x, or the other way round.
Key acrossTheDiagonal(Key key) {
    constexpr std::pair<Key, Key> kPairs[] = {
        {Key::Horizontal, Key::Vertical}, {Key::Width, Key::Height}, {Key::Hsnap, Key::Vsnap}};
    for (const auto& [x, y] : kPairs) {
        if (key == x) return y;
        if (key == y) return x;
    }
    return key;
}

/// `element` with right and down exchanged.
Element transposed(const Element& element) {
    Element result{element.kind, element.position, {}, {}};
    for (const auto& [key, value] : element.attributes)
        result.attributes[acrossTheDiagonal(key)] = value;
    if (const auto stringing = integerOf(element, Key::Placement); stringing && *stringing != 3)
        result.attributes[Key::Placement] = 3.0 - *stringing;
    if (const auto margin = lengthsOf(element, Key::Margin)) {
        const auto [top, left, bottom, right] =
            std::tuple(margin->at(0), margin->at(1), margin->at(2), margin->at(3));
        result.attributes[Key::Margin] =
            std::vector<double>{double(left), double(top), double(right), double(bottom)};
    }
    for (const Element& child : element.children)
        result.children.push_back(transposed(child));
    return result;
}

} // namespace

TEST_CASE("children stay inside their container and keep their distance") {
    forEachLayout(Guides::No, [](const Layout& layout) {
        const engine::Nodes nodes = nodesOf(layout);
        for (const engine::Node& node : nodes) {
            REQUIRE(faultOf(nodes, node, Axis::X) == "");
            REQUIRE(faultOf(nodes, node, Axis::Y) == "");
        }
    });
}

TEST_CASE("right and down are alike: the layout turned over gives the rectangles turned over") {
    forEachLayout(Guides::Yes, [](const Layout& layout) {
        const Placement straight = place(layout, PlainSizes());
        const Layout turned{layout.name, transposed(layout.dialog)};
        const Placement other = place(turned, PlainSizes());
        REQUIRE(straight.size() == other.size());
        for (std::size_t i = 0; i < straight.size(); ++i) {
            const auto& [left, top, right, bottom] = other[i].bounds;
            REQUIRE(straight[i].bounds == Bounds{top, left, bottom, right});
        }
    });
}

TEST_CASE("what is printed reads back as the same layout, and is placed the same") {
    forEachLayout(Guides::Yes, [](const Layout& layout) {
        const Parsed again = parse(print(layout));
        REQUIRE(again.layout == layout);
        REQUIRE(written(place(*again.layout, PlainSizes())) ==
                written(place(layout, PlainSizes())));
    });
}

} // namespace NRDM::layout::tests

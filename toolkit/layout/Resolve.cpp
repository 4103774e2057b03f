#include "toolkit/layout/Resolve.h"

#include "toolkit/layout/Limits.h"

#include <algorithm>
#include <cmath>
#include <iterator>
#include <set>
#include <utility>

namespace NRDM::layout {
namespace {

std::string inQuotes(std::string_view word) { return '"' + std::string(word) + '"'; }

/// What a key takes, in the words of a message.
std::string needOf(const KeyRecord& key) {
    const std::string range =
        "from " + std::to_string(key.lowest) + " to " + std::to_string(key.highest);
    switch (key.type) {
    case ValueType::Text:
        return "a text";
    case ValueType::Truth:
        return "yes or no";
    case ValueType::Number:
        return "a number";
    case ValueType::Integer:
        return "a number " + range;
    case ValueType::Lengths:
        return "a number or a list of numbers " + range;
    case ValueType::FourLengths:
        return "a number or a list of four numbers " + range;
    }
    return {};
}

/// `number` cut toward zero, or nothing when the key does not reach so far.
std::optional<double> wholeNumber(const KeyRecord& key, double number) {
    const double whole = std::trunc(number);
    const bool inRange = whole >= key.lowest && whole <= key.highest;
    return inRange ? std::optional(whole) : std::nullopt;
}

std::optional<Value> wholeNumbers(const KeyRecord& key, const std::vector<double>& numbers) {
    std::vector<double> wholes;
    for (const double number : numbers) {
        const auto whole = wholeNumber(key, number);
        if (!whole) return std::nullopt;
        wholes.push_back(*whole);
    }
    return wholes;
}

/// `value` as the key takes it, or nothing when it does not.
std::optional<Value> converted(const KeyRecord& key, const Value& value) {
    const bool takesList = key.type == ValueType::Lengths || key.type == ValueType::FourLengths;
    if (const auto* list = std::get_if<std::vector<double>>(&value)) {
        const bool rightSize = key.type == ValueType::Lengths || list->size() == 4;
        return takesList && rightSize ? wholeNumbers(key, *list) : std::nullopt;
    }
    if (const double* number = std::get_if<double>(&value)) {
        if (key.type == ValueType::Number) return value;
        if (key.type == ValueType::Integer || takesList) return wholeNumber(key, *number);
        const bool zeroOrOne = *number == 0.0 || *number == 1.0;
        return key.type == ValueType::Truth && zeroOrOne ? std::optional<Value>(*number == 1.0)
                                                         : std::nullopt;
    }
    const bool fits = key.type == ValueType::Truth  ? std::holds_alternative<bool>(value)
                      : key.type == ValueType::Text ? std::holds_alternative<std::string>(value)
                                                    : false;
    return fits ? std::optional(value) : std::nullopt;
}

class Resolver {
public:
    explicit Resolver(Messages& messages) : messages_(messages) {}

    Element resolveRoot(const syntax::Element& source) {
        const KindRecord* kind = findKind(source.kind);
        if (!kind || kind->role != Role::Dialog)
            error(source.position, "the view is a dialog, not " + inQuotes(source.kind));
        return resolveElement(source, kind ? *kind : recordOf(Kind::Dialog));
    }

private:
    void error(Position position, std::string text) {
        messages_.push_back({Severity::Error, position, std::move(text)});
    }

    void warn(Position position, std::string text) {
        messages_.push_back({Severity::Warning, position, std::move(text)});
    }

    Element resolveElement(const syntax::Element& source, const KindRecord& kind) {
        countElement(source.position);
        Element element{kind.kind, source.position, {}, {}};
        resolveAttributes(source, element);
        ++depth_;
        resolveChildren(source, kind, element);
        if (kind.kind == Kind::PopupCluster) giveClusterItsPopup(element);
        --depth_;
        checkFarAligned(element);
        return element;
    }

    void countElement(Position position) {
        if (++elementCount_ == kMaxElements + 1)
            error(position, "more than " + std::to_string(kMaxElements) + " elements");
    }

    // -- Attributes --------------------------------------------------------------------------

    void resolveAttributes(const syntax::Element& source, Element& element) {
        for (const syntax::Argument& argument : source.arguments) {
            const KeyRecord* key = findKey(argument.key);
            if (!key)
                warn(argument.keyPosition, "unknown attribute " + inQuotes(argument.key));
            else
                resolveAttribute(argument, *key, element);
        }
    }

    void resolveAttribute(const syntax::Argument& argument, const KeyRecord& key,
                          Element& element) {
        if (element.attributes.contains(key.key))
            warn(argument.keyPosition, inQuotes(key.name) + " is given twice: this one counts");
        std::optional<Value> value = converted(key, argument.value);
        if (!value) {
            error(argument.valuePosition, inQuotes(key.name) + " takes " + needOf(key) + ", not " +
                                              describe(argument.value));
            return;
        }
        warnOfOddValue(argument, key, *value);
        element.attributes.insert_or_assign(key.key, std::move(*value));
    }

    void warnOfOddValue(const syntax::Argument& argument, const KeyRecord& key, Value& value) {
        if (key.type == ValueType::Truth && std::holds_alternative<double>(argument.value))
            warn(argument.valuePosition, inQuotes(key.name) + " takes yes or no");
        if (key.key == Key::ItemId || key.key == Key::PopupItemId)
            if (!itemIds_.insert(std::get<double>(value)).second)
                warn(argument.valuePosition, "another item has the id " + written(value));
        const bool forChildren = key.key == Key::ChildHorizontal || key.key == Key::ChildVertical;
        if (forChildren && value == Value(static_cast<double>(Alignment::Default))) {
            // Children that look here for their default must find one.
            warn(argument.valuePosition, "children cannot be aligned by default to a default");
            value = static_cast<double>(Alignment::Near);
        }
        const bool guides = key.key == Key::Vsnap || key.key == Key::Hsnap;
        const auto* list = std::get_if<std::vector<double>>(&value);
        if (guides && list && !std::ranges::is_sorted(*list))
            warn(argument.valuePosition, "guides are listed from the item's near edge on");
    }

    // -- Children ----------------------------------------------------------------------------

    void resolveChildren(const syntax::Element& source, const KindRecord& kind, Element& element) {
        for (const syntax::Element& child : source.children) {
            const KindRecord* childKind = findKind(child.kind);
            if (!childKind)
                warn(child.position,
                     "unknown kind " + inQuotes(child.kind) + ": left out with all that is in it");
            else if (mayStandIn(kind, child, *childKind))
                element.children.push_back(resolveElement(child, *childKind));
        }
    }

    bool mayStandIn(const KindRecord& parent, const syntax::Element& child,
                    const KindRecord& childKind) {
        const std::string names = inQuotes(childKind.name) + " in " + inQuotes(parent.name);
        if (childKind.role == Role::Dialog) {
            error(child.position, "a dialog cannot stand inside another element");
            return false;
        }
        const bool fits = childKind.role == Role::Entry
                              ? parent.takesEntries == TakesEntries::Yes
                              : parent.role == Role::Dialog || parent.role == Role::Container;
        if (!fits) warn(child.position, names + " is left out");
        return fits;
    }

    /// A popup cluster is short for a column that begins with a popup, whose id, width and entries
    /// are written at the cluster.
    void giveClusterItsPopup(Element& cluster) {
        Element popup{Kind::Popup, cluster.position, {}, {}};
        moveAttribute(cluster, Key::PopupItemId, popup, Key::ItemId);
        moveAttribute(cluster, Key::PopupItemWidth, popup, Key::Width);
        const auto entries =
            std::stable_partition(cluster.children.begin(), cluster.children.end(),
                                  [](const Element& child) { return child.kind != Kind::Entry; });
        popup.children.assign(std::move_iterator(entries),
                              std::move_iterator(cluster.children.end()));
        cluster.children.erase(entries, cluster.children.end());
        if (popup.attributes.empty() && popup.children.empty()) return;
        if (!popup.children.empty() && depth_ == kMaxDepth)
            error(cluster.position, "nested more than " + std::to_string(kMaxDepth) + " deep");
        countElement(cluster.position);
        cluster.children.insert(cluster.children.begin(), std::move(popup));
    }

    static void moveAttribute(Element& from, Key fromKey, Element& to, Key toKey) {
        auto attribute = from.attributes.extract(fromKey);
        if (attribute.empty()) return;
        to.attributes.emplace(toKey, std::move(attribute.mapped()));
    }

    // -- Placement ---------------------------------------------------------------------------

    /// Far-aligned children stand at the container's far end, so none can come before another.
    void checkFarAligned(const Element& container) {
        for (const Axis axis : {Axis::X, Axis::Y}) {
            if (!runsAlong(stringingOf(container), axis)) continue;
            const auto far = [&](const Element& child) {
                const Alignment own = alignmentOf(child, axis);
                return isFar(own == Alignment::Default ? childAlignmentOf(container, axis) : own);
            };
            const auto first = std::ranges::find_if(container.children, far);
            if (first != container.children.end() &&
                !std::ranges::all_of(first, container.children.end(), far))
                error(first->position, "what is aligned to the far end of its container comes "
                                       "after all that is not");
        }
    }

    Messages& messages_;
    std::set<double> itemIds_;
    std::size_t elementCount_ = 0;
    int depth_ = 0; // of the blocks around the elements in hand
};

} // namespace

Layout resolve(const syntax::Text& text, Messages& messages) {
    Layout layout{std::string(text.name), {}};
    if (text.root) layout.dialog = Resolver(messages).resolveRoot(*text.root);
    return layout;
}

} // namespace NRDM::layout

#include "easel/document/Dictionary.h"

#include "easel/document/UndoLog.h"
#include "host/Error.h"

#include <algorithm>
#include <unordered_set>

namespace easel {
namespace {

/// Dictionaries and arrays within each other, counted along the deepest chain. Copies and
/// comparisons recurse, so the depth is bounded.
constexpr int kDeepestNesting = 100;
/// Those met on the way down. Sharing children could make their number double with each level.
constexpr int kMostNested = 10'000;

/// Walks down what is to be put into `holder`: throws 'PARM' on meeting it, 'NEST' when there is
/// too much or it lies too deep.
class NestingCheck {
public:
    explicit NestingCheck(const Counted& holder) : holder_(&holder) {}

    void descend(const Value& value, int depth = 1) {
        if (const auto* dictionary = std::get_if<Ref<Dictionary>>(&value)) {
            enter(dictionary->get(), depth);
            for (const DictionaryItem& item : (*dictionary)->items())
                descend(item.value, depth + 1);
        } else if (const auto* array = std::get_if<Ref<Array>>(&value)) {
            enter(array->get(), depth);
            for (const Value& item : (*array)->values())
                descend(item, depth + 1);
        }
    }

private:
    void enter(const Counted* container, int depth) {
        if (container == holder_) throw ai::Error{kBadParameterErr};
        if (depth > kDeepestNesting || ++met_ > kMostNested) throw ai::Error{kTooDeepNestingErr};
    }

    const Counted* holder_;
    int met_ = 0;
};

void attachValue(const Value& value, const std::shared_ptr<UndoLog>& log) {
    if (log == nullptr) return;
    if (const auto* dictionary = std::get_if<Ref<Dictionary>>(&value)) (*dictionary)->attach(log);
    if (const auto* array = std::get_if<Ref<Array>>(&value)) (*array)->attach(log);
}

const Value& valueOf(const DictionaryItem& item) { return item.value; }
const Value& valueOf(const Value& value) { return value; }

DictionaryItem copyOf(const DictionaryItem& item) { return {item.key, deepCopy(item.value)}; }
Value copyOf(const Value& value) { return deepCopy(value); }

/// Exchanges what a dictionary or an array holds.
template <typename Item> class ContainerState final : public KeptState {
public:
    ContainerState(Container<Item>& container, std::vector<Item> items)
        : container_(&container), items_(std::move(items)) {}
    void exchange() override { container_->swapItems(items_); }

private:
    Ref<Container<Item>> container_;
    std::vector<Item> items_;
};

} // namespace

Key internKey(std::string_view text) {
    struct Hash {
        using is_transparent = void;
        std::size_t operator()(std::string_view key) const noexcept {
            return std::hash<std::string_view>{}(key);
        }
    };
    static std::unordered_set<std::string, Hash, std::equal_to<>> keys;
    const auto known = keys.find(text);
    return known != keys.end() ? &*known : &*keys.emplace(text).first;
}

bool isTemporary(Key key) noexcept { return !key->empty() && key->front() == '-'; }

template <typename Item> void Container<Item>::copyFrom(const Container& other) {
    if (&other == this) return;
    std::vector<Item> copies;
    copies.reserve(other.items_.size());
    for (const Item& item : other.items_)
        copies.push_back(copyOf(item));
    beginChange();
    items_ = std::move(copies);
    for (const Item& item : items_)
        attachValue(valueOf(item), log_);
}

template <typename Item> void Container<Item>::attach(const std::shared_ptr<UndoLog>& log) {
    if (log_ == log) return;
    log_ = log;
    for (const Item& item : items_)
        attachValue(valueOf(item), log);
}

template <typename Item> void Container<Item>::beginChange() {
    if (log_ != nullptr && log_->mustKeep(keptIn_))
        log_->keep(std::make_unique<ContainerState<Item>>(*this, items_));
}

template <typename Item> void Container<Item>::beginChange(const Value& added) {
    NestingCheck(*this).descend(added);
    beginChange();
    attachValue(added, log_);
}

template class Container<DictionaryItem>;
template class Container<Value>;

std::vector<DictionaryItem> Dictionary::sortedItems() const {
    std::vector<DictionaryItem> sorted = items_;
    std::ranges::sort(sorted, {}, [](const DictionaryItem& item) { return *item.key; });
    return sorted;
}

const Value* Dictionary::find(Key key) const noexcept {
    const auto found = std::ranges::find(items_, key, &DictionaryItem::key);
    return found != items_.end() ? &found->value : nullptr;
}

void Dictionary::set(Key key, Value value) {
    beginChange(value);
    const auto found = std::ranges::find(items_, key, &DictionaryItem::key);
    if (found != items_.end())
        found->value = std::move(value);
    else
        items_.push_back({key, std::move(value)});
}

bool Dictionary::erase(Key key) {
    const auto found = std::ranges::find(items_, key, &DictionaryItem::key);
    if (found == items_.end()) return false;
    beginChange();
    items_.erase(items_.begin() + (found - items_.begin()));
    return true;
}

void Array::append(Value value) {
    beginChange(value);
    items_.push_back(std::move(value));
}

Value deepCopy(const Value& value) {
    if (const auto* dictionary = std::get_if<Ref<Dictionary>>(&value)) {
        Ref<Dictionary> copy(new Dictionary);
        copy->copyFrom(**dictionary);
        return copy;
    }
    if (const auto* array = std::get_if<Ref<Array>>(&value)) {
        Ref<Array> copy(new Array);
        copy->copyFrom(**array);
        return copy;
    }
    return value; // texts and bytes never change, so they are shared
}

} // namespace easel

#pragma once

#include "easel/document/Value.h"

#include <span>
#include <string_view>

namespace easel {

class UndoLog;

/// An interned key: equal texts have equal keys, for the life of the process.
using Key = const std::string*;

/// The key of `text`, case-sensitive, compared byte by byte.
[[nodiscard]] Key internKey(std::string_view text);
/// Keys that begin with '-' are kept in memory only, never saved.
[[nodiscard]] bool isTemporary(Key key) noexcept;

struct DictionaryItem {
    Key key;
    Value value;
};

/// What dictionaries and arrays have in common: items whose changes, once the container belongs to
/// a document (as the dictionary of art or of the document, or nested in one that does), are
/// recorded for undo.
template <typename Item> class Container : public Counted {
public:
    using Counted::Counted;

    [[nodiscard]] std::span<const Item> items() const noexcept { return items_; }
    /// Takes over copies of the items of `other`; what was here is gone.
    void copyFrom(const Container& other);
    /// From now on changes are recorded there, those of nested dictionaries and arrays as well.
    void attach(const std::shared_ptr<UndoLog>& log);
    /// For the undo log: exchanges the items with kept ones.
    void swapItems(std::vector<Item>& items) noexcept { items_.swap(items); }

protected:
    /// Before a change of any kind; the other also for what the change brings in.
    void beginChange();
    void beginChange(const Value& added);

    std::vector<Item> items_;
    std::shared_ptr<UndoLog> log_;
    std::uint64_t keptIn_ = 0; ///< The epoch of the undo log in which the former state was kept.
};

/// Entries shared by whoever holds the dictionary.
class Dictionary final : public Container<DictionaryItem> {
public:
    Dictionary() noexcept : Container(HandleKind::Dictionary, Lent::Dictionary) {}

    /// Ordered by the text of their keys, so that what is written does not depend on history.
    [[nodiscard]] std::vector<DictionaryItem> sortedItems() const;
    /// Null when absent.
    [[nodiscard]] const Value* find(Key key) const noexcept;
    /// Replaces what is there, of whatever type. Throws 'PARM' when `value` contains this
    /// dictionary, 'NEST' when it is nested too deeply.
    void set(Key key, Value value);
    /// False when absent.
    bool erase(Key key);

    /// It came to be in that epoch of the undo log, together with what owns it: there is no former
    /// state to keep.
    void noteMadeIn(std::uint64_t epoch) noexcept { keptIn_ = epoch; }
};

/// A counted list of values.
class Array final : public Container<Value> {
public:
    Array() noexcept : Container(HandleKind::Array, Lent::Array) {}

    [[nodiscard]] std::span<const Value> values() const noexcept { return items(); }
    void append(Value value);
};

} // namespace easel

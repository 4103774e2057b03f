#pragma once

#include "toolkit/suites/ADMTypes.h"

#include <memory>
#include <string>
#include <vector>

namespace NRDM {

/// An entry of a list or menu. Created and owned by its list.
class INRDMEntry {
public:
    explicit INRDMEntry(INRDMList& list) : list_(list) {}
    INRDMEntry(const INRDMEntry&) = delete;
    INRDMEntry& operator=(const INRDMEntry&) = delete;

    [[nodiscard]] INRDMList& list() const noexcept { return list_; }

    /// The position in the list, from 0, separators counted.
    [[nodiscard]] int index() const;

    /// The client's number; 0 until it is set.
    [[nodiscard]] int id() const noexcept { return id_; }
    void setId(int id) noexcept { id_ = id; }

    [[nodiscard]] const std::string& text() const noexcept { return text_; }
    void setText(std::string text);
    [[nodiscard]] bool isEnabled() const noexcept { return enabled_; }
    void enable(bool enabled);
    [[nodiscard]] bool isSeparator() const noexcept { return separator_; }
    void makeSeparator(bool separator);
    [[nodiscard]] bool isChecked() const noexcept { return checked_; }
    void check(bool checked);

    /// Selected and active are the same. Choosing an entry lets go of the one chosen before.
    [[nodiscard]] bool isSelected() const;
    void select(bool selected);

    /// Can the user choose it?
    [[nodiscard]] bool isChoice() const noexcept { return enabled_ && !separator_; }

    ADMUserData userData = nullptr;

private:
    friend class INRDMList;

    INRDMList& list_;
    int id_ = 0;
    std::string text_;
    bool enabled_ = true;
    bool separator_ = false;
    bool checked_ = false;
};

/// The entries of a popup, a menu or a list box; one of them may be chosen. Belongs to an item,
/// which hears of every change.
class INRDMList {
public:
    explicit INRDMList(CoADMItem& item) : item_(item) {}
    INRDMList(const INRDMList&) = delete;
    INRDMList& operator=(const INRDMList&) = delete;

    [[nodiscard]] CoADMItem& item() const noexcept { return item_; }

    /// Replaces the entries by the lines of a menu resource of `plugin`; their ids are the menu's.
    /// Throws `NRDMResourceException` when there is no such menu.
    void setMenu(SPPluginRef plugin, int id);
    [[nodiscard]] int menuId() const noexcept { return menuId_; }

    /// An empty entry before `position`; one beyond the end is put there.
    INRDMEntry& insert(int position);
    /// False when there is no such entry.
    bool remove(int position);

    [[nodiscard]] int count() const noexcept { return static_cast<int>(entries_.size()); }
    // Null when there is none.
    [[nodiscard]] INRDMEntry* at(int position) const;
    [[nodiscard]] INRDMEntry* withId(int id) const;
    [[nodiscard]] INRDMEntry* withText(const std::string& text) const;
    [[nodiscard]] INRDMEntry* chosen() const noexcept { return chosen_; }

    void choose(INRDMEntry* entry);
    void changed();

    ADMUserData userData = nullptr;

private:
    friend class INRDMEntry;

    CoADMItem& item_;
    std::vector<std::unique_ptr<INRDMEntry>> entries_;
    INRDMEntry* chosen_ = nullptr;
    int menuId_ = 0;
};

} // namespace NRDM

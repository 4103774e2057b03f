#pragma once

#include "toolkit/ImplWin/NativeItem.h"

#include <optional>

namespace NRDM {

/// One entry of a list as it is drawn: knows how high it is and what its states look like.
class NRDMListViewEntry {
public:
    explicit NRDMListViewEntry(const EntryView& view) : view_(view) {}

    /// In pixels.
    [[nodiscard]] static int height(const EntryView& view, TextStyle style, Scale scale);

    void draw(const Canvas& canvas, const RECT& area, TextStyle style, RowState state, Colour plain,
              bool showsMark, bool listEnabled = true) const;

    [[nodiscard]] bool canBeChosen() const { return view_.enabled && !view_.separator; }

private:
    const EntryView& view_;
};

/// The entries of a view below each other in a rectangle that may be too low for all: what list
/// boxes and popups have in common. Positions count entries, pixels count from the window's top.
class ListRows {
public:
    ListRows(const ItemView& view, TextStyle style) : view_(view), style_(style) {}

    [[nodiscard]] SIZE naturalSize(Scale scale) const;
    [[nodiscard]] std::optional<int> entryAt(POINT point, const RECT& area, Scale scale) const;
    [[nodiscard]] RECT rowOf(int entry, const RECT& area, Scale scale) const;

    /// The next entry that can be chosen from `entry` in steps of `direction`, or nothing.
    [[nodiscard]] std::optional<int> next(int entry, int direction) const;

    /// The entry whose text begins with `letter`, searched after `entry` and round.
    [[nodiscard]] std::optional<int> beginningWith(wchar_t letter, int entry) const;

    void scrollTo(int entry, const RECT& area, Scale scale);
    /// True when it moved.
    bool scrollBy(int pixels, const RECT& area, Scale scale);

    void draw(const Canvas& canvas, const RECT& area, int hot, int chosen, Colour plain,
              bool enabled = true) const;

    /// What other programs, such as screen readers, ask of lists: entries and where they lie, as of
    /// Windows' own. Nothing for any other message.
    [[nodiscard]] std::optional<LRESULT> tell(UINT message, WPARAM wide, LPARAM lengthy,
                                              const RECT& area, Scale scale) const;

private:
    [[nodiscard]] int count() const { return static_cast<int>(view_.entries.size()); }
    [[nodiscard]] int topOf(int entry, Scale scale) const;
    [[nodiscard]] bool hasMarks() const;

    const ItemView& view_;
    TextStyle style_;
    int scrolled_ = 0;
};

/// A list box.
class NRDMListView final : public NativeItem {
public:
    NRDMListView(NativeDialog& dialog, const ItemView& view, ItemEvents& events);

    void changed(Aspect aspects) override;

protected:
    LRESULT serve(UINT message, WPARAM wide, LPARAM lengthy) override;
    bool key(WPARAM key) override;
    void wheel(int steps) override;
    [[nodiscard]] bool takesWheel() const override { return true; } // scrolls, and chooses nothing
    void paint(const Canvas& canvas, const RECT& area) override;
    [[nodiscard]] bool reactsToPointer() const override { return false; }

private:
    [[nodiscard]] RECT inside() const;
    void setHot(int entry);
    void choose(int entry);

    ListRows rows_;
    int hotEntry_ = -1;
};

} // namespace NRDM

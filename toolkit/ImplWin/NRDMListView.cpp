#include "toolkit/ImplWin/NRDMListView.h"

#include <windowsx.h>

#include <algorithm>
#include <cmath>

namespace NRDM {
namespace {

constexpr double kRowPadding = 3;
constexpr double kSide = 8;
constexpr double kMark = 18;
constexpr double kSeparator = 7;
constexpr double kBar = 4; ///< The bar at the side of a list that shows a part of its entries.

} // namespace

int NRDMListViewEntry::height(const EntryView& view, TextStyle style, Scale scale) {
    if (view.separator) return scale.toPixels(kSeparator);
    return static_cast<int>(std::ceil(lineMetrics(style, scale).height)) +
           2 * scale.toPixels(kRowPadding);
}

void NRDMListViewEntry::draw(const Canvas& canvas, const RECT& area, TextStyle style,
                             RowState state, Colour plain, bool showsMark, bool listEnabled) const {
    const Palette& palette = canvas.palette;
    if (view_.separator) {
        drawRow(canvas, area, RowState::Plain, plain);
        RECT line = area;
        InflateRect(&line, -canvas.scale.toPixels(kSide), 0);
        const int thickness = canvas.scale.line();
        line.top += (area.bottom - area.top - thickness) / 2;
        line.bottom = line.top + thickness;
        fillRect(canvas.surface, line, mix(plain, palette.text, 0.22));
        return;
    }
    if (listEnabled)
        drawRow(canvas, area, state, plain);
    else
        fillRect(canvas.surface, area,
                 state == RowState::Chosen ? mix(plain, palette.text, 0.2) : plain);
    const Colour colour = !view_.enabled || !listEnabled ? palette.dimText
                          : state == RowState::Chosen    ? palette.onAccent
                                                         : palette.text;
    RECT text = area;
    text.left += canvas.scale.toPixels(kSide);
    text.right -= canvas.scale.toPixels(kSide);
    if (showsMark) {
        if (view_.checked) drawCheckMark(canvas, text, colour);
        text.left += canvas.scale.toPixels(kMark);
    }
    drawLine(canvas.surface, text,
             {captionOf(toWide(view_.text)), style, canvas.scale, colour, Justify::Left,
              Overflow::EndEllipsis, false});
}

bool ListRows::hasMarks() const {
    return std::any_of(view_.entries.begin(), view_.entries.end(),
                       [](const EntryView& entry) { return entry.checked; });
}

int ListRows::topOf(int entry, Scale scale) const {
    int top = 0;
    for (int i = 0; i < entry; ++i)
        top += NRDMListViewEntry::height(view_.entries[static_cast<std::size_t>(i)], style_, scale);
    return top;
}

SIZE ListRows::naturalSize(Scale scale) const {
    double widest = 0;
    for (const EntryView& entry : view_.entries)
        widest = std::max(widest, textWidth(captionOf(toWide(entry.text)).text, style_, scale));
    const double sides = 2 * kSide + (hasMarks() ? kMark : 0);
    return {static_cast<LONG>(std::ceil(widest)) + scale.toPixels(sides) + 1,
            topOf(count(), scale)};
}

RECT ListRows::rowOf(int entry, const RECT& area, Scale scale) const {
    const LONG top = area.top - scrolled_ + topOf(entry, scale);
    return {area.left, top, area.right, area.top - scrolled_ + topOf(entry + 1, scale)};
}

std::optional<int> ListRows::entryAt(POINT point, const RECT& area, Scale scale) const {
    if (!PtInRect(&area, point)) return std::nullopt;
    for (int entry = 0; entry < count(); ++entry) {
        const RECT row = rowOf(entry, area, scale);
        if (!PtInRect(&row, point)) continue;
        const bool good =
            NRDMListViewEntry(view_.entries[static_cast<std::size_t>(entry)]).canBeChosen();
        return good ? std::optional(entry) : std::nullopt;
    }
    return std::nullopt;
}

std::optional<int> ListRows::next(int entry, int direction) const {
    for (int i = entry + direction; i >= 0 && i < count(); i += direction)
        if (NRDMListViewEntry(view_.entries[static_cast<std::size_t>(i)]).canBeChosen()) return i;
    return std::nullopt;
}

std::optional<int> ListRows::beginningWith(wchar_t letter, int entry) const {
    for (int step = 1; step <= count(); ++step) {
        const int i = (std::max(entry, -1) + step) % count();
        const EntryView& candidate = view_.entries[static_cast<std::size_t>(i)];
        const std::wstring text = captionOf(toWide(candidate.text)).text;
        if (!text.empty() && NRDMListViewEntry(candidate).canBeChosen() &&
            CompareStringOrdinal(text.data(), 1, &letter, 1, TRUE) == CSTR_EQUAL)
            return i;
    }
    return std::nullopt;
}

void ListRows::scrollTo(int entry, const RECT& area, Scale scale) {
    if (entry < 0 || entry >= count()) return;
    const RECT row = rowOf(entry, area, scale);
    if (row.top < area.top) scrolled_ -= area.top - row.top;
    if (row.bottom > area.bottom) scrolled_ += row.bottom - area.bottom;
    scrollBy(0, area, scale);
}

bool ListRows::scrollBy(int pixels, const RECT& area, Scale scale) {
    const int most = std::max(0, topOf(count(), scale) - static_cast<int>(area.bottom - area.top));
    const int wanted = std::clamp(scrolled_ + pixels, 0, most);
    const bool moved = wanted != scrolled_;
    scrolled_ = wanted;
    return moved;
}

void ListRows::draw(const Canvas& canvas, const RECT& area, int hot, int chosen, Colour plain,
                    bool enabled) const {
    const RECT outer = canvas.surface.clip();
    RECT clip{};
    if (!IntersectRect(&clip, &outer, &area)) return;
    canvas.surface.setClip(clip);
    const int whole = topOf(count(), canvas.scale);
    const int seen = static_cast<int>(area.bottom - area.top);
    const int bar = canvas.scale.toPixels(kBar);
    const int gap = canvas.scale.toPixels(2);
    RECT rows = area;
    if (whole > seen) rows.right -= bar + 2 * gap;
    const bool marks = hasMarks();
    for (int entry = 0; entry < count(); ++entry) {
        const RECT row = rowOf(entry, rows, canvas.scale);
        if (row.bottom <= clip.top || row.top >= clip.bottom) continue;
        const RowState state = entry == chosen ? RowState::Chosen
                               : entry == hot  ? RowState::Hot
                                               : RowState::Plain;
        NRDMListViewEntry(view_.entries[static_cast<std::size_t>(entry)])
            .draw(canvas, row, style_, state, plain, marks, enabled);
    }
    if (whole > seen) {
        const double length = static_cast<double>(seen) * seen / whole;
        const double top = area.top + static_cast<double>(scrolled_) * seen / whole;
        fillRound(canvas.surface,
                  {static_cast<double>(area.right - bar - gap), top + gap,
                   static_cast<double>(area.right - gap), top + length - gap},
                  bar / 2.0, mix(plain, canvas.palette.text, enabled ? 0.4 : 0.2));
    }
    canvas.surface.setClip(outer);
}

std::optional<LRESULT> ListRows::tell(UINT message, WPARAM wide, LPARAM lengthy, const RECT& area,
                                      Scale scale) const {
    if (message == LB_GETCOUNT) return count();
    if (message == LB_GETCURSEL) return view_.chosen >= 0 ? view_.chosen : LB_ERR;
    if (message != LB_GETTEXTLEN && message != LB_GETTEXT && message != LB_GETITEMRECT)
        return std::nullopt;
    if (wide >= view_.entries.size()) return LB_ERR;
    const std::wstring text = toWide(view_.entries[wide].text);
    if (message == LB_GETITEMRECT)
        *reinterpret_cast<RECT*>(lengthy) = rowOf(static_cast<int>(wide), area, scale);
    else if (message == LB_GETTEXT)
        *std::copy(text.begin(), text.end(), reinterpret_cast<wchar_t*>(lengthy)) = L'\0';
    return message == LB_GETITEMRECT ? LRESULT{0} : static_cast<LRESULT>(text.size());
}

NRDMListView::NRDMListView(NativeDialog& dialog, const ItemView& view, ItemEvents& events)
    : NativeItem(dialog, view, events), rows_(view, textStyle()) {
    createItem(nullptr, WS_TABSTOP);
    rows_.scrollTo(view.chosen, inside(), scale());
}

RECT NRDMListView::inside() const {
    RECT area = client();
    const int border = scale().toPixels(2);
    InflateRect(&area, -border, -border);
    return area;
}

void NRDMListView::changed(Aspect aspects) {
    if (has(aspects, Aspect::Entries | Aspect::Value)) {
        rows_.scrollTo(view().chosen, inside(), scale());
        rows_.scrollBy(0, inside(), scale());
    }
    NativeItem::changed(aspects);
}

void NRDMListView::setHot(int entry) {
    if (entry == hotEntry_) return;
    for (const int changed : {hotEntry_, entry})
        if (changed >= 0) repaint(rows_.rowOf(changed, inside(), scale()));
    hotEntry_ = entry;
}

void NRDMListView::choose(int entry) {
    if (entry != view().chosen) events().choose(entry);
}

LRESULT NRDMListView::serve(UINT message, WPARAM wide, LPARAM lengthy) {
    if (const auto told = rows_.tell(message, wide, lengthy, inside(), scale())) return *told;
    const std::weak_ptr<const char> alive = watch();
    const LRESULT answer = NativeItem::serve(message, wide, lengthy);
    if (alive.expired()) return answer;
    const POINT point{GET_X_LPARAM(lengthy), GET_Y_LPARAM(lengthy)};
    switch (message) {
    case WM_MOUSEMOVE:
        setHot(rows_.entryAt(point, inside(), scale()).value_or(-1));
        break;
    case WM_MOUSELEAVE:
        setHot(-1);
        break;
    case WM_LBUTTONDOWN:
        SetFocus(handle());
        if (alive.expired()) break;
        if (const auto entry = rows_.entryAt(point, inside(), scale())) choose(*entry);
        break;
    default:
        break;
    }
    return answer;
}

bool NRDMListView::key(WPARAM key) {
    const int count = static_cast<int>(view().entries.size());
    const bool up = key == VK_UP;
    const auto entry = up || key == VK_DOWN ? rows_.next(view().chosen, up ? -1 : 1)
                       : key == VK_HOME     ? rows_.next(-1, 1)
                       : key == VK_END      ? rows_.next(count, -1)
                                            : std::nullopt;
    if (entry) choose(*entry);
    return entry || up || key == VK_DOWN;
}

void NRDMListView::wheel(int steps) {
    if (rows_.scrollBy(-steps * scale().toPixels(36), inside(), scale())) repaint();
}

void NRDMListView::paint(const Canvas& canvas, const RECT& area) {
    const FaceState now = state();
    drawField(canvas, area, now);
    rows_.draw(canvas, inside(), now.enabled ? hotEntry_ : -1, view().chosen,
               now.enabled ? canvas.palette.field
                           : mix(canvas.palette.background, canvas.palette.field, 0.35),
               now.enabled);
}

} // namespace NRDM

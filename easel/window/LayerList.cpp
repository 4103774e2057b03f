#include "easel/window/LayerList.h"

#include "easel/document/Layers.h"
#include "easel/window/NativeWindow.h"
#include "easel/window/Pictures.h"

#include <windows.h>

#include <commctrl.h>

#include <algorithm>

namespace easel::window {
namespace {

/// The name comes first for the system, which lets the first column alone be typed in; on the
/// screen it comes last.
enum Column : int { kName, kEye, kLock };
constexpr int kShownOrder[] = {kEye, kLock, kName};
constexpr int kIconColumnWidth = 30;
constexpr int kButtonHeight = 24;
constexpr int kNoImage = I_IMAGENONE;

LVITEMW itemAt(std::size_t index, int column, UINT mask) {
    LVITEMW item{};
    item.mask = mask;
    item.iItem = static_cast<int>(index);
    item.iSubItem = column;
    return item;
}

} // namespace

void LayerList::open(HWND parent, int firstId) {
    firstId_ = firstId;
    list_ = makeControl(WC_LISTVIEWW, L"",
                        WS_BORDER | LVS_REPORT | LVS_SINGLESEL | LVS_SHOWSELALWAYS |
                            LVS_EDITLABELS | LVS_NOCOLUMNHEADER,
                        parent, firstId);
    constexpr DWORD kLooks = LVS_EX_FULLROWSELECT | LVS_EX_SUBITEMIMAGES;
    SendMessageW(list_, LVM_SETEXTENDEDLISTVIEWSTYLE, kLooks, kLooks);
    const HIMAGELIST images = ImageList_Create(kIconSide, kIconSide, ILC_COLOR32, 2, 0);
    for (const char* name : {"shown", "locked"})
        ImageList_Add(images, ownIcon(name).bitmap(), nullptr);
    SendMessageW(list_, LVM_SETIMAGELIST, LVSIL_SMALL, reinterpret_cast<LPARAM>(images));
    for (const int column : {kName, kEye, kLock}) {
        LVCOLUMNW form{};
        form.mask = LVCF_WIDTH;
        form.cx = kIconColumnWidth;
        SendMessageW(list_, LVM_INSERTCOLUMNW, static_cast<WPARAM>(column),
                     reinterpret_cast<LPARAM>(&form));
    }
    SendMessageW(list_, LVM_SETCOLUMNORDERARRAY, 3, reinterpret_cast<LPARAM>(kShownOrder));
    constexpr const wchar_t* kCaptions[] = {L"New Layer", L"Delete Layer"};
    for (int i = 0; i < 2; ++i)
        buttons_[i] = makeControl(L"BUTTON", kCaptions[i], BS_PUSHBUTTON, parent, firstId + 1 + i);
}

void LayerList::place(const RECT& area) const {
    const LONG top = std::max(area.top, area.bottom - kButtonHeight);
    placeWindow(list_, {area.left, area.top, area.right, top});
    const LONG middle = (area.left + area.right) / 2;
    placeWindow(buttons_[0], {area.left, top, middle, area.bottom});
    placeWindow(buttons_[1], {middle, top, area.right, area.bottom});
    RECT inside{};
    GetClientRect(list_, &inside);
    SendMessageW(list_, LVM_SETCOLUMNWIDTH, kName,
                 std::max<LONG>(40, inside.right - 2 * kIconColumnWidth));
}

std::vector<LayerList::Row> LayerList::rowsNow() const {
    std::vector<Row> rows;
    if (!hand_.hasDocument()) return rows;
    const Document& document = hand_.document();
    for (Art* layer = layerFrom(document.root().firstChild()); layer != nullptr;
         layer = nextLayerInPreorder(*layer)) {
        int depth = 0;
        for (const Art* up = parentLayer(*layer); up != nullptr; up = parentLayer(*up))
            ++depth;
        rows.push_back({layer->details().layer.title, layer->has(kArtHidden),
                        layer->has(kArtLocked), document.state().currentLayer == layer, depth});
    }
    return rows;
}

void LayerList::follow() {
    std::vector<Row> now = rowsNow();
    if (now == rows_ || isEditing()) return;
    filling_ = true;
    const bool sameCount = now.size() == rows_.size();
    rows_ = std::move(now);
    if (!sameCount) SendMessageW(list_, LVM_DELETEALLITEMS, 0, 0);
    for (std::size_t i = 0; i < rows_.size(); ++i) {
        if (!sameCount) {
            LVITEMW item = itemAt(i, kName, LVIF_TEXT);
            item.pszText = const_cast<wchar_t*>(L"");
            SendMessageW(list_, LVM_INSERTITEMW, 0, reinterpret_cast<LPARAM>(&item));
        }
        show(i);
    }
    filling_ = false;
}

void LayerList::show(std::size_t index) {
    const Row& row = rows_[index];
    std::wstring title = wide(row.title);
    LVITEMW name = itemAt(index, kName, LVIF_TEXT | LVIF_IMAGE | LVIF_INDENT | LVIF_STATE);
    name.pszText = title.data();
    name.iImage = kNoImage;
    name.iIndent = row.depth;
    name.stateMask = LVIS_SELECTED | LVIS_FOCUSED;
    name.state = row.current ? name.stateMask : 0;
    SendMessageW(list_, LVM_SETITEMW, 0, reinterpret_cast<LPARAM>(&name));
    for (const auto& [column, image] :
         {std::pair{kEye, row.hidden ? kNoImage : 0}, {kLock, row.locked ? 1 : kNoImage}}) {
        LVITEMW mark = itemAt(index, column, LVIF_IMAGE);
        mark.iImage = image;
        SendMessageW(list_, LVM_SETITEMW, 0, reinterpret_cast<LPARAM>(&mark));
    }
}

void LayerList::click(int index, int column) {
    if (index < 0 || index >= std::ssize(rows_)) return;
    const Row row = rows_[static_cast<std::size_t>(index)];
    const auto act = [&](const char* deed) {
        hand_.act(std::string("layer ") + deed + ' ' + script::quoted(row.title));
    };
    if (column == kEye)
        act(row.hidden ? "show" : "hide");
    else if (column == kLock)
        act(row.locked ? "unlock" : "lock");
    else if (!row.current)
        act("choose");
    if (rows_ == rowsNow() && column != kName) show(static_cast<std::size_t>(index));
}

bool LayerList::hear(const NMHDR& note, LRESULT& answer) {
    if (note.hwndFrom != list_) return false;
    answer = 0;
    // Of two clicks soon after one another each counts.
    if (note.code == static_cast<UINT>(NM_CLICK) || note.code == static_cast<UINT>(NM_DBLCLK)) {
        const auto& clicked = reinterpret_cast<const NMITEMACTIVATE&>(note);
        LVHITTESTINFO hit{};
        hit.pt = clicked.ptAction;
        SendMessageW(list_, LVM_SUBITEMHITTEST, 0, reinterpret_cast<LPARAM>(&hit));
        click(hit.iItem, hit.iSubItem);
    } else if (note.code == static_cast<UINT>(LVN_ITEMCHANGED) && !filling_) {
        const auto& changed = reinterpret_cast<const NMLISTVIEW&>(note);
        const bool byKeys =
            (changed.uNewState & LVIS_SELECTED) != 0 && GetKeyState(VK_LBUTTON) >= 0;
        if (byKeys) click(changed.iItem, kName);
    } else if (note.code == static_cast<UINT>(LVN_ENDLABELEDITW)) {
        const auto& edited = reinterpret_cast<const NMLVDISPINFOW&>(note);
        const auto index = static_cast<std::size_t>(edited.item.iItem);
        if (edited.item.pszText != nullptr && *edited.item.pszText != 0 && index < rows_.size())
            hand_.act("layer rename " + script::quoted(rows_[index].title) + ' ' +
                      script::quoted(utf8(edited.item.pszText)));
    } else {
        return false;
    }
    return true;
}

bool LayerList::command(int id) {
    if (id == firstId_ + 1 && hand_.hasDocument()) {
        int number = 1;
        const auto title = [&] { return "Layer " + std::to_string(number); };
        while (findLayer(hand_.document(), title()) != nullptr)
            ++number;
        hand_.act("layer add " + script::quoted(title()));
        return true;
    }
    if (id != firstId_ + 2) return false;
    for (const Row& row : rows_)
        if (row.current) {
            hand_.act("layer delete " + script::quoted(row.title));
            break;
        }
    return true;
}

bool LayerList::isEditing() const { return SendMessageW(list_, LVM_GETEDITCONTROL, 0, 0) != 0; }

} // namespace easel::window

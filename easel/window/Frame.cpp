#include "easel/window/Frame.h"

#include "easel/core/OutputFile.h"
#include "easel/document/SelectedArt.h"
#include "easel/paint/PaintDocument.h"
#include "easel/svg/Numbers.h"
#include "easel/svg/SvgFile.h"
#include "easel/window/Keys.h"

#include <windows.h>

#include <commctrl.h>
#include <commdlg.h>

#include <algorithm>
#include <cmath>

namespace easel::window {
namespace {

constexpr wchar_t kProgram[] = L"Easel";
constexpr int kFirstWidth = 1180;
constexpr int kFirstHeight = 820;
constexpr UINT_PTR kTickTimer = 1;
constexpr UINT kTickMilliseconds = 16;

// Ids of commands: the window's own in the order of their table, then tools, then plug-ins' items,
// then the drawings that are open.
constexpr int kFirstOwn = 100;
constexpr int kFirstTool = 1000;
constexpr int kFirstPluginItem = 2000;
constexpr int kFirstDrawing = 9000;
constexpr int kStatusId = 1;
constexpr int kToolBarId = 2;

constexpr BYTE kCtrl = FCONTROL;
constexpr BYTE kCtrlShift = FCONTROL | FSHIFT;

/// An item of the window's own. What a script has a line for is that line.
struct OwnItem {
    MenuPlace place;
    const wchar_t* text; ///< Null: a separator.
    const char* line = nullptr;
    void (*act)(Frame&) = nullptr;
    BYTE held = 0;
    WORD key = 0;
    BYTE otherHeld = 0; ///< A second key for the same.
    WORD otherKey = 0;
};
using enum MenuPlace;
constexpr OwnItem kItems[] = {
    {File, L"&New\tCtrl+N", nullptr, [](Frame& frame) { frame.makeNew(); }, kCtrl, 'N'},
    {File, L"&Open...\tCtrl+O", nullptr, [](Frame& frame) { frame.openFile(); }, kCtrl, 'O'},
    {File, nullptr},
    {File, L"&Save\tCtrl+S", nullptr, [](Frame& frame) { frame.save(); }, kCtrl, 'S'},
    {File, L"Save &As...\tCtrl+Shift+S", nullptr, [](Frame& frame) { frame.saveAs(); }, kCtrlShift,
     'S'},
    {File, L"&Export PNG...", nullptr, [](Frame& frame) { frame.exportPicture(); }},
    {File, nullptr},
    {File, L"&Close\tCtrl+W", nullptr, [](Frame& frame) { frame.closeDocument(); }, kCtrl, 'W'},
    {File, L"E&xit", nullptr, [](Frame& frame) { frame.exit(); }},
    {Edit, L"&Undo\tCtrl+Z", "undo", nullptr, kCtrl, 'Z'},
    {Edit, L"&Redo\tCtrl+Shift+Z", "redo", nullptr, kCtrlShift, 'Z', kCtrl, 'Y'},
    {Edit, nullptr},
    {Edit, L"&Delete\tDel", "clear", nullptr, 0, VK_DELETE},
    {Edit, L"Select &All\tCtrl+A", "select all", nullptr, kCtrl, 'A'},
    {Edit, L"D&eselect\tCtrl+Shift+A", "select none", nullptr, kCtrlShift, 'A'},
    {View, L"&Fit in Window\tCtrl+0", nullptr, [](Frame& frame) { frame.showAll(); }, kCtrl, '0'},
    {View, L"&100%\tCtrl+1", nullptr, [](Frame& frame) { frame.showActualSize(); }, kCtrl, '1'},
    {View, L"Zoom &In\tCtrl++", nullptr, [](Frame& frame) { frame.zoomIn(); }, kCtrl, VK_OEM_PLUS,
     kCtrl, VK_ADD},
    {View, L"Zoom &Out\tCtrl+-", nullptr, [](Frame& frame) { frame.zoomOut(); }, kCtrl,
     VK_OEM_MINUS, kCtrl, VK_SUBTRACT},
    {View, nullptr},
    {View, L"&Light", "theme light"},
    {View, L"&Dark", "theme dark"},
    {View, nullptr},
    {View, L"&Smart Guides\tCtrl+U", nullptr, [](Frame& frame) { frame.toggleSmartGuides(); },
     kCtrl, 'U'},
};

constexpr int commandOf(const OwnItem& item) {
    return kFirstOwn + static_cast<int>(&item - kItems);
}

HACCEL makeKeys() {
    std::vector<ACCEL> keys;
    for (const OwnItem& item : kItems) {
        const auto command = static_cast<WORD>(commandOf(item));
        for (const auto& [held, key] :
             {std::pair{item.held, item.key}, std::pair{item.otherHeld, item.otherKey}})
            if (key != 0) keys.push_back({static_cast<BYTE>(held | FVIRTKEY), key, command});
    }
    return CreateAcceleratorTableW(keys.data(), static_cast<int>(keys.size()));
}

std::string utf8Path(const std::filesystem::path& file) {
    const std::u8string text = file.generic_u8string();
    return {text.begin(), text.end()};
}

std::wstring titleOf(const Document& document) {
    return document.path.empty() ? L"Untitled" : document.path.filename().wstring();
}

std::size_t textOf(const Document& document) {
    return std::hash<std::string>{}(svg::svgText(document));
}

/// Where the copy of an unsaved drawing lies.
std::filesystem::path copyOf(const std::filesystem::path& file) {
    std::filesystem::path copy =
        file.empty() ? std::filesystem::temp_directory_path() / "Untitled.svg" : file;
    copy += ".unsaved";
    return copy;
}
constexpr ULONGLONG kCopyMilliseconds = 20'000;

script::PlayerSettings settingsOf(const WindowOptions& options) {
    script::PlayerSettings settings;
    settings.plugin = options.plugin;
    settings.folder = options.record.parent_path();
    settings.output = std::filesystem::current_path();
    settings.live = true;
    return settings;
}

} // namespace

Frame::Frame(Session& session, const WindowOptions& options)
    : options_(options), hand_(session, settingsOf(options)), menus_(hand_, kFirstPluginItem),
      tools_(hand_), swatches_(hand_), canvas_(hand_, figures_), dock_(hand_) {
    const HMENU bar = menus_.open();
    for (const OwnItem& item : kItems)
        AppendMenuW(menus_.at(item.place), item.text != nullptr ? MF_STRING : MF_SEPARATOR,
                    static_cast<UINT_PTR>(commandOf(item)), item.text);
    keys_ = makeKeys();
    create({.className = L"EaselFrame",
            .title = kProgram,
            .style = WS_OVERLAPPEDWINDOW | WS_CLIPCHILDREN,
            .menu = bar,
            .width = kFirstWidth,
            .height = kFirstHeight});
    dock_.open(handle());
    Host& bare = hand_.player.bareHost();
    hand_.owner = handle();
    bare.user.appWindow = reinterpret_cast<AIWindowRef>(handle());
    bare.panels.dock = {reinterpret_cast<AIPanelPlatformWindow>(dock_.handle()),
                        [this] { arrange(); }};
    static_cast<void>(hand_.host()); // starts the plug-in
    canvas_.open(handle());
    status_ = makeControl(STATUSCLASSNAMEW, L"", SBARS_SIZEGRIP, handle(), kStatusId);
    tools_.open(handle(), kToolBarId, kFirstTool);
    swatches_.open(handle());
    hand_.settled = [this] { follow(); };
    arrange();
}

Frame::~Frame() {
    hand_.settled = nullptr;
    hand_.player.bareHost().panels.dock.changed = nullptr;
    if (keys_ != nullptr) DestroyAcceleratorTable(keys_);
}

std::vector<std::string> Frame::run() {
    ShowWindow(handle(), SW_SHOWNORMAL); // first: opening may have a question
    SetFocus(canvas_.handle());
    SetTimer(handle(), kTickTimer, kTickMilliseconds, nullptr);
    if (options_.file.empty())
        makeNew();
    else
        open(options_.file);
    MSG message;
    while (!closing_ && GetMessageW(&message, nullptr, 0, 0) > 0) {
        if (takesKey(message)) continue;
        TranslateMessage(&message);
        DispatchMessageW(&message);
        // The system thinks of paint and timers when there is no input left, and a quick mouse has
        // more.
        if (GetTickCount64() - tickedAt_ <= kTickMilliseconds) continue;
        tick();
        UpdateWindow(canvas_.handle());
    }
    KillTimer(handle(), kTickTimer);
    keepAgainAt_ = 0;
    keepRecord();
    return hand_.player.finish();
}

// Messages

LRESULT Frame::handleMessage(UINT message, WPARAM first, LPARAM second) {
    switch (message) {
    case WM_SIZE:
        if (first != SIZE_MINIMIZED) arrange();
        return 0;
    case WM_TIMER:
        tick();
        return 0;
    case WM_INITMENUPOPUP:
        refreshMenu(reinterpret_cast<HMENU>(first));
        return 0;
    case WM_COMMAND:
        command(LOWORD(first));
        return 0;
    case WM_NOTIFY: {
        const auto& note = *reinterpret_cast<const NMHDR*>(second);
        if (note.code != static_cast<UINT>(TTN_GETDISPINFOW)) break;
        auto& tip = *reinterpret_cast<NMTTDISPINFOW*>(second);
        const std::wstring text = tools_.tipOf(static_cast<int>(note.idFrom));
        text.copy(tip.szText, std::size(tip.szText) - 1);
        return 0;
    }
    case WM_MOUSEWHEEL:
        return SendMessageW(canvas_.handle(), message, first, second);
    case WM_ACTIVATE:
        if (LOWORD(first) != WA_INACTIVE && canvas_.handle() != nullptr) SetFocus(canvas_.handle());
        return 0;
    case WM_SYSCOMMAND:
        // Alt is a key of the tools: let go alone it must not take the keyboard to the menus.
        if ((first & 0xFFF0U) == SC_KEYMENU && second == 0) return 0;
        break;
    case WM_CLOSE:
        exit();
        return 0;
    default:
        break;
    }
    return unhandled(message, first, second);
}

/// Keys belong to the field that is typed in; else to the menus first, then to the canvas.
bool Frame::takesKey(const MSG& message) {
    if (message.message != WM_KEYDOWN && message.message != WM_KEYUP &&
        message.message != WM_SYSKEYDOWN && message.message != WM_SYSKEYUP)
        return false;
    wchar_t type[16] = {};
    const HWND focus = GetFocus();
    if (focus != nullptr) GetClassNameW(focus, type, 16);
    if (std::wstring_view(type) == L"Edit" || GetActiveWindow() != handle()) return false;
    MSG copy = message;
    if (TranslateAcceleratorW(handle(), keys_, &copy) != 0) return true;
    if (focus != nullptr && focus != canvas_.handle() && focus != handle()) return false;
    constexpr LPARAM kRepeated = LPARAM{1} << 30;
    const bool down = message.message == WM_KEYDOWN || message.message == WM_SYSKEYDOWN;
    const bool repeated = down && (message.lParam & kRepeated) != 0;
    if (hand_.hasDocument() && message.message == WM_KEYDOWN && nudge(message.wParam)) return true;
    if (!hand_.hasDocument() || !isNamedKey(message.wParam)) return false;
    constexpr WPARAM kSmaller = VK_OEM_4; // [
    constexpr WPARAM kLarger = VK_OEM_6;  // ]
    if (down && (message.wParam == kSmaller || message.wParam == kLarger))
        hand_.act(message.wParam == kSmaller ? "key [" : "key ]");
    else if (down && message.wParam == VK_ESCAPE && hand_.host().tools.current == nullptr)
        hand_.act("finish");
    else if (!repeated)
        canvas_.tellKeys();
    return message.message == WM_KEYDOWN || message.message == WM_KEYUP;
}

/// The arrow keys move what is selected, with Shift ten times as far.
bool Frame::nudge(WPARAM key) {
    if (key < VK_LEFT || key > VK_DOWN || hand_.script.isBusy()) return false;
    if (selectedArt(hand_.document()).empty()) return true;
    constexpr int kWays[][2] = {{-1, 0}, {0, -1}, {1, 0}, {0, 1}}; // left, up, right, down
    const auto& way = kWays[key - VK_LEFT];
    const int times = isDown(VK_SHIFT) ? 10 : 1;
    return hand_.act("nudge " + std::to_string(times * way[0]) + ' ' +
                     std::to_string(times * way[1]));
}

void Frame::command(int id) {
    const int own = id - kFirstOwn;
    if (own >= 0 && own < std::ssize(kItems)) {
        const OwnItem& item = kItems[own];
        if (hand_.script.isBusy()) return;
        if (item.act != nullptr) return item.act(*this);
        const bool needsDrawing = item.place == Edit;
        if (needsDrawing && !hand_.hasDocument()) return;
        const UndoLog* const history = needsDrawing ? &hand_.document().undo() : nullptr;
        if (std::string_view(item.line) == "undo" && history->pastSteps() == 0) return;
        if (std::string_view(item.line) == "redo" && history->futureSteps() == 0) return;
        hand_.act(item.line);
        return;
    }
    if (id >= kFirstDrawing) {
        hand_.act("switch " + std::to_string(id - kFirstDrawing + 1));
        return;
    }
    if (!tools_.choose(id)) menus_.choose(id);
}

void Frame::refreshMenu(HMENU menu) {
    menus_.refresh(menu);
    const bool open = hand_.hasDocument();
    if (menu == menus_.at(MenuPlace::Window)) {
        int number = 0;
        for (const auto& document : hand_.host().documents()) {
            if (number == 0) AppendMenuW(menu, MF_SEPARATOR, 0, nullptr);
            const bool front = open && document.get() == &hand_.document();
            AppendMenuW(menu, MF_STRING | (front ? MF_CHECKED : MF_UNCHECKED),
                        static_cast<UINT_PTR>(kFirstDrawing + number++),
                        titleOf(*document).c_str());
        }
    }
    for (const OwnItem& item : kItems) {
        if (item.text == nullptr || menus_.at(item.place) != menu) continue;
        bool enabled = open || item.place == View || item.act != nullptr;
        bool checked = false;
        std::wstring text = item.text;
        const std::string_view line = item.line != nullptr ? item.line : "";
        if (open && (line == "undo" || line == "redo")) {
            const UndoLog& history = hand_.document().undo();
            const std::string named = line == "undo" ? history.undoText() : history.redoText();
            enabled = (line == "undo" ? history.pastSteps() : history.futureSteps()) > 0;
            if (!named.empty()) text = wide(named) + text.substr(text.find(L'\t'));
        }
        const bool dark = hand_.host().user.darkTheme;
        if (line.starts_with("theme")) checked = dark == (line == "theme dark");
        if (commandOf(item) == commandOf(kItems[std::size(kItems) - 1]))
            checked = hand_.host().cursorSnap.enabled;
        MENUITEMINFOW info{};
        info.cbSize = sizeof info;
        info.fMask = MIIM_STRING | MIIM_STATE;
        info.dwTypeData = text.data();
        info.fState = (enabled ? MFS_ENABLED : MFS_DISABLED) | (checked ? MFS_CHECKED : 0U);
        SetMenuItemInfoW(menu, static_cast<UINT>(commandOf(item)), FALSE, &info);
    }
}

void Frame::arrange() {
    if (status_ == nullptr || swatches_.handle() == nullptr) return;
    SendMessageW(status_, WM_SIZE, 0, 0);
    RECT bottom{};
    GetWindowRect(status_, &bottom);
    const SIZE area = size();
    const LONG statusTop = area.cy - (bottom.bottom - bottom.top);
    const LONG top = tools_.height();
    const LONG dockLeft = std::max<LONG>(0, area.cx - dock_.width());
    const LONG swatches = std::max<LONG>(0, area.cx - Swatches::width());
    placeWindow(tools_.handle(), {0, 0, swatches, top});
    swatches_.place({swatches, 0, area.cx, top});
    dock_.place({dockLeft, top, area.cx, statusTop});
    dock_.arrange();
    canvas_.place({0, top, dockLeft, std::max(top, statusTop)});
}

/// After each act: everything shows what has become of the host.
void Frame::follow() {
    const Document* const front = hand_.hasDocument() ? &hand_.document() : nullptr;
    if (std::exchange(front_, front) != front) {
        canvas_.fitView();
        InvalidateRect(canvas_.handle(), nullptr, FALSE);
        const std::wstring title =
            front != nullptr ? titleOf(*front) + L" - " + kProgram : kProgram;
        SetWindowTextW(handle(), title.c_str());
    }
    canvas_.follow();
    tools_.follow();
    dock_.layers.follow();
    showStatus();
}

void Frame::showStatus() {
    std::wstring text;
    if (hand_.hasDocument()) {
        Host& host = hand_.host();
        const auto percent = std::lround(static_cast<double>(hand_.player.view().zoom) * 100);
        text = std::to_wstring(percent) + L"%";
        struct Variable {
            ai::int32 number;
            const wchar_t* name;
        };
        constexpr Variable kVariables[] = {{15, L"X"}, {16, L"Y"},       {2, L"W"},
                                           {3, L"H"},  {4, L"Distance"}, {5, L"Angle"}};
        const Tool* const tool = host.tools.tools.find(host.tools.current);
        for (const Variable& variable : kVariables) {
            const auto value = host.tools.infoValues.find(variable.number);
            if (tool == nullptr || value == host.tools.infoValues.end()) continue;
            if (std::ranges::count(tool->infoVariables, variable.number) == 0) continue;
            const double rounded = std::round(value->second * 100) / 100;
            text +=
                std::wstring(L"    ") + variable.name + L": " + wide(svg::formatNumber(rounded));
        }
    }
    if (std::exchange(statusText_, text) != text)
        SendMessageW(status_, SB_SETTEXTW, 0, reinterpret_cast<LPARAM>(text.c_str()));
}

void Frame::tick() {
    tickedAt_ = GetTickCount64();
    figures_.tell(handle(), canvas_.handle());
    hand_.passTime();
    if (GetActiveWindow() == handle() && GetFocus() == nullptr) SetFocus(canvas_.handle());
    if (hand_.script.isBusy()) return;
    keepRecord();
    if (hand_.host().contexts.depth() == 0) keepCopies();
}

// What the menu items do

void Frame::makeNew() {
    hand_.act("new 800 600");
    noteSaved();
    canvas_.showAll();
}

void Frame::open(const std::filesystem::path& file) {
    const std::filesystem::path whole = std::filesystem::absolute(file);
    const std::wstring question = L"\"" + whole.filename().wstring() +
                                  L"\" was not closed properly. Open the copy with its last "
                                  L"changes instead?";
    const bool useCopy =
        std::filesystem::exists(copyOf(whole)) &&
        MessageBoxW(handle(), question.c_str(), kProgram, MB_YESNO | MB_ICONQUESTION) == IDYES;
    const std::filesystem::path source = useCopy ? copyOf(whole) : whole;
    if (!hand_.act("open " + script::quoted(utf8Path(source)),
                   "open " + script::quoted(nameInScript(source))))
        return;
    hand_.document().path = whole;
    if (std::filesystem::exists(copyOf(whole))) copiedTexts_[&hand_.document()] = 0;
    front_ = nullptr; // the title is another
    noteSaved();
    if (useCopy) { // it differs from the file
        savedTexts_.erase(&hand_.document());
        hand_.document().setModified(true);
    }
    follow();
    canvas_.showAll();
}

void Frame::openFile() {
    const std::filesystem::path file = askForFile(false, L"Drawings (*.svg)\0*.svg\0", L"svg");
    if (!file.empty()) open(file);
}

bool Frame::saveTo(const std::filesystem::path& file) {
    const std::string kept = utf8Path(file.filename());
    if (!hand_.act("save " + script::quoted(utf8Path(file)), "save " + script::quoted(kept)))
        return false;
    dropCopy(hand_.document());
    hand_.document().path = file;
    noteSaved();
    front_ = nullptr; // the title has changed
    follow();
    return true;
}

bool Frame::save() {
    if (!hand_.hasDocument()) return false;
    const std::filesystem::path file = hand_.document().path;
    return file.empty() ? saveAs() : saveTo(file);
}

bool Frame::saveAs() {
    if (!hand_.hasDocument()) return false;
    const std::filesystem::path file = askForFile(true, L"Drawings (*.svg)\0*.svg\0", L"svg");
    return !file.empty() && saveTo(file);
}

void Frame::exportPicture() {
    if (!hand_.hasDocument()) return;
    const std::filesystem::path file = askForFile(true, L"Pictures (*.png)\0*.png\0", L"png");
    if (file.empty()) return;
    try {
        paint::writePng(paint::paintDocument(hand_.document()), file);
    } catch (const std::exception& error) {
        hand_.complain(error.what());
    }
}

bool Frame::mayClose(Document& document) {
    if (!document.isModified() || savedTexts_[&document] == textOf(document)) return true;
    const std::wstring question = L"Save the changes to \"" + titleOf(document) + L"\"?";
    switch (MessageBoxW(handle(), question.c_str(), kProgram, MB_YESNOCANCEL | MB_ICONQUESTION)) {
    case IDYES:
        return save();
    case IDNO:
        return true;
    default:
        return false;
    }
}

void Frame::noteSaved() {
    if (hand_.hasDocument()) savedTexts_[&hand_.document()] = textOf(hand_.document());
}

void Frame::keepCopies() {
    const ULONGLONG now = GetTickCount64();
    if (now - copiedAt_ < kCopyMilliseconds) return;
    copiedAt_ = now;
    for (const auto& document : hand_.host().documents()) {
        if (!document->isModified()) continue;
        const std::string text = svg::svgText(*document);
        const std::size_t hash = std::hash<std::string>{}(text);
        if (hash == savedTexts_[document.get()] || hash == copiedTexts_[document.get()]) continue;
        try {
            writeFile(copyOf(document->path), text);
            copiedTexts_[document.get()] = hash;
        } catch (const std::exception& error) {
            hand_.complain(error.what());
        }
    }
}

void Frame::dropCopy(const Document& document) {
    if (copiedTexts_.erase(&document) == 0) return;
    std::error_code ignored; // there may be none any more
    std::filesystem::remove(copyOf(document.path), ignored);
}

void Frame::closeDocument() {
    if (!hand_.hasDocument()) return;
    Document& document = hand_.document();
    if (!mayClose(document)) return;
    dropCopy(document);
    savedTexts_.erase(&document);
    hand_.act("close");
}

void Frame::exit() {
    if (hand_.script.isBusy()) return;
    for (std::size_t i = 0; i < hand_.host().documents().size(); ++i) {
        Document& document = *hand_.host().documents()[i];
        if (!document.isModified() || savedTexts_[&document] == textOf(document)) continue;
        const bool inFront =
            &document == &hand_.document() || hand_.act("switch " + std::to_string(i + 1));
        if (!inFront || !mayClose(document)) return; // what is saved is the drawing in front
    }
    for (const auto& document : hand_.host().documents())
        dropCopy(*document);
    closing_ = true;
    PostMessageW(handle(), WM_NULL, 0, 0); // ends the loop's wait
}

void Frame::showActualSize() {
    const SIZE area = canvas_.size();
    canvas_.zoomAt({area.cx / 2, area.cy / 2}, 1);
}

void Frame::toggleSmartGuides() {
    hand_.act(hand_.host().cursorSnap.enabled ? "smart-guides off" : "smart-guides on");
}

std::filesystem::path Frame::askForFile(bool toSave, const wchar_t* filter,
                                        const wchar_t* extension) const {
    wchar_t name[MAX_PATH] = {};
    OPENFILENAMEW request{};
    request.lStructSize = sizeof request;
    request.hwndOwner = handle();
    request.lpstrFilter = filter;
    request.lpstrFile = name;
    request.nMaxFile = MAX_PATH;
    request.lpstrDefExt = extension;
    request.Flags = OFN_NOCHANGEDIR | OFN_HIDEREADONLY |
                    (toSave ? OFN_OVERWRITEPROMPT : OFN_FILEMUSTEXIST | OFN_PATHMUSTEXIST);
    const BOOL chosen = toSave ? GetSaveFileNameW(&request) : GetOpenFileNameW(&request);
    return chosen != FALSE ? std::filesystem::path(name) : std::filesystem::path();
}

std::string Frame::nameInScript(const std::filesystem::path& file) const {
    const std::filesystem::path whole = std::filesystem::absolute(file);
    if (options_.record.empty()) return utf8Path(whole);
    const std::filesystem::path folder = std::filesystem::absolute(options_.record).parent_path();
    const std::filesystem::path inside = whole.lexically_relative(folder);
    return utf8Path(inside.empty() || *inside.begin() == ".." ? whole : inside);
}

void Frame::keepRecord() {
    const ULONGLONG now = GetTickCount64();
    if (options_.record.empty() || keptVersion_ == hand_.script.version() || now < keepAgainAt_)
        return;
    keptVersion_ = hand_.script.version();
    try {
        writeFile(options_.record, hand_.script.text());
    } catch (const std::exception& error) {
        hand_.complain(error.what());
    }
    constexpr ULONGLONG kRestAfter = 50; // a long script takes its time, but not the window's
    keepAgainAt_ = now + kRestAfter * (GetTickCount64() - now);
}

} // namespace easel::window

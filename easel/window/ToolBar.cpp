#include "easel/window/ToolBar.h"

#include "easel/window/NativeWindow.h"
#include "easel/window/Pictures.h"

#include <windows.h>

#include <commctrl.h>

#include <algorithm>

namespace easel::window {
namespace {

struct OwnTool {
    const char* name;
    const wchar_t* title;
};
constexpr OwnTool kOwnTools[] = {
    {"Adobe Select Tool", L"Select"},       {"Adobe Pen Tool", L"Pen"},
    {"Easel Pencil Tool", L"Pencil"},       {"Easel Line Tool", L"Line"},
    {"Easel Rectangle Tool", L"Rectangle"}, {"Easel Ellipse Tool", L"Ellipse"},
};

HIMAGELIST newImages() { return ImageList_Create(kIconSide, kIconSide, ILC_COLOR32, 8, 4); }

} // namespace

void ToolBar::open(HWND parent, int id, int firstCommand) {
    firstCommand_ = firstCommand;
    constexpr DWORD kStyle = TBSTYLE_FLAT | TBSTYLE_TOOLTIPS | CCS_NODIVIDER | CCS_NORESIZE;
    bar_ = makeControl(TOOLBARCLASSNAMEW, L"", kStyle, parent, id);
    SendMessageW(bar_, TB_BUTTONSTRUCTSIZE, sizeof(TBBUTTON), 0);
    fill();
}

void ToolBar::fill() {
    const Host& host = hand_.host();
    dark_ = host.user.darkTheme;
    while (SendMessageW(bar_, TB_DELETEBUTTON, 0, 0) != 0) {
    }
    tools_.clear();
    const HIMAGELIST images = newImages();
    const auto add = [&](const std::string& name, const std::wstring& title, const Pixels& icon) {
        TBBUTTON button{};
        button.iBitmap = ImageList_Add(images, icon.bitmap(), nullptr);
        button.idCommand = firstCommand_ + static_cast<int>(tools_.size());
        button.fsState = TBSTATE_ENABLED;
        button.fsStyle = BTNS_CHECK;
        SendMessageW(bar_, TB_ADDBUTTONSW, 1, reinterpret_cast<LPARAM>(&button));
        tools_.push_back({name, title});
    };
    for (const OwnTool& tool : kOwnTools)
        add(tool.name, tool.title, ownIcon(tool.name));
    for (const auto& [handle, tool] : host.tools.tools)
        add(tool->name, wide(tool->title), toolIcon(host, *tool));
    const auto former = reinterpret_cast<HIMAGELIST>(
        SendMessageW(bar_, TB_SETIMAGELIST, 0, reinterpret_cast<LPARAM>(images)));
    if (former != nullptr) ImageList_Destroy(former);
    SendMessageW(bar_, TB_SETBUTTONSIZE, 0, MAKELPARAM(kIconSide + 8, kIconSide + 8));
}

void ToolBar::follow() {
    const Host& host = hand_.host();
    if (dark_ != host.user.darkTheme) fill();
    const std::string current = host.tools.nameOf(host.tools.currentNumber());
    for (std::size_t i = 0; i < tools_.size(); ++i) {
        const int command = firstCommand_ + static_cast<int>(i);
        const bool checked =
            SendMessageW(bar_, TB_ISBUTTONCHECKED, static_cast<WPARAM>(command), 0) != 0;
        if (checked != (tools_[i].name == current))
            SendMessageW(bar_, TB_CHECKBUTTON, static_cast<WPARAM>(command),
                         MAKELPARAM(tools_[i].name == current, 0));
    }
}

int ToolBar::indexOf(int command) const {
    const int index = command - firstCommand_;
    return index >= 0 && index < std::ssize(tools_) ? index : -1;
}

std::wstring ToolBar::tipOf(int command) const {
    const int index = indexOf(command);
    return index < 0 ? std::wstring() : tools_[static_cast<std::size_t>(index)].title;
}

bool ToolBar::choose(int command) {
    const int index = indexOf(command);
    if (index < 0) return false;
    const LONG now = GetMessageTime();
    const bool again =
        index == lastChosen_ && now - lastChosenAt_ <= static_cast<LONG>(GetDoubleClickTime());
    lastChosen_ = again ? -1 : index;
    lastChosenAt_ = now;
    hand_.act(again ? "tool options"
                    : "tool " + script::quoted(tools_[static_cast<std::size_t>(index)].name));
    follow(); // the system has checked the button by itself
    return true;
}

int ToolBar::height() const { return HIWORD(SendMessageW(bar_, TB_GETBUTTONSIZE, 0, 0)) + 4; }

} // namespace easel::window

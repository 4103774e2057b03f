#pragma once

#include "toolkit/ImplWin/WinPeers.h"
#include "toolkit/Toolkit.h"

#include <functional>
#include <map>
#include <memory>
#include <string>
#include <vector>

namespace NRDM::tests {

using Log = std::vector<std::string>;

/// An item that writes down what its peer reports, and follows a slider or field as a model would.
class StagedItem final : public ItemEvents {
public:
    StagedItem(ItemView itemView, Log& log) : view(std::move(itemView)), log_(log) {}

    [[nodiscard]] HWND window() const { return static_cast<HWND>(peer->window()); }
    /// The edit inside a field.
    [[nodiscard]] HWND field() const { return FindWindowExW(window(), nullptr, L"EDIT", nullptr); }

    ItemView view;
    std::unique_ptr<ItemPeer> peer;
    bool accepts = true;           ///< what `commit` answers
    std::function<void()> onClick; ///< done besides writing it down

    void pressed() override {}
    void clicked() override;
    void typed(const std::string& text) override;
    bool commit() override;
    void revert() override;
    void step(int steps, bool large, Phase phase) override;
    void slide(double value, Phase phase) override;
    void choose(int entry) override;
    void activated(bool active) override { log_.emplace_back(active ? "focus" : "blur"); }
    void draw(CoADMDrawer&) override;
    bool track(const TrackInput& input) override;

    std::function<void(CoADMDrawer&)> onDraw;

private:
    Log& log_;
};

/// A user's hands. Messages are served by `pump` only, which all others end with.
class Hands {
public:
    /// Serves messages until there are none, or for that long; counts how often each window is
    /// painted.
    void pump(int milliseconds = 0);
    [[nodiscard]] int paintsOf(HWND window) const;
    [[nodiscard]] int paints() const;
    void forgetPaints() { paints_.clear(); }

    // Input, as from the user's hand. Points are pixels of the window.
    void move(HWND window, POINT point);
    void press(HWND window, POINT point);
    void release();
    void click(HWND window, POINT point);
    void clickMiddle(HWND window);
    void wheel(int notches);
    void key(WORD key);
    void keyWith(WORD modifier, WORD key);
    void type(const std::wstring& text);
    /// Opens a menu and strikes keys in it.
    void useMenu(const std::function<void()>& open, const std::vector<WORD>& keys);

private:
    std::map<HWND, int> paints_;
};

/// A dialog on the screen, and hands to use it with.
class Stage final : public DialogEvents, public Hands {
public:
    using Hands::key;

    explicit Stage(DialogKind kind = DialogKind::Floating, Extent size = {320, 240});
    ~Stage();

    StagedItem& add(ItemView view);
    void open();
    void close();

    [[nodiscard]] HWND window() const { return static_cast<HWND>(peer->window()); }
    [[nodiscard]] static COLORREF pixel(HWND window, POINT point);

    Themes themes; ///< of `peers`
    WinPeers peers;
    DialogView view;
    std::unique_ptr<DialogPeer> peer;
    Log log;
    bool usesKeys = false; ///< what `key` answers
    int failures = 0;      ///< exceptions that reached `Screen::failed`
    std::function<void()> onClose;

    bool key(DialogKey key, char32_t letter) override;
    void closeRequested() override;
    void resized(Extent) override {}
    void draw(CoADMDrawer&) override {}
    void timerFired(int) override {}
    bool track(const TrackInput&) override { return false; }

private:
    std::vector<std::unique_ptr<StagedItem>> items_;
};

/// A view with what the tests need of it.
[[nodiscard]] ItemView itemView(ControlKind kind, Bounds bounds, std::string text = {});

/// Does something a while after a loop has begun to serve messages.
void soon(std::function<void()> act);

/// The popup of an item of `dialog` that is open, or null.
[[nodiscard]] HWND popupOf(HWND dialog);
/// The window of its tips, or null.
[[nodiscard]] HWND tipOf(HWND dialog);

/// A window as the host's.
struct Owner {
    HWND window = CreateWindowExW(0, L"STATIC", L"Host", WS_OVERLAPPEDWINDOW | WS_VISIBLE, 0, 0,
                                  400, 300, nullptr, nullptr, nullptr, nullptr);
    ~Owner() { DestroyWindow(window); }
};

/// How many GDI objects this process has, counted in the table that Windows keeps of them.
[[nodiscard]] int gdiObjects();
/// How many windows this thread has, children and those without a place on the screen included.
[[nodiscard]] int windows();
/// How many menus this process has.
[[nodiscard]] int menus();

} // namespace NRDM::tests

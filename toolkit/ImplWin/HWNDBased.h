#pragma once

#include "toolkit/ImplWin/Screen.h"

#include <memory>
#include <string>

namespace NRDM {

[[nodiscard]] std::wstring windowTextOf(HWND window);

/// A window and what it does. The window goes when this does.
///
/// Messages arrive at `serve`; an exception there ends at `failed`. While a message is served the
/// model may destroy the window's object: whoever calls out and goes on afterwards asks `watch()`.
///
/// Others may hook themselves in before our procedure, as the host and its other plug-ins do. So a
/// window's object is found through a property of the window, never by comparing procedures; and a
/// procedure once put in stays until the window ends, or the hooks after it would be cut off.
class HWNDBased {
public:
    virtual ~HWNDBased();
    HWNDBased(const HWNDBased&) = delete;
    HWNDBased& operator=(const HWNDBased&) = delete;

    [[nodiscard]] HWND handle() const noexcept { return window_; }
    [[nodiscard]] Screen& screen() const noexcept { return *screen_; }
    [[nodiscard]] RECT client() const;

    /// Marks the whole window for painting, or `area` of it.
    void repaint() const;
    void repaint(const RECT& area) const;

    /// The object behind a window of the toolkit's own; null for any other.
    [[nodiscard]] static HWNDBased* objectOf(HWND window) noexcept;

    /// The procedure of the toolkit's window class.
    static LRESULT CALLBACK procedure(HWND window, UINT message, WPARAM wide, LPARAM lengthy);

protected:
    struct Plan {
        const wchar_t* systemClass = nullptr; ///< "BUTTON" or "EDIT"; null: the toolkit's own
        const wchar_t* title = L"";
        DWORD style = WS_CHILD;
        DWORD extendedStyle = 0;
        RECT place{}; ///< in pixels of the parent
        HWND parent = nullptr;
        INT_PTR id = 0;
    };

    explicit HWNDBased(Screen& screen) : screen_(screen.shared_from_this()) {}

    /// Throws `NRDMResourceException`.
    void create(const Plan& plan);

    /// Ends the window while the object still is what it is; harmless when done twice.
    void destroy() noexcept;

    /// Answers a message; this one does what the window's class does.
    virtual LRESULT serve(UINT message, WPARAM wide, LPARAM lengthy);

    /// Draws the whole window, `area` its client rectangle. What it draws is shown at once.
    virtual void paint(const Canvas& canvas, const RECT& area) = 0;

    /// Called inside the handler of an exception that `serve` let out.
    virtual void failed() noexcept;

    [[nodiscard]] virtual Scale scale() const = 0;
    [[nodiscard]] virtual const Palette& palette() const = 0;

    /// Expired as soon as this object is gone.
    [[nodiscard]] std::weak_ptr<const char> watch() const { return life_; }

    /// Paints what is marked on `target`, through an off-screen surface.
    void paintOn(HDC target, const RECT& marked);

private:
    struct Bond;

    LRESULT servePaint();

    std::shared_ptr<Screen> screen_;
    HWND window_ = nullptr;
    WNDPROC classProcedure_ = DefWindowProcW; ///< what the window's class does
    std::shared_ptr<const char> life_ = std::make_shared<const char>();
};

} // namespace NRDM

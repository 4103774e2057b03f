#pragma once

#include <windows.h>

namespace NRDM {

/// The one window class of the toolkit. There from the first window on, for as long as the library
/// is loaded.
///
/// Its name holds the address of a variable of this library: each library that carries the toolkit
/// in the same process has a class of its own.
class WindowClass {
public:
    /// Throws `NRDMResourceException`.
    [[nodiscard]] static const WindowClass& ofLibrary();

    [[nodiscard]] const wchar_t* name() const noexcept { return MAKEINTATOM(class_); }

    /// The library that the class and its windows belong to.
    [[nodiscard]] static HINSTANCE library() noexcept;

    WindowClass(const WindowClass&) = delete;
    WindowClass& operator=(const WindowClass&) = delete;

private:
    WindowClass();
    ~WindowClass();

    ATOM class_ = 0;
};

} // namespace NRDM

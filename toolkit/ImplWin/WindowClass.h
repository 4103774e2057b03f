#pragma once

#include <windows.h>

#include <string>

namespace NRDM {

/// The one window class of the toolkit, registered while this lives.
///
/// Its name holds the address of a variable of this library: each library that carries the toolkit
/// in the same process has a class of its own.
class WindowClass {
public:
    /// Throws `NRDMResourceException`.
    explicit WindowClass(WNDPROC procedure);
    ~WindowClass();
    WindowClass(const WindowClass&) = delete;
    WindowClass& operator=(const WindowClass&) = delete;

    [[nodiscard]] const wchar_t* name() const noexcept { return MAKEINTATOM(atom_); }

    /// The library that the class and its windows belong to.
    [[nodiscard]] static HINSTANCE library() noexcept;

private:
    ATOM atom_ = 0;
};

} // namespace NRDM

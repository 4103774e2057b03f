#pragma once

#include <windows.h>

#include <objidl.h>

#include <gdiplus.h>

namespace easel::paint {

/// Keeps GDI+ running. Starting it takes longer than a picture of the canvas; it counts its starts,
/// so that one within another costs nothing.
class RunningGdiplus {
public:
    RunningGdiplus() {
        const Gdiplus::GdiplusStartupInput input;
        Gdiplus::GdiplusStartup(&token_, &input, nullptr);
    }
    ~RunningGdiplus() { Gdiplus::GdiplusShutdown(token_); }
    RunningGdiplus(const RunningGdiplus&) = delete;
    RunningGdiplus& operator=(const RunningGdiplus&) = delete;

private:
    ULONG_PTR token_ = 0;
};

} // namespace easel::paint

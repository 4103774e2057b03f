#pragma once

/// GDI+, included as its headers want it, and its lifetime.

#include <windows.h>

#include <objidl.h>

#include <gdiplus.h>

namespace NRDM {

/// GDI+ is usable while one of these lives. Throws `NRDMResourceException` when it cannot start.
class GdiPlusSession {
public:
    GdiPlusSession();
    ~GdiPlusSession() { Gdiplus::GdiplusShutdown(token_); }
    GdiPlusSession(const GdiPlusSession&) = delete;
    GdiPlusSession& operator=(const GdiPlusSession&) = delete;

private:
    ULONG_PTR token_ = 0;
};

} // namespace NRDM

#include "easel/window/Swatches.h"

#include <windowsx.h>

#include <string>

namespace easel::window {
namespace {

struct Colour {
    const char* name;
    COLORREF shown;
};
constexpr Colour kColours[] = {
    {"none", RGB(255, 255, 255)},    {"#000000", RGB(0, 0, 0)},
    {"#ffffff", RGB(255, 255, 255)}, {"#808080", RGB(128, 128, 128)},
    {"#c62828", RGB(198, 40, 40)},   {"#ef6c00", RGB(239, 108, 0)},
    {"#f9a825", RGB(249, 168, 37)},  {"#2e7d32", RGB(46, 125, 50)},
    {"#00838f", RGB(0, 131, 143)},   {"#1565c0", RGB(21, 101, 192)},
    {"#6a1b9a", RGB(106, 27, 154)},
};
constexpr int kColourCount = static_cast<int>(std::size(kColours));
constexpr int kWidths[] = {1, 2, 4, 8};
constexpr int kWidthCount = static_cast<int>(std::size(kWidths));
constexpr int kSide = 20;
constexpr int kGap = 4;

RECT cellAt(int index) {
    const int left = kGap + index * (kSide + kGap);
    return {left, kGap + 4, left + kSide, kGap + 4 + kSide};
}

} // namespace

int Swatches::width() { return kGap + (kColourCount + kWidthCount) * (kSide + kGap); }

void Swatches::open(HWND parent) { create({.className = L"EaselSwatches", .parent = parent}); }

void Swatches::paint() {
    PAINTSTRUCT request{};
    const HDC dc = BeginPaint(handle(), &request);
    const HGDIOBJ formerPen = SelectObject(dc, GetStockObject(DC_PEN));
    const HGDIOBJ formerBrush = SelectObject(dc, GetStockObject(DC_BRUSH));
    for (int i = 0; i < kColourCount + kWidthCount; ++i) {
        const RECT cell = cellAt(i);
        const bool isColour = i < kColourCount;
        SetDCPenColor(dc, RGB(120, 120, 120));
        SetDCBrushColor(dc, isColour ? kColours[i].shown : RGB(255, 255, 255));
        Rectangle(dc, cell.left, cell.top, cell.right, cell.bottom);
        if (i == 0) { // nothing: a stroke through it
            SetDCPenColor(dc, RGB(198, 40, 40));
            MoveToEx(dc, cell.left + 2, cell.bottom - 3, nullptr);
            LineTo(dc, cell.right - 2, cell.top + 1);
        }
        if (!isColour) {
            const int half = kWidths[i - kColourCount];
            const int middle = (cell.top + cell.bottom) / 2;
            const RECT line{cell.left + 3, middle - half / 2, cell.right - 3,
                            middle - half / 2 + half};
            SetDCBrushColor(dc, RGB(0, 0, 0));
            FillRect(dc, &line, static_cast<HBRUSH>(GetStockObject(DC_BRUSH)));
        }
    }
    SelectObject(dc, formerPen);
    SelectObject(dc, formerBrush);
    EndPaint(handle(), &request);
}

void Swatches::choose(int x, bool stroke) {
    const int index = (x - kGap) / (kSide + kGap);
    if (x < kGap || index >= kColourCount + kWidthCount || !hand_.hasDocument()) return;
    if (index < kColourCount)
        hand_.act(std::string("paint ") + (stroke ? "stroke " : "fill ") +
                  script::quoted(kColours[index].name));
    else
        hand_.act("paint width " + std::to_string(kWidths[index - kColourCount]));
}

LRESULT Swatches::handleMessage(UINT message, WPARAM first, LPARAM second) {
    switch (message) {
    case WM_PAINT:
        paint();
        return 0;
    case WM_LBUTTONDOWN:
    case WM_RBUTTONDOWN:
        if (!hand_.script.isBusy()) choose(GET_X_LPARAM(second), message == WM_RBUTTONDOWN);
        return 0;
    default:
        return unhandled(message, first, second);
    }
}

} // namespace easel::window

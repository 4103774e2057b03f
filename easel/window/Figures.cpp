#include "easel/window/Figures.h"

#include "easel/core/SystemObjects.h"

#include <algorithm>
#include <cmath>
#include <string>

namespace easel::window {
namespace {

using Milliseconds = std::chrono::duration<double, std::milli>;

long processorMilliseconds() {
    FILETIME made;
    FILETIME ended;
    ULARGE_INTEGER kernel; // laid out as a FILETIME, in tenths of microseconds
    ULARGE_INTEGER user;
    GetProcessTimes(GetCurrentProcess(), &made, &ended, reinterpret_cast<FILETIME*>(&kernel),
                    reinterpret_cast<FILETIME*>(&user));
    return static_cast<long>((kernel.QuadPart + user.QuadPart) / 10'000);
}

/// The title of the dialog that has taken the keyboard from the frame; "-" when none has.
std::string dialogInFront(HWND frame) {
    const HWND front = GetActiveWindow();
    char title[64] = "-";
    if (front != frame && front != nullptr) GetWindowTextA(front, title, 64);
    return title;
}

} // namespace

Figures::Figures(const std::filesystem::path& file) {
    if (file.empty()) return;
    file_.open(file, std::ios::binary);
    file_ << "milliseconds processor paints pages messages longest-paint longest-wait gdi user "
             "left top right bottom dialog"
          << '\n'
          << std::flush;
}

void Figures::painted(Clock::time_point since, bool withPage) {
    ++paints_;
    if (withPage) ++pages_;
    longestPaint_ = std::max(longestPaint_, Milliseconds(Clock::now() - since).count());
}

void Figures::heard() {
    ++messages_;
    const auto now = static_cast<LONG>(GetTickCount());
    longestWait_ = std::max(longestWait_, now - GetMessageTime());
}

void Figures::tell(HWND frame, HWND canvas) {
    const auto now = Clock::now();
    if (!file_.is_open() || now - told_ < std::chrono::milliseconds(250)) return;
    told_ = now;
    RECT area{};
    GetWindowRect(canvas, &area);
    const SystemObjects objects = systemObjects();
    file_ << std::lround(Milliseconds(now - began_).count()) << ' ' << processorMilliseconds()
          << ' ' << paints_ << ' ' << pages_ << ' ' << messages_ << ' '
          << std::lround(longestPaint_) << ' ' << longestWait_ << ' ' << objects.gdi << ' '
          << objects.user << ' ' << area.left << ' ' << area.top << ' ' << area.right << ' '
          << area.bottom << ' ' << dialogInFront(frame) << '\n'
          << std::flush;
    longestPaint_ = 0;
    longestWait_ = 0;
}

} // namespace easel::window

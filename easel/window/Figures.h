#pragma once

#include <windows.h>

#include <chrono>
#include <filesystem>
#include <fstream>

namespace easel::window {

/// What the window costs, where its canvas lies and whether it answers, for whoever watches it from
/// outside: four lines a second in a file, under the names of its columns. Times and counts are
/// those since the beginning, the longest paint and wait those since the line before.
class Figures {
public:
    using Clock = std::chrono::steady_clock;

    /// Nothing is kept when `file` is empty.
    explicit Figures(const std::filesystem::path& file);

    void painted(Clock::time_point since, bool withPage);
    /// A message of the mouse has come to the canvas, some time after the system made it.
    void heard();
    /// Called now and then, also while a modal dialog is open.
    void tell(HWND frame, HWND canvas);

private:
    std::ofstream file_;
    Clock::time_point told_ = Clock::now();
    Clock::time_point began_ = told_;
    long paints_ = 0;
    long pages_ = 0;
    long messages_ = 0;
    double longestPaint_ = 0; ///< Milliseconds.
    LONG longestWait_ = 0;    ///< Milliseconds.
};

} // namespace easel::window

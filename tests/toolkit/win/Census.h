#pragma once

/// What dialogs cost the system, counted.

#include "tests/toolkit/win/Hands.h"

#include <doctest/doctest.h>

namespace NRDM::tests {

/// The objects of the system that this process holds.
struct Census {
    int gdi = gdiObjects();
    int windowCount = windows();
    int menuCount = menus();
};

/// Does `once` again and again; what a first time makes and keeps is not counted. The counts are
/// exact, so that the rounds only have to outnumber what is left behind every so many times.
template <typename Once> void checkLeavesNothing(const char* what, int rounds, Once once) {
    CAPTURE(what);
    once();
    const Census before;
    REQUIRE(before.gdi > 0);
    for (int round = 0; round < rounds; ++round)
        once();
    const Census after;
    CHECK(after.gdi == before.gdi);
    CHECK(after.windowCount == before.windowCount);
    CHECK(after.menuCount == before.menuCount);
}

/// What this process has used so far.
inline double processorMilliseconds() {
    FILETIME created{};
    FILETIME ended{};
    FILETIME kernel{};
    FILETIME user{};
    GetProcessTimes(GetCurrentProcess(), &created, &ended, &kernel, &user);
    const auto ticks = [](FILETIME time) {
        return static_cast<double>(
            ULARGE_INTEGER{{time.dwLowDateTime, time.dwHighDateTime}}.QuadPart);
    };
    return (ticks(kernel) + ticks(user)) / 10'000;
}

} // namespace NRDM::tests

#include "easel/script/System.h"

/// There is no system with a keyboard here: the program that runs the plug-in stands in for it, and
/// exports what the plug-in's library looks up by name.

namespace easel {
namespace {

/// Everything in the process sees one keyboard and one clock. The clock starts well past zero, as
/// on a machine that has been running for a while.
struct Simulated {
    HeldKeys keys;
    std::uint64_t ticks = 1'000'000;
};

Simulated& simulated() {
    static Simulated system;
    return system;
}

} // namespace

bool onWindows() { return false; }

void holdKeys(const HeldKeys& keys) { simulated().keys = keys; }

void takeOverClock(SPPlatformAccessRef) {} // a library asks `headlessTicks`

void letTimePass(std::int64_t milliseconds) {
    simulated().ticks += static_cast<std::uint64_t>(milliseconds);
}

} // namespace easel

extern "C" {

__attribute__((visibility("default"))) bool headlessKeyIsDown(unsigned virtualKey);
__attribute__((visibility("default"))) std::uint64_t headlessTicks();

bool headlessKeyIsDown(unsigned virtualKey) {
    const easel::HeldKeys& keys = easel::simulated().keys;
    return virtualKey < keys.size() && keys[virtualKey];
}

std::uint64_t headlessTicks() { return easel::simulated().ticks; }
}

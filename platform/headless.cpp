#include "platform/Headless.h"

#include <dlfcn.h>

#include <chrono>
#include <cstdio>
#include <filesystem>

namespace facetta::platform {
namespace headless {

Surroundings& surroundings() noexcept {
    static Surroundings instance; // the one keyboard, clock and desktop of this process
    return instance;
}

} // namespace headless

namespace {

/// A function that the running program exports to stand for the system; null when it does not. A
/// library loaded by a host is reached this way: it has surroundings of its own that nobody sees.
/// To be asked once: looking for what is not there takes microseconds.
template <typename Function> Function* offered(const char* name) noexcept {
    return reinterpret_cast<Function*>(dlsym(RTLD_DEFAULT, name));
}

} // namespace

KeyState readKeys() {
    // NOLINTNEXTLINE(cppcoreguidelines-avoid-non-const-global*): a function is nothing to change
    static auto* const isDown = offered<bool(unsigned)>("headlessKeyIsDown");
    if (isDown == nullptr) return headless::surroundings().keys;
    KeyState keys;
    for (unsigned key = 0; key < keys.down.size(); ++key)
        keys.down[key] = isDown(key);
    return keys;
}

bool mouseIsHeld() {
    const KeyState keys = readKeys();
    return keys.isDown(Key::LeftButton) || keys.isDown(Key::RightButton) ||
           keys.isDown(Key::MiddleButton);
}

ai::uint64 ticks() noexcept {
    // NOLINTNEXTLINE(cppcoreguidelines-avoid-non-const-global*): a function is nothing to change
    static auto* const programTicks = offered<ai::uint64()>("headlessTicks");
    if (programTicks != nullptr) return programTicks();
    if (const auto still = headless::surroundings().ticks) return *still;
    using namespace std::chrono;
    const auto sinceStart = steady_clock::now().time_since_epoch();
    return static_cast<ai::uint64>(duration_cast<milliseconds>(sinceStart).count());
}

std::u16string moduleFileName() {
    if (const auto& name = headless::surroundings().moduleFileName)
        return name->size() < kLongestModuleName ? *name : std::u16string{};
    Dl_info info{};
    if (dladdr(reinterpret_cast<const void*>(&moduleFileName), &info) == 0) return {};
    std::u16string name = std::filesystem::absolute(info.dli_fname).u16string();
    return name.size() < kLongestModuleName ? name : std::u16string{};
}

bool open(const std::u16string& what) {
    headless::surroundings().opened.push_back(what);
    return true;
}

void showMessage(void*, const std::u16string& text) {
    headless::surroundings().shownMessages.push_back(text);
    std::fprintf(stderr, "%s\n", std::filesystem::path(text).string().c_str());
}

} // namespace facetta::platform

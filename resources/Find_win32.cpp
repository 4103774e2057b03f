#include "toolkit/ImplCommon/Resources.h"

#include <windows.h>

#include <array>

namespace NRDM {
namespace {

/// A number where the system wants a name.
LPCWSTR named(int id) { return MAKEINTRESOURCEW(id); }

} // namespace

Bytes findResource(SPPlatformAccessRef library, ResourceKind kind, int id) {
    // The types of `ResourceKind`, in its order.
    const std::array<LPCWSTR, 6> types{named(4), named(6), L"NREV", L"PNGI", L"PNG3", L"XML_"};
    constexpr int kMostId = 0xFFFF;
    if (id <= 0 || id > kMostId) return {};
    const auto module = reinterpret_cast<HMODULE>(library);
    const HRSRC found = FindResourceW(module, named(id), types.at(static_cast<std::size_t>(kind)));
    const HGLOBAL loaded = found == nullptr ? nullptr : LoadResource(module, found);
    if (loaded == nullptr) return {};
    return {static_cast<const std::byte*>(LockResource(loaded)), SizeofResource(module, found)};
}

} // namespace NRDM

#include "toolkit/ImplCommon/SystemCursors.h"

#include "host/Owned.h"
#include "toolkit/ImplCommon/CursorMap.h"
#include "toolkit/ImplCommon/Resources.h"

#include <windows.h>

#include <array>
#include <cmath>
#include <cstring>
#include <map>
#include <vector>

namespace NRDM {
namespace {

struct CursorTraits {
    using Ref = HCURSOR;
    static void release(Ref cursor) noexcept { DestroyCursor(cursor); }
};
using Cursor = ai::Owned<CursorTraits>;

double displayScale() {
    const HDC screen = GetDC(nullptr);
    const int dotsPerInch = GetDeviceCaps(screen, LOGPIXELSX);
    ReleaseDC(nullptr, screen);
    return dotsPerInch / 96.0;
}

/// The form of a cursor that the system takes from resources: the hot spot, then the picture, which
/// may be PNG.
std::vector<BYTE> cursorBits(int hotX, int hotY, Bytes png) {
    const std::array<WORD, 2> hotSpot{static_cast<WORD>(hotX), static_cast<WORD>(hotY)};
    std::vector<BYTE> bits(sizeof hotSpot + png.size());
    std::memcpy(bits.data(), hotSpot.data(), sizeof hotSpot);
    std::memcpy(bits.data() + sizeof hotSpot, png.data(), png.size());
    return bits;
}

Cursor load(SPPlatformAccessRef library, int id, double scale) {
    const Bytes document = findResource(library, ResourceKind::CursorMap, id);
    const CursorMap map =
        readCursorMap({reinterpret_cast<const char*>(document.data()), document.size()});
    const CursorMap::Picture picture = pictureFor(map, scale, id);
    const Bytes png = findResource(library, ResourceKind::Picture, picture.id);
    if (png.empty()) return Cursor();
    // The middle of the pixel that counts, in the picture's own pixels.
    const auto scaled = [&](int at) {
        return static_cast<int>(std::floor((at + 0.5) * picture.scale));
    };
    std::vector<BYTE> bits = cursorBits(scaled(map.hotX), scaled(map.hotY), png);
    constexpr DWORD kFormat = 0x00030000;
    return Cursor(reinterpret_cast<HCURSOR>(
        CreateIconFromResourceEx(bits.data(), static_cast<DWORD>(bits.size()), /*icon*/ FALSE,
                                 kFormat, 0, 0, LR_DEFAULTCOLOR)));
}

} // namespace

struct SystemCursors::Loaded {
    std::map<std::pair<SPPlatformAccessRef, int>, Cursor> cursors; ///< empty: cannot be had
};

SystemCursors::SystemCursors() : loaded_(std::make_unique<Loaded>()) {}
SystemCursors::~SystemCursors() = default;

void* SystemCursors::find(SPPlatformAccessRef library, int id) {
    auto& cursors = loaded_->cursors;
    const std::pair key{library, id};
    auto found = cursors.find(key);
    if (found == cursors.end())
        found = cursors.emplace(key, load(library, id, displayScale())).first;
    return found->second.get();
}

bool SystemCursors::show(SPPlatformAccessRef library, int id) {
    const auto cursor = static_cast<HCURSOR>(find(library, id));
    if (cursor == nullptr) return false;
    SetCursor(cursor);
    return true;
}

} // namespace NRDM

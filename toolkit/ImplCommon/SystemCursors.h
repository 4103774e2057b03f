#pragma once

#include "host/Handles.h"

#include <memory>

namespace NRDM {

/// The system's own cursors made from the resources of a library: pictures in PNG, described by a
/// `CursorMap`. Where there is no screen there are none.
class SystemCursors {
public:
    SystemCursors();
    ~SystemCursors();
    SystemCursors(const SystemCursors&) = delete;
    SystemCursors& operator=(const SystemCursors&) = delete;

    /// The system's handle (HCURSOR) of cursor `id` at the display's scale, kept with this object;
    /// null when it cannot be had.
    [[nodiscard]] void* find(SPPlatformAccessRef library, int id);

    /// Shows cursor `id` until somebody shows another; false when it cannot be had.
    bool show(SPPlatformAccessRef library, int id);

private:
    struct Loaded;
    std::unique_ptr<Loaded> loaded_;
};

} // namespace NRDM

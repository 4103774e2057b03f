#pragma once

#include "host/Handles.h"
#include "host/Types.h"

namespace easel {

class Document;
struct Session;

/// The host's own pen. It adds to the very object that it has begun, until the path is closed or
/// the pen is put away, even for a moment: whoever replaces the object makes it begin another.
///
///   1. A press begins a path on top of the current layer, or adds an anchor to the path, or closes
///      it when it meets the first anchor. The newest anchor alone is selected.
///   2. Dragging draws the handles of that anchor out.
class Pen {
public:
    explicit Pen(Session& session) noexcept : session_(session) {}

    /// Nothing happens where art cannot be added.
    void press(Document& document, AIRealPoint at);
    void drag(AIRealPoint to);
    /// The next press begins another path.
    void forgetPath() noexcept { path_ = nullptr; }

private:
    Session& session_;
    AIArtHandle path_ = nullptr; ///< Null, or dead: none.
};

} // namespace easel

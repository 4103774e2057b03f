#pragma once

#include "host/Handles.h"
#include "host/SuiteHolder.h"
#include "host/suites/AIUserSuite.h"
#include "toolkit/ImplCommon/SystemCursors.h"

namespace NRDM {

/// The cursors among the plug-in's resources, by id.
///
/// The host shows them itself when its user suite offers that; it then knows which one it shows
/// and keeps it while the mouse rests. Otherwise we set the system's cursor.
class Cursors {
public:
    /// Acquires the user suite; without it the system's way remains.
    explicit Cursors(SPPluginRef self);
    ~Cursors() { close(); }
    Cursors(const Cursors&) = delete;
    Cursors& operator=(const Cursors&) = delete;

    /// Shows cursor `id` from now until somebody shows another. A cursor that cannot be had leaves
    /// the one that is there. Not to be called before the host's start-up has ended.
    void show(ai::int32 id);

    /// Gives the host back what it lent. It wants that when it begins to close, not at the
    /// plug-in's own end; nothing is shown from here on.
    void close() noexcept;

private:
    [[nodiscard]] bool showByHost(ai::int32 id);

    SPPluginRef self_;
    ai::SuiteLease<AIUserSuite> user_;
    AIResourceManagerHandle manager_ = nullptr; ///< from the first cursor on
    SystemCursors system_;
    bool closed_ = false;
};

} // namespace NRDM

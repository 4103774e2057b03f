#pragma once

#include "host/Types.h"
#include "tool/Preferences.h"

namespace facetta {

/// Reads the host's settings and then Facetta's own from the host's preference store. A missing
/// value leaves its field at the default; every value is clamped right after it is read.
void loadPreferences(HostPreferences& host, Preferences& own);

/// The host's constrain angle as it is now, in degrees; 0 when it is not set.
[[nodiscard]] double readConstrainAngle();

/// Writes every setting of Facetta's own. Goes on after a failure and answers the first one's code.
AIErr savePreferences(const Preferences& own);

} // namespace facetta

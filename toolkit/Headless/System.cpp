#include "toolkit/ImplCommon/System.h"

namespace NRDM {

Bounds screenAt(Place) { return {}; }

Bounds workspaceBounds() { return {}; }

Place pointer() { return {}; }

} // namespace NRDM

#include "easel/core/SystemObjects.h"

namespace easel {

SystemObjects systemObjects() { return {}; }

} // namespace easel

#include "toolkit/ImplCommon/SystemCursors.h"

namespace NRDM {

struct SystemCursors::Loaded {};

SystemCursors::SystemCursors() = default;
SystemCursors::~SystemCursors() = default;
void* SystemCursors::find(SPPlatformAccessRef, int) { return nullptr; }
bool SystemCursors::show(SPPlatformAccessRef, int) { return false; }

} // namespace NRDM

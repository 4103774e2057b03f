#pragma once

#include "host/suites/SPBasicSuite.h"

namespace NRDM::gallery {

/// What the gallery is to the toolkit: a host that knows where its only plug-in's resources are,
/// which is in this program, and nothing else.
[[nodiscard]] const SPBasicSuite& host();

} // namespace NRDM::gallery

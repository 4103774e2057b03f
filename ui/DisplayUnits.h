#pragma once

#include "host/Types.h"

namespace facetta {

/// The dialog toolkit's codes of the units in which lengths are shown.
enum class DisplayUnit : ai::int32 {
    Point = 1,
    Inch = 2,
    Millimetre = 3,
    Centimetre = 4,
    Pica = 5,
    Q = 8,
    Pixel = 10,
};

/// The unit of the current document's rulers; without a document the one the host is set to. Ask
/// each time: the user may change it at any moment.
[[nodiscard]] DisplayUnit displayUnit();

} // namespace facetta

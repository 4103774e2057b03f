#pragma once

/// How pixels of the view become points.

namespace facetta {

/// Pixels of the view within which something attracts: the cursor of a drag, and open ends near an
/// axis.
constexpr double kSnapPixels = 12.0;

/// Stands for a zoom of 0.
constexpr double kSmallestZoom = 0.01;

/// Of the current view: pixels per point, above 0. Throws `ai::Error`.
[[nodiscard]] double currentZoom();

} // namespace facetta

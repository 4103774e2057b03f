#pragma once

#include <optional>

namespace facetta {

/// Whether any art is selected. The host finds out by walking the whole document, so it is asked
/// only when somebody wants to know, and once until the selection may be another.
class SelectedArt {
public:
    /// Also when no document is open. Throws `ai::Error`.
    [[nodiscard]] bool isEmpty() const;

    /// The selection may have changed. What was known until now; nothing if nobody had asked.
    std::optional<bool> forget();

private:
    mutable std::optional<bool> empty_;
};

} // namespace facetta

#pragma once

#include "easel/svg/Transform.h"
#include "host/Art.h"

#include <span>
#include <string>

namespace easel::svg {

/// The user space that art is written in. Numbers have as few digits as bring back the same reals
/// of the model when they are read.
class UserSpace {
public:
    /// `offset` is the document's `rulerOffset`.
    UserSpace(const Matrix& toDrawing, Point offset);

    [[nodiscard]] const Matrix& toDrawing() const { return toDrawing_; }
    /// False: everything in this space lies on a line, so that nothing can be placed in it.
    [[nodiscard]] bool isPlane() const { return isPlane_; }
    /// The transform of a space within this one that reads as `matrix`, to soft coordinates.
    [[nodiscard]] Matrix transformTo(const Matrix& matrix) const;

    [[nodiscard]] std::string length(AIReal soft) const;
    /// As path data has it.
    [[nodiscard]] std::string point(AIRealPoint soft) const;
    /// One subpath. Straight pieces become L, H or V. Read again, it gives the same segments but
    /// for what an open path's outermost handles are.
    [[nodiscard]] std::string path(std::span<const AIPathSegment> segments, bool closed) const;

private:
    [[nodiscard]] Point placed(AIRealPoint soft) const;
    void append(std::string& text, double value) const;

    Matrix toDrawing_;
    Matrix back_;
    Point offset_;
    bool isPlane_ = true;
    bool isDrawing_; ///< Its numbers are the model's reals.
};

} // namespace easel::svg

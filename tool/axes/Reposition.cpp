#include "tool/axes/Reposition.h"

#include "symmetry/ArtSpace.h"
#include "symmetry/LayerArt.h"
#include "symmetry/LayerAxesStore.h"

namespace facetta {

void beginReposition(ToolState& state) {
    state.repositionArt = collectLayerArt();
    state.repositionBackup = state.axes;
    happen(state, Event::LayerArtTaken);
}

void carryLayerArt(const ToolState& state) {
    const PageAxes from = pageAxes(state.repositionBackup);
    const PageAxes to = pageAxes(state.axes);
    const Vector shift = to.origin - from.origin;
    const Matrix turn = rotationAbout(from.origin, from.angle - to.angle); // clockwise
    moveArt(state.repositionArt, compose(turn, {.tx = shift.x, .ty = shift.y}));
}

void keepReposition(ToolState& state) {
    LayerAxesStore::write(state.axes);
    LayerAxesStore::stamp(nullptr); // the copies have moved with the art: nothing is to be mirrored
    happen(state, Event::LayerArtReleased);
}

} // namespace facetta

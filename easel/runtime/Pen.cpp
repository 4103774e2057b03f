#include "easel/runtime/Pen.h"

#include "easel/document/Attributes.h"
#include "easel/document/Document.h"
#include "easel/document/Placement.h"
#include "easel/document/Session.h"

#include <cmath>

namespace easel {
namespace {

constexpr double kPixelsAroundAnchor = 4;

bool meets(const Document& document, AIRealPoint anchor, AIRealPoint at) {
    const double apart = std::hypot(anchor.h - at.h, anchor.v - at.v);
    return apart * static_cast<double>(document.viewZoom) <= kPixelsAroundAnchor;
}

/// Null where a locked or hidden layer is current.
Art* beginPath(Document& document) {
    const Position place = placeFor(document, kPlaceDefault, nullptr);
    if (!isEditable(*place.parent)) return nullptr;
    return &createArt(document, kPathArt, place);
}

void selectLastAnchor(Art& path) {
    deselectAll(path.document());
    setSegmentSelection(path, path.segments().size() - 1, kSegmentPointSelected);
}

} // namespace

void Pen::press(Document& document, AIRealPoint at) {
    Art* path = session_.findArt(path_);
    const bool goesOn = path != nullptr && &path->document() == &document && isEditable(*path) &&
                        !path->content().closed;
    if (!goesOn) path = beginPath(document);
    path_ = path != nullptr ? path->handle() : nullptr;
    if (path == nullptr) return;
    if (path->segments().size() > 1 && meets(document, path->segments().front().p, at)) {
        path->write().closed = true;
        forgetPath();
        return;
    }
    path->write().segments.write().push_back({at, at, at, true});
    selectLastAnchor(*path);
}

void Pen::drag(AIRealPoint to) {
    Art* const path = session_.findArt(path_);
    if (path == nullptr || path->segments().empty()) return;
    AIPathSegment& last = path->write().segments.write().back();
    last.out = to;
    last.in = {2 * last.p.h - to.h, 2 * last.p.v - to.v};
    last.corner = false;
}

} // namespace easel

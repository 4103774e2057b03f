#include "easel/runtime/Views.h"

#include "easel/document/Session.h"

#include <algorithm>
#include <cmath>

namespace easel {
namespace {

AIReal halfOf(ai::int32 pixels) { return static_cast<AIReal>(pixels) / 2; }

} // namespace

void Views::open(Document& document) {
    const AIRealRect board = document.artboard();
    DocumentView window{};
    window.document = &document;
    window.centre = {(board.left + board.right) / 2, (board.top + board.bottom) / 2};
    add(window);
}

AIDocumentViewHandle Views::current() const {
    return findIf([this](const DocumentView& each) { return each.document == session_.current; });
}

DocumentView& Views::shown(AIDocumentViewHandle handle) const {
    if (handle != nullptr) return at(handle);
    static_cast<void>(session_.document());
    return at(current());
}

AIRealPoint toView(const DocumentView& view, AIRealPoint artwork) noexcept {
    return {(artwork.h - view.centre.h) * view.zoom + halfOf(view.width),
            (view.centre.v - artwork.v) * view.zoom + halfOf(view.height)};
}

AIRealPoint toArtwork(const DocumentView& view, AIRealPoint pixels) noexcept {
    return {view.centre.h + (pixels.h - halfOf(view.width)) / view.zoom,
            view.centre.v - (pixels.v - halfOf(view.height)) / view.zoom};
}

AIPoint toViewPixel(const DocumentView& view, AIRealPoint artwork) noexcept {
    // Far outside the canvas a pixel no longer fits into 32 bits; there it need only be far away.
    static constexpr AIReal kFarAway = 1e9F;
    const AIRealPoint exact = toView(view, artwork);
    const auto pixel = [](AIReal at) {
        return static_cast<ai::int32>(std::lround(std::clamp(at, -kFarAway, kFarAway)));
    };
    return {pixel(exact.h), pixel(exact.v)};
}

AIRealRect visibleArtwork(const DocumentView& view) noexcept {
    const AIRealPoint topLeft = toArtwork(view, {0, 0});
    const AIRealPoint bottomRight =
        toArtwork(view, {static_cast<AIReal>(view.width), static_cast<AIReal>(view.height)});
    return {topLeft.h, topLeft.v, bottomRight.h, bottomRight.v};
}

void setZoom(DocumentView& view, AIReal zoom) noexcept {
    view.zoom = std::clamp(zoom, kLeastZoom, kMostZoom);
    if (view.document != nullptr) view.document->viewZoom = view.zoom;
}

} // namespace easel

#include "tool/CurrentView.h"

#include "host/Error.h"
#include "host/Suites.h"
#include "host/suites/AIAnnotatorSuite.h"
#include "host/suites/AIDocumentListSuite.h"
#include "host/suites/AIDocumentSuite.h"
#include "host/suites/AIDocumentViewSuite.h"

namespace facetta {
namespace {

constexpr ai::int32 kCurrentViewNumber = 0;

} // namespace

bool documentIsOpen() {
    ai::int32 count = 0;
    return ai::suites.documentList->Count(&count) == kNoErr && count > 0;
}

bool isCurrent(const CurrentView& view) {
    AIDocumentHandle document = nullptr;
    AIDocumentViewHandle handle = nullptr;
    if (documentIsOpen() &&
        (ai::suites.document->GetDocument(&document) != kNoErr ||
         ai::suites.documentView->GetNthDocumentView(kCurrentViewNumber, &handle) != kNoErr))
        return false;
    return document == view.document && handle == view.handle;
}

CurrentView fetchCurrentView() {
    CurrentView view;
    ai::check(ai::suites.document->GetDocument(&view.document));
    ai::check(ai::suites.documentView->GetNthDocumentView(kCurrentViewNumber, &view.handle));
    AIRealRect page{};
    ai::check(ai::suites.documentView->GetDocumentViewBounds(view.handle, &page));
    const AIPoint topLeft = viewPixelOf(view, {page.left, page.top});
    const AIPoint bottomRight = viewPixelOf(view, {page.right, page.bottom});
    view.pixels = {topLeft.h, topLeft.v, bottomRight.h, bottomRight.v};
    return view;
}

AIPoint viewPixelOf(const CurrentView& view, AIRealPoint point) {
    AIPoint pixel{};
    ai::check(ai::suites.documentView->ArtworkPointToViewPoint(view.handle, &point, &pixel));
    return pixel;
}

void invalidate(const CurrentView& view, const AIRect& pixels) {
    if (view.handle != nullptr)
        ai::check(ai::suites.annotator->InvalAnnotationRect(view.handle, &pixels));
}

void redrawOverlay(const CurrentView& view) {
    // Axes reach from edge to edge: what changes is the whole view.
    invalidate(view, view.pixels);
}

} // namespace facetta

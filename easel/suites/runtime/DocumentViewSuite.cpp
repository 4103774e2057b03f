#include "easel/core/Arguments.h"
#include "easel/core/Expose.h"
#include "easel/runtime/Host.h"
#include "easel/suites/runtime/RuntimeSuites.h"
#include "host/suites/AIDocumentViewSuite.h"

#include <cmath>

/// A null view means the current one.

namespace easel {
namespace {

using ViewRef = AIDocumentViewHandle;

DocumentView& at(ViewRef view) { return host().view(view); }

AIErr getBounds(ViewRef view, AIRealRect* bounds) {
    required(bounds) = visibleArtwork(at(view));
    return kNoErr;
}

AIErr getCentre(ViewRef view, AIRealPoint* centre) {
    required(centre) = at(view).centre;
    return kNoErr;
}

AIErr setCentre(ViewRef view, const AIRealPoint* centre) {
    at(view).centre = required(centre);
    host().noteViewMoved();
    return kNoErr;
}

AIErr getZoom(ViewRef view, AIReal* zoom) {
    required(zoom) = at(view).zoom;
    return kNoErr;
}

AIErr setZoomOf(ViewRef view, AIReal zoom) {
    if (!std::isfinite(zoom)) throw ai::Error{kBadParameterErr};
    setZoom(at(view), zoom);
    host().noteViewMoved();
    return kNoErr;
}

AIErr artworkToView(ViewRef view, const AIRealPoint* artwork, AIPoint* pixel) {
    required(pixel) = toViewPixel(at(view), required(artwork));
    return kNoErr;
}

AIErr viewToArtwork(ViewRef view, const AIPoint* pixel, AIRealPoint* artwork) {
    const AIRealPoint exact = {static_cast<AIReal>(required(pixel).h),
                               static_cast<AIReal>(pixel->v)};
    required(artwork) = toArtwork(at(view), exact);
    return kNoErr;
}

AIErr exactArtworkToView(ViewRef view, const AIRealPoint* artwork, AIRealPoint* pixels) {
    required(pixels) = toView(at(view), required(artwork));
    return kNoErr;
}

AIErr exactViewToArtwork(ViewRef view, const AIRealPoint* pixels, AIRealPoint* artwork) {
    required(artwork) = toArtwork(at(view), required(pixels));
    return kNoErr;
}

AIErr count(ai::int32* number) {
    ai::int32 views = 0;
    for (const auto& [handle, view] : host().views)
        if (view->document == session().current) ++views;
    required(number) = views;
    return kNoErr;
}

/// 0 is the current view, and so is 1: every document has one.
AIErr nth(ai::int32 number, ViewRef* view) {
    static_cast<void>(currentDocument());
    if (number < 0 || number > 1) throw ai::Error{kBadParameterErr};
    required(view) = host().currentView();
    return kNoErr;
}

AIErr scroll(ViewRef view, AIRealPoint* delta) {
    DocumentView& scrolled = at(view);
    scrolled.centre.h += required(delta).h;
    scrolled.centre.v += delta->v;
    host().noteViewMoved();
    return kNoErr;
}

AIErr getInvalidRect(ViewRef view, AIRealRect* rect) {
    required(rect) = at(view).invalid;
    return kNoErr;
}

AIErr setInvalidRect(ViewRef view, const AIRealRect* rect) {
    at(view).invalid = required(rect);
    host().redrawLater();
    return kNoErr;
}

template <typename Shown, typename Member, Member DocumentView::*Value>
AIErr get(ViewRef view, Shown* value) {
    required(value) = at(view).*Value;
    return kNoErr;
}
template <bool DocumentView::*Flag> constexpr auto getFlag = get<AIBoolean, bool, Flag>;

template <bool DocumentView::*Flag> AIErr setFlag(ViewRef view, AIBoolean value) {
    at(view).*Flag = value != 0;
    return kNoErr;
}

AIErr setScreenMode(ViewRef view, AIScreenMode mode) {
    at(view).screenMode = mode;
    return kNoErr;
}

AIErr noTemplates(ViewRef view, AIBoolean* visible) {
    static_cast<void>(at(view));
    required(visible) = 0;
    return kNoErr;
}

AIErr getGrid(ViewRef view, AIBoolean* shown, AIBoolean* snap) {
    required(shown) = at(view).showGrid ? 1 : 0;
    required(snap) = at(view).snapToGrid ? 1 : 0;
    return kNoErr;
}

AIErr setGrid(ViewRef view, AIBoolean shown, AIBoolean snap) {
    at(view).showGrid = shown != 0;
    at(view).snapToGrid = snap != 0;
    return kNoErr;
}

AIErr getDocumentOf(ViewRef view, AIDocumentHandle* document) {
    required(document) = at(view).document->handle();
    return kNoErr;
}

AIErr setStyle(ViewRef view, ai::int16 mask, ai::int16 style) {
    DocumentView& changed = at(view);
    changed.style = static_cast<ai::int16>((changed.style & ~mask) | (style & mask));
    host().noteViewMoved();
    return kNoErr;
}

} // namespace

void installDocumentViewSuite(SuiteServer& server) {
    using Suite = AIDocumentViewSuite;
    using View = DocumentView;
    auto table = server.table<Suite>(kAIDocumentViewSuite, kAIDocumentViewSuiteVersion);
    expose<&Suite::GetDocumentViewBounds, getBounds>(table);
    expose<&Suite::GetDocumentViewCenter, getCentre>(table);
    expose<&Suite::SetDocumentViewCenter, setCentre>(table);
    expose<&Suite::GetDocumentViewZoom, getZoom>(table);
    expose<&Suite::SetDocumentViewZoom, setZoomOf>(table);
    expose<&Suite::ArtworkPointToViewPoint, artworkToView>(table);
    expose<&Suite::ViewPointToArtworkPoint, viewToArtwork>(table);
    expose<&Suite::CountDocumentViews, count>(table);
    expose<&Suite::GetNthDocumentView, nth>(table);
    expose<&Suite::FixedArtworkPointToViewPoint, exactArtworkToView>(table);
    expose<&Suite::FixedViewPointToArtworkPoint, exactViewToArtwork>(table);
    expose<&Suite::SetScreenMode, setScreenMode>(table);
    expose<&Suite::GetScreenMode, get<AIScreenMode, AIScreenMode, &View::screenMode>>(table);
    expose<&Suite::GetTemplateVisible, noTemplates>(table);
    expose<&Suite::DocumentViewScrollDelta, scroll>(table);
    expose<&Suite::GetDocumentViewInvalidRect, getInvalidRect>(table);
    expose<&Suite::SetDocumentViewInvalidRect, setInvalidRect>(table);
    expose<&Suite::GetDocumentViewStyle, get<ai::int16, ai::int16, &View::style>>(table);
    expose<&Suite::SetDocumentViewInvalidDocumentRect, setInvalidRect>(table);
    expose<&Suite::GetGridOptions, getGrid>(table);
    expose<&Suite::SetGridOptions, setGrid>(table);
    expose<&Suite::GetShowTransparencyGrid, getFlag<&View::showTransparencyGrid>>(table);
    expose<&Suite::SetShowTransparencyGrid, setFlag<&View::showTransparencyGrid>>(table);
    expose<&Suite::GetDocumentViewDocument, getDocumentOf>(table);
    expose<&Suite::GetShowGuides, getFlag<&View::showGuides>>(table);
    expose<&Suite::SetShowGuides, setFlag<&View::showGuides>>(table);
    expose<&Suite::GetShowEdges, getFlag<&View::showEdges>>(table);
    expose<&Suite::SetShowEdges, setFlag<&View::showEdges>>(table);
    expose<&Suite::IsArtboardRulerVisible, getFlag<&View::artboardRuler>>(table);
    expose<&Suite::SetArtboardRulerVisible, setFlag<&View::artboardRuler>>(table);
    expose<&Suite::SetDocumentViewStyle, setStyle>(table);
    expose<&Suite::IsRulerInArtboardCoordinates, getFlag<&View::artboardCoordinates>>(table);
    expose<&Suite::UseArtboardCoordinatesInRuler, setFlag<&View::artboardCoordinates>>(table);
}

} // namespace easel

#include "easel/core/Arguments.h"
#include "easel/core/Expose.h"
#include "easel/suites/runtime/RunningHost.h"
#include "easel/suites/runtime/RuntimeSuites.h"
#include "host/suites/AIDocumentViewSuite.h"

/// A null view means the current one.

namespace easel {
namespace {

using ViewRef = AIDocumentViewHandle;

DocumentView& at(ViewRef view) { return host().view(view); }

AIErr getBounds(ViewRef view, AIRealRect* bounds) {
    required(bounds) = visibleArtwork(at(view));
    return kNoErr;
}

AIErr getZoom(ViewRef view, AIReal* zoom) {
    required(zoom) = at(view).zoom;
    return kNoErr;
}

AIErr artworkToView(ViewRef view, const AIRealPoint* artwork, AIPoint* pixel) {
    required(pixel) = toViewPixel(at(view), required(artwork));
    return kNoErr;
}

AIErr exactArtworkToView(ViewRef view, const AIRealPoint* artwork, AIRealPoint* pixels) {
    required(pixels) = toView(at(view), required(artwork));
    return kNoErr;
}

/// 0 is the current view, and so is 1: every document has one.
AIErr nth(ai::int32 number, ViewRef* view) {
    static_cast<void>(session().document());
    if (number < 0 || number > 1) throw ai::Error{kBadParameterErr};
    required(view) = host().currentView();
    return kNoErr;
}

} // namespace

void installDocumentViewSuite(SuiteServer& server) {
    using Suite = AIDocumentViewSuite;
    auto table = server.table<Suite>(kAIDocumentViewSuite, kAIDocumentViewSuiteVersion);
    expose<&Suite::GetDocumentViewBounds, getBounds>(table);
    expose<&Suite::GetDocumentViewZoom, getZoom>(table);
    expose<&Suite::ArtworkPointToViewPoint, artworkToView>(table);
    expose<&Suite::GetNthDocumentView, nth>(table);
    expose<&Suite::FixedArtworkPointToViewPoint, exactArtworkToView>(table);
}

} // namespace easel

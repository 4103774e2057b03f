#include "easel/core/Expose.h"
#include "easel/suites/runtime/RunningHost.h"
#include "easel/suites/runtime/RuntimeSuites.h"
#include "host/suites/AIDocumentViewSuite.h"

/// A null view means the current one.

namespace easel {
namespace {

using ViewRef = AIDocumentViewHandle;

DocumentView& at(ViewRef view) { return host().view(view); }

AIRealRect getBounds(ViewRef view) { return visibleArtwork(at(view)); }

AIReal getZoom(ViewRef view) { return at(view).zoom; }

AIPoint artworkToView(ViewRef view, const AIRealPoint* artwork) {
    return toViewPixel(at(view), required(artwork));
}

AIRealPoint exactArtworkToView(ViewRef view, const AIRealPoint* artwork) {
    return toView(at(view), required(artwork));
}

/// 0 is the current view, and so is 1: every document has one.
ViewRef nth(ai::int32 number) {
    static_cast<void>(session().document());
    if (number < 0 || number > 1) throw ai::Error{kBadParameterErr};
    return host().currentView();
}

} // namespace

void installDocumentViewSuite(SuiteServer& server) {
    using Suite = AIDocumentViewSuite;
    expose<&Suite::GetDocumentViewBounds, getBounds>(server);
    expose<&Suite::GetDocumentViewZoom, getZoom>(server);
    expose<&Suite::ArtworkPointToViewPoint, artworkToView>(server);
    expose<&Suite::GetNthDocumentView, nth>(server);
    expose<&Suite::FixedArtworkPointToViewPoint, exactArtworkToView>(server);
}

} // namespace easel

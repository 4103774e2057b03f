#include "symmetry/ViewScale.h"

#include "host/Error.h"
#include "host/Suites.h"
#include "host/suites/AIDocumentViewSuite.h"

namespace facetta {

double currentZoom() {
    AIReal zoom = 0;
    ai::check(ai::suites.documentView->GetDocumentViewZoom(nullptr, &zoom));
    return zoom > 0 ? static_cast<double>(zoom) : kSmallestZoom;
}

} // namespace facetta

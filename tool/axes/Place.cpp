#include "tool/axes/Place.h"

#include "host/Error.h"
#include "host/Suites.h"
#include "host/suites/AIArtSuite.h"
#include "host/suites/AIDocumentSuite.h"
#include "host/suites/AIUndoSuite.h"
#include "symmetry/LayerAxesStore.h"
#include "tool/CurrentView.h"

namespace facetta {
namespace {

/// May art be put where the host would put it now?
bool insertionPointIsEditable() {
    AIArtHandle art = nullptr;
    ai::int16 order = 0;
    AIBoolean editable = 0;
    ai::check(ai::suites.art->GetInsertionPoint(&art, &order, &editable));
    return editable != 0;
}

} // namespace

Place fetchPlace() {
    Place place;
    if (!documentIsOpen()) return place;
    ai::check(ai::suites.document->GetDocument(&place.document));
    place.layer = currentLayer();
    place.topLayer = topLevelLayer(place.layer);
    place.editable = insertionPointIsEditable();
    ai::check(ai::suites.undo->CountTransactions(&place.past, &place.future));
    return place;
}

} // namespace facetta

#include "tool/axes/SelectedArt.h"

#include "host/Error.h"
#include "host/Lent.h"
#include "host/References.h"
#include "host/Suites.h"
#include "host/suites/AILayerSuite.h"
#include "symmetry/LayerAxesStore.h"
#include "tool/CurrentView.h"

#include <algorithm>
#include <utility>

namespace facetta {
namespace {

/// A layer's yes needs no search. Its no may leave out its sublayers.
bool someLayerHasSelectedArt() {
    return std::ranges::any_of(topLevelLayers(), [](AILayerHandle layer) {
        AIBoolean selected = 0;
        ai::check(ai::suites.layer->LayerHasSelectedArt(layer, &selected));
        return selected != 0;
    });
}

bool askHost() {
    if (!documentIsOpen()) return true;
    if (someLayerHasSelectedArt()) return false;
    ai::ArtSet selection;
    ai::checkLent(ai::suites.artSet->NewArtSet(selection.put()), selection);
    ai::check(ai::suites.artSet->SelectedArtSet(selection.get()));
    std::size_t count = 0;
    ai::check(ai::suites.artSet->CountArtSet(selection.get(), &count));
    return count == 0;
}

} // namespace

bool SelectedArt::isEmpty() const {
    if (!empty_) empty_ = askHost();
    return *empty_;
}

std::optional<bool> SelectedArt::forget() { return std::exchange(empty_, std::nullopt); }

} // namespace facetta

#include "tool/axes/ToolMemory.h"

#include <algorithm>

namespace facetta {
namespace {

/// More steps than this back, pending axes are not offered again.
constexpr std::size_t kMostMoments = 200;

bool isAt(const Moment& moment, const Place& place) {
    return moment.document == place.document && moment.past == place.past;
}

} // namespace

EditNumber ToolMemory::add(LayerEdit edit) {
    edit.number = ++lastNumber_;
    return edits_.emplace_back(std::move(edit)).number;
}

const LayerEdit* ToolMemory::edit(EditNumber number) const {
    const auto found = std::ranges::find(edits_, number, &LayerEdit::number);
    return found != edits_.end() ? &*found : nullptr;
}

void ToolMemory::setAside(AIDocumentHandle document, const Holding& holding) {
    aside_.push_back({document, holding});
}

template <typename Matches> std::optional<Holding> ToolMemory::take(Matches matches) {
    const auto found = std::ranges::find_if(aside_, matches);
    if (found == aside_.end()) return std::nullopt;
    const Holding holding = found->holding;
    aside_.erase(found);
    return holding;
}

std::optional<Holding> ToolMemory::takeEdit(AIDocumentHandle document, AILayerHandle layer) {
    return take([&](const Aside& aside) {
        const LayerEdit* const kept = edit(aside.holding.edit);
        return aside.document == document && kept != nullptr && kept->layer == layer;
    });
}

std::optional<Holding> ToolMemory::takeNewAxes(AIDocumentHandle document) {
    return take([&](const Aside& aside) {
        return aside.document == document && aside.holding.edit == kNoEdit;
    });
}

void ToolMemory::noteMoment(const Place& place, const Holding& holding,
                            const SymmetryAxes& applied) {
    if (place.future == 0) // what lay ahead cannot be reached any more
        std::erase_if(moments_, [&](const Moment& each) {
            return each.document == place.document && each.past > place.past;
        });
    const auto found =
        std::ranges::find_if(moments_, [&](const Moment& each) { return isAt(each, place); });
    if (found != moments_.end()) {
        found->holding = holding;
        if (applied.axisCount != 0) found->applied = applied;
        return;
    }
    if (moments_.size() == kMostMoments) moments_.erase(moments_.begin());
    moments_.push_back({place.document, place.past, holding, applied});
}

const Moment* ToolMemory::momentAt(const Place& place) const {
    const auto found =
        std::ranges::find_if(moments_, [&](const Moment& each) { return isAt(each, place); });
    return found != moments_.end() ? &*found : nullptr;
}

void ToolMemory::forgetMoment(const Place& place) {
    std::erase_if(moments_, [&](const Moment& each) { return isAt(each, place); });
}

std::vector<AIDocumentHandle> ToolMemory::documents() const {
    std::vector<AIDocumentHandle> found;
    const auto add = [&](AIDocumentHandle document) {
        if (std::ranges::find(found, document) == found.end()) found.push_back(document);
    };
    for (const LayerEdit& each : edits_)
        add(each.document);
    for (const Aside& each : aside_)
        add(each.document);
    for (const Moment& each : moments_)
        add(each.document);
    return found;
}

void ToolMemory::forgetDocument(AIDocumentHandle document) {
    const auto isOf = [document](const auto& each) { return each.document == document; };
    std::erase_if(moments_, isOf);
    std::erase_if(aside_, isOf);
    std::erase_if(edits_, isOf);
}

void ToolMemory::forgetOldEdits(EditNumber inHand) {
    std::erase_if(edits_, [&](const LayerEdit& each) {
        const auto speaksOf = [&](const auto& other) { return other.holding.edit == each.number; };
        return each.number != inHand && std::ranges::none_of(aside_, speaksOf) &&
               std::ranges::none_of(moments_, speaksOf);
    });
}

} // namespace facetta

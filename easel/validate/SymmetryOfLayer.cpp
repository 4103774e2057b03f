#include "easel/validate/SymmetryOfLayer.h"

#include "easel/document/ArtTree.h"
#include "easel/document/Attributes.h"
#include "easel/session/Inventory.h"

#include <cmath>
#include <numbers>
#include <unordered_set>
#include <vector>

namespace easel::validate {
namespace {

/// Anchors as close as this are in one place: ends are snapped to the axes from nearby, and an
/// image lies twice as far off.
constexpr double kApart = 0.05;

/// Places, found again within `kApart`, which is less than half a cell.
class Places {
public:
    void add(svg::Point at) {
        for (const double x : {at.x - kApart, at.x + kApart})
            for (const double y : {at.y - kApart, at.y + kApart})
                cells_.insert(cellOf({x, y}));
    }
    /// One that was added lies near, or beside it in the same cell.
    [[nodiscard]] bool hasNear(svg::Point at) const { return cells_.contains(cellOf(at)); }

private:
    static std::uint64_t cellOf(svg::Point at) {
        constexpr double kCell = 4 * kApart;
        const auto row = [](double coordinate) {
            return static_cast<std::uint32_t>(
                static_cast<std::int64_t>(std::floor(coordinate / kCell)));
        };
        return std::uint64_t{row(at.x)} << 32 | row(at.y);
    }

    std::unordered_set<std::uint64_t> cells_;
};

/// As a drawing has them: y downwards.
svg::Point placeOf(const AIPathSegment& segment) { return {segment.p.h, -segment.p.v}; }

bool isInCopy(const Art& art, const Art& layer) {
    for (const Art* each = &art; each != &layer; each = each->parent())
        if (isCopy(*each)) return true;
    return false;
}

/// The image across the first axis, or one step of two sectors on.
svg::Point imageOf(svg::Point at, const LayerAxes& axes, bool reflected) {
    const double x = at.x - axes.origin.x;
    const double y = axes.origin.y - at.y;
    const double turn = reflected ? 2 * axes.angleDegrees * std::numbers::pi / 180
                                  : 2 * std::numbers::pi / axes.count;
    const double up = reflected ? -y : y;
    return {axes.origin.x + x * std::cos(turn) - up * std::sin(turn),
            axes.origin.y - x * std::sin(turn) - up * std::cos(turn)};
}

} // namespace

std::string asymmetryOf(const Art& layer, std::size_t most) {
    const std::optional<LayerAxes> axes = axesOn(layer);
    if (!axes) return {};
    Places all;
    std::vector<svg::Point> asked;
    for (const Art* art = nextInPreorder(layer, layer); art != nullptr;
         art = nextInPreorder(*art, layer)) {
        if (art->type() != kPathArt || art->content().guide) continue;
        const bool isAsked = isVisible(*art) && (isEditable(*art) || isInCopy(*art, layer));
        for (const AIPathSegment& segment : art->segments()) {
            all.add(placeOf(segment));
            if (isAsked) asked.push_back(placeOf(segment));
        }
    }
    const std::size_t step = asked.size() / most + 1;
    for (std::size_t i = 0; i < asked.size(); i += step)
        for (const bool reflected : {true, false})
            if (!all.hasNear(imageOf(asked[i], *axes, reflected)))
                return "the anchor at " + std::to_string(asked[i].x) + ", " +
                       std::to_string(asked[i].y) + " has no image " +
                       (reflected ? "across the first axis" : "a step further");
    return {};
}

std::string strayCopies(const Art& layer) {
    const std::optional<LayerAxes> axes = axesOn(layer);
    const int most = axes ? 2 * axes->count - 1 : 0;
    for (const Art* art = &layer; art != nullptr; art = nextInPreorder(*art, layer)) {
        if (art != &layer && isCopy(*art) && isInCopy(*art->parent(), layer))
            return "a copy lies in a copy";
        int row = 0;
        for (const Art* each = art->firstChild(); each != nullptr; each = each->next()) {
            row = isCopy(*each) ? row + 1 : 0;
            if (row > most) return std::to_string(row) + " copies lie in a row";
        }
    }
    return {};
}

} // namespace easel::validate

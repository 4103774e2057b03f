#include "symmetry/MirrorEngine.h"

#include "host/Art.h"
#include "host/Error.h"
#include "host/Suites.h"
#include "host/suites/AIToolSuite.h"
#include "symmetry/ArtSpace.h"
#include "symmetry/ArtTree.h"
#include "symmetry/ClipGroup.h"
#include "symmetry/ImageCopies.h"
#include "symmetry/LayerAxesStore.h"
#include "symmetry/PathArt.h"
#include "symmetry/PathReplacement.h"
#include "symmetry/PenAtWork.h"
#include "symmetry/Unlocked.h"
#include "symmetry/ViewScale.h"
#include "symmetry/WorkSet.h"
#include "symmetry/geometry/MirrorPath.h"
#include "symmetry/geometry/RemovePoints.h"

#include <array>
#include <cstddef>
#include <optional>
#include <span>
#include <utility>

namespace facetta {
namespace {

constexpr ai::int32 kSelectionAttributes = kArtSelected | kArtFullySelected;

/// The distance in points within which open ends are moved onto an axis.
double snapDistance() { return kSnapPixels / currentZoom(); }

/// The pen goes on with the path that it was drawing, which may be gone now: choosing it afresh
/// makes it let go.
void restartPen(AIToolHandle ownTool) {
    if (!penIsInHand() || ownTool == nullptr) return;
    ai::check(ai::suites.tool->SetSelectedTool(ownTool));
    ai::check(ai::suites.tool->SetSelectedToolByName(kPenTool.data()));
}

/// The maps that make the copies, as the host takes them, by `Images`.
class ImageMatrices {
public:
    explicit ImageMatrices(const PageAxes& axes) {
        for (const Images images : {Images::All, Images::Rotations})
            for (const Matrix& map : imageTransforms(axes, images))
                of(images).push_back(narrow(map));
    }

    [[nodiscard]] std::vector<AIRealMatrix>& of(Images images) {
        return matrices_.at(static_cast<std::size_t>(images));
    }

private:
    std::array<std::vector<AIRealMatrix>, 3> matrices_;
};

/// One run over the units of a work set.
class Run {
public:
    Run(const PageAxes& axes, CopyMode mode, bool removePoints)
        : removePoints_(removePoints), copies_(mode), matrices_(axes),
          frame_(axes, snapDistance()) {}

    void mirror(const std::vector<Unit>& units) {
        for (const Unit& unit : units)
            mirror(unit);
    }

    /// The maps by which copies of `unit` are made, if mirroring would leave it as it is.
    [[nodiscard]] std::optional<std::span<AIRealMatrix>> imagesOfUnchanged(const Unit& unit) {
        if (unit.kind == UnitKind::Path) {
            transfer_.read(unit.art, /*selection*/ 0, source_);
            return matricesIfUnchanged(facetta::mirror(frame_, source_, scratch_));
        }
        if (unit.kind == UnitKind::CompoundPath) return matricesIfUnchanged(mirrorMembers(unit));
        return matrices_.of(Images::All);
    }

    [[nodiscard]] std::vector<AIArtHandle> takePathsTooLong() { return std::move(pathsTooLong_); }

private:
    void mirror(const Unit& unit) {
        try {
            mirrorAs(unit);
        } catch (const ai::Error& error) {
            if (error.code != kTooManySegmentsErr) throw;
            pathsTooLong_.push_back(
                unit.art); // this path is as it was; the run goes on with the others
        }
    }

    std::optional<std::span<AIRealMatrix>> matricesIfUnchanged(MirroredPath mirrored) {
        std::optional<std::span<AIRealMatrix>> matrices;
        if (mirrored.contours.empty())
            matrices.emplace();
        else if (mirrored.unchanged)
            matrices = matrices_.of(mirrored.contours.front().images);
        scratch_.giveBack(std::move(mirrored));
        return matrices;
    }

    void mirrorAs(const Unit& unit) {
        switch (unit.kind) {
        case UnitKind::Path:
            return mirrorPath(unit);
        case UnitKind::CompoundPath:
            return mirrorCompound(unit);
        case UnitKind::ClipGroup:
            return mirrorClipGroup(unit);
        case UnitKind::PluginGroup:
        case UnitKind::Whole:
            return makeCopies(unit, {unit.art, Images::All});
        }
    }

    void mirrorPath(const Unit& unit) {
        transfer_.read(unit.art, unit.selection, source_);
        MirroredPath mirrored = facetta::mirror(frame_, source_, scratch_);
        finish(mirrored);
        replacePath(unit, mirrored, frame_.fold(mirrored.sector), transfer_, placed_);
        for (const PlacedArt& placed : placed_)
            makeCopies(unit, placed);
        scratch_.giveBack(std::move(mirrored));
    }

    MirroredPath mirrorMembers(const Unit& compound) {
        std::vector<PathShape> members;
        const std::vector<AIArtHandle> paths = pathsInside(compound.art);
        for (const AIArtHandle path : paths)
            transfer_.read(path, attributesOf(path, kSelectionAttributes), members.emplace_back());
        const FillRule rule = paths.empty() ? FillRule::NonZero : fillRuleOf(paths.front());
        return facetta::mirrorCompound(frame_, members, rule, scratch_);
    }

    void mirrorCompound(const Unit& unit) {
        MirroredPath mirrored = mirrorMembers(unit);
        if (mirrored.contours.empty()) return;
        finish(mirrored);
        makeCopies(unit, replaceMembers(unit, mirrored, frame_.fold(mirrored.sector), transfer_));
    }

    void mirrorClipGroup(const Unit& unit) {
        cutClipGroup(unit, frame_, scratch_.cut, transfer_, placed_);
        for (const PlacedArt& placed : placed_)
            makeCopies(unit, placed);
    }

    /// When the user wants it, takes the anchors made on the axes away again.
    void finish(MirroredPath& mirrored) {
        if (!removePoints_ || mirrored.unchanged || mirrored.carried) return;
        for (Contour& contour : mirrored.contours)
            joints_.removeFrom(contour);
    }

    /// The copies lie directly behind `placed`, so that all images of one object are neighbours in
    /// paint order.
    void makeCopies(const Unit& unit, const PlacedArt& placed) {
        const CopySource source{
            .art = placed.art,
            .marks = unit.marks,
            .holdsArt = unit.kind != UnitKind::Path,
            .holdsGuides = unit.kind != UnitKind::Path && holdsGuides(placed.art),
            .holdsLocked = unit.kind != UnitKind::Path && holdsLocked(placed.art),
            .selected = selectedOf(unit.selection, placed.isPath),
            .parts =
                unit.kind == UnitKind::PluginGroup ? Transform::AndTellPlugins : Transform::Whole};
        AIArtHandle behind = placed.art;
        for (AIRealMatrix& matrix : matrices_.of(placed.images))
            behind = copies_.make(source, matrix, behind);
    }

    bool removePoints_;
    CopyMaker copies_;
    ImageMatrices matrices_;
    MirrorFrame frame_;
    MirrorScratch scratch_;
    JointRemover joints_;
    PathTransfer transfer_;
    PathShape source_;
    std::vector<PlacedArt> placed_;
    std::vector<AIArtHandle> pathsTooLong_;
};

} // namespace

MirrorEngine::MirrorEngine(MirrorEnvironment environment) : environment_(std::move(environment)) {}

void MirrorEngine::run(bool selectionMode, bool keepCurrentAxes, bool option, AILayerHandle layer) {
    const AILayerHandle top = selectionMode ? nullptr : topLevelLayer(layer);
    pathsTooLong_.clear();
    if (!selectionMode && top == nullptr) return;
    SymmetryAxes axes = environment_.currentAxes;
    if (!selectionMode && !keepCurrentAxes) LayerAxesStore::read(top, axes);
    if (axes.axisCount < kFewestAxes) return;
    // A live layer keeps the anchors on its axes: its joined paths are cut there again and again,
    // and an anchor in place is a cut that moves nothing.
    Run mirroring{pageAxes(axes), selectionMode ? CopyMode::Plain : CopyMode::Live,
                  selectionMode && environment_.removePoints};
    mirroring.mirror(selectionMode ? unitsOfSelection() : deleteCopiesAndListSources(top));
    finish(mirroring.takePathsTooLong(), option);
}

void MirrorEngine::refresh(AILayerHandle layer, const SymmetryAxes& axes, const FitState& fit) {
    pathsTooLong_.clear();
    Run mirroring{pageAxes(axes), CopyMode::Live, /*removePoints*/ false};
    const FreshCopies fresh{layer, fit};
    const auto passOver = [&](const Unit& unit, std::span<const AIArtHandle> behind) {
        if (!fresh.isOld(unit.art)) return std::optional<std::size_t>{};
        const auto images = mirroring.imagesOfUnchanged(unit);
        return images ? fresh.passedOver(unit, behind, *images) : std::nullopt;
    };
    mirroring.mirror(deleteCopiesAndListSources(layer, passOver));
    finish(mirroring.takePathsTooLong(), /*option*/ false);
}

void MirrorEngine::finish(std::vector<AIArtHandle> pathsTooLong, bool option) {
    pathsTooLong_ = std::move(pathsTooLong);
    restartPen(environment_.ownTool);
    if ((option || !pathsTooLong_.empty()) && environment_.showMessage)
        environment_.showMessage(kPathsTooLong);
}

} // namespace facetta

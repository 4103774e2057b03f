#pragma once

/// Reflecting and rotating whole objects, in place or as copies.

#include "host/Handles.h"
#include "host/Types.h"
#include "symmetry/ArtMarks.h"
#include "symmetry/MirrorTag.h"
#include "symmetry/TransformedArt.h"
#include "symmetry/geometry/PageAxes.h"

#include <cstdint>
#include <optional>
#include <span>
#include <vector>

namespace facetta {

enum class Duplicate { No, Yes };

/// What becomes of a copy.
enum class CopyMode {
    Plain, ///< Ordinary art.
    Live,  ///< A copy on a live layer: tagged as generated, and locked.
};

/// What of an object is selected.
enum class Selected : std::uint8_t {
    Nothing,
    PartOfPath, ///< Some anchors or handles.
    Path,
    Object, ///< What is no path, as far as the host selects it.
};

/// By the attributes `kArtSelected` and `kArtFullySelected` of the object.
[[nodiscard]] Selected selectedOf(ai::int32 attributes, bool isPath);

/// An object to be copied and what of it a copy has to shed.
struct CopySource {
    AIArtHandle art = nullptr;
    ArtMarks marks;
    bool holdsArt = false;    ///< It may contain other objects.
    bool holdsGuides = false; ///< Something inside it carries the mark of a guide.
    bool holdsLocked = false; ///< Something inside it is locked.
    Selected selected = Selected::Nothing;
    Transform parts = Transform::Whole;

    [[nodiscard]] bool isMarked() const {
        return marks.mirror != MirrorTag::kSource || marks.guide;
    }
};

/// Whether something inside `art` carries the mark of a guide. Throws `ai::Error`.
[[nodiscard]] bool holdsGuides(AIArtHandle art);

/// `source` with its marks and selection read from the host. Throws `ai::Error`.
[[nodiscard]] CopySource copySource(AIArtHandle art, const MarkKeys& keys);

/// Makes the copies of one run.
class CopyMaker {
public:
    explicit CopyMaker(CopyMode mode) : mode_(mode), keys_(markKeys()) {}

    /// A duplicate of `source` under `matrix`, directly behind the object `behind`, without the
    /// marks of its source; as ordinary art it is selected as its source is. Throws `ai::Error`.
    [[nodiscard]] AIArtHandle make(const CopySource& source, AIRealMatrix& matrix,
                                   AIArtHandle behind);

    [[nodiscard]] const MarkKeys& keys() const { return keys_; }

private:
    void markAndLock(AIArtHandle copy, const CopySource& source) const;
    void shedMarks(AIArtHandle copy) const;
    [[nodiscard]] bool isSelectedAsItIs(const CopySource& source) const {
        return source.selected == Selected::Nothing ||
               (source.selected == Selected::Path && pathsStaySelected_ == true);
    }
    void select(AIArtHandle copy, const CopySource& source);

    CopyMode mode_;
    MarkKeys keys_;
    ContainerTransform containers_;
    /// Whether duplicates of selected paths are selected in this host; unknown before the first.
    std::optional<bool> pathsStaySelected_;
};

/// Reflects every object of `set` across the line of ray `rayIndex`: the object itself, or a
/// duplicate directly behind it. Returns the duplicates, in the order of `set`. Throws `ai::Error`.
std::vector<AIArtHandle> reflectCopies(std::span<const AIArtHandle> set, const PageAxes& axes,
                                       int rayIndex, Duplicate duplicate,
                                       CopyMode mode = CopyMode::Plain);

/// The same for a rotation about the origin by `angle` radians, counter-clockwise.
std::vector<AIArtHandle> rotateCopies(std::span<const AIArtHandle> set, const PageAxes& axes,
                                      double angle, Duplicate duplicate,
                                      CopyMode mode = CopyMode::Plain);

} // namespace facetta

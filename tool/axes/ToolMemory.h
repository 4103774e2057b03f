#pragma once

/// What the tool keeps of axes that are not in hand at the moment, because they may come back:
///
///   - edits of layers' axes, by number, for as long as anything below speaks of them;
///   - what was set aside when its layer or its document was left (`setAside`);
///   - what was held at each step of a document's history (`noteMoment`): when the user comes back
///     to the step by undo or redo, it can be held again.
///
/// Documents and layers are compared by their handles, which are never handed to the host.

#include "host/References.h"
#include "symmetry/SymmetryAxes.h"
#include "tool/Activity.h"
#include "tool/axes/Place.h"

#include <optional>
#include <span>
#include <vector>

namespace facetta {

using EditNumber = ai::int32;
constexpr EditNumber kNoEdit = 0;

/// An edit of a layer's axes apart from the layer, and what the layer had when it began.
struct LayerEdit {
    EditNumber number = kNoEdit;
    AIDocumentHandle document = nullptr;
    AILayerHandle layer = nullptr;
    SymmetryAxes layerBackup;
    bool guidesExisted = false;
    ai::ArtSet releasedCopies; ///< the art that was generated on it
};

/// What the tool has in hand between two gestures.
struct Holding {
    Activity activity = Activity::Away;
    SymmetryAxes axes;
    EditNumber edit = kNoEdit;

    bool operator==(const Holding&) const = default;
};

/// A step of a document's history, and what the tool held there.
struct Moment {
    AIDocumentHandle document = nullptr;
    ai::int32 past = 0;
    Holding holding;
    SymmetryAxes applied; ///< the pending axes that the step has used up; none when it has not
};

class ToolMemory {
public:
    /// Takes in an edit that begins, and gives it a number.
    EditNumber add(LayerEdit edit);
    /// Null when there is none of that number.
    [[nodiscard]] const LayerEdit* edit(EditNumber number) const;

    void setAside(AIDocumentHandle document, const Holding& holding);
    /// What was set aside there: an edit of `layer`, or new axes; nothing when there is neither. It
    /// is aside no more.
    [[nodiscard]] std::optional<Holding> takeEdit(AIDocumentHandle document, AILayerHandle layer);
    [[nodiscard]] std::optional<Holding> takeNewAxes(AIDocumentHandle document);
    void dropAside() { aside_.clear(); }

    /// The tool holds `holding` at the step that `place` is at; replaces what it held there before.
    void noteMoment(const Place& place, const Holding& holding, const SymmetryAxes& applied);
    [[nodiscard]] const Moment* momentAt(const Place& place) const;
    void forgetMoment(const Place& place);

    /// Documents of which something is kept.
    [[nodiscard]] std::vector<AIDocumentHandle> documents() const;
    void forgetDocument(AIDocumentHandle document);
    /// Ends the edits that nothing speaks of but perhaps `inHand`.
    void forgetOldEdits(EditNumber inHand);

private:
    struct Aside {
        AIDocumentHandle document;
        Holding holding;
    };
    template <typename Matches> std::optional<Holding> take(Matches matches);

    std::vector<LayerEdit> edits_;
    std::vector<Aside> aside_;
    std::vector<Moment> moments_; ///< the latest at the back
    EditNumber lastNumber_ = kNoEdit;
};

} // namespace facetta

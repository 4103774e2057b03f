#pragma once

/// A document in the stand-in host, with its suites installed in this process, and art in short
/// notation.
///
/// The notation lists objects front-most first. The first letter of a name tells the type: g group,
/// k clip group, c compound path, l sublayer, p plug-in group (its members are the edit art), t
/// text frame, s symbol instance, i image; all other names are paths. Containers have their members
/// in brackets. In front of a name: # locked, - hidden, ~ guide, ! clip mask, ^ tagged 2, % tagged
/// 1 but not locked, @ selected. A quotation mark behind it makes a generated copy, tagged 1 and
/// locked. So "a a' g(~b k(!c d))".

#include "easel/document/Document.h"
#include "easel/document/Switches.h"
#include "symmetry/MirrorEngine.h"
#include "symmetry/SymmetryAxes.h"
#include "symmetry/geometry/PathShape.h"

#include <functional>
#include <memory>
#include <string>
#include <string_view>
#include <vector>

namespace facetta::tests {

/// What the engine asks of the shell side of the host, which has no part in these tests.
struct ShellSide {
    float zoom = 1.0F;
    std::string currentTool = "Adobe Select Tool";
    std::vector<std::string> chosenTools; ///< By name; "own" for the plug-in's.
};

/// The suites of the stand-in host in `ai::suites`, and one empty document, current, 800 by 600
/// points, for as long as the object lives. Its destruction checks that nothing lent is kept.
class EngineFixture {
public:
    explicit EngineFixture(easel::Switches switches = {});
    ~EngineFixture();
    EngineFixture(const EngineFixture&) = delete;
    EngineFixture& operator=(const EngineFixture&) = delete;

    [[nodiscard]] static ShellSide& shellSide();
    [[nodiscard]] easel::Document& document() { return *document_; }
    /// The group of the top-most layer.
    [[nodiscard]] easel::Art& layer();
    [[nodiscard]] AILayerHandle layerHandle();

    /// Adds the objects of `notation` behind what `parent` holds. Paths are small triangles in the
    /// upper half-plane, clear of the x axis.
    void build(easel::Art& parent, std::string_view notation);
    /// What `parent` holds, in the notation; selection is not shown.
    [[nodiscard]] std::string notationOf(const easel::Art& parent);

    /// The whole document but for the stamps, which differ from run to run by design.
    [[nodiscard]] std::string text() const;

    /// A path in `parent`, behind all, of straight pieces between `points`.
    easel::Art& addPath(easel::Art& parent, const std::vector<Point>& points, bool closed);
    /// One on the layer that meets the axis y = 0 with both ends, and whose mirrored form would
    /// have more segments than the host allows.
    easel::Art& addTooLongPath();

    /// Axes with their origin at `origin` in page coordinates, current in `environment`.
    void setAxes(int count, double angle = 0.0, Point origin = {});
    [[nodiscard]] MirrorEnvironment environment();

    enum class Host { Stays, StartsAgain };
    /// The document saved, closed and opened again, perhaps in another run of the host, of which
    /// the plug-in knows nothing yet.
    void reopen(Host host = Host::Stays);

    /// One undo step, as a message of the host is.
    void step(const std::function<void()>& changes);
    /// `step`s of the product.
    void mirrorSelection();
    void attach(bool autoMirror = true);
    void regenerate();

    SymmetryAxes axes;
    LiveLayerMemory live;
    bool removePoints = false;
    AIToolHandle ownTool = nullptr;
    std::vector<std::string> messages; ///< Shown to the user.

private:
    struct Notation;

    std::unique_ptr<easel::Document> document_;
};

} // namespace facetta::tests

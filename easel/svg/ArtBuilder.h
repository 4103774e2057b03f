#pragma once

#include "easel/svg/ReadingState.h"

#include <optional>
#include <string>
#include <vector>

namespace easel::svg {

/// Makes art of elements, in one document: that of the file, or that of a drawing within it.
///
/// Transformations end in the geometry of paths and in the matrices of opaque art; styles end in
/// the leaves. What groups have is their opacity, their clip and what is not understood.
class ArtBuilder {
public:
    /// `source` takes what came of which element; null for a drawing within the drawing, which is
    /// not written back as art. `offset` is the document's `rulerOffset`.
    ArtBuilder(ReadingState& state, Document& document, DrawingSource* source, Point offset)
        : state_(state), document_(document), source_(source), offset_(offset) {}

    /// Does the element become art? Others are kept as they stand.
    [[nodiscard]] static bool isArt(const Element& element);

    /// Reads what stands between the tags of `node` into `parent`, front-most last.
    void readChildren(NodeIndex node, Art& parent, const Context& context);

    /// Puts one element on top in `parent`. Null when it is no art.
    Art* readElement(const Element& element, Art& parent, const Context& context);

    /// Reads an element that holds others, and what it says of itself, into the group made for it.
    void readContainer(const Element& element, Art& group, const Context& context);

    /// What the element's own attributes make of what its parent hands down; what of it is not
    /// understood is told.
    [[nodiscard]] Context contextOf(const Element& element, const Context& parent);

private:
    enum class Entered { Element, Content }; ///< Is the element itself drawn, or its children?

    // ArtBuilder.cpp
    Art* readGroup(const Element& element, Art& parent, const Context& context);
    void readState(const Element& element, const Style& style, Art& art);
    /// Remembers that `art` came of the element.
    void keepSource(const Element& element, const Art& art);
    Art* readClipMembers(const Element& element, Art& parent, const Context& context);
    Art* readShape(const Element& element, Art& parent, const Context& context);
    Art& addOutline(Outline outline, Art& parent, const Matrix& matrix, const ArtStyle& style);
    void setSegments(Art& path, const Subpath& subpath, const Matrix& matrix);
    void readLayer(const Element& element, const std::string& title, LayerProperties& layer);
    void readMembers(const Element& element, Art& compound);

    // Styling.cpp
    /// What art of the element carries although it is not understood; null: nothing.
    [[nodiscard]] std::shared_ptr<Effects> effectsOf(const Element& element,
                                                     const Context& context) const;
    /// The style of a shape with this outline in the element's coordinates.
    [[nodiscard]] ArtStyle styleFor(const Element& element, const Context& context,
                                    const Outline& outline);
    /// Grey and process inks, which stand beside the colours that they look like.
    static void readInks(const Element& element, ArtStyle& style);
    struct ServerUse {
        const Definition* definition = nullptr;
        AIRealMatrix matrix;
    };
    /// Nothing when the paint is to be left out.
    [[nodiscard]] std::optional<ServerUse> serverFor(const std::string& id, const Context& context,
                                                     const Outline& outline);
    /// `derived` is an element of ours for this one use.
    [[nodiscard]] ServerUse derivedUse(const Element& derived, const Context& context,
                                       const Outline& outline);
    /// `derived` is our own element for this use of the pattern; null when there is none.
    [[nodiscard]] ServerUse patternUse(const Element& element, const Element* derived,
                                       const Context& context, const Box& bounds);
    [[nodiscard]] bool setPaint(const Paint& paint, const Context& context, const Outline& outline,
                                AIColor& color, const Definition*& definition,
                                AIRealMatrix& matrix);
    [[nodiscard]] Definition& definition(Definition::Kind kind, const std::string& id,
                                         std::shared_ptr<const ForeignContent> content,
                                         const std::string& variant);

    // Clipping.cpp
    /// Clips `group`, whose content `bounds` (in the element's coordinates) encloses. False when
    /// the clip path is not understood.
    bool clip(Art& group, const std::string& clipPath, const Context& context, const Box& bounds);
    /// The same for a layer, in pictures only.
    bool clipLayer(Art& layer, const std::string& clipPath, const Context& context);
    /// None when the clip path is not understood.
    [[nodiscard]] std::vector<LayerClip::Mask> clipMasks(const std::string& clipPath,
                                                         const Context& context, const Box& bounds);
    /// For a clip path that is not understood: it goes where the art goes, but does not clip here.
    void keepClipAsText(const Element& element, Art& art, const Context& context);
    /// A nested <svg> shows nothing beyond its viewport.
    void clipToViewport(const Element& element, Art& group, const Context& context);
    void addMask(Art& group, Outline outline, bool evenOdd);
    [[nodiscard]] std::optional<Outline> clipOutline(const Element& clipPath,
                                                     const Context& context, bool& evenOdd);
    [[nodiscard]] Box localBounds(const Art& art, const Matrix& matrix) const;

    // OpaqueArt.cpp
    Art* readOpaque(const Element& element, Art& parent, const Context& context);
    Art& addOpaque(ai::int16 type, const Element& element, Art& parent, const Context& context,
                   const Box& box, std::shared_ptr<OpaqueContent> content);
    Art* readUse(const Element& element, Art& parent, const Context& context);
    /// What `target` shows, read once for each `variant` of what it inherits. Null when it refers
    /// to itself.
    [[nodiscard]] std::shared_ptr<const DrawingContent>
    drawingOf(const Element& referring, NodeIndex target, const Context& context,
              const std::string& variant, Entered entered);

    ReadingState& state_;
    Document& document_;
    DrawingSource* source_;
    Point offset_;
    std::map<std::pair<std::string, std::string>, Definition*> definitions_;
};

} // namespace easel::svg

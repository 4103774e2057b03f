#pragma once

#include "easel/document/Document.h"
#include "easel/svg/Outline.h"
#include "easel/svg/Style.h"

#include <cstddef>
#include <map>
#include <memory>
#include <string>
#include <unordered_map>
#include <vector>

/// What the reader hangs on a document for the painter and the writer. All coordinates are those of
/// the drawing: y downwards.
namespace easel::svg {

/// An element that is written back as it was read, but for its matrix and state.
struct RawElement {
    std::string tag;
    std::string attributes; ///< As they stood, each with a blank before it.
    std::string inner;      ///< From the start tag to the end tag; empty: there is neither.
};

struct OpaqueContent : ForeignContent {
    RawElement raw;
};

struct TextRun {
    Point position;
    bool positioned = true; ///< Otherwise it goes on where the run before it ended.
    std::string text;       ///< UTF-8.
    Font font;
    TextAnchor anchor = TextAnchor::Start;
    Paint fill; ///< A server stands for its spare colour.
    double fillOpacity = 1.0;
};

struct TextContent : OpaqueContent {
    std::vector<TextRun> runs;
};

struct ImageContent : OpaqueContent {
    std::vector<std::byte> png; ///< Empty: not a PNG held in the drawing; a frame stands for it.
    Point corner;
    Point size;
    bool keepsAspect = true;
};

struct GradientStop {
    double offset = 0.0; ///< 0 to 1, never less than the one before.
    Colour colour;       ///< With its opacity as alpha.
};

/// A gradient's own space is the one that its gradientUnits name: the user space of the shape, or
/// the unit square over the shape's bounds. `transform` is its gradientTransform in that space.
struct GradientContent : ForeignContent {
    enum class Kind { Linear, Radial };
    enum class Spread { Pad, Reflect, Repeat };
    Kind kind = Kind::Linear;
    Spread spread = Spread::Pad;
    bool overBounds = true;
    Point start; ///< Of a linear gradient; of a radial one the focus.
    Point end;   ///< Of a linear gradient; of a radial one the centre.
    double radius = 0.0;
    Matrix transform;
    std::vector<GradientStop> stops;
};

/// A drawing within the drawing. Its document's soft coordinates are its own with y negated.
struct DrawingContent : ForeignContent {
    std::unique_ptr<Document> drawing;
};

/// A pattern's own space is the user space of the shape; `transform` is its patternTransform.
struct PatternContent : ForeignContent {
    std::shared_ptr<const DrawingContent> drawing;
    Matrix contentMatrix; ///< From the drawing's coordinates to the pattern's own space.
    Point tileCorner;
    Point tileSize;
    Matrix transform;
    /// It depends on the shape's bounds, so that the element alone does not say what it looks like.
    bool resolved = false;
    std::string source; ///< The id of the element.
    Point viewBoxSize;  ///< The tile in the drawing's coordinates; used when `resolved`.
};

/// Properties that are kept as text: a filter, a mask, markers.
struct StyleExtras : ForeignContent {
    Properties properties;
};

/// Something that is not art, kept between the elements of a container.
struct Interlude {
    std::string source;
    AIArtHandle before = nullptr; ///< The art in front of which it stood in the text.
    std::size_t number = 0;       ///< Grows along the text.
    bool isDefinition = false;    ///< Art elsewhere may refer to it.
};

/// What was read of an element and belongs to this one object, not to copies of it.
struct ElementSource {
    std::string tag;        ///< Of a group that was no <g>.
    std::string attributes; ///< Not understood, as they stood, each with a blank before it.
    /// Attributes that describe the shape as it was read: not written once it has changed.
    std::string shapeAttributes;
    Cow<Segments> shape;
    std::string inner; ///< What stood inside a shape, such as its title.
    std::vector<Interlude> interludes;
};

/// What was read of the file as a whole.
struct DrawingSource : ForeignContent {
    std::string prologue;
    std::string epilogue;
    std::string rootAttributes;
    std::vector<std::string> rootNames; ///< Of all attributes of the root.
    Point viewBoxCorner;
    AISize size{0, 0};
    /// The lengths, viewBox included, as they stood; not written once the size has changed.
    std::string sizeAttributes;
    AIRealPoint rulerOrigin{0, 0}; ///< At which soft coordinates are the drawing's, y negated.
    bool hasStyleSheet = false;
    std::vector<std::string> reservedIds; ///< That begin as ours do; sorted.
    std::unordered_map<AIArtHandle, ElementSource> elements;
    std::vector<Interlude> interludes; ///< Of the root.

    [[nodiscard]] const ElementSource* find(const Art& art) const;
};

/// What the reader kept of the document; null when it was not read from a file.
[[nodiscard]] const DrawingSource* sourceOf(const Document& document);

/// The name of our own attributes' namespace.
inline constexpr std::string_view kNamespace = "urn:facetta:easel";

/// The layer that a drawing opens with unless it says otherwise: the top-most top-level one that
/// can be worked on, or the top-most. The document has a layer.
[[nodiscard]] Art& startingLayer(const Document& document);
/// The number of a layer in pre-order from the top, counted from 0; -1 when it is none.
[[nodiscard]] int layerNumber(const Document& document, const Art* layer);
/// Null when there is none of that number.
[[nodiscard]] Art* numberedLayer(const Document& document, int number);

// Between the drawing's coordinates, y downwards, and soft ones, y upwards.

/// Soft coordinates are the drawing's, less this, with y negated: how far the ruler origin lies
/// from where it was when the drawing was read.
[[nodiscard]] Point rulerOffset(const Document& document);
[[nodiscard]] AIRealPoint toSoft(Point point, Point offset);
[[nodiscard]] AIRealMatrix toSoft(const Matrix& matrix, Point offset);
[[nodiscard]] Matrix fromSoft(const AIRealMatrix& matrix, Point offset);

} // namespace easel::svg

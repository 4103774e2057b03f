#pragma once

#include "easel/document/Document.h"
#include "easel/svg/Outline.h"
#include "easel/svg/Style.h"
#include "easel/svg/XmlTree.h"

#include <cstddef>
#include <memory>
#include <string>
#include <unordered_map>
#include <vector>

/// What the reader hangs on a document for the painter and the writer. All coordinates are those of
/// the drawing: y downwards.
namespace easel::svg {

/// Art that is its element, copies as well: what it shows is not taken apart.
struct OpaqueContent : ForeignContent {
    NodeIndex node = kNoNode;
    /// What the element gives and inherits, as text, of the properties that children take over.
    std::shared_ptr<const Properties> style;
};

/// The clip path of a layer. It stays in the text, for a layer's members are art alone, and
/// pictures are cut by it.
struct LayerClip : ForeignContent {
    struct Mask {
        Outline outline; ///< In the coordinates of the drawing.
        bool evenOdd = false;
    };
    std::vector<Mask> masks; ///< Each cuts what the others leave.
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
    Point pixels;               ///< How many the PNG has across and down.
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
    double focalRadius = 0.0; ///< The circle around the focus at which a radial gradient begins.
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

/// What of an element is not understood and goes where its art goes, copies as well: a filter, a
/// mask, markers, values beyond us. It has its meaning in the element's user space, which the art's
/// style takes along (`ArtStyle::foreignMatrix`).
struct Effects : ForeignContent {
    Properties properties;
    Matrix space;         ///< From the user space to the soft coordinates when it was read.
    bool spatial = false; ///< It looks otherwise in another user space.
    std::string lost;     ///< What copies leave out, "LINE: ..."; empty: nothing.

    /// The stroke has its width on screen, whatever the transforms.
    [[nodiscard]] bool hasFixedStroke() const {
        const auto found = properties.find("vector-effect");
        return found != properties.end() && found->second == "non-scaling-stroke";
    }
};

/// Null where all of the element was understood.
[[nodiscard]] inline const Effects* effectsIn(const ArtStyle& style) {
    return dynamic_cast<const Effects*>(style.foreign.get());
}

/// What one object was read as. It has been left alone while it is the same.
struct ArtSource {
    NodeIndex node = kNoNode; ///< The element it came from; none: a part of what another one made.
    ArtContent content;
    std::uint64_t stamp = 0;
    std::vector<AIArtHandle> parts; ///< The members of a compound path, the masks of a clip group.
};

/// An attribute that says something of the model; not there when the text is empty.
struct AttributeText {
    std::string_view name;
    std::string text;
    bool operator==(const AttributeText&) const = default;
};

/// What was read of the file as a whole: its text, to be written back where nothing has changed,
/// and what came of it.
struct DrawingSource : ForeignContent {
    std::shared_ptr<const XmlTree> tree;
    StyleSheet sheet;
    Point viewBoxCorner;
    Point viewBoxSize;
    AIRealPoint rulerOrigin{0, 0}; ///< At which soft coordinates are the drawing's, y negated.
    std::unordered_map<AIArtHandle, ArtSource> art;
    std::vector<bool> isArt; ///< By node: art came of it, which has its own place in the text.
    std::vector<AttributeText> attributes; ///< Of the root, as `documentAttributes` had them.

    [[nodiscard]] const ArtSource* find(const Art& one) const;
};

/// What the reader kept of the document; null when it was not read from a file.
[[nodiscard]] const DrawingSource* sourceOf(const Document& document);

/// What the root element says of the document, always in the same order.
[[nodiscard]] std::vector<AttributeText> documentAttributes(const Document& document);

/// The layer that a drawing opens with unless it says otherwise: the top-most top-level one that
/// can be worked on, or the top-most. The document has a layer.
[[nodiscard]] Art& startingLayer(const Document& document);
/// The number of a layer in pre-order from the top, counted from 0; -1 when it is none.
[[nodiscard]] int layerNumber(const Document& document, const Art* layer);
/// Null when there is none of that number.
[[nodiscard]] Art* numberedLayer(const Document& document, int number);

/// Gives the layers that have no title, listed from the bottom, "Layer N".
void fillInTitles(std::vector<std::string>& titles);

// Between the drawing's coordinates, y downwards, and soft ones, y upwards.

/// Soft coordinates are the drawing's, less this, with y negated: how far the ruler origin lies
/// from where it was when the drawing was read.
[[nodiscard]] Point rulerOffset(const Document& document);
[[nodiscard]] inline Matrix matrixOf(const AIRealMatrix& m) {
    return {m.a, m.b, m.c, m.d, m.tx, m.ty};
}
[[nodiscard]] AIRealPoint toSoft(Point point, Point offset);
[[nodiscard]] AIRealMatrix toSoft(const Matrix& matrix, Point offset);
/// The same without rounding, for a matrix from any space.
[[nodiscard]] Matrix softMatrix(const Matrix& matrix, Point offset);
[[nodiscard]] Matrix drawingMatrix(const Matrix& soft, Point offset);

} // namespace easel::svg

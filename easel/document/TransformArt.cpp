#include "easel/document/TransformArt.h"

#include "easel/document/ArtTree.h"
#include "easel/document/Document.h"

namespace easel {
namespace {

/// Written to only what the flags ask for and the object has, so that nothing else is copied.
void transformPaint(Cow<ArtStyle>& style, const AIRealMatrix& matrix, ai::int32 flags) {
    const auto wanted = [](const Definition* definition, ai::int32 gradients, ai::int32 patterns) {
        if (definition == nullptr) return 0;
        return definition->kind() == Definition::Kind::Gradient ? gradients : patterns;
    };
    if ((flags & wanted(style->fillDefinition, kTransformFillGradients, kTransformFillPatterns)) !=
        0)
        style.write().fillMatrix = concatenated(style->fillMatrix, matrix);
    if ((flags &
         wanted(style->strokeDefinition, kTransformStrokeGradients, kTransformStrokePatterns)) != 0)
        style.write().strokeMatrix = concatenated(style->strokeMatrix, matrix);
    // Effects go with the art, and with the paint of art that is drawn anew elsewhere.
    const bool whole = (flags & kTransformObjects) != 0 && (flags & kTransformSelectionOnly) == 0;
    if (style->foreign && (whole || (flags & kTransformFillGradients) != 0))
        style.write().foreignMatrix = concatenated(style->foreignMatrix, matrix);
}

void scaleStroke(Cow<ArtStyle>& style, AIReal scale) {
    if (scale == 1 || style->path.strokePaint == 0) return;
    ArtStyle& scaled = style.write();
    AIStrokeStyle& stroke = scaled.path.stroke;
    stroke.width *= scale;
    stroke.dash.offset *= scale;
    for (AIFloat& part : stroke.dash.array)
        part *= scale;
    for (AIReal& part : scaled.longDash)
        part *= scale;
}

bool isSelected(const ArtContent& content, std::size_t index) {
    if (!content.segmentSelection->empty()) return (*content.segmentSelection)[index] != 0;
    return (content.attributes & static_cast<std::uint32_t>(kArtFullySelected)) != 0;
}

void transformSegments(ArtContent& content, const AIRealMatrix& matrix, bool selectedOnly) {
    Segments& segments = content.segments.write();
    for (std::size_t i = 0; i < segments.size(); ++i) {
        if (selectedOnly && !isSelected(content, i)) continue;
        AIPathSegment& segment = segments[i];
        segment.p = transformed(matrix, segment.p);
        segment.in = transformed(matrix, segment.in);
        segment.out = transformed(matrix, segment.out);
    }
}

/// Text, images, instances and opaque art show what they show through a matrix of their own.
bool hasOwnMatrix(ai::int16 type) {
    return type != kPathArt && type != kGroupArt && type != kCompoundPathArt && type != kPluginArt;
}

} // namespace

AIRealPoint transformed(const AIRealMatrix& matrix, AIRealPoint point) noexcept {
    const double h = point.h;
    const double v = point.v;
    return {static_cast<AIReal>(matrix.a * h + matrix.c * v + matrix.tx),
            static_cast<AIReal>(matrix.b * h + matrix.d * v + matrix.ty)};
}

AIRealMatrix concatenated(const AIRealMatrix& first, const AIRealMatrix& second) noexcept {
    const double a = first.a, b = first.b, c = first.c, d = first.d;
    const double tx = first.tx, ty = first.ty;
    const auto column1 = [&](double x, double y) { return x * second.a + y * second.c; };
    const auto column2 = [&](double x, double y) { return x * second.b + y * second.d; };
    return {static_cast<AIReal>(column1(a, b)),
            static_cast<AIReal>(column2(a, b)),
            static_cast<AIReal>(column1(c, d)),
            static_cast<AIReal>(column2(c, d)),
            static_cast<AIReal>(column1(tx, ty) + second.tx),
            static_cast<AIReal>(column2(tx, ty) + second.ty)};
}

void transformObject(Art& art, const AIRealMatrix& matrix, AIReal lineScale, ai::int32 flags,
                     Edit edit) {
    ArtContent& content = art.write(edit);
    if ((flags & kTransformObjects) != 0) {
        if (art.type() == kPathArt)
            transformSegments(content, matrix, (flags & kTransformSelectionOnly) != 0);
        else if (hasOwnMatrix(art.type())) {
            ArtDetails& details = content.details.write();
            details.matrix = concatenated(details.matrix, matrix);
        }
    }
    transformPaint(content.style, matrix, flags);
    if ((flags & kScaleLines) != 0) scaleStroke(content.style, lineScale);
}

void transformArt(Art& art, const AIRealMatrix& matrix, AIReal lineScale, ai::int32 flags) {
    transformObject(art, matrix, lineScale, flags);
    if ((flags & kTransformChildren) == 0) return;
    for (Art* each = nextInPreorder(art, art); each != nullptr; each = nextInPreorder(*each, art))
        transformObject(*each, matrix, lineScale, flags);
}

} // namespace easel

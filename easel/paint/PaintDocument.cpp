#include "easel/paint/PaintDocument.h"

#include "easel/svg/ArtAttributes.h"
#include "easel/svg/Ink.h"

#include <algorithm>
#include <cmath>
#include <numeric>

namespace easel::paint {
namespace {

/// Instances of symbols within symbols multiply; a picture with more shows no more.
constexpr int kMostInstances = 500'000;
/// Repetitions of a pattern over one shape.
constexpr double kMostTiles = 10'000;

/// Dashes along one outline; more are finer than any pixel, and would take long to paint.
constexpr double kMostDashes = 1'000'000;

constexpr Colour kGuideColour{0.29F, 0.65F, 1.0F, 1.0F};
constexpr Matrix kFlip{1, 0, 0, -1, 0, 0};

using svg::matrixOf;

void appendOutline(const Art& art, Outline& outline) {
    if (art.type() == kPathArt) {
        svg::Subpath subpath;
        subpath.closed = art.content().closed;
        subpath.anchors.reserve(art.segments().size());
        for (const AIPathSegment& segment : art.segments())
            subpath.anchors.push_back(
                {curvePoint(segment.p), curvePoint(segment.in), curvePoint(segment.out)});
        outline.push_back(std::move(subpath));
        return;
    }
    for (const Art* member = art.lastChild(); member != nullptr; member = member->previous())
        appendOutline(*member, outline);
}

Outline outlineOf(const Art& art) {
    Outline outline;
    appendOutline(art, outline);
    return outline;
}

FillRule ruleOf(const ArtStyle& style) {
    return style.path.evenodd != 0 ? FillRule::EvenOdd : FillRule::NonZero;
}

/// Not less than the length of the curves.
double lengthOf(const Outline& outline) {
    double length = 0.0;
    const auto add = [&](Point from, Point to) {
        length += std::hypot(to.x - from.x, to.y - from.y);
    };
    for (const svg::Subpath& subpath : outline)
        for (std::size_t i = 0; i < subpath.anchors.size(); ++i) {
            const svg::Anchor& from = subpath.anchors[i];
            const svg::Anchor& to = subpath.anchors[(i + 1) % subpath.anchors.size()];
            add(from.p, from.out);
            add(from.out, to.in);
            add(to.in, to.p);
        }
    return length;
}

Pen penOf(const ArtStyle& style, const Outline& outline) {
    const AIStrokeStyle& stroke = style.path.stroke;
    Pen pen;
    pen.width = stroke.width;
    pen.cap = static_cast<svg::Cap>(std::clamp<int>(stroke.cap, 0, 2));
    pen.join = static_cast<svg::Join>(std::clamp<int>(stroke.join, 0, 2));
    pen.miterLimit = stroke.miterLimit;
    pen.dashOffset = stroke.dash.offset;
    if (!style.longDash.empty())
        pen.dashes.assign(style.longDash.begin(), style.longDash.end());
    else
        pen.dashes.assign(stroke.dash.array,
                          stroke.dash.array + std::clamp<int>(stroke.dash.length, 0, 6));
    if (pen.dashes.empty()) return pen;
    const double period = std::accumulate(pen.dashes.begin(), pen.dashes.end(), 0.0);
    const auto parts = static_cast<double>(pen.dashes.size());
    const bool sane = std::ranges::all_of(pen.dashes, [](double part) { return part >= 0; }) &&
                      parts * lengthOf(outline) < kMostDashes * period;
    if (!sane) pen.dashes.clear();
    return pen;
}

bool isGuide(const Art& art) {
    const Art* const path = art.type() == kCompoundPathArt ? art.firstChild() : &art;
    return path != nullptr && path->content().guide;
}

/// Walks the art with a stack of its own, because groups may be nested deeper than calls.
class ArtPainter {
public:
    ArtPainter(Painter& painter, const PaintOptions& options)
        : painter_(painter), options_(options) {}

    void paint(const Document& document) {
        const std::size_t depth = open_.size();
        open_.push_back({document.root().lastChild(), 0.0, End::Nothing});
        while (open_.size() > depth) {
            const Art* const art = open_.back().next;
            if (art == nullptr) {
                close();
                continue;
            }
            open_.back().next = art->previous();
            paint(*art);
        }
    }

private:
    enum class End { Nothing, Restore, Group };
    struct Open {
        const Art* next;
        double opacity; ///< Of a group that is painted as one; 0: of none.
        End end;
    };

    void close() {
        const Open open = open_.back();
        open_.pop_back();
        if (open.end == End::Group) painter_.endGroup(open.opacity);
        if (open.end != End::Nothing) painter_.restore();
    }

    void paint(const Art& art) {
        if (art.has(kArtHidden) || svg::isClipMask(art)) return;
        switch (art.type()) {
        case kGroupArt:
        case kPluginArt:
            return enter(art, lastShown(art));
        case kPathArt:
        case kCompoundPathArt:
            return paintShape(art);
        default:
            return paintOpaque(art);
        }
    }

    void enter(const Art& group, const Art* content) {
        const double opacity = group.style().opacity;
        if (content == nullptr || opacity <= 0) return;
        painter_.save();
        if (group.content().clipped) clip(group);
        if (group.isLayer()) clipLayer(group);
        if (opacity < 1) painter_.beginGroup();
        open_.push_back({content, opacity, opacity < 1 ? End::Group : End::Restore});
    }

    void clip(const Art& group) {
        for (const Art* mask = group.firstChild(); mask != nullptr; mask = mask->next()) {
            const bool isShape = mask->type() == kPathArt || mask->type() == kCompoundPathArt;
            if (mask->has(kArtIsClipMask) && isShape)
                painter_.clip(outlineOf(*mask), ruleOf(mask->style()));
        }
    }

    void clipLayer(const Art& layer) {
        const auto* const content =
            dynamic_cast<const svg::LayerClip*>(layer.details().foreign.get());
        if (content == nullptr) return;
        const Matrix toSoft = svg::softMatrix(Matrix{}, svg::rulerOffset(layer.document()));
        for (const svg::LayerClip::Mask& mask : content->masks)
            painter_.clip(svg::transformed(mask.outline, toSoft),
                          mask.evenOdd ? FillRule::EvenOdd : FillRule::NonZero);
    }

    void paintShape(const Art& art) {
        const Outline outline = outlineOf(art);
        if (isGuide(art)) {
            if (!options_.guides) return;
            Pen pen;
            pen.width = 1.0 / options_.scale;
            return painter_.stroke(outline, pen, {kGuideColour, nullptr, {}});
        }
        const ArtStyle& style = art.style();
        const bool fills = style.path.fillPaint != 0;
        const bool strokes = style.path.strokePaint != 0 && style.path.stroke.width > 0;
        if ((!fills && !strokes) || style.opacity <= 0) return;
        // Where only one of the two is painted, its own alpha does what a group would.
        const bool asGroup = fills && strokes && style.opacity < 1;
        const double alpha = asGroup ? 1.0 : style.opacity;
        if (asGroup) painter_.beginGroup();
        if (fills) fill(outline, style, alpha);
        if (strokes) stroke(outline, style, alpha);
        if (asGroup) painter_.endGroup(style.opacity);
    }

    void fill(const Outline& outline, const ArtStyle& style, double alpha) {
        const Definition* const definition = style.fillDefinition;
        const double whole = alpha * style.fillOpacity;
        const auto* const pattern = contentOf<svg::PatternContent>(definition);
        if (pattern != nullptr && style.path.fill.color.kind == kPattern)
            return tile(outline, ruleOf(style), *pattern, matrixOf(style.fillMatrix), whole);
        const auto ink = inkOf(style.path.fill.color, definition, style.fillMatrix, whole);
        if (ink) painter_.fill(outline, ruleOf(style), *ink);
    }

    void stroke(const Outline& outline, const ArtStyle& style, double alpha) {
        const auto ink = inkOf(style.path.stroke.color, style.strokeDefinition, style.strokeMatrix,
                               alpha * style.strokeOpacity);
        if (!ink) return;
        const svg::Effects* const effects = svg::effectsIn(style);
        const bool squeezed =
            effects != nullptr && !svg::isConformal(effects->space) && !effects->hasFixedStroke();
        if (squeezed)
            return strokeIn(matrixOf(style.foreignMatrix) * effects->space, outline, style, *ink);
        painter_.stroke(outline, penOf(style, outline), *ink);
    }

    /// The pen is round in that space.
    void strokeIn(const Matrix& space, const Outline& outline, const ArtStyle& style, Ink ink) {
        const auto back = svg::inverse(space);
        if (!back) return;
        const double scale = 1.0 / svg::meanScale(space);
        const Outline there = svg::transformed(outline, *back);
        Pen pen = penOf(style, outline);
        pen.width *= scale;
        pen.dashOffset *= scale;
        for (double& dash : pen.dashes)
            dash *= scale;
        ink.gradientMatrix = *back * ink.gradientMatrix;
        painter_.save();
        painter_.transform(space);
        painter_.stroke(there, pen, ink);
        painter_.restore();
    }

    /// Null when the definition is none of that kind.
    template <typename Content> static const Content* contentOf(const Definition* definition) {
        return definition != nullptr ? dynamic_cast<const Content*>(definition->content.get())
                                     : nullptr;
    }

    /// Nothing when the paint is not understood. A pattern along a stroke shows as grey.
    static std::optional<Ink> inkOf(const AIColor& color, const Definition* definition,
                                    const AIRealMatrix& matrix, double alpha) {
        const auto opaque = static_cast<float>(std::clamp(alpha, 0.0, 1.0));
        if (const auto plain = svg::plainColour(color))
            return Ink{{plain->red, plain->green, plain->blue, opaque}, nullptr, {}};
        if (color.kind == kPattern) return Ink{{0.5F, 0.5F, 0.5F, opaque}, nullptr, {}};
        const auto* const gradient = contentOf<svg::GradientContent>(definition);
        if (color.kind != kGradient || gradient == nullptr) return std::nullopt;
        return Ink{{0, 0, 0, opaque}, gradient, matrixOf(matrix) * gradient->transform};
    }

    void tile(const Outline& outline, FillRule rule, const svg::PatternContent& pattern,
              const Matrix& place, double alpha) {
        const Matrix toCurrent = place * pattern.transform;
        const auto back = svg::inverse(toCurrent);
        const Point size = pattern.tileSize;
        if (!pattern.drawing || !back || !(size.x > 0 && size.y > 0)) return;
        const svg::Box covered = svg::boundsOf(svg::transformed(outline, *back));
        if (covered.empty) return;
        const Point first{std::floor((covered.min.x - pattern.tileCorner.x) / size.x),
                          std::floor((covered.min.y - pattern.tileCorner.y) / size.y)};
        const Point last{std::floor((covered.max.x - pattern.tileCorner.x) / size.x),
                         std::floor((covered.max.y - pattern.tileCorner.y) / size.y)};
        const double columns = last.x - first.x + 1;
        const double rows = last.y - first.y + 1;
        if (!(columns * rows <= kMostTiles)) return; // nor when a tile is infinitely far away
        painter_.save();
        painter_.clip(outline, rule);
        if (alpha < 1) painter_.beginGroup();
        // Counted in integers: far away, a real and the next one may be the same.
        for (int row = 0; row < rows; ++row)
            for (int column = 0; column < columns; ++column)
                paintTile(pattern, toCurrent * Matrix{1, 0, 0, 1, (first.x + column) * size.x,
                                                      (first.y + row) * size.y});
        if (alpha < 1) painter_.endGroup(alpha);
        painter_.restore();
    }

    void paintTile(const svg::PatternContent& pattern, const Matrix& place) {
        if (++instances_ > kMostInstances) return;
        const Point from = pattern.tileCorner;
        painter_.save();
        painter_.transform(place);
        painter_.clip(rectangle(from, from + pattern.tileSize), FillRule::NonZero);
        painter_.transform(pattern.contentMatrix * kFlip);
        paint(*pattern.drawing->drawing);
        painter_.restore();
    }

    void paintOpaque(const Art& art) {
        const ArtDetails& details = art.details();
        const double opacity = art.style().opacity;
        if (opacity <= 0) return;
        painter_.save();
        if (opacity < 1) painter_.beginGroup();
        painter_.transform(matrixOf(details.matrix));
        if (const auto* text = dynamic_cast<const svg::TextContent*>(details.foreign.get()))
            paintText(*text);
        else if (const auto* image = dynamic_cast<const svg::ImageContent*>(details.foreign.get()))
            paintImage(*image);
        else if (details.symbol != nullptr)
            paintSymbol(contentOf<svg::DrawingContent>(details.symbol));
        if (opacity < 1) painter_.endGroup(opacity);
        painter_.restore();
    }

    void paintSymbol(const svg::DrawingContent* content) {
        if (content == nullptr || ++instances_ > kMostInstances) return;
        painter_.transform(kFlip);
        paint(*content->drawing);
    }

    /// Runs that go on from one another are placed as one line.
    void paintText(const svg::TextContent& text) {
        const auto& runs = text.runs;
        for (std::size_t first = 0; first < runs.size();) {
            std::size_t end = first + 1;
            while (end < runs.size() && !runs[end].positioned)
                ++end;
            double width = 0.0;
            for (std::size_t i = first; i < end; ++i)
                width += painter_.textWidth(runs[i].text, runs[i].font);
            Point start = runs[first].position;
            if (runs[first].anchor == svg::TextAnchor::Middle) start.x -= width / 2;
            if (runs[first].anchor == svg::TextAnchor::End) start.x -= width;
            for (; first < end; ++first) {
                const svg::TextRun& run = runs[first];
                Colour colour = run.fill.colour;
                colour.alpha *= static_cast<float>(run.fillOpacity);
                if (run.fill.kind != svg::Paint::Kind::None)
                    painter_.text(run.text, run.font, start, {colour, nullptr, {}});
                start.x += painter_.textWidth(run.text, run.font);
            }
        }
    }

    /// What cannot be shown is framed, so that it is seen where it lies.
    void paintImage(const svg::ImageContent& image) {
        Point corner = image.corner;
        Point size = image.size;
        const Point pixels = image.pixels;
        if (pixels.x <= 0 || pixels.y <= 0) {
            return painter_.stroke(rectangle(corner, corner + size), Pen{},
                                   {{0.5F, 0.5F, 0.5F, 1.0F}, nullptr, {}});
        }
        if (size.x <= 0) size.x = pixels.x;
        if (size.y <= 0) size.y = pixels.y;
        if (image.keepsAspect) {
            const double scale = std::min(size.x / pixels.x, size.y / pixels.y);
            const Point fitted{scale * pixels.x, scale * pixels.y};
            corner = {corner.x + (size.x - fitted.x) / 2, corner.y + (size.y - fitted.y) / 2};
            size = fitted;
        }
        painter_.image(image.png, corner, size);
    }

    Painter& painter_;
    const PaintOptions& options_;
    std::vector<Open> open_;
    int instances_ = 0;
};

} // namespace

void paintArt(const Document& document, Painter& painter, const PaintOptions& options) {
    ArtPainter{painter, options}.paint(document);
}

Picture paintDocument(const Document& document, const PaintOptions& options) {
    const AIRealRect artboard = document.artboard();
    const double width = std::ceil((artboard.right - artboard.left) * options.scale - 1e-6);
    const double height = std::ceil((artboard.top - artboard.bottom) * options.scale - 1e-6);
    checkPictureSize(std::max(1.0, width), std::max(1.0, height));
    const Matrix toPixels{options.scale,
                          0,
                          0,
                          -options.scale,
                          -options.scale * artboard.left,
                          options.scale * artboard.top};
    const auto all = [&](Painter& painter) {
        if (options.background)
            painter.fill(rectangle({0, 0}, {width, height}), FillRule::NonZero,
                         {*options.background, nullptr, {}});
        painter.save();
        painter.transform(toPixels);
        paintArt(document, painter, options);
        if (options.overlay) options.overlay(painter);
        painter.restore();
    };
    return render(std::max(1, static_cast<int>(width)), std::max(1, static_cast<int>(height)), all);
}

} // namespace easel::paint

#include "easel/paint/GdiplusPainter.h"

#include "easel/paint/Gradient.h"
#include "easel/paint/Picture.h"
#include "easel/paint/RunningGdiplus.h"

#include <algorithm>
#include <cmath>
#include <new>
#include <string>

namespace easel::paint {
namespace {

/// A part of a picture is painted at once when its samples are no more than this.
constexpr std::int64_t kMostSamples = 32'000'000;

/// Coordinates beyond this overflow in GDI+, which counts in single precision and whole numbers.
constexpr double kFarthest = 1e7;

constexpr Gdiplus::LineCap kCaps[] = {Gdiplus::LineCapFlat, Gdiplus::LineCapRound,
                                      Gdiplus::LineCapSquare};
constexpr Gdiplus::DashCap kDashCaps[] = {Gdiplus::DashCapFlat, Gdiplus::DashCapRound,
                                          Gdiplus::DashCapFlat};
constexpr Gdiplus::LineJoin kJoins[] = {Gdiplus::LineJoinMiterClipped, Gdiplus::LineJoinRound,
                                        Gdiplus::LineJoinBevel};

Point inReach(Point point) {
    return {std::clamp(point.x, -kFarthest, kFarthest), std::clamp(point.y, -kFarthest, kFarthest)};
}

Gdiplus::PointF pointF(Point point) {
    const Point inside = inReach(point);
    return {static_cast<float>(inside.x), static_cast<float>(inside.y)};
}

std::wstring wide(const std::string& text) {
    const int length =
        MultiByteToWideChar(CP_UTF8, 0, text.data(), static_cast<int>(text.size()), nullptr, 0);
    std::wstring result(static_cast<std::size_t>(length), L'\0');
    MultiByteToWideChar(CP_UTF8, 0, text.data(), static_cast<int>(text.size()), result.data(),
                        length);
    return result;
}

/// Samples. How far a chord may lie from the curve that it stands for.
constexpr double kFlatness = 0.1;
/// A curve as large as the largest picture needs fewer chords.
constexpr double kMostChords = 2000;

/// Adds the chords of a curve that begins at the last of `points`. GDI+ takes curves too, but some
/// of its implementations flatten them by recursion, which rounding keeps from ending where a curve
/// is short and far from the origin.
void addChords(std::vector<Point>& points, Point p0, Point p1, Point p2, Point p3) {
    const auto size = [](double x, double y) { return std::sqrt(x * x + y * y); };
    const double bend = std::max(size(p0.x - 2 * p1.x + p2.x, p0.y - 2 * p1.y + p2.y),
                                 size(p1.x - 2 * p2.x + p3.x, p1.y - 2 * p2.y + p3.y));
    // The second derivative is at most 6 times the bend; a chord over h is off by h^2 / 8 of it.
    const double wanted = std::ceil(std::sqrt(0.75 * bend / kFlatness));
    const int chords = static_cast<int>(std::clamp(wanted, 1.0, kMostChords));
    for (int i = 1; i < chords; ++i) {
        const double t = static_cast<double>(i) / chords;
        const double u = 1 - t;
        const double b0 = u * u * u;
        const double b1 = 3 * u * u * t;
        const double b2 = 3 * u * t * t;
        const double b3 = t * t * t;
        points.push_back(inReach(b0 * p0 + b1 * p1 + b2 * p2 + b3 * p3));
    }
    points.push_back(inReach(p3));
}

/// The straight edges of a path.
class Edges {
public:
    explicit Edges(Gdiplus::FillMode mode) : path_(std::make_unique<Gdiplus::GraphicsPath>(mode)) {}

    void addFigure(const std::vector<Point>& points, bool closed) {
        rounded_.resize(points.size());
        std::ranges::transform(points, rounded_.begin(), pointF);
        path_->StartFigure();
        path_->AddLines(rounded_.data(), static_cast<INT>(rounded_.size()));
        if (closed) path_->CloseFigure();
    }

    [[nodiscard]] std::unique_ptr<Gdiplus::GraphicsPath> take() { return std::move(path_); }

private:
    std::unique_ptr<Gdiplus::GraphicsPath> path_;
    std::vector<Gdiplus::PointF> rounded_;
};

/// What GDI+ made with curves in it, letters and the ends of lines, `map` applied.
std::unique_ptr<Gdiplus::GraphicsPath> flattened(const Gdiplus::GraphicsPath& path,
                                                 const Matrix& map) {
    Gdiplus::PathData data;
    path.GetPathData(&data);
    const auto at = [&](INT i) { return map * Point{data.Points[i].X, data.Points[i].Y}; };
    const auto typeAt = [&](INT i) { return data.Types[i] & Gdiplus::PathPointTypePathTypeMask; };
    Edges edges{path.GetFillMode()};
    std::vector<Point> points;
    for (INT i = 0; i < data.Count; ++i) {
        if (typeAt(i) == Gdiplus::PathPointTypeBezier && i > 0 && i + 2 < data.Count) {
            addChords(points, at(i - 1), at(i), at(i + 1), at(i + 2));
            i += 2;
        } else {
            points.push_back(inReach(at(i)));
        }
        if (i + 1 < data.Count && typeAt(i + 1) != Gdiplus::PathPointTypeStart) continue;
        edges.addFigure(points, (data.Types[i] & Gdiplus::PathPointTypeCloseSubpath) != 0);
        points.clear();
    }
    return edges.take();
}

std::unique_ptr<Gdiplus::FontFamily> familyOf(const svg::Font& font) {
    auto family = std::make_unique<Gdiplus::FontFamily>(wide(font.family).c_str());
    if (family->IsAvailable()) return family;
    const bool serif = font.family == "serif" || font.family.find("Times") != std::string::npos;
    return std::unique_ptr<Gdiplus::FontFamily>(
        (serif ? Gdiplus::FontFamily::GenericSerif() : Gdiplus::FontFamily::GenericSansSerif())
            ->Clone());
}

INT styleOf(const svg::Font& font) {
    return (font.bold ? Gdiplus::FontStyleBold : 0) | (font.italic ? Gdiplus::FontStyleItalic : 0);
}

/// Null when it is no picture.
std::unique_ptr<Gdiplus::Bitmap> decodedPng(std::span<const std::byte> png) {
    if (png.empty()) return nullptr;
    const HGLOBAL memory = GlobalAlloc(GMEM_MOVEABLE, png.size());
    if (memory == nullptr) return nullptr;
    std::copy(png.begin(), png.end(), static_cast<std::byte*>(GlobalLock(memory)));
    GlobalUnlock(memory);
    IStream* stream = nullptr;
    if (CreateStreamOnHGlobal(memory, /*delete with the stream*/ TRUE, &stream) != S_OK) {
        GlobalFree(memory);
        return nullptr;
    }
    auto bitmap = std::make_unique<Gdiplus::Bitmap>(stream);
    stream->Release();
    return bitmap->GetLastStatus() == Gdiplus::Ok ? std::move(bitmap) : nullptr;
}

Gdiplus::Color solid(const Colour& colour) {
    const auto byte = [](float value) {
        return static_cast<BYTE>(std::lround(std::clamp(value, 0.0F, 1.0F) * 255.0F));
    };
    return {byte(colour.alpha), byte(colour.red), byte(colour.green), byte(colour.blue)};
}

std::uint32_t premultiplied(const Colour& colour, double alpha) {
    const double whole = std::clamp(colour.alpha * alpha, 0.0, 1.0);
    const auto byte = [](double value) {
        return static_cast<std::uint32_t>(std::lround(std::clamp(value, 0.0, 1.0) * 255.0));
    };
    return byte(whole) << 24 | byte(colour.red * whole) << 16 | byte(colour.green * whole) << 8 |
           byte(colour.blue * whole);
}

} // namespace

GdiplusPainter::Layer::Layer(int width, int height) : Layer(nullptr, width, height) {}

GdiplusPainter::Layer::Layer(std::uint32_t* pixels, int width, int height)
    : own(pixels != nullptr ? 0
                            : static_cast<std::size_t>(width) * static_cast<std::size_t>(height)),
      samples(pixels != nullptr ? pixels : own.data()),
      bitmap(std::make_unique<Gdiplus::Bitmap>(width, height, 4 * width, PixelFormat32bppPARGB,
                                               reinterpret_cast<BYTE*>(samples))),
      graphics(std::make_unique<Gdiplus::Graphics>(bitmap.get())) {
    graphics->SetPixelOffsetMode(Gdiplus::PixelOffsetModeHalf); // samples at the pixels' middles
    graphics->SetSmoothingMode(Gdiplus::SmoothingModeNone);
    graphics->SetInterpolationMode(Gdiplus::InterpolationModeBilinear);
}

GdiplusPainter::GdiplusPainter(int width, int firstRow, int rows)
    : width_(kSamples * width),
      height_(kSamples * rows), matrix_{kSamples, 0, 0,
                                        kSamples, 0, -static_cast<double>(kSamples) * firstRow} {
    layers_.push_back(std::make_unique<Layer>(width_, height_));
}

GdiplusPainter::GdiplusPainter(std::uint32_t* pixels, int width, int height)
    : direct_(true), width_(width), height_(height) {
    layers_.push_back(std::make_unique<Layer>(pixels, width, height));
    graphics().SetSmoothingMode(Gdiplus::SmoothingModeAntiAlias);
    graphics().SetTextRenderingHint(Gdiplus::TextRenderingHintAntiAlias);
    raster_ = std::make_unique<Raster>(width, height);
    clip_.push_back({0, 0, width, height});
}

void GdiplusPainter::save() {
    State state{matrix_, std::make_unique<Gdiplus::Region>(), clip_};
    graphics().GetClip(state.clip.get());
    saved_.push_back(std::move(state));
}

void GdiplusPainter::restore() {
    matrix_ = saved_.back().matrix;
    graphics().SetClip(saved_.back().clip.get());
    clip_ = std::move(saved_.back().areas);
    saved_.pop_back();
}

void GdiplusPainter::transform(const Matrix& matrix) { matrix_ = matrix_ * matrix; }

void GdiplusPainter::clip(const Outline& outline, FillRule rule) {
    graphics().SetClip(pathOf(outline, rule).get(), Gdiplus::CombineModeIntersect);
    readClip();
}

void GdiplusPainter::fill(const Outline& outline, FillRule rule, const Ink& ink) {
    if (direct_ && ink.gradient == nullptr) return paintPlain(outline, rule, 0, ink);
    paint(*pathOf(outline, rule), nullptr, ink);
}

void GdiplusPainter::stroke(const Outline& outline, const Pen& pen, const Ink& ink) {
    const double scale = svg::meanScale(matrix_);
    const auto width = static_cast<float>(std::min(pen.width * scale, kFarthest));
    constexpr float kThin = 1.5F; // needs no joins
    const bool thin = width <= kThin;
    if (thin && direct_ && ink.gradient == nullptr && pen.dashes.empty())
        return paintPlain(outline, FillRule::NonZero, std::max(width, 1.0F), ink);
    Gdiplus::Pen line{Gdiplus::Color{}, width};
    line.SetStartCap(kCaps[static_cast<std::size_t>(pen.cap)]);
    line.SetEndCap(kCaps[static_cast<std::size_t>(pen.cap)]);
    line.SetDashCap(kDashCaps[static_cast<std::size_t>(pen.cap)]);
    line.SetLineJoin(kJoins[static_cast<std::size_t>(pen.join)]);
    line.SetMiterLimit(static_cast<float>(pen.miterLimit));
    if (!pen.dashes.empty() && pen.width > 0) { // GDI+ counts dashes in widths of the pen
        std::vector<float> dashes;
        for (const double dash : pen.dashes)
            dashes.push_back(static_cast<float>(std::max(dash / pen.width, 1e-3)));
        line.SetDashPattern(dashes.data(), static_cast<INT>(dashes.size()));
        line.SetDashOffset(static_cast<float>(pen.dashOffset / pen.width));
    }
    const auto path = pathOf(outline, FillRule::NonZero);
    // Where nothing is smoothed a thin shape would miss samples, and a thin line does not.
    if ((thin && !direct_) || path->Widen(&line) != Gdiplus::Ok) return paint(*path, &line, ink);
    const auto shape = flattened(*path, {});
    if (direct_ && ink.gradient == nullptr)
        paintFlat(*shape, ink);
    else
        paint(*shape, nullptr, ink);
}

void GdiplusPainter::paint(const Gdiplus::GraphicsPath& path, const Gdiplus::Pen* pen,
                           const Ink& ink) {
    if (ink.gradient != nullptr) return paintGradient(path, pen, ink);
    const Gdiplus::Color colour = solid(ink.colour);
    if (pen == nullptr) {
        const Gdiplus::SolidBrush brush{colour};
        graphics().FillPath(&brush, &path);
        return;
    }
    const std::unique_ptr<Gdiplus::Pen> coloured{pen->Clone()};
    coloured->SetColor(colour);
    graphics().DrawPath(coloured.get(), &path);
}

/// The shape is painted white on a layer of its own; where it is, the gradient shows.
void GdiplusPainter::paintGradient(const Gdiplus::GraphicsPath& path, const Gdiplus::Pen* pen,
                                   const Ink& ink) {
    const std::optional<Matrix> back = svg::inverse(matrix_ * ink.gradientMatrix);
    const std::optional<Colour> single = singleColour(*ink.gradient);
    if (single || !back) {
        Ink plain{single.value_or(Colour{0, 0, 0, 0}), nullptr, {}};
        plain.colour.alpha *= ink.colour.alpha;
        return paint(path, pen, plain);
    }
    Gdiplus::RectF bounds;
    path.GetBounds(&bounds, nullptr, nullptr);
    const double grown = pen != nullptr ? pen->GetWidth() * (1 + pen->GetMiterLimit()) : 1.0;
    const auto within = [](double value, int limit) {
        return static_cast<int>(std::clamp(value, 0.0, static_cast<double>(limit)));
    };
    const int left = within(bounds.X - grown, width_);
    const int top = within(bounds.Y - grown, height_);
    const int right = within(bounds.X + bounds.Width + grown + 1, width_);
    const int bottom = within(bounds.Y + bounds.Height + grown + 1, height_);
    if (left >= right || top >= bottom) return;

    std::uint32_t* const target = layers_.back()->samples;
    layers_.push_back(newLayer());
    paint(path, pen, {{1, 1, 1, 1}, nullptr, {}});
    graphics().Flush(Gdiplus::FlushIntentionSync);
    const std::unique_ptr<Layer> mask = std::move(layers_.back());
    layers_.pop_back();
    for (int y = top; y < bottom; ++y) {
        for (int x = left; x < right; ++x) {
            const std::size_t at = static_cast<std::size_t>(y) * static_cast<std::size_t>(width_) +
                                   static_cast<std::size_t>(x);
            const std::uint32_t part = mask->samples[at] >> 24;
            if (part == 0) continue;
            const Colour colour = colourAt(*ink.gradient, *back * Point{x + 0.5, y + 0.5});
            target[at] = composed(target[at], premultiplied(colour, ink.colour.alpha), part);
        }
    }
}

std::unique_ptr<GdiplusPainter::Layer> GdiplusPainter::newLayer() {
    auto layer = std::make_unique<Layer>(width_, height_);
    Gdiplus::Region clip;
    graphics().GetClip(&clip);
    layer->graphics->SetClip(&clip);
    return layer;
}

void GdiplusPainter::beginGroup() {
    checkGroups(static_cast<int>(layers_.size()), width_, height_);
    layers_.push_back(newLayer());
}

void GdiplusPainter::endGroup(double opacity) {
    graphics().Flush(Gdiplus::FlushIntentionSync);
    const std::unique_ptr<Layer> group = std::move(layers_.back());
    layers_.pop_back();
    const auto part = static_cast<std::uint32_t>(std::lround(std::clamp(opacity, 0.0, 1.0) * 255));
    std::uint32_t* const target = layers_.back()->samples;
    for (std::size_t i = 0; i < group->own.size(); ++i)
        if (group->samples[i] >> 24 != 0) target[i] = composed(target[i], group->samples[i], part);
}

/// Letters become outlines at the origin, which the coordinates then place: mirrored text is
/// painted mirrored. Only upright ones that are painted straight on pixels are set by GDI+, which
/// smooths letters where it smooths nothing else.
void GdiplusPainter::text(const std::string& text, const svg::Font& font, Point start,
                          const Ink& ink) {
    const auto family = familyOf(font);
    const INT style = styleOf(font);
    const auto size = static_cast<float>(font.size);
    const float ascent = size * static_cast<float>(family->GetCellAscent(style)) /
                         static_cast<float>(family->GetEmHeight(style));
    const std::wstring letters = wide(text);
    const bool upright =
        matrix_.b == 0 && matrix_.c == 0 && matrix_.a > 0 && matrix_.a == matrix_.d;
    if (direct_ && upright && ink.gradient == nullptr) {
        const double zoom = matrix_.a;
        const Gdiplus::Font set{family.get(), static_cast<float>(font.size * zoom), style,
                                Gdiplus::UnitPixel};
        const Gdiplus::SolidBrush brush{solid(ink.colour)};
        Gdiplus::PointF corner = pointF(matrix_ * start);
        corner.Y -= ascent * static_cast<float>(zoom);
        graphics().DrawString(letters.c_str(), static_cast<INT>(letters.size()), &set, corner,
                              Gdiplus::StringFormat::GenericTypographic(), &brush);
        return;
    }
    Gdiplus::GraphicsPath path{Gdiplus::FillModeWinding};
    path.AddString(letters.c_str(), static_cast<INT>(letters.size()), family.get(), style, size,
                   Gdiplus::PointF{0, -ascent}, Gdiplus::StringFormat::GenericTypographic());
    const Matrix place = matrix_ * Matrix{1, 0, 0, 1, start.x, start.y};
    paint(*flattened(path, place), nullptr, ink);
}

/// Measured large: GDI+ fits small letters to whole pixels, and the outlines that are painted are
/// those of no size.
double GdiplusPainter::textWidth(const std::string& text, const svg::Font& font) {
    constexpr double kEnlarged = 64;
    const auto family = familyOf(font);
    const Gdiplus::Font measured{family.get(), static_cast<float>(kEnlarged * font.size),
                                 styleOf(font), Gdiplus::UnitPixel};
    const std::wstring letters = wide(text);
    Gdiplus::StringFormat format{Gdiplus::StringFormat::GenericTypographic()};
    format.SetFormatFlags(format.GetFormatFlags() |
                          Gdiplus::StringFormatFlagsMeasureTrailingSpaces);
    Gdiplus::RectF bounds;
    graphics().MeasureString(letters.c_str(), static_cast<INT>(letters.size()), &measured,
                             Gdiplus::PointF{0, 0}, &format, &bounds);
    return static_cast<double>(bounds.Width) / kEnlarged;
}

void GdiplusPainter::image(std::span<const std::byte> png, Point corner, Point size) {
    if (imageBytes_ != png.data()) {
        image_ = decodedPng(png);
        imageBytes_ = png.data();
    }
    if (!image_) return;
    const Gdiplus::PointF corners[] = {pointF(matrix_ * corner),
                                       pointF(matrix_ * Point{corner.x + size.x, corner.y}),
                                       pointF(matrix_ * Point{corner.x, corner.y + size.y})};
    Gdiplus::ImageAttributes attributes;
    attributes.SetWrapMode(Gdiplus::WrapModeTileFlipXY); // else the edges would fade away
    graphics().DrawImage(image_.get(), corners, 3, 0, 0, static_cast<float>(image_->GetWidth()),
                         static_cast<float>(image_->GetHeight()), Gdiplus::UnitPixel, &attributes);
}

void GdiplusPainter::eachFigure(
    const Outline& outline,
    const std::function<void(const std::vector<Point>&, bool closed)>& use) const {
    std::vector<Point> points;
    for (const svg::Subpath& subpath : outline) {
        const auto& anchors = subpath.anchors;
        if (anchors.size() < 2 && !subpath.closed) continue;
        points.assign(1, inReach(matrix_ * anchors.front().p));
        const std::size_t pieces = anchors.size() - (subpath.closed ? 0 : 1);
        for (std::size_t i = 0; i < pieces; ++i) {
            const svg::Anchor& to = anchors[(i + 1) % anchors.size()];
            if (anchors[i].out == anchors[i].p && to.in == to.p)
                points.push_back(inReach(matrix_ * to.p));
            else
                addChords(points, matrix_ * anchors[i].p, matrix_ * anchors[i].out, matrix_ * to.in,
                          matrix_ * to.p);
        }
        use(points, subpath.closed);
    }
}

std::unique_ptr<Gdiplus::GraphicsPath> GdiplusPainter::pathOf(const Outline& outline,
                                                              FillRule rule) const {
    Edges edges{rule == FillRule::EvenOdd ? Gdiplus::FillModeAlternate : Gdiplus::FillModeWinding};
    eachFigure(outline, [&](const std::vector<Point>& points, bool closed) {
        edges.addFigure(points, closed);
    });
    return edges.take();
}

/// A plain shape, or a thin line, straight on the pixels.
void GdiplusPainter::paintPlain(const Outline& outline, FillRule rule, double lineWidth,
                                const Ink& ink) {
    eachFigure(outline, [&](const std::vector<Point>& points, bool) {
        if (lineWidth > 0) return raster_->addLine(points, lineWidth);
        for (std::size_t i = 0; i < points.size(); ++i)
            raster_->addEdge(points[i], points[(i + 1) % points.size()]);
    });
    raster_->paint(layers_.back()->samples, clip_, rule, premultiplied(ink.colour, 1));
}

void GdiplusPainter::paintFlat(const Gdiplus::GraphicsPath& path, const Ink& ink) {
    Gdiplus::PathData data;
    path.GetPathData(&data);
    const auto at = [&](INT i) { return Point{data.Points[i].X, data.Points[i].Y}; };
    INT first = 0;
    for (INT i = 0; i < data.Count; ++i) {
        const bool ends = i + 1 == data.Count || data.Types[i + 1] == Gdiplus::PathPointTypeStart;
        raster_->addEdge(at(i), at(ends ? first : i + 1));
        if (ends) first = i + 1;
    }
    raster_->paint(layers_.back()->samples, clip_, FillRule::NonZero, premultiplied(ink.colour, 1));
}

void GdiplusPainter::readClip() {
    if (!direct_) return;
    Gdiplus::Region region;
    graphics().GetClip(&region);
    const Gdiplus::Matrix same;
    std::vector<Gdiplus::Rect> areas(region.GetRegionScansCount(&same));
    INT count = static_cast<INT>(areas.size());
    if (count > 0) region.GetRegionScans(&same, areas.data(), &count);
    clip_.clear();
    for (INT i = 0; i < count; ++i) {
        const Gdiplus::Rect& area = areas[static_cast<std::size_t>(i)];
        clip_.push_back({std::max(area.X, 0), std::max(area.Y, 0),
                         std::min(area.GetRight(), width_), std::min(area.GetBottom(), height_)});
    }
}

void GdiplusPainter::readRows(std::uint8_t* target) const {
    layers_.front()->graphics->Flush(Gdiplus::FlushIntentionSync);
    const std::uint32_t* const samples = layers_.front()->samples;
    constexpr std::uint32_t kCount = kSamples * kSamples;
    for (int y = 0; y < height_; y += kSamples) {
        for (int x = 0; x < width_; x += kSamples) {
            std::uint32_t sums[4] = {};
            for (int row = y; row < y + kSamples; ++row)
                for (int column = x; column < x + kSamples; ++column) {
                    const std::uint32_t sample =
                        samples[static_cast<std::ptrdiff_t>(row) * width_ + column];
                    for (std::size_t i = 0; i < 4; ++i)
                        sums[i] += sample >> (24 - 8 * i) & 255;
                }
            const std::uint32_t alpha = sums[0];
            for (std::size_t i = 1; i < 4; ++i)
                *target++ = static_cast<std::uint8_t>(
                    alpha == 0 ? 0 : std::min(255U, (sums[i] * 255 + alpha / 2) / alpha));
            *target++ = static_cast<std::uint8_t>((alpha + kCount / 2) / kCount);
        }
    }
}

Picture render(int width, int height, const std::function<void(Painter&)>& paint) {
    checkPictureSize(width, height);
    const RunningGdiplus running;
    Picture picture{width, height, {}};
    const auto stride = 4 * static_cast<std::size_t>(width);
    picture.pixels.resize(stride * static_cast<std::size_t>(height));
    const std::int64_t samplesPerRow =
        std::int64_t{GdiplusPainter::kSamples} * GdiplusPainter::kSamples * width;
    const int rowsAtOnce =
        static_cast<int>(std::max<std::int64_t>(1, kMostSamples / samplesPerRow));
    for (int row = 0; row < height; row += rowsAtOnce) {
        GdiplusPainter painter{width, row, std::min(rowsAtOnce, height - row)};
        paint(painter);
        painter.readRows(picture.pixels.data() + stride * static_cast<std::size_t>(row));
    }
    return picture;
}

std::optional<Picture> readPng(std::span<const std::byte> png) {
    const RunningGdiplus running;
    const auto bitmap = decodedPng(png);
    if (!bitmap) return std::nullopt;
    const auto width = static_cast<int>(bitmap->GetWidth());
    const auto height = static_cast<int>(bitmap->GetHeight());
    Gdiplus::BitmapData data{};
    const Gdiplus::Rect all{0, 0, width, height};
    if (bitmap->LockBits(&all, Gdiplus::ImageLockModeRead, PixelFormat32bppARGB, &data) !=
        Gdiplus::Ok)
        return std::nullopt;
    Picture picture{width, height, {}};
    for (int y = 0; y < height; ++y) {
        const auto* row = static_cast<const BYTE*>(data.Scan0) + std::ptrdiff_t{y} * data.Stride;
        for (int x = 0; x < width; ++x, row += 4) // GDI+ has blue first
            picture.pixels.insert(picture.pixels.end(), {row[2], row[1], row[0], row[3]});
    }
    bitmap->UnlockBits(&data);
    return picture;
}

std::string pngText(const Picture& picture) {
    const RunningGdiplus running;
    std::vector<std::uint8_t> swapped = picture.pixels; // GDI+ has blue first
    for (std::size_t i = 0; i + 3 < swapped.size(); i += 4)
        std::swap(swapped[i], swapped[i + 2]);
    Gdiplus::Bitmap bitmap{picture.width, picture.height, 4 * picture.width, PixelFormat32bppARGB,
                           swapped.data()};
    constexpr CLSID kPngEncoder{
        0x557cf406, 0x1a04, 0x11d3, {0x9a, 0x73, 0x00, 0x00, 0xf8, 0x1e, 0xf3, 0x2e}};
    IStream* stream = nullptr;
    if (CreateStreamOnHGlobal(nullptr, TRUE, &stream) != S_OK) throw std::bad_alloc{};
    std::string png;
    HGLOBAL memory = nullptr;
    STATSTG status{};
    if (bitmap.Save(stream, &kPngEncoder, nullptr) == Gdiplus::Ok &&
        stream->Stat(&status, STATFLAG_NONAME) == S_OK &&
        GetHGlobalFromStream(stream, &memory) == S_OK)
        png.assign(static_cast<const char*>(GlobalLock(memory)),
                   static_cast<std::size_t>(status.cbSize.QuadPart));
    if (memory != nullptr) GlobalUnlock(memory);
    stream->Release();
    if (png.empty()) throw std::bad_alloc{};
    return png;
}

} // namespace easel::paint

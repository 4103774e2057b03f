#include "easel/paint/Gradient.h"
#include "easel/paint/Picture.h"

#include <cairo.h>

#include <algorithm>
#include <cstring>
#include <memory>
#include <new>

// NOLINTBEGIN(bugprone-reserved-identifier): the leak checker's name for it
/// Asked by the leak checker of a sanitized build: the font library keeps what it has found until
/// the process ends, behind pointers that the checker does not see.
extern "C" __attribute__((visibility("default"))) const char* __lsan_default_suppressions();
const char* __lsan_default_suppressions() { return "leak:libfontconfig\n"; }
// NOLINTEND(bugprone-reserved-identifier)

namespace easel::paint {
namespace {

template <auto Free> struct Freed {
    template <typename T> void operator()(T* object) const { Free(object); }
};
using Surface = std::unique_ptr<cairo_surface_t, Freed<cairo_surface_destroy>>;
using Context = std::unique_ptr<cairo_t, Freed<cairo_destroy>>;
using Pattern = std::unique_ptr<cairo_pattern_t, Freed<cairo_pattern_destroy>>;

cairo_matrix_t cairoMatrix(const Matrix& m) { return {m.a, m.b, m.c, m.d, m.e, m.f}; }

cairo_fill_rule_t cairoRule(FillRule rule) {
    return rule == FillRule::EvenOdd ? CAIRO_FILL_RULE_EVEN_ODD : CAIRO_FILL_RULE_WINDING;
}

constexpr cairo_line_cap_t kCaps[] = {CAIRO_LINE_CAP_BUTT, CAIRO_LINE_CAP_ROUND,
                                      CAIRO_LINE_CAP_SQUARE};
constexpr cairo_line_join_t kJoins[] = {CAIRO_LINE_JOIN_MITER, CAIRO_LINE_JOIN_ROUND,
                                        CAIRO_LINE_JOIN_BEVEL};
constexpr cairo_extend_t kSpreads[] = {CAIRO_EXTEND_PAD, CAIRO_EXTEND_REFLECT, CAIRO_EXTEND_REPEAT};

Pattern gradientPattern(const svg::GradientContent& gradient, const Matrix& back, double alpha) {
    const Point& start = gradient.start;
    const Point& end = gradient.end;
    Pattern pattern{gradient.kind == svg::GradientContent::Kind::Linear
                        ? cairo_pattern_create_linear(start.x, start.y, end.x, end.y)
                        : cairo_pattern_create_radial(start.x, start.y, gradient.focalRadius, end.x,
                                                      end.y, gradient.radius)};
    for (const svg::GradientStop& stop : gradient.stops)
        cairo_pattern_add_color_stop_rgba(pattern.get(), stop.offset, stop.colour.red,
                                          stop.colour.green, stop.colour.blue,
                                          stop.colour.alpha * alpha);
    const cairo_matrix_t matrix = cairoMatrix(back);
    cairo_pattern_set_matrix(pattern.get(), &matrix);
    cairo_pattern_set_extend(pattern.get(), kSpreads[static_cast<std::size_t>(gradient.spread)]);
    return pattern;
}

cairo_status_t readBytes(void* source, unsigned char* data, unsigned int length) {
    auto& rest = *static_cast<std::span<const std::byte>*>(source);
    if (rest.size() < length) return CAIRO_STATUS_READ_ERROR;
    std::memcpy(data, rest.data(), length);
    rest = rest.subspan(length);
    return CAIRO_STATUS_SUCCESS;
}

/// Null when it is no PNG.
Surface decodedPng(std::span<const std::byte> png) {
    Surface surface{cairo_image_surface_create_from_png_stream(readBytes, &png)};
    if (cairo_surface_status(surface.get()) != CAIRO_STATUS_SUCCESS) return nullptr;
    return surface;
}

/// Cairo keeps colours multiplied by alpha, in one native word a pixel.
Picture pictureOf(cairo_surface_t* surface) {
    cairo_surface_flush(surface);
    const unsigned char* const data = cairo_image_surface_get_data(surface);
    const int stride = cairo_image_surface_get_stride(surface);
    Picture picture{
        cairo_image_surface_get_width(surface), cairo_image_surface_get_height(surface), {}};
    picture.pixels.resize(4 * static_cast<std::size_t>(picture.width) *
                          static_cast<std::size_t>(picture.height));
    std::size_t target = 0;
    for (int y = 0; y < picture.height; ++y) {
        const unsigned char* pixel = data + static_cast<std::ptrdiff_t>(y) * stride;
        for (int x = 0; x < picture.width; ++x, pixel += 4) {
            std::uint32_t word = 0;
            std::memcpy(&word, pixel, 4);
            const std::uint32_t alpha = word >> 24;
            for (const int shift : {16, 8, 0}) {
                const std::uint32_t channel = word >> shift & 255;
                const std::uint32_t plain = alpha == 0 ? 0 : (channel * 255 + alpha / 2) / alpha;
                picture.pixels[target++] = static_cast<std::uint8_t>(std::min(plain, 255U));
            }
            picture.pixels[target++] = static_cast<std::uint8_t>(alpha);
        }
    }
    return picture;
}

void pack(const Picture& picture, cairo_surface_t* surface) {
    cairo_surface_flush(surface);
    unsigned char* const data = cairo_image_surface_get_data(surface);
    const int stride = cairo_image_surface_get_stride(surface);
    const std::uint8_t* source = picture.pixels.data();
    for (int y = 0; y < picture.height; ++y) {
        unsigned char* pixel = data + static_cast<std::ptrdiff_t>(y) * stride;
        for (int x = 0; x < picture.width; ++x, source += 4, pixel += 4) {
            const std::uint32_t alpha = source[3];
            const auto channel = [&](int i) { return (source[i] * alpha + 127) / 255; };
            const std::uint32_t word =
                alpha << 24 | channel(0) << 16 | channel(1) << 8 | channel(2);
            std::memcpy(pixel, &word, 4);
        }
    }
    cairo_surface_mark_dirty(surface);
}

class CairoPainter final : public Painter {
public:
    /// `context` must outlive the painter.
    explicit CairoPainter(cairo_t* context) : context_(context) {}

    void save() override { cairo_save(context_); }
    void restore() override { cairo_restore(context_); }

    /// A matrix that flattens the plane would put Cairo into an error that nothing ends; what is
    /// painted under it has no area and may as well be far away.
    void transform(const Matrix& matrix) override {
        cairo_matrix_t change = cairoMatrix(matrix);
        if (!svg::inverse(matrix)) change = {1, 0, 0, 1, 1e6, 1e6};
        cairo_transform(context_, &change);
    }

    void clip(const Outline& outline, FillRule rule) override {
        trace(outline);
        cairo_set_fill_rule(context_, cairoRule(rule));
        cairo_clip(context_);
    }

    void fill(const Outline& outline, FillRule rule, const Ink& ink) override {
        trace(outline);
        choose(ink);
        cairo_set_fill_rule(context_, cairoRule(rule));
        cairo_fill(context_);
    }

    void stroke(const Outline& outline, const Pen& pen, const Ink& ink) override {
        trace(outline);
        choose(ink);
        cairo_set_line_width(context_, pen.width);
        cairo_set_line_cap(context_, kCaps[static_cast<std::size_t>(pen.cap)]);
        cairo_set_line_join(context_, kJoins[static_cast<std::size_t>(pen.join)]);
        cairo_set_miter_limit(context_, pen.miterLimit);
        cairo_set_dash(context_, pen.dashes.data(), static_cast<int>(pen.dashes.size()),
                       pen.dashOffset);
        cairo_stroke(context_);
    }

    void beginGroup() override {
        cairo_surface_t* const target = cairo_get_target(context_);
        checkGroups(++groups_, cairo_image_surface_get_width(target),
                    cairo_image_surface_get_height(target));
        cairo_push_group(context_);
    }

    void endGroup(double opacity) override {
        --groups_;
        cairo_pop_group_to_source(context_);
        cairo_paint_with_alpha(context_, opacity);
    }

    void text(const std::string& text, const svg::Font& font, Point start,
              const Ink& ink) override {
        choose(font);
        cairo_new_path(context_);
        cairo_move_to(context_, start.x, start.y);
        cairo_text_path(context_, text.c_str());
        choose(ink);
        cairo_set_fill_rule(context_, CAIRO_FILL_RULE_WINDING);
        cairo_fill(context_);
    }

    [[nodiscard]] double textWidth(const std::string& text, const svg::Font& font) override {
        choose(font);
        cairo_text_extents_t extents{};
        cairo_text_extents(context_, text.c_str(), &extents);
        return extents.x_advance;
    }

    void image(std::span<const std::byte> png, Point corner, Point size) override {
        if (imageBytes_ != png.data()) {
            image_ = decodedPng(png);
            imageBytes_ = png.data();
        }
        if (!image_) return;
        const int width = cairo_image_surface_get_width(image_.get());
        const int height = cairo_image_surface_get_height(image_.get());
        if (width == 0 || height == 0) return;
        save();
        transform({size.x / width, 0, 0, size.y / height, corner.x, corner.y});
        cairo_set_source_surface(context_, image_.get(), 0, 0);
        cairo_pattern_set_extend(cairo_get_source(context_), CAIRO_EXTEND_PAD); // edges do not fade
        cairo_rectangle(context_, 0, 0, width, height);
        cairo_fill(context_);
        restore();
    }

private:
    void trace(const Outline& outline) {
        cairo_new_path(context_);
        const auto curve = [&](const svg::Anchor& from, const svg::Anchor& to) {
            if (from.out == from.p && to.in == to.p)
                cairo_line_to(context_, to.p.x, to.p.y);
            else
                cairo_curve_to(context_, from.out.x, from.out.y, to.in.x, to.in.y, to.p.x, to.p.y);
        };
        for (const svg::Subpath& subpath : outline) {
            const auto& anchors = subpath.anchors;
            if (anchors.empty()) continue;
            cairo_move_to(context_, anchors.front().p.x, anchors.front().p.y);
            for (std::size_t i = 1; i < anchors.size(); ++i)
                curve(anchors[i - 1], anchors[i]);
            if (!subpath.closed) continue;
            curve(anchors.back(), anchors.front());
            cairo_close_path(context_);
        }
    }

    void choose(const Ink& ink) {
        const Colour& colour = ink.colour;
        const auto plain = [&](const Colour& c, double alpha) {
            cairo_set_source_rgba(context_, c.red, c.green, c.blue, alpha);
        };
        if (ink.gradient == nullptr) return plain(colour, colour.alpha);
        const std::optional<Matrix> back = svg::inverse(ink.gradientMatrix);
        if (const auto single = singleColour(*ink.gradient); single || !back) {
            const Colour all = single.value_or(Colour{0, 0, 0, 0});
            return plain(all, all.alpha * colour.alpha);
        }
        const Pattern pattern = gradientPattern(*ink.gradient, *back, colour.alpha);
        cairo_set_source(context_, pattern.get());
    }

    void choose(const svg::Font& font) {
        cairo_select_font_face(context_, font.family.c_str(),
                               font.italic ? CAIRO_FONT_SLANT_ITALIC : CAIRO_FONT_SLANT_NORMAL,
                               font.bold ? CAIRO_FONT_WEIGHT_BOLD : CAIRO_FONT_WEIGHT_NORMAL);
        cairo_set_font_size(context_, font.size);
    }

    cairo_t* context_;
    int groups_ = 0; ///< Open ones, each a picture of its own.
    /// The image last painted: copies of it tend to follow.
    Surface image_;
    const std::byte* imageBytes_ = nullptr;
};

} // namespace

Picture render(int width, int height, const std::function<void(Painter&)>& paint) {
    checkPictureSize(width, height);
    const Surface surface{cairo_image_surface_create(CAIRO_FORMAT_ARGB32, width, height)};
    const Context context{cairo_create(surface.get())};
    CairoPainter painter{context.get()};
    paint(painter);
    return pictureOf(surface.get());
}

std::optional<Picture> readPng(std::span<const std::byte> png) {
    const Surface surface = decodedPng(png);
    if (!surface) return std::nullopt;
    const int width = cairo_image_surface_get_width(surface.get());
    const int height = cairo_image_surface_get_height(surface.get());
    // Painted over, because a file without transparency comes in a form without alpha.
    const Surface whole{cairo_image_surface_create(CAIRO_FORMAT_ARGB32, width, height)};
    const Context context{cairo_create(whole.get())};
    cairo_set_source_surface(context.get(), surface.get(), 0, 0);
    cairo_paint(context.get());
    return pictureOf(whole.get());
}

std::string pngText(const Picture& picture) {
    const Surface surface{
        cairo_image_surface_create(CAIRO_FORMAT_ARGB32, picture.width, picture.height)};
    std::string png;
    const auto append = [](void* target, const unsigned char* data, unsigned int length) {
        static_cast<std::string*>(target)->append(reinterpret_cast<const char*>(data), length);
        return CAIRO_STATUS_SUCCESS;
    };
    if (cairo_surface_status(surface.get()) != CAIRO_STATUS_SUCCESS) throw std::bad_alloc{};
    pack(picture, surface.get());
    if (cairo_surface_write_to_png_stream(surface.get(), append, &png) != CAIRO_STATUS_SUCCESS)
        throw std::bad_alloc{};
    return png;
}

} // namespace easel::paint

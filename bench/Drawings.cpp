#include "bench/Drawings.h"

#include "easel/document/ArtTree.h"
#include "easel/document/Session.h"

#include <charconv>
#include <cmath>
#include <numbers>

namespace facetta::bench {
namespace {

using std::numbers::pi;

/// Paths lie in a ring about the origin, so far out that a sector of 72 axes is wider there than
/// the distance within which open ends are moved onto an axis.
constexpr double kInnerRadius = 800;
constexpr double kRingWidth = 2400;
constexpr double kGoldenRatio = 0.618033988749895; // spreads any number of paths evenly

constexpr double kWaves = 3; // along an open path
constexpr double kWaveHeight = 4;
/// Of closed paths: the inner circle of the ring leaves a sector of 72 axes 35 points.
constexpr double kLoopRadius = 5;

struct Spot {
    double x;
    double y;
};

/// A place of a path and the speed with which it goes on, both over the parameter 0 to 1.
struct Motion {
    Spot at;
    Spot speed;
};

double ringRadius(int path) {
    return kInnerRadius + kRingWidth * std::fmod(path * kGoldenRatio, 1.0);
}

/// Around a point in the middle of the sector.
Motion loopAt(double t, double radius, double middle) {
    const double turn = 2 * pi * t;
    return {{radius * std::cos(middle) + kLoopRadius * std::cos(turn),
             radius * std::sin(middle) + kLoopRadius * std::sin(turn)},
            {-2 * pi * kLoopRadius * std::sin(turn), 2 * pi * kLoopRadius * std::cos(turn)}};
}

/// A wave along a circle about the origin, from direction `first` to direction `last`.
Motion waveAt(double t, double radius, double first, double last) {
    const double phase = 2 * pi * kWaves * t;
    const double r = radius + kWaveHeight * std::sin(phase);
    const double outwards = 2 * pi * kWaves * kWaveHeight * std::cos(phase);
    const double angle = std::lerp(first, last, t);
    const double along = r * (last - first);
    const double c = std::cos(angle);
    const double s = std::sin(angle);
    return {{r * c, r * s}, {outwards * c - along * s, outwards * s + along * c}};
}

Motion motionAt(const DrawingPlan& plan, int path, double t) {
    const double sector = pi / plan.axisCount;
    const double radius = ringRadius(path);
    switch (plan.placement) {
    case Placement::Clear:
        return loopAt(t, radius, sector / 2);
    case Placement::Crossing:
        return waveAt(t, radius, sector / 2, -sector / 2);
    case Placement::Spanning:
        break;
    }
    return waveAt(t, radius, 0, sector);
}

AIRealPoint softPoint(Spot spot) {
    return {static_cast<AIReal>(spot.x + static_cast<double>(kOrigin.h)),
            static_cast<AIReal>(spot.y + static_cast<double>(kOrigin.v))};
}

bool isClosed(Placement placement) { return placement == Placement::Clear; }

easel::Segments drawPath(const DrawingPlan& plan, int path) {
    const int pieces = isClosed(plan.placement) ? plan.segments : plan.segments - 1;
    easel::Segments segments;
    for (int i = 0; i < plan.segments; ++i) {
        const auto [at, speed] = motionAt(plan, path, static_cast<double>(i) / pieces);
        const double third = 1.0 / (3.0 * pieces); // a cubic's handle is a third of its speed
        segments.push_back({softPoint(at),
                            softPoint({at.x - third * speed.x, at.y - third * speed.y}),
                            softPoint({at.x + third * speed.x, at.y + third * speed.y}), false});
    }
    return segments;
}

void append(std::string& text, AIReal number) {
    char digits[32];
    const auto [end, error] = std::to_chars(std::begin(digits), std::end(digits), number);
    text.append(digits, end);
}

/// The drawing's y runs down, the document's up.
void append(std::string& text, AIRealPoint point) {
    append(text, point.h);
    text += ' ';
    append(text, -point.v);
}

void appendCurve(std::string& text, const AIPathSegment& from, const AIPathSegment& to) {
    text += 'C';
    append(text, from.out);
    text += ' ';
    append(text, to.in);
    text += ' ';
    append(text, to.p);
}

} // namespace

std::vector<easel::Segments> drawPaths(const DrawingPlan& plan) {
    std::vector<easel::Segments> paths;
    paths.reserve(static_cast<std::size_t>(plan.paths));
    for (int path = 0; path < plan.paths; ++path)
        paths.push_back(drawPath(plan, path));
    return paths;
}

std::unique_ptr<easel::Document> makeDrawing(const DrawingPlan& plan) {
    auto document = std::make_unique<easel::Document>(easel::session(), kArtboard);
    easel::Art& layer = *document->root().firstChild();
    for (easel::Segments& segments : drawPaths(plan)) {
        easel::Art& path = easel::createArt(*document, kPathArt, easel::atBottomOf(layer));
        easel::ArtContent& content = path.write();
        content.closed = isClosed(plan.placement);
        content.segments.write() = std::move(segments);
    }
    return document;
}

std::string svgOf(const DrawingPlan& plan) {
    std::string text =
        "<svg xmlns=\"http://www.w3.org/2000/svg\" width=\"8000\" height=\"8000\">\n";
    for (const easel::Segments& segments : drawPaths(plan)) {
        text += "<path fill=\"none\" stroke=\"#204080\" d=\"M";
        append(text, segments.front().p);
        for (std::size_t i = 1; i < segments.size(); ++i)
            appendCurve(text, segments[i - 1], segments[i]);
        if (isClosed(plan.placement)) {
            appendCurve(text, segments.back(), segments.front());
            text += 'Z';
        }
        text += "\"/>\n";
    }
    return text + "</svg>\n";
}

PathCount countPaths(const easel::Document& document) {
    PathCount count;
    const easel::Art& root = document.root();
    for (const easel::Art* art = &root; art != nullptr; art = easel::nextInPreorder(*art, root)) {
        if (art->type() != kPathArt) continue;
        ++count.paths;
        count.segments += art->segments().size();
    }
    return count;
}

} // namespace facetta::bench

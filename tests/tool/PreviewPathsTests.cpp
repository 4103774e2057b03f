#include "tool/drawing/PreviewPaths.h"

#include "tests/symmetry/RandomPaths.h"

#include <doctest/doctest.h>

#include <limits>

using namespace facetta;
using facetta::tests::Random;

namespace {

constexpr double kTolerance = 0.25;
constexpr std::size_t kNoLimit = std::numeric_limits<std::size_t>::max();

double distanceToLines(std::span<const Point> points, bool closed, Point point) {
    double least = distance(points.front(), point);
    for (std::size_t i = 1; i < points.size(); ++i)
        least = std::min(least, distance(point, nearestPoint({points[i - 1], points[i]}, point)));
    if (closed)
        least =
            std::min(least, distance(point, nearestPoint({points.back(), points.front()}, point)));
    return least;
}

PreviewPaths pathsOf(const PageAxes& axes, std::span<const PathShape> shapes) {
    PreviewPaths paths;
    paths.begin(axes, kTolerance);
    for (const PathShape& shape : shapes)
        paths.add(shape, Images::All, /*isArt*/ false);
    return paths;
}

} // namespace

TEST_CASE("lines stay within the tolerance of their curves") {
    Random random;
    for (int i = 0; i < 500; ++i) {
        const PageAxes axes = random.axes();
        const PathShape shape = random.path(axes, random.coin(), random.size());
        const PreviewPaths paths = pathsOf(axes, {&shape, 1});
        const std::span<const Point> points = paths.pointsOf(paths.paths().front());
        for (std::size_t curve = 0; curve < curveCount(shape); ++curve)
            for (int step = 0; step <= 20; ++step)
                REQUIRE(distanceToLines(points, shape.closed,
                                        evaluate(curveAt(shape, curve), step / 20.0)) <=
                        kTolerance);
        for (const Point point : points) {
            const PreviewPath& path = paths.paths().front();
            REQUIRE(distance(point, path.middle) <= path.radius * (1 + 1e-12));
        }
    }
}

TEST_CASE("each kind of image has its maps; of art that is there only the copies are drawn") {
    const PageAxes axes{.axisCount = 5};
    struct Row {
        Images images;
        bool isArt;
        std::size_t drawn;
    };
    const Row rows[] = {{Images::All, false, 10},      {Images::All, true, 9},
                        {Images::Rotations, false, 5}, {Images::Rotations, true, 4},
                        {Images::None, false, 1},      {Images::None, true, 0}};
    const PathShape line{{{{10, 1}, {10, 1}, {10, 1}}, {{20, 1}, {20, 1}, {20, 1}}}, false};
    for (const auto& [images, isArt, drawn] : rows) {
        PreviewPaths paths;
        paths.begin(axes, kTolerance);
        paths.add(line, images, isArt);
        CHECK(paths.mapsOf(paths.paths().front()).size() == drawn);
        CHECK(paths.lineCount() == 2 * drawn);
    }
}

TEST_CASE("art of any size is brought under the limit, and as much of it stays as may") {
    Random random;
    const PageAxes axes{.axisCount = 12};
    std::vector<PathShape> shapes;
    for (int i = 0; i < 400; ++i)
        shapes.push_back(random.path(axes, random.coin(), random.size()));
    const PreviewPaths whole = pathsOf(axes, shapes);
    for (const std::size_t limit : {kNoLimit, whole.lineCount(), std::size_t{40'000},
                                    std::size_t{5'000}, std::size_t{24}, std::size_t{0}}) {
        INFO("limit ", limit);
        PreviewPaths paths = pathsOf(axes, shapes);
        paths.limit(limit);
        CHECK(paths.lineCount() <= limit);
        if (limit >= whole.lineCount()) {
            CHECK(paths.lineCount() == whole.lineCount());
            CHECK(paths.paths().size() == shapes.size());
        } else if (limit >= 5'000) {
            CHECK(paths.lineCount() >= limit / 4);
        }
        for (const PreviewPath& path : paths.paths())
            CHECK(path.begin + path.count <= whole.lineCount());
    }
}

TEST_CASE("what is thinned out keeps its large paths, with both of their ends") {
    PathShape zigzag{.segments = {}, .closed = false};
    for (int i = 0; i <= 1000; ++i) {
        const Point at{i * 0.5, i % 2 == 0 ? 0.0 : 0.3};
        zigzag.segments.push_back({at, at, at});
    }
    const PathShape speck{{{{5, 5}, {5, 5}, {5, 5}}, {{6, 5}, {6, 5}, {6, 5}}}, false};
    const PathShape shapes[] = {speck, zigzag};
    PreviewPaths paths = pathsOf({.axisCount = 3}, shapes);
    paths.limit(600);
    REQUIRE(paths.paths().size() == 1);
    const std::span<const Point> points = paths.pointsOf(paths.paths().front());
    CHECK(points.front() == Point{0, 0});
    CHECK(points.back() == Point{500, 0});
    CHECK(points.size() > 20);
}

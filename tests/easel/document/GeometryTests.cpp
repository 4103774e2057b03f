#include "easel/document/FitCurve.h"
#include "tests/easel/document/Plugin.h"

#include <algorithm>
#include <cmath>
#include <vector>

namespace easel::tests {
namespace {

/// Far from the ruler origin, factors in the wrong order show at once.
constexpr AIRealPoint kFarOrigin{5000, -3000};

TEST_CASE("art is transformed as points are, each coordinate rounded once") {
    const Drawing drawing;
    const AIArtHandle made = drawing.makePath({kFarOrigin, {5100.25F, -2900.5F}});
    AIRealMatrix matrix{0.6F, 0.8F, -0.8F, 0.6F, 1234.5F, -777.25F};
    CHECK(transform().TransformArt(made, &matrix, 1, 0x46F) == kNoErr);
    const AIRealPoint last = session().artOf(made).segments().back().p;
    CHECK(last.h == static_cast<AIReal>(double{matrix.a} * 5100.25 + double{matrix.c} * -2900.5 +
                                        double{matrix.tx}));
    CHECK(last.v == static_cast<AIReal>(double{matrix.b} * 5100.25 + double{matrix.d} * -2900.5 +
                                        double{matrix.ty}));
}

TEST_CASE("the flags of a transformation say what is transformed") {
    struct Row {
        const char* what;
        ai::int32 flags;
        AIReal childH;
        AIReal strokeWidth;
        AIReal definitionTx;
    };
    const Row rows[] = {
        {"a group alone has no geometry", kTransformObjects, 1, 1, 0},
        {"children too", kTransformObjects | kTransformChildren, 11, 1, 0},
        {"strokes scaled", kTransformObjects | kTransformChildren | kScaleLines, 11, 3, 0},
        {"gradients too", kTransformChildren | kTransformFillGradients, 1, 1, 10},
        {"patterns are not gradients", kTransformChildren | kTransformFillPatterns, 1, 1, 0},
    };
    for (const auto& row : rows) {
        INFO(row.what);
        Drawing drawing;
        const Definition& gradient =
            drawing.document.addDefinition(Definition::Kind::Gradient, "sky");
        const AIArtHandle group = drawing.make(kGroupArt);
        const AIArtHandle child = drawing.makePath({{1, 2}});
        session().artOf(child).write().style.write().fillDefinition = &gradient;
        drawing.moveInto(group, child);
        AIRealMatrix shift{1, 0, 0, 1, 10, 0};
        CHECK(transform().TransformArt(group, &shift, 3, row.flags) == kNoErr);
        CHECK(session().artOf(child).segments()[0].p.h == row.childH);
        CHECK(session().artOf(child).style().path.stroke.width == row.strokeWidth);
        CHECK(session().artOf(child).style().fillMatrix.tx == row.definitionTx);
    }
}

TEST_CASE("art that cannot be reshaped is moved through its matrix") {
    Drawing drawing;
    Art& text = createArt(drawing.document, kTextFrameArt, onTopOf(drawing.layerGroup()));
    text.write().details.write().matrix = {1, 0, 0, 1, 5, 6};
    AIRealMatrix flip{1, 0, 0, -1, 0, 0};
    CHECK(transform().TransformArt(text.handle(), &flip, 1, kTransformObjects) == kNoErr);
    CHECK(text.details().matrix.d == -1);
    CHECK(text.details().matrix.ty == -6);
}

TEST_CASE("hard and soft coordinates are inverse, flip y, and follow the ruler origin") {
    Drawing drawing;
    for (const AIRealPoint origin : {AIRealPoint{8091, 8141}, AIRealPoint{100, 16000}}) {
        drawing.document.setRulerOrigin(origin);
        AIRealPoint zero{0, 0};
        CHECK(hardSoft().AIRealPointHarden(&zero, &zero) == kNoErr); // in place
        CHECK(zero.h == origin.h);
        CHECK(zero.v == origin.v);
        AIRealPoint point{12.5F, 40.25F};
        AIRealPoint hard{};
        AIRealPoint soft{};
        CHECK(hardSoft().AIRealPointHarden(&point, &hard) == kNoErr);
        CHECK(hard.v == origin.v - point.v);
        CHECK(hardSoft().AIRealPointSoften(&hard, &soft) == kNoErr);
        CHECK(soft.h == point.h);
        CHECK(soft.v == point.v);
        const AIRealRect canvas = drawing.document.canvas();
        CHECK(canvas.left == -origin.h);
        CHECK(canvas.bottom == origin.v - 16383);
    }
}

TEST_CASE("a stroke of the mouse becomes few curves, smooth and near to all its points") {
    struct Row {
        const char* what;
        double (*x)(double);
        double (*y)(double);
        std::size_t mostCurves;
    };
    const Row rows[] = {
        {"a line", [](double t) { return 100 * t; }, [](double t) { return 40 * t; }, 1},
        {"half a circle", [](double t) { return 100 * std::cos(3.14 * t); },
         [](double t) { return 100 * std::sin(3.14 * t); }, 3},
        {"a wave", [](double t) { return 300 * t; }, [](double t) { return 40 * std::sin(12 * t); },
         8},
        {"there and back", [](double t) { return 100 - std::abs(100 - 200 * t); },
         [](double) { return 0.0; }, 6},
    };
    constexpr int kPoints = 100;
    constexpr double kTolerance = 1.0;
    for (const Row& row : rows) {
        INFO(row.what);
        std::vector<CurvePoint> stroke;
        for (int i = 0; i <= kPoints; ++i) {
            const double t = static_cast<double>(i) / kPoints;
            stroke.push_back({row.x(t), row.y(t)});
            if (i % 7 == 0) stroke.push_back(stroke.back()); // the mouse rests
        }
        const std::vector<Curve> curves = fitCurves(stroke, kTolerance);
        REQUIRE(!curves.empty());
        CHECK(curves.size() <= row.mostCurves);
        CHECK(curves.front()[0].x == stroke.front().x);
        CHECK(curves.back()[3].y == stroke.back().y);
        for (const CurvePoint point : stroke) {
            double nearest = 1e9;
            for (const Curve& curve : curves)
                nearest = std::min(nearest, nearestPoint(curve, point).distance);
            CHECK(nearest <= kTolerance + 1e-6);
        }
        for (std::size_t i = 1; i < curves.size(); ++i) {
            const auto& [before, after] = std::pair{curves[i - 1], curves[i]};
            CHECK(before[3].x == after[0].x);
            const CurvePoint in{before[3].x - before[2].x, before[3].y - before[2].y};
            const CurvePoint out{after[1].x - after[0].x, after[1].y - after[0].y};
            CHECK(std::abs(in.x * out.y - in.y * out.x) <=
                  1e-6 * std::hypot(in.x, in.y) * std::hypot(out.x, out.y));
        }
    }
    CHECK(fitCurves({}, 1).empty());
    CHECK(fitCurves(std::vector<CurvePoint>(3, CurvePoint{5, 5}), 1).empty());
}

} // namespace
} // namespace easel::tests

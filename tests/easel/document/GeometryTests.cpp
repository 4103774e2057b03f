#include "easel/document/Bezier.h"
#include "easel/document/TransformArt.h"
#include "tests/easel/document/Plugin.h"

#include <cfloat>
#include <cmath>
#include <numbers>

namespace easel::tests {
namespace {

/// Far from the ruler origin a wrong side of multiplication shows at once.
constexpr AIRealPoint kFarOrigin{5000, -3000};

void checkNear(AIRealPoint found, double h, double v) {
    CHECK(std::abs(found.h - h) < 0.01);
    CHECK(std::abs(found.v - v) < 0.01);
}

TEST_CASE("reflection and rotation about a far origin are built from the left to the right") {
    const double t = 0.7;
    const AIRealPoint point{5100, -2900};
    const double dx = 100;
    const double dy = 100;
    AIRealMatrix reflection{};
    math().AIRealMatrixSetTranslate(&reflection, -kFarOrigin.h, -kFarOrigin.v);
    math().AIRealMatrixConcatRotate(&reflection, static_cast<AIReal>(-t));
    math().AIRealMatrixConcatScale(&reflection, 1, -1);
    math().AIRealMatrixConcatRotate(&reflection, static_cast<AIReal>(t));
    math().AIRealMatrixConcatTranslate(&reflection, kFarOrigin.h, kFarOrigin.v);
    AIRealPoint image{};
    math().AIRealMatrixXformPoint(&reflection, &point, &image);
    checkNear(image, kFarOrigin.h + dx * std::cos(2 * t) + dy * std::sin(2 * t),
              kFarOrigin.v + dx * std::sin(2 * t) - dy * std::cos(2 * t));

    AIRealMatrix rotation{};
    AIRealMatrix quarter{};
    math().AIRealMatrixSetTranslate(&rotation, -kFarOrigin.h, -kFarOrigin.v);
    math().AIRealMatrixSetRotate(&quarter, static_cast<AIReal>(std::numbers::pi / 2));
    math().AIRealMatrixConcat(&rotation, &quarter, &rotation);
    math().AIRealMatrixConcatTranslate(&rotation, kFarOrigin.h, kFarOrigin.v);
    math().AIRealMatrixXformPoint(&rotation, &point, &image);
    checkNear(image, kFarOrigin.h - dy, kFarOrigin.v + dx); // counter-clockwise, y up
}

TEST_CASE("art is transformed as points are, each coordinate rounded once") {
    const Drawing drawing;
    const AIArtHandle made = drawing.makePath({kFarOrigin, {5100.25F, -2900.5F}});
    AIRealMatrix matrix{0.6F, 0.8F, -0.8F, 0.6F, 1234.5F, -777.25F};
    CHECK(transform().TransformArt(made, &matrix, 1, 0x46F) == kNoErr);
    const AIRealPoint last = artOf(made).segments().back().p;
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
        artOf(child).write().style.write().fillDefinition = &gradient;
        CHECK(art().ReorderArt(child, kPlaceInsideOnTop, group) == kNoErr);
        AIRealMatrix shift{1, 0, 0, 1, 10, 0};
        CHECK(transform().TransformArt(group, &shift, 3, row.flags) == kNoErr);
        CHECK(artOf(child).segments()[0].p.h == row.childH);
        CHECK(artOf(child).style().path.stroke.width == row.strokeWidth);
        CHECK(artOf(child).style().fillMatrix.tx == row.definitionTx);
    }
}

TEST_CASE("instances and opaque art are moved through their matrix") {
    Drawing drawing;
    const Definition& leaf = drawing.document.addDefinition(Definition::Kind::Symbol, "leaf");
    const auto& symbols = suite<AISymbolSuite>(kAISymbolSuite, kAISymbolSuiteVersion);
    AIRealMatrix placed{1, 0, 0, 1, 5, 6};
    AIArtHandle made = nullptr;
    CHECK(symbols.NewInstanceWithTransform(static_cast<AIPatternHandle>(leaf.handle()), &placed,
                                           kPlaceAboveAll, nullptr, &made) == kNoErr);
    AIRealMatrix flip{1, 0, 0, -1, 0, 0};
    CHECK(transform().TransformArt(made, &flip, 1, kTransformObjects) == kNoErr);
    AIRealMatrix soft{};
    AIRealMatrix hard{};
    CHECK(symbols.GetSoftTransformOfSymbolArt(made, &soft) == kNoErr);
    CHECK(soft.d == -1);
    CHECK(soft.ty == -6);
    CHECK(symbols.GetHardTransformOfSymbolArt(made, &hard) == kNoErr);
    CHECK(symbols.SetHardTransformOfSymbolArt(made, &hard) == kNoErr);
    CHECK(symbols.GetSoftTransformOfSymbolArt(made, &hard) == kNoErr);
    CHECK(hard.ty == soft.ty);
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

TEST_CASE("the artboard lies in the middle of the canvas, its top left corner at the origin") {
    const Drawing drawing;
    const AIRealRect artboard = drawing.document.artboard();
    CHECK(artboard.left == 0);
    CHECK(artboard.top == 0);
    CHECK(artboard.right == 200);
    CHECK(artboard.bottom == -100);
    const AIRealRect canvas = drawing.document.canvas();
    CHECK(std::abs((canvas.left + canvas.right) - (artboard.left + artboard.right)) <= 1);
    CHECK(std::abs((canvas.top + canvas.bottom) - (artboard.top + artboard.bottom)) <= 1);
}

TEST_CASE("art stays on its place of the canvas when the ruler origin moves") {
    Drawing drawing;
    const AIArtHandle made = drawing.makePath({{10, 20}});
    AIRealPoint soft = artOf(made).segments()[0].p;
    AIRealPoint before{};
    CHECK(hardSoft().AIRealPointHarden(&soft, &before) == kNoErr);
    drawing.document.setRulerOrigin({8000, 8200});
    soft = artOf(made).segments()[0].p;
    AIRealPoint after{};
    CHECK(hardSoft().AIRealPointHarden(&soft, &after) == kNoErr);
    CHECK(soft.h != 10);
    CHECK(after.h == before.h);
    CHECK(after.v == before.v);
}

TEST_CASE("inverting undoes a matrix, and a singular one is left as it was") {
    AIRealMatrix m{2, 1, -1, 3, 40, -20};
    AIRealMatrix inverse = m;
    CHECK(math().AIRealMatrixInvert(&inverse) == 0);
    const AIRealPoint point{7, -9};
    AIRealPoint there{};
    AIRealPoint back{};
    math().AIRealMatrixXformPoint(&m, &point, &there);
    math().AIRealMatrixXformPoint(&inverse, &there, &back);
    checkNear(back, point.h, point.v);
    AIRealMatrix flat{1, 2, 2, 4, 1, 1};
    CHECK(math().AIRealMatrixSingular(&flat) == 1);
    CHECK(math().AIRealMatrixInvert(&flat) != 0);
    CHECK(flat.d == 4);
}

TEST_CASE("results too large for a real become the host's infinity") {
    CHECK(math().AIRealMul(1e30F, 1e30F) == FLT_MAX / 10);
    CHECK(math().AIRealMul(-1e30F, 1e30F) == -FLT_MAX / 10);
    CHECK(math().AIRealDiv(0, 0) == FLT_MAX);
    CHECK(math().AIRealInterpolate(10, 20, 0.25F) == 17.5F); // the first argument at 1
    CHECK(math().AIRealATan(1, 0) == doctest::Approx(std::numbers::pi / 2));
}

TEST_CASE("a divided curve is the curve, and lengths add up") {
    const auto& beziers = suite<AIRealBezierSuite>(kAIRealBezierSuite, kAIRealBezierSuiteVersion);
    AIRealBezier curve{{0, 0}, {10, 40}, {60, -30}, {80, 10}};
    AIRealBezier first{};
    AIRealBezier second{};
    beziers.Divide(&curve, 0.3F, &first, &second);
    CHECK(beziers.Length(&first, 0) + beziers.Length(&second, 0) ==
          doctest::Approx(beziers.Length(&curve, 0)));
    AIRealPoint direct{};
    AIRealPoint divided{};
    beziers.Evaluate(&curve, 0.65F, &direct);
    beziers.Evaluate(&second, 0.5F, &divided);
    checkNear(divided, direct.h, direct.v);
    AIReal t = 0;
    CHECK(beziers.TAtLength(&curve, beziers.Length(&first, 0), 0, 0.01F, &t) == kNoErr);
    CHECK(t == doctest::Approx(0.3).epsilon(0.001));
    const NearestPoint nearest = nearestPoint(curveOf(curve), curvePoint(direct));
    CHECK(nearest.distance < 1e-4);
    CHECK(nearest.t == doctest::Approx(0.65).epsilon(0.001));
}

} // namespace
} // namespace easel::tests

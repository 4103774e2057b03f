#include "tests/easel/document/Plugin.h"

#include <cmath>

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

} // namespace
} // namespace easel::tests

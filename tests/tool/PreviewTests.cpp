#include "tool/drawing/Preview.h"

#include "tests/tool/Annotated.h"

using namespace facetta;
using namespace facetta::tests;

namespace {

std::vector<easel::DrawCommand> previewIn(const easel::DisplayList& list) {
    const AIRGBColor colour = colours::kLight.preview;
    std::vector<easel::DrawCommand> outlines = list;
    std::erase_if(outlines, [&](const easel::DrawCommand& each) {
        const AIRGBColor& own = each.style.colour;
        return own.red != colour.red || own.green != colour.green || own.blue != colour.blue;
    });
    return outlines;
}

double distanceTo(const std::vector<easel::DrawCommand>& lines, Point pixel) {
    double least = std::numeric_limits<double>::infinity();
    for (const easel::DrawCommand& each : lines)
        for (std::size_t i = 0; i < each.points.size(); ++i) {
            const LineSegment line{at(each.points[i]),
                                   at(each.points[(i + 1) % each.points.size()])};
            least = std::min(least, distance(pixel, nearestPoint(line, pixel)));
        }
    return least;
}

/// All anchors of paths, as pixels of the view.
std::vector<Point> anchors(const Drawing& session) {
    std::vector<Point> found;
    const easel::Art& root = session.document().root();
    for (const easel::Art* art = &root; art != nullptr; art = easel::nextInPreorder(*art, root))
        if (art->type() == kPathArt)
            for (const AIPathSegment& segment : *art->content().segments)
                found.push_back(pixelsOf(session, widen(segment.p)));
    return found;
}

} // namespace

TEST_CASE("the preview shows the selection as it is when it has been applied") {
    for (const double angle : {0.0, 0.7}) {
        INFO(angle);
        Drawing session{/*selected*/ true};
        thePlugin->tool.axes.angle = angle;
        const std::vector<easel::DrawCommand> preview = previewIn(drawn(session));
        REQUIRE_FALSE(preview.empty());
        thePlugin->preferences.applyToSelection = true;
        session.host.editToolOptions();
        const std::vector<Point> mirrored = anchors(session);
        REQUIRE(mirrored.size() == 12); // 2 anchors, 3 axes
        // The line itself lies in the drawing; its five copies are previewed.
        const auto shown = std::ranges::count_if(
            mirrored, [&](Point anchor) { return distanceTo(preview, anchor) < 1.0; });
        CHECK(shown >= 10);
        CHECK(previewIn(drawn(session)).empty());
    }
}

TEST_CASE("the preview follows the axes, the zoom and the art") {
    Drawing session{/*selected*/ true};
    const auto preview = [&] { return easel::dump(previewIn(drawn(session))); };
    const std::string first = preview();
    CHECK(preview() == first);
    thePlugin->tool.axes.angle = 0.5;
    const std::string turned = preview();
    CHECK(turned != first);
    easel::setZoom(session.host.view(nullptr), 0.5F);
    CHECK(preview() != turned);
    easel::setZoom(session.host.view(nullptr), 1.0F);
    CHECK(preview() == turned);
    session.host.edit("Draw", [](easel::Document& document) {
        drawLine(document, {310, -230}, {330, -220}, /*selected*/ true);
    });
    CHECK(preview().size() > turned.size());
}

TEST_CASE("without a selection the art of the layer is previewed, and nothing for axes on it") {
    std::string previews[2];
    for (const bool selected : {false, true}) {
        Drawing session{selected};
        previews[selected ? 1 : 0] = easel::dump(previewIn(drawn(session)));
        session.host.editToolOptions();
        REQUIRE(thePlugin->tool.axes.onLayer);
        CHECK(previewIn(drawn(session)).empty());
    }
    CHECK_FALSE(previews[0].empty());
    CHECK(previews[0] == previews[1]);
}

TEST_CASE("the preview of a layer is made of its sources, however many copies there are") {
    Drawing session{/*selected*/ true};
    session.host.editToolOptions();
    REQUIRE(countPaths(session.document(), /*lockedOnes*/ true) == 5);
    ToolSession tool = toolSession();
    refreshPreview(tool);
    CHECK(thePlugin->tool.preview.art.sources().size() == 1);
    CHECK(countPaths(session.document(), /*lockedOnes*/ true) == 5);
    clearPreview(thePlugin->tool);
}

TEST_CASE("what is far too large for the view is cut at its edge, and drawn nowhere else") {
    Drawing session{/*selected*/ false};
    session.host.edit("Draw", [](easel::Document& document) {
        drawLine(document, {1500, -168}, {-500, -172}, /*selected*/ true);
    });
    session.host.view(nullptr).centre = {320, -165};
    easel::setZoom(session.host.view(nullptr), 40);
    const std::vector<easel::DrawCommand> preview = previewIn(drawn(session));
    REQUIRE_FALSE(preview.empty());
    const PixelRect visible{-3, -3, 1283, 803};
    for (const easel::DrawCommand& each : preview)
        for (const AIPoint pixel : each.points)
            CHECK(contains(visible, at(pixel)));
}

TEST_CASE("few curves are drawn as curves, many as lines") {
    struct Row {
        int paths;
        bool curves;
    };
    constexpr int kCopies = 5; // of each path, across three axes
    for (const auto& row : {Row{1, true}, Row{10'000 / kCopies + 1, false}}) {
        INFO(row.paths);
        Drawing session{/*selected*/ false};
        session.host.edit("Draw", [&](easel::Document& document) {
            for (int i = 0; i < row.paths; ++i) {
                const AIReal x = 300 + 0.01F * static_cast<AIReal>(i);
                easel::Art& path = drawLine(document, {x, -170}, {x + 40, -160}, /*selected*/ true);
                path.write().segments.write()[0].out = {x, -160};
            }
        });
        const std::vector<easel::DrawCommand> preview = previewIn(drawn(session));
        REQUIRE(std::ssize(preview) == kCopies * row.paths);
        for (const easel::DrawCommand& each : preview) { // open, and so not as polygons
            REQUIRE(each.kind == Kind::Bezier);
            CHECK((each.points.size() == 4) == row.curves);
            bool straight = true;
            for (std::size_t i = 0; i + 3 < each.points.size(); i += 3)
                straight = straight && at(each.points[i]) == at(each.points[i + 1]) &&
                           at(each.points[i + 2]) == at(each.points[i + 3]);
            CHECK(straight != row.curves);
        }
    }
}

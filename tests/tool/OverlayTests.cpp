#include "tests/tool/Annotated.h"
#include "tool/drawing/Overlay.h"

using namespace facetta;
using namespace facetta::tests;

namespace {

/// Pending axes at 300,-250 on the page.
class PendingAxes : public ToolInHand {
public:
    explicit PendingAxes(int count, double angle = 0.0) {
        thePlugin->preferences.count = count;
        thePlugin->preferences.angle = angle;
        press(300, -250);
        release(300, -250);
    }
};

/// Pixels between `point` and the line that `command` draws.
double offLine(const easel::DrawCommand& command, Point point) {
    const Vector along = at(command.points[1]) - at(command.points[0]);
    return std::abs(cross(along, point - at(command.points[0]))) / length(along);
}

} // namespace

TEST_CASE("every axis is one line through the origin, from edge to edge of the view") {
    for (const int count : {1, 2, 3, 7, 20, 21, 72}) {
        for (const AIReal zoom : {0.25F, 1.0F, 8.0F}) {
            INFO("N = ", count, ", zoom ", zoom);
            PendingAxes session{count, 0.3};
            easel::setZoom(session.host.view(nullptr), zoom);
            session.host.view(nullptr).centre = {310, -260};
            const std::vector<easel::DrawCommand> lines = axisLines(drawn(session));
            const Point origin = pixelsOf(session, {300, -250});
            REQUIRE(std::ssize(lines) == count);
            for (int axis = 0; axis < count; ++axis) {
                const easel::DrawCommand& line = lines[static_cast<std::size_t>(axis)];
                CHECK(offLine(line, origin) < 1.0);
                const double angle = 0.3 + axis * kPi / count;
                const Point farther = origin + 300.0 * Vector{std::cos(angle), -std::sin(angle)};
                CHECK(offLine(line, farther) < 1.0);
                for (const AIPoint end : line.points)
                    CHECK((end.h == 0 || end.h == 1280 || end.v == 0 || end.v == 800));
            }
        }
    }
}

TEST_CASE("axes from an origin far outside the view cross it where they belong") {
    PendingAxes session{2, 0.4};
    session.host.view(nullptr).centre = {6300, -250 + 6000 * std::tan(0.4F)};
    easel::setZoom(session.host.view(nullptr), 64);
    const std::vector<easel::DrawCommand> lines = axisLines(drawn(session));
    REQUIRE(lines.size() == 1); // the other axis passes the view by
    CHECK(offLine(lines[0], {640, 400}) < 2.0);
}

TEST_CASE("two triangles on the bounding rays point into the active sector") {
    struct Row {
        int count;
        double begin; // pixels from the origin
    };
    const Row rows[] = {{1, 72}, {3, 72}, {20, 72}, {21, 72 + 45.0 / 13}, {46, 162}, {72, 252}};
    for (const auto& row : rows) {
        INFO("N = ", row.count);
        CHECK(markerDistance(row.count) == doctest::Approx(row.begin));
        PendingAxes session{row.count, 1.1};
        std::vector<easel::DrawCommand> triangles = ofKind(drawn(session), Kind::Polygon);
        std::erase_if(triangles, [](const easel::DrawCommand& each) {
            return each.points.size() != 3 || !each.fill;
        });
        REQUIRE(triangles.size() == 2);
        const Point origin = pixelsOf(session, {300, -250});
        for (const int side : {0, 1}) {
            const easel::DrawCommand& triangle = triangles[static_cast<std::size_t>(side)];
            const double angle = 1.1 + side * kPi / row.count;
            const Vector along{std::cos(angle), -std::sin(angle)};
            const Vector left{-std::sin(angle), -std::cos(angle)}; // counter-clockwise as seen
            const double height = side == 0 ? 6.0 : -6.0;
            const Point corners[] = {origin + row.begin * along,
                                     origin + (row.begin + 4) * along + height * left,
                                     origin + (row.begin + 8) * along};
            for (std::size_t i = 0; i < 3; ++i)
                CHECK(distance(at(triangle.points[i]), corners[i]) < 0.71); // rounding to pixels
        }
    }
}

TEST_CASE("a broader line of another colour lies below each axis, while there is room for it") {
    struct Row {
        int count;
        std::ptrdiff_t grounds;
    };
    for (const auto& row : {Row{1, 1}, Row{20, 20}, Row{21, 0}}) {
        INFO("N = ", row.count);
        PendingAxes session{row.count};
        const std::vector<easel::DrawCommand> lines = ofKind(drawn(session), Kind::Line);
        REQUIRE(std::ssize(lines) == row.grounds + row.count);
        for (std::size_t i = 0; std::cmp_less(i, row.grounds); ++i) {
            const easel::DrawCommand& axis = lines[i + static_cast<std::size_t>(row.grounds)];
            CHECK(at(lines[i].points[0]) == at(axis.points[0]));
            CHECK(at(lines[i].points[1]) == at(axis.points[1]));
            CHECK(lines[i].style.lineWidth > axis.style.lineWidth);
        }
    }
}

TEST_CASE("when axes, mask and dialog are drawn") {
    using Session = ToolInHand;
    static constexpr auto pin = [](Session& session) { session.click({300, -250}); };
    static constexpr auto attach = [](Session& session) {
        pin(session);
        session.host.editToolOptions();
    };
    struct Row {
        const char* when;
        void (*arrange)(Session&);
        int axes;
        bool mask;
        bool dialog;
    };
    const Row rows[] = {
        {"the tool was never over the document", [](Session&) {}, 0, false, false},
        {"new axes follow the cursor",
         [](Session& session) {
             session.host.track({.at = {300, -250}});
         },
         3, false, false},
        {"the first drag turns them",
         [](Session& session) {
             session.press(300, -250);
             session.drag(400, -250);
         },
         3, true, false},
        {"they are pending", pin, 3, true, true},
        {"pending, without the dialog in the settings",
         [](Session& session) {
             thePlugin->preferences.useAnnotationDialog = false;
             pin(session);
         },
         3, true, false},
        {"pending, while a modal dialog is open",
         [](Session& session) {
             pin(session);
             thePlugin->dialogs.open = true;
         },
         3, true, false},
        {"pending, the mask wholly transparent",
         [](Session& session) {
             thePlugin->preferences.opacity = 0.0;
             pin(session);
         },
         3, false, true},
        {"on a layer", attach, 3, false, false},
        {"on a layer, with its mask",
         [](Session& session) {
             thePlugin->preferences.useOverlay = true;
             attach(session);
         },
         3, true, false},
        {"on a layer, another tool in hand",
         [](Session& session) {
             attach(session);
             session.host.selectTool(nullptr);
         },
         3, false, false},
        {"on a layer that is hidden",
         [](Session& session) {
             attach(session);
             session.host.edit("Hide", [](easel::Document& document) {
                 document.state().currentLayer->write().attributes |= kArtHidden;
             });
         },
         0, false, false},
        {"dropped with the tool",
         [](Session& session) {
             pin(session);
             session.host.selectTool(nullptr);
         },
         0, false, false},
    };
    for (const auto& row : rows) {
        INFO(row.when);
        ToolInHand session;
        row.arrange(session);
        const easel::DisplayList list = drawn(session);
        CHECK(std::ssize(axisLines(list)) == row.axes);
        CHECK(masks(list).empty() != row.mask);
        CHECK(textsIn(list).empty() != row.dialog);
        session.release(400, -250); // a press is never left open
    }
}

TEST_CASE("the mask is as opaque as the setting says, at most wholly") {
    struct Row {
        double setting;
        AIReal drawn;
    };
    for (const auto& [setting, opacity] : {Row{0.85, 0.85F}, Row{0.2, 0.2F}}) {
        PendingAxes session{3};
        thePlugin->preferences.opacity = setting;
        const std::vector<easel::DrawCommand> mask = masks(drawn(session));
        REQUIRE(mask.size() == 1);
        CHECK(mask[0].style.opacity == opacity);
    }
    PendingAxes session{3};
    thePlugin->preferences.opacity = 100.0;
    for (const easel::DrawCommand& each : drawn(session))
        CHECK(each.style.opacity == 1.0F);
}

TEST_CASE("a draw message that is not ours, or lends no drawer, is answered without drawing") {
    PendingAxes session{3};
    AIAnnotatorDrawer drawer;
    AIAnnotatorMessage message = drawMessage(session, nullptr);
    CHECK(session.send("AI Annotation", "AI Draw", message) == kNoErr);
    message.drawer = &drawer;
    CHECK(session.send("AI Annotation", "AI Draw", message) == kNoErr);
    CHECK_FALSE(drawer.list.empty());
    drawer.list.clear();
    message.annotator = nullptr;
    CHECK(session.send("AI Annotation", "AI Draw", message) == kNoErr);
    CHECK(drawer.list.empty());
}

TEST_CASE("the translucent mask is drawn only on what the host has erased") {
    PendingAxes session{3};
    AIAnnotatorDrawer drawer;
    const AIRealRect erased[] = {{10.5F, 20.5F, 30.5F, 40.5F}, {100, 260, 140, 200}};
    AIAnnotatorMessage message = drawMessage(session, &drawer);
    message.invalidationRects = erased;
    message.numInvalidationRects = 2;
    REQUIRE(session.send("AI Annotation", "AI Draw", message) == kNoErr);
    const auto mask = std::ranges::find_if(
        drawer.list, [](const easel::DrawCommand& each) { return each.style.opacity < 1.0F; });
    REQUIRE(mask - drawer.list.begin() == 4);
    CHECK(easel::dump({drawer.list.begin(), mask}) == "clip {\n"
                                                      "rect 10,20 31,41 #000000 filled\n"
                                                      "rect 100,200 140,260 #000000 filled\n"
                                                      "clip }\n");
    CHECK((mask + 1)->kind == Kind::ClipClear);
}

#include "easel/cli/MirrorCommand.h"
#include "easel/cli/Statistics.h"
#include "easel/document/Attributes.h"
#include "easel/document/Dump.h"
#include "easel/document/Layers.h"
#include "easel/suites/Suites.h"
#include "easel/svg/SvgFile.h"

#include <doctest/doctest.h>

#include <algorithm>
#include <cmath>
#include <fstream>
#include <sstream>

namespace facetta::tests {
namespace {

using easel::ExitStatus;
using easel::MirrorMode;
using easel::MirrorRequest;
using easel::MirrorSession;

constexpr const char* kSquare =
    R"(<svg xmlns="http://www.w3.org/2000/svg" width="400" height="400">)"
    R"(<rect x="300" y="170" width="20" height="10" fill="#c00"/></svg>)";

/// A file of the test, gone when the test is.
class TestFile {
public:
    explicit TestFile(const std::string& name, const std::string& content = {})
        : path(std::filesystem::temp_directory_path() / ("easel-session-" + name)) {
        if (!content.empty()) std::ofstream(path) << content;
    }
    ~TestFile() {
        std::error_code ignored;
        std::filesystem::remove(path, ignored);
    }
    TestFile(const TestFile&) = delete;
    TestFile& operator=(const TestFile&) = delete;
    const std::filesystem::path path;
};

std::string contentOf(const std::filesystem::path& file) {
    std::ostringstream content;
    content << std::ifstream(file).rdbuf();
    return content.str();
}

/// A session with the built plug-in in which `drawing` is open.
struct Opened {
    Opened(const std::string& drawing, const MirrorRequest& request) : input("in.svg", drawing) {
        easel::addPluginLibrary(session.host, FACETTA_LIBRARY);
        session.prepare(request);
        session.start();
        CHECK(session.open(input.path).empty());
    }
    TestFile input;
    MirrorSession session{easel::sessionWithSuites()};
};

/// Centre of the bounding box of each path, rounded to whole points and sorted.
std::vector<std::pair<long, long>> centres() {
    std::vector<std::pair<long, long>> all;
    const easel::Art& root = easel::session().document().root();
    for (const easel::Art* art = easel::nextInPreorder(root, root); art != nullptr;
         art = easel::nextInPreorder(*art, root)) {
        if (art->type() != kPathArt) continue;
        double x = 0;
        double y = 0;
        for (const AIPathSegment& segment : art->segments()) {
            x += segment.p.h;
            y -= segment.p.v;
        }
        const auto count = static_cast<double>(art->segments().size());
        all.emplace_back(std::lround(x / count), std::lround(y / count));
    }
    std::sort(all.begin(), all.end());
    return all;
}

struct Outcome {
    ExitStatus status;
    std::string out;
    std::string error;
};

Outcome run(const easel::MirrorCommand& command) {
    std::ostringstream out;
    std::ostringstream error;
    const ExitStatus status = easel::runMirror(easel::sessionWithSuites(), command, out, error);
    return {status, out.str(), error.str()};
}

} // namespace

TEST_CASE("a shape is mirrored into every sector about the origin asked for") {
    using Centres = std::vector<std::pair<long, long>>;
    struct Row {
        std::string what;
        MirrorRequest request;
        Centres expected;
    };
    const Row rows[] = {
        {"one axis across, in the middle", {.axes = 1}, {{310, 175}, {310, 225}}},
        {"one axis upright", {.axes = 1, .angleDegrees = 90}, {{90, 175}, {310, 175}}},
        {"two axes", {.axes = 2}, {{90, 175}, {90, 225}, {310, 175}, {310, 225}}},
        {"elsewhere", {.axes = 1, .origin = easel::DrawingPoint{0, 100}}, {{310, 25}, {310, 175}}},
    };
    for (const auto& row : rows) {
        INFO(row.what);
        Opened opened{kSquare, row.request};
        opened.session.mirror(row.request);
        CHECK(centres() == row.expected);
        CHECK(opened.session.finish() == std::vector<std::string>{});
    }
}

TEST_CASE("applying is one step that undo takes back whole") {
    const MirrorRequest request{.axes = 5, .angleDegrees = 12};
    Opened opened{kSquare, request};
    const std::string before = easel::svg::svgText(easel::session().document());
    opened.session.mirror(request);
    const std::string after = easel::svg::svgText(easel::session().document());
    CHECK(before != after);
    CHECK(opened.session.host.undoText().find("Apply Symmetry Axes to Selection") !=
          std::string::npos);
    CHECK(opened.session.host.undo());
    CHECK(easel::svg::svgText(easel::session().document()) == before);
    CHECK(opened.session.host.redo());
    CHECK(easel::svg::svgText(easel::session().document()) == after);
    CHECK(opened.session.finish().empty());
}

TEST_CASE("axes on a layer survive saving, and what is drawn later is mirrored as well") {
    const MirrorRequest request{.axes = 2, .mode = MirrorMode::Layer};
    TestFile saved{"saved.svg"};
    {
        Opened opened{kSquare, request};
        opened.session.mirror(request);
        CHECK(centres().size() == 4);
        opened.session.save(saved.path);
        CHECK(opened.session.finish().empty());
    }
    Opened again{contentOf(saved.path), request};
    again.session.host.edit("Draw", [](easel::Document& document) {
        easel::Art& path =
            easel::createArt(document, kPathArt, easel::onTopOf(*document.state().currentLayer));
        easel::ArtContent& content = path.write();
        for (const AIRealPoint point : {AIRealPoint{350, -120}, {360, -120}, {355, -110}})
            content.segments.write().push_back({point, point, point, 1});
        content.closed = true;
    });
    CHECK(centres().size() == 8);
    CHECK(again.session.finish().empty());
}

TEST_CASE("art that cannot be selected is an error that says what to do") {
    const std::string locked =
        R"(<svg xmlns="http://www.w3.org/2000/svg" width="9" height="9" )"
        R"(xmlns:inkscape="http://www.inkscape.org/namespaces/inkscape" )"
        R"(xmlns:sodipodi="http://sodipodi.sourceforge.net/DTD/sodipodi-0.dtd">)"
        R"(<g inkscape:groupmode="layer" sodipodi:insensitive="true">)"
        R"(<rect width="5" height="5"/></g></svg>)";
    TestFile input{"locked.svg", locked};
    TestFile output{"locked-out.svg"};
    easel::MirrorCommand command;
    command.input = input.path;
    command.output = output.path;
    command.plugin = FACETTA_LIBRARY;
    const Outcome outcome = run(command);
    CHECK(outcome.status == ExitStatus::Fault);
    CHECK(outcome.error.find("nothing to select; art that is to be mirrored must be visible and "
                             "not locked\n") != std::string::npos);
    CHECK_FALSE(std::filesystem::exists(output.path));
}

TEST_CASE("the command tells what is wrong in one line and leaves no output") {
    TestFile input{"square.svg", kSquare};
    TestFile broken{"broken.svg", "<svg><g></svg>"};
    TestFile output{"out.svg"};
    struct Row {
        std::string what;
        easel::MirrorCommand command;
        std::string says;
    };
    easel::MirrorCommand good;
    good.input = input.path;
    good.output = output.path;
    good.plugin = FACETTA_LIBRARY;
    std::vector<Row> rows(7, {"", good, ""});
    rows[0].what = "no drawing";
    rows[0].command.input = "no-such.svg";
    rows[0].says = "no-such.svg";
    rows[1].what = "a broken drawing";
    rows[1].command.input = broken.path;
    rows[1].says = "broken.svg:1:";
    rows[2].what = "no plug-in";
    rows[2].command.plugin = "no-such.plugin";
    rows[2].says = "--plugin FILE names another";
    rows[3].what = "no plug-in, but a file";
    rows[3].command.plugin = input.path;
    rows[3].says = "plug-in";
    rows[4].what = "an unknown layer";
    rows[4].command.request.layer = "Sky";
    rows[4].says = "there is no layer \"Sky\"; its layers are \"";
    rows[5].what = "an origin off the canvas";
    rows[5].command.request.origin = easel::DrawingPoint{1e6, 0};
    rows[5].says = "outside the canvas";
    rows[6].what = "a picture that cannot be made";
    rows[6].command.picture = input.path / "none" / "out.png";
    rows[6].says = "the file cannot be made";
    for (const auto& row : rows) {
        INFO(row.what);
        const Outcome outcome = run(row.command);
        INFO(outcome.error);
        CHECK(outcome.status == ExitStatus::Fault);
        CHECK(outcome.error.find(row.says) != std::string::npos);
        CHECK(std::count(outcome.error.begin(), outcome.error.end(), '\n') == 1);
        CHECK_FALSE(std::filesystem::exists(output.path));
    }
}

TEST_CASE("statistics count the art before and after") {
    TestFile input{"square.svg", kSquare};
    TestFile output{"out.svg"};
    TestFile picture{"out.png"};
    easel::MirrorCommand command;
    command.request.axes = 3;
    command.input = input.path;
    command.output = output.path;
    command.picture = picture.path;
    command.plugin = FACETTA_LIBRARY;
    command.statistics = true;
    const Outcome outcome = run(command);
    CHECK(outcome.error.empty());
    CHECK(outcome.status == ExitStatus::Done);
    CHECK(outcome.out.find(R"("before":{"art":1,"paths":1,"segments":4})") != std::string::npos);
    CHECK(outcome.out.find(R"("paths":6,"segments":24})") != std::string::npos);
    CHECK(outcome.out.find(R"("seconds":{"start":)") != std::string::npos);
    CHECK(contentOf(picture.path).starts_with("\x89PNG"));
    CHECK(contentOf(output.path).find("<svg") != std::string::npos);
}

} // namespace facetta::tests

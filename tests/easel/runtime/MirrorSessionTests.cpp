#include "easel/cli/MirrorCommand.h"
#include "easel/document/ArtTree.h"
#include "easel/suites/Suites.h"

#include <doctest/doctest.h>

#include <algorithm>
#include <cmath>
#include <fstream>
#include <functional>
#include <regex>
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
        {"two axes of the layer",
         {.axes = 2, .mode = MirrorMode::Layer},
         {{90, 175}, {90, 225}, {310, 175}, {310, 225}}},
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

TEST_CASE("the command tells what is wrong in one line and leaves no output") {
    const TestFile input{"square.svg", kSquare};
    const TestFile locked{"locked.svg", std::regex_replace(kSquare, std::regex("<rect"),
                                                           "<rect sodipodi:insensitive='true'")};
    const TestFile broken{"broken.svg", "<svg><g></svg>"};
    const TestFile output{"out.svg"};
    struct Row {
        std::string what;
        std::function<void(easel::MirrorCommand&)> change;
        std::string says;
    };
    using Command = easel::MirrorCommand;
    const Row rows[] = {
        {"no drawing", [](Command& c) { c.input = "no-such.svg"; }, "no-such.svg"},
        {"a broken drawing", [&](Command& c) { c.input = broken.path; }, "broken.svg:1:"},
        {"nothing that can be selected", [&](Command& c) { c.input = locked.path; },
         "nothing to select; art that is to be mirrored must be visible and not locked\n"},
        {"no plug-in", [](Command& c) { c.plugin = "no-such.plugin"; },
         "--plugin FILE names another"},
        {"no plug-in, but a file", [](Command& c) { c.plugin = c.input; }, "plug-in"},
        {"an unknown layer", [](Command& c) { c.request.layer = "Sky"; },
         "there is no layer \"Sky\"; its layers are \""},
        {"an origin off the canvas",
         [](Command& c) {
             c.request.origin = easel::DrawingPoint{1e6, 0};
         },
         "outside the canvas"},
        {"a picture that cannot be made",
         [](Command& c) { c.picture = c.input / "none" / "out.png"; }, "the file cannot be made"},
    };
    for (const auto& row : rows) {
        INFO(row.what);
        Command command;
        command.input = input.path;
        command.output = output.path;
        command.plugin = FACETTA_LIBRARY;
        row.change(command);
        const Outcome outcome = run(command);
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

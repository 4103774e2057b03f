#include "easel/cli/Info.h"
#include "easel/svg/SvgFile.h"

#include <doctest/doctest.h>

#include <filesystem>
#include <fstream>
#include <sstream>

using namespace easel;

namespace {

std::string infoOn(const std::string& text, bool json) {
    const auto file = std::filesystem::temp_directory_path() / "easel-info-test.svg";
    std::ofstream{file, std::ios::binary} << text;
    std::ostringstream out;
    CHECK(runInfo(easel::session(), {file, json}, out) == 0);
    std::filesystem::remove(file);
    const std::string name = file.string();
    std::string result = out.str();
    if (const std::size_t at = result.find(name); at != std::string::npos)
        result.replace(at, name.size(), "FILE");
    return result;
}

constexpr const char* kMirrored = R"(<svg viewBox="0 0 200 100">
<g inkscape:groupmode="layer" inkscape:label="Star" easel:dictionary='[{"key":"FacettaFT","type":"dictionary","value":[
{"key":"aa","type":"string","value":"0.523598775598299"},{"key":"ac","type":"integer","value":6},
{"key":"au","type":"boolean","value":false},{"key":"cx","type":"string","value":"8191.000000000000000"},
{"key":"cy","type":"string","value":"8181.000000000000000"}]}]'>
<path d="M0 0H10"/><g><path d="M0 0H10V5" easel:dictionary='[{"key":"FTMirroredv1","type":"integer","value":1}]'/></g>
<path d="M0 0V10" easel:guide="true" easel:dictionary='[{"key":"FTAxisGuide","type":"boolean","value":true}]'/>
<g inkscape:groupmode="layer" inkscape:label="Sub" style="display:none"/>
</g></svg>)";

} // namespace

TEST_CASE("info tells layers, axes, art, copies and guides, as JSON too") {
    CHECK(infoOn(kMirrored, false) == R"(FILE: 200 x 100
  layer "Star"
    axes 6, angle 30, origin 100,40, by hand
    1 groups, 3 paths, 7 segments
    1 mirrored copies, 1 guides, 1 axis guides
    layer "Sub", hidden
      empty
in all
  1 groups, 3 paths, 7 segments
  1 mirrored copies, 1 guides, 1 axis guides
)");
    const std::string json = infoOn(kMirrored, true);
    for (const char* part : {R"("title": "Star")", R"("count": 6)", R"("automatic": false)",
                             R"("copies": 1)", R"("axisGuides": 1)", R"("visible": false)"}) {
        INFO(std::string{part});
        CHECK(json.find(part) != std::string::npos);
    }
}

TEST_CASE("info on a file that is none says so") {
    std::ostringstream out;
    CHECK_THROWS_AS(runInfo(easel::session(), {"no-such-file.svg", false}, out), svg::FileError);
    CHECK(out.str().empty());
}

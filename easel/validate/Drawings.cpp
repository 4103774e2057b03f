#include "easel/validate/Drawings.h"

#include <cmath>

namespace easel::validate {
namespace {

std::string drawing(const std::string& layers) {
    return R"(<svg xmlns="http://www.w3.org/2000/svg")"
           R"( xmlns:inkscape="http://www.inkscape.org/namespaces/inkscape")"
           R"( xmlns:sodipodi="http://sodipodi.sourceforge.net/DTD/sodipodi-0.dtd")"
           R"( xmlns:easel="urn:facetta:easel" width="400" height="400">)" +
           layers + "</svg>";
}

std::string layer(const std::string& title, const std::string& attributes, const std::string& art) {
    return R"(<g inkscape:groupmode="layer" inkscape:label=")" + title + "\" " + attributes + '>' +
           art + "</g>";
}

constexpr const char* kLeaf = R"(<path id="leaf" d="M 280 180 L 320 170 L 300 190 Z"/>)";

std::string empty() { return drawing(layer("Ornament", "", "")); }

std::string onePath() { return drawing(layer("Ornament", "", kLeaf)); }

/// What is cut, what is carried whole, and what contains either; some of it across the axes.
std::string nested() {
    constexpr const char* kWindow = R"svg(
<defs><clipPath id="window"><path d="M 220 140 L 330 150 L 320 260 L 210 250 Z"/></clipPath></defs>)svg";
    constexpr const char* kArt = R"svg(
<g id="outer">
  <g id="inner">
    <path id="leaf" d="M 280 180 L 320 170 L 300 190 Z"/>
    <path id="arc" d="M 210 190 C 240 120 300 120 330 196" fill="none" stroke="#000"/>
  </g>
  <path id="ring" fill-rule="evenodd" d="M 180 150 H 260 V 230 H 180 Z M 200 170 H 240 V 210 H 200 Z"/>
</g>
<g id="clipped" clip-path="url(#window)">
  <rect x="200" y="130" width="150" height="150"/><circle cx="260" cy="200" r="50"/>
</g>
<text id="word" x="120" y="140">leaf</text>)svg";
    return drawing(kWindow +
                   layer("Below", "", R"(<path id="below" d="M 40 40 L 90 60 L 60 90"/>)") +
                   layer("Ornament", "",
                         kArt + layer("Sublayer", "",
                                      R"(<path id="sub" d="M 300 210 L 340 220 L 310 250 Z"/>)")));
}

/// The leaf can be worked on; about it lies what cannot.
std::string lockedAndHidden() {
    return drawing(
        layer("Locked", R"(sodipodi:insensitive="true")",
              R"(<path id="fixed" d="M 240 120 L 260 130 L 250 150 Z"/>)") +
        layer("Hidden", R"(style="display:none")",
              R"(<path id="unseen" d="M 240 220 L 260 230 L 250 250 Z"/>)") +
        layer(
            "Ornament", "",
            R"(<path id="lock" sodipodi:insensitive="true" d="M 250 170 L 270 160 L 260 190 Z"/>)"
            R"(<g id="half"><path id="gone" style="display:none" d="M 230 190 L 240 180 L 240 195 Z"/>)"
            R"(<path id="stuck" sodipodi:insensitive="true" d="M 230 150 L 250 140 L 240 160 Z"/></g>)" +
                std::string(kLeaf)));
}

std::string large() { return manyLeaves(120); }

/// Entries under the plug-in's keys that it never wrote.
std::string hostileEntries() {
    return leafWithEntries(
        R"([{"key":"FacettaFT","type":"dictionary","value":[)"
        R"({"key":"aa","type":"string","value":"1e999"},{"key":"ac","type":"integer","value":-7},)"
        R"({"key":"au","type":"string","value":"maybe"},{"key":"cx","type":"string","value":"nan"},)"
        R"({"key":"cy","type":"real","value":3},{"key":"ts","type":"string","value":"now"}]}])",
        R"([{"key":"FTAxisGuide","type":"integer","value":3},)"
        R"({"key":"FTMirroredv1","type":"integer","value":7}])");
}

constexpr Drawing kDrawings[] = {
    {"empty", empty}, {"one-path", onePath},       {"nested", nested}, {"locked", lockedAndHidden},
    {"large", large}, {"hostile", hostileEntries},
};

std::string escaped(const std::string& text) {
    std::string result;
    for (const char character : text) {
        if (character == '"')
            result += "&quot;";
        else if (character == '&')
            result += "&amp;";
        else if (character == '<')
            result += "&lt;";
        else
            result += character;
    }
    return result;
}

} // namespace

std::span<const Drawing> drawings() { return kDrawings; }

std::string manyLeaves(int count) {
    std::string art = kLeaf;
    const int across = static_cast<int>(std::ceil(std::sqrt(count)));
    const double apart = 360.0 / across;
    for (int i = 1; i < count; ++i) {
        const double x = 20 + apart * (i % across);
        const double y = 20 + apart * (i / across);
        const auto at = [&](double right, double down) {
            return ' ' + std::to_string(x + right * apart) + ' ' + std::to_string(y + down * apart);
        };
        art += "<path d=\"M" + at(0, 0) + " C" + at(0.3, -0.4) + at(0.6, -0.4) + at(0.9, 0) + " C" +
               at(0.6, 0.4) + at(0.3, 0.4) + at(0, 0) + " Z\"/>";
    }
    return drawing(layer("Ornament", "", art));
}

std::string leafWithEntries(const std::string& entries, const std::string& marks) {
    const auto dictionary = [](const std::string& json) {
        return json.empty() ? "" : "easel:dictionary=\"" + escaped(json) + '"';
    };
    return drawing(layer("Ornament", dictionary(entries),
                         R"(<path id="leaf" )" + dictionary(marks) +
                             R"( d="M 280 180 L 320 170 L 300 190 Z"/>)"));
}

} // namespace easel::validate

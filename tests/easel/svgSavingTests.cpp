#include "easel/document/ArtTree.h"
#include "easel/document/Dump.h"
#include "easel/document/Layers.h"
#include "easel/document/TransformArt.h"
#include "easel/svg/SvgFile.h"

#include <doctest/doctest.h>

#include <cstdlib>
#include <filesystem>
#include <fstream>
#include <iterator>

using namespace easel;
using namespace easel::svg;

namespace {

const std::string kHead =
    R"(<?xml version="1.0"?>
<svg xmlns="http://www.w3.org/2000/svg" xmlns:xlink="http://www.w3.org/1999/xlink" )"
    R"(xmlns:inkscape="http://www.inkscape.org/namespaces/inkscape" )"
    R"(xmlns:sodipodi="http://sodipodi.sourceforge.net/DTD/sodipodi-0.dtd" )"
    R"(xmlns:easel="urn:facetta:easel" viewBox="0 0 100 100">)";

std::string file(const std::string& content) { return kHead + content + "\n</svg>\n"; }

/// Saves, opens, and saves again: the model and the bytes must be the same.
void checkStable(const Document& document) {
    const std::string saved = svgText(document);
    const OpenedDrawing again = readSvgText(saved, "saved");
    CHECK(dump(*again.document) == dump(document));
    CHECK(svgText(*again.document) == saved);
}

Art& firstArt(const Document& document) { return *document.root().firstChild()->firstChild(); }

} // namespace

TEST_CASE("the example drawings are the same after saving and opening, and saving again") {
    for (const char* name : {"rosette", "layered", "crossing", "dense"}) {
        INFO(std::string{name});
        checkStable(*readSvg(std::string{"examples/"} + name + ".svg").document);
    }
}

TEST_CASE("drawings of all kinds are the same after saving and opening") {
    const char* const contents[] = {
        "<path d='M0 0C1 2 3 4 5 6S7 8 9 10Z' stroke='red' stroke-dasharray='1 2 3 4 5 6 7 8'/>",
        "<path d='M0 0H5V5H0ZM1 1H2V2Z' fill-rule='evenodd' opacity='.3'/>",
        "<path d='M0 0L5 5L0 0Z'/><path d='M3 3Z'/><path d='M3 3'/><path d=''/>",
        "<g opacity='.5' filter='url(#f)'><g/><path d='M0 0H1' mask='url(#m)'/></g>",
        "<linearGradient id='a'><stop offset='0'/><stop offset='1' stop-color='red'/>"
        "</linearGradient><rect width='9' height='5' transform='rotate(20)' fill='url(#a)'/>"
        "<rect width='9' height='5' stroke='url(#a)' fill='url(#nothing) red'/>",
        "<pattern id='p' width='.1' height='.1'><path d='M0 0H1'/></pattern>"
        "<circle r='9' fill='url(#p)'/><circle r='9' fill='url(#p)' transform='scale(2)'/>",
        "<clipPath id='c'><path d='M0 0H9V9Z'/></clipPath><g clip-path='url(#c)'>"
        "<text x='1'>A<tspan>b</tspan></text></g><use xlink:href='#c' clip-path='url(#c)'/>",
        "<style>path{fill:red}.a{stroke:blue}</style><path class='a' d='M0 0H1'/>"
        "<rect width='1' height='1' style='fill:none'/><text class='a'>x</text>",
        "<g font-size='9' fill='green'><text transform='scale(2)' opacity='.5'>t</text></g>",
        "<image width='5' height='5' transform='matrix(1 2 3 4 5 6)' display='none'/>",
        "<switch><foreignObject/><g id='k'><path d='M1 1H2'/></g></switch><a href='x'><g/></a>",
        "<g inkscape:groupmode='layer' inkscape:label='L &amp; &quot;M&quot;' "
        "inkscape:highlight-color='#ff0000' easel:printed='false' easel:template='true'>"
        "<g inkscape:groupmode='layer' inkscape:label='S'/></g>",
    };
    for (const char* content : contents) {
        INFO(std::string{content});
        const OpenedDrawing opened = readSvgText(file(content), "x");
        checkStable(*opened.document);
    }
}

TEST_CASE("what is not understood is written back untouched, in place") {
    const std::string text = R"svg(<?xml version="1.0" standalone='no'?>
<!-- before -->
<?xml-stylesheet href='x.css'?>
<!DOCTYPE svg [ <!ENTITY ns "http://example.org/"> ]>
<svg xmlns="http://www.w3.org/2000/svg" xmlns:xlink="http://www.w3.org/1999/xlink" xmlns:inkscape="http://www.inkscape.org/namespaces/inkscape" xmlns:sodipodi="http://sodipodi.sourceforge.net/DTD/sodipodi-0.dtd" xmlns:easel="urn:facetta:easel" xmlns:x="&ns;" x:y='"1"' width="100mm" viewBox="0 0 100 100">
  <title>A &lt;title&gt;</title>
  <sodipodi:namedview id='n'
      pagecolor="#fff"/>
  <g inkscape:groupmode="layer" inkscape:label="One">
    <!-- first -->
    <path id="p" x:data='&ns;' d="M0 0H10"><desc>A <b>line</b></desc></path>
    <defs>
      <filter id="f"><feGaussianBlur  stdDeviation = "2"/></filter>
    </defs>
    <x:thing><![CDATA[ <kept> ]]></x:thing>
    <g id="g" x:z="1">
      <path d="M0 0V10" style="filter:url(#f)"/>
      <!-- last in the group -->
    </g>
  </g>
  <metadata>
   odd   spacing
  </metadata>
</svg>
<!-- after -->
)svg";
    CHECK(svgText(*readSvgText(text, "x").document) == text);
}

TEST_CASE("interludes stay with their neighbours when art goes, comes and moves") {
    const auto opened = readSvgText(
        file("<path id='a' d='M0 0H1'/><!--1--><path id='b' d='M0 0H2'/><!--2-->"), "x");
    Document& document = *opened.document;
    Art& front = firstArt(document);
    disposeArt(front);
    duplicateArt(firstArt(document), onTopOf(*document.root().firstChild()));
    const std::string text = svgText(document);
    CHECK(text.find("<!--1-->") != std::string::npos);
    CHECK(text.find("<!--1-->") < text.find("<!--2-->"));
    CHECK(text.find("id='a'") == text.rfind("id='a'")); // a copy has no id
}

TEST_CASE("what a plug-in made survives") {
    const auto opened = readSvgText(file("<path d='M0 0C1 2 3 4 5 6'/>"), "x");
    Document& document = *opened.document;
    Art& layer = *document.root().firstChild();
    Art& path = firstArt(document);
    const auto entry = [](const char* key, Value value, Dictionary& target) {
        target.set(internKey(key), std::move(value));
    };
    Ref<Dictionary> axes{new Dictionary};
    entry("cx", textValue("100.000000000000000"), *axes);
    entry("ac", Value{ai::int32{5}}, *axes);
    entry("au", Value{Boolean{false}}, *axes);
    entry("FacettaFT", Value{axes}, layer.dictionary());
    Ref<Array> array{new Array};
    array->insert(0, Value{AIReal{0.1F}});
    array->insert(1, Value{AIRealPoint{1.5F, -2}});
    entry("all", Value{array}, path.dictionary());
    entry("FTMirroredv1", Value{ai::int32{1}}, path.dictionary());
    entry("bytes", textValue("\xFF\x01'<&\""), path.dictionary());
    entry("wide", unicodeValue(u"\u00E9\xD800x"), path.dictionary());
    entry("binary", Value{std::make_shared<const std::vector<std::byte>>(5, std::byte{7})},
          path.dictionary());
    entry("matrix", Value{AIRealMatrix{1, 2, 3, 4, 5, 6}}, path.dictionary());
    entry("document", Value{ai::int32{-3}}, document.recordedDictionary());

    Art& copy = duplicateArt(path, onTopOf(layer));
    transformArt(copy, {0.6F, 0.8F, -0.8F, 0.6F, 0.1F, 7}, 1, kTransformObjects);
    copy.write().attributes |= kArtLocked;
    copy.write().details.write().note = "A note\nin two lines";
    copy.write().details.write().name = "<copy>";
    Art& guide = duplicateArt(path, onTopOf(layer));
    guide.write().guide = true;
    guide.write().segments.write().front().in = {-3, 4};
    Art& gray = duplicateArt(path, onTopOf(layer));
    AIColor& color = gray.write().style.write().path.fill.color;
    color.kind = kFourColor;
    color.c.f = {0.1F, 0.2F, 0.3F, 0.4F};
    checkStable(document);
}

TEST_CASE("temporary entries are not kept") {
    const auto opened = readSvgText(file("<path d='M0 0H1'/>"), "x");
    firstArt(*opened.document).dictionary().set(internKey("-now"), Value{ai::int32{1}});
    CHECK(svgText(*opened.document).find("-now") == std::string::npos);
}

TEST_CASE("a moved ruler origin is kept, and the drawing stays where it is") {
    const auto opened = readSvgText(file("<path d='M10 20L30 45.5'/>"), "x");
    const AIRealPoint origin = opened.document->state().rulerOrigin;
    opened.document->setRulerOrigin({origin.h + 7.5F, origin.v - 3});
    CHECK(svgText(*opened.document).find("M10 20L30 45.5") != std::string::npos);
    checkStable(*opened.document);
}

TEST_CASE("a mirrored copy's gradient is mirrored with it, for others as well") {
    const auto opened =
        readSvgText(file("<linearGradient id='a' gradientUnits='userSpaceOnUse' x2='50'><stop/>"
                         "<stop offset='1' stop-color='red'/></linearGradient>"
                         "<path d='M0 0H50V50Z' fill='url(#a)'/>"),
                    "x");
    Art& path = firstArt(*opened.document);
    CHECK(svgText(*opened.document).find("fill=\"url(#a)\"") != std::string::npos);
    Art& copy = duplicateArt(path, onTopOf(*path.parent()));
    transformArt(copy, {-1, 0, 0, 1, 100, 0}, 1, kTransformObjects | kTransformFillGradients);
    const std::string text = svgText(*opened.document);
    CHECK(text.find(R"(x1="0" y1="0" x2="50" y2="0" gradientUnits="userSpaceOnUse" )"
                    R"svg(gradientTransform="matrix(-1 0 0 1 100 0)")svg") != std::string::npos);
    checkStable(*opened.document);
}

TEST_CASE("a gradient that another program has moved stays where it put it") {
    const auto opened =
        readSvgText(file("<linearGradient id='a'><stop/><stop offset='1' stop-color='red'/>"
                         "</linearGradient><rect width='50' height='20' fill='url(#a)'/>"),
                    "x");
    std::string text = svgText(*opened.document);
    const auto replace = [&](const std::string& former, const std::string& latter) {
        REQUIRE(text.find(former) != std::string::npos);
        text.replace(text.find(former), former.size(), latter);
    };
    replace("gradientTransform=\"matrix(50 0 0 20 0 0)",
            "gradientTransform=\"matrix(50 0 0 20 7 0)");
    replace("<path ", "<path transform='scale(2)' ");
    const auto moved = readSvgText(text, "x");
    const AIRealMatrix& matrix = firstArt(*moved.document).style().fillMatrix;
    CHECK(matrix.a == 100);
    CHECK(matrix.d == -40);
    CHECK(matrix.tx == 14);
    checkStable(*moved.document);
}

TEST_CASE("what another program adds to the definitions that saving makes anew is kept") {
    const OpenedDrawing opened = readSvgText(
        file("<linearGradient id='a'><stop offset='0'/></linearGradient>"
             "<path d='M0 0H9V9Z' fill='url(#easel-paint-1)'/><path d='M0 0H9' stroke='url(#b)'/>"
             "<defs easel:generated='true'><!-- theirs -->"
             "<linearGradient id='easel-paint-1' xlink:href='#a' easel:derived='true' "
             "easel:source='a' easel:matrix='9 0 0 -9 0 0'/>"
             "<linearGradient id='b' gradientUnits='userSpaceOnUse' x2='5'/>"
             "<linearGradient id='easel-paint-2' easel:derived='true' easel:source='gone'/>"
             "</defs>"),
        "x");
    const std::string saved = svgText(*opened.document);
    for (const char* kept : {"<!-- theirs -->", "<linearGradient id='b'", "easel:source='gone'"}) {
        INFO(std::string{kept});
        CHECK(saved.find(kept) != std::string::npos);
    }
    CHECK(saved.find("easel-paint-1'") == std::string::npos); // written anew, as "easel-paint-1"
    checkStable(*opened.document);
}

TEST_CASE("definitions outlive the group that they stood in") {
    const auto opened = readSvgText(
        file("<g><linearGradient id='a' gradientUnits='userSpaceOnUse'><stop/></linearGradient>"
             "<!--gone--><path d='M0 0H1'/></g><path d='M0 0H5' fill='url(#a)'/>"),
        "x");
    disposeArt(*opened.document->root().firstChild()->lastChild());
    const std::string text = svgText(*opened.document);
    CHECK(text.find("<linearGradient id='a'") != std::string::npos);
    CHECK(text.find("gone") == std::string::npos);
    checkStable(*opened.document);
}

TEST_CASE("a style sheet does not change what art looks like") {
    const auto opened = readSvgText(
        file("<style>path{fill:red;stroke-width:9}</style><rect width='1' height='1'/>"), "x");
    checkStable(*opened.document); // the rect has become a path, black as before
    CHECK(svgText(*opened.document).find("fill:#000000") != std::string::npos);
}

TEST_CASE("a file is written whole or not at all") {
    const auto folder = std::filesystem::temp_directory_path() / "easel-saving-test";
    std::filesystem::create_directories(folder);
    const auto opened = readSvgText(file("<path d='M0 0H1'/>"), "x");
    writeSvg(*opened.document, folder / "a.svg");
    writeSvg(*opened.document, folder / "a.svg"); // over an existing one
    std::ifstream in{folder / "a.svg", std::ios::binary};
    const std::string text{std::istreambuf_iterator<char>{in}, {}};
    in.close();
    CHECK(text == svgText(*opened.document));
    CHECK_THROWS_AS(writeSvg(*opened.document, folder / "none" / "a.svg"), FileError);
    const auto files = std::filesystem::directory_iterator{folder};
    CHECK(std::distance(begin(files), end(files)) == 1);
    std::filesystem::remove_all(folder);
}

TEST_CASE("a document that no file was read for can be saved") {
    Document document{AISize{200, 100}};
    Art& path = createArt(document, kPathArt, onTopOf(*document.root().firstChild()));
    path.write().segments = Cow<Segments>{{{{1, -2}, {1, -2}, {1, -2}, 1}}};
    const OpenedDrawing again = readSvgText(svgText(document), "x");
    CHECK(dump(*again.document) == dump(document));
}

#include "easel/document/Bounds.h"
#include "easel/document/Layers.h"
#include "easel/document/Session.h"
#include "easel/svg/Content.h"
#include "easel/svg/SvgFile.h"

#include <doctest/doctest.h>

#include <cmath>

using namespace easel;
using namespace easel::svg;

namespace {

constexpr const char* kSvg = R"(<svg viewBox="0 0 100 100" xmlns:inkscape="i" xmlns:sodipodi="s">)";

OpenedDrawing open(const std::string& content) {
    return readSvgText(easel::session(), kSvg + content + "</svg>", "x");
}

const Art& topArt(const OpenedDrawing& opened) {
    return *opened.document->root().firstChild()->firstChild();
}

/// Left, top, right, bottom of the outline, in the drawing's coordinates.
std::string boundsText(const Art& art) {
    const auto box = boundsOf(art, kNoStrokeBounds);
    if (!box) return "none";
    std::string text;
    for (const double side : {box->left, -box->top, box->right, -box->bottom})
        text += std::to_string(std::lround(side * 100)) + ' ';
    return text;
}

std::string messageFor(const std::string& text) {
    try {
        static_cast<void>(readSvgText(easel::session(), text, "a.svg"));
        return "no error";
    } catch (const FileError& error) {
        return error.what();
    }
}

std::string nested(int depth, const std::string& inner) {
    std::string text;
    for (int i = 0; i < depth; ++i)
        text += "<g>";
    text += inner;
    for (int i = 0; i < depth; ++i)
        text += "</g>";
    return text;
}

} // namespace

TEST_CASE("shapes and transforms end in the outline") {
    struct Row {
        const char* element;
        const char* bounds; ///< In hundredths.
    };
    const Row rows[] = {
        {"<rect x='1' y='2' width='30' height='40'/>", "100 200 3100 4200 "},
        {"<rect width='50%' height='10' rx='99'/>", "0 0 5000 1000 "},
        {"<circle cx='50' cy='50' r='10'/>", "4000 4000 6000 6000 "},
        {"<ellipse cx='50' cy='50' rx='10' ry='5'/>", "4000 4500 6000 5500 "},
        {"<line x1='1' y1='2' x2='3' y2='5'/>", "100 200 300 500 "},
        {"<polyline points='0,0 10,5 3,8'/>", "0 0 1000 800 "},
        {"<polygon points='0 0 10 5 3 8'/>", "0 0 1000 800 "},
        {"<path d='M1 1h5v5' transform='translate(10 20)'/>", "1100 2100 1600 2600 "},
        {"<path d='M1 1h5v5' style='opacity:.5' transform='scale(2)'/>", "200 200 1200 1200 "},
        {"<rect width='1in' height='1in'/>", "0 0 9600 9600 "},
    };
    for (const auto& row : rows) {
        INFO(std::string{row.element});
        CHECK(boundsText(topArt(open(row.element))) == row.bounds);
    }
    const auto inside = open("<g transform='translate(10 0)'><g transform='rotate(90)'>"
                             "<path d='M0 0H5V2' transform='scale(2)'/></g></g>");
    CHECK(boundsText(topArt(inside)) == "600 0 1000 1000 ");
}

TEST_CASE("a smooth anchor is told from a corner by its handles") {
    const auto opened = open("<path d='M0 0C0 5 5 10 10 10C15 10 20 15 20 20C20 30 30 30 30 20'/>");
    const auto segments = topArt(opened).segments();
    REQUIRE(segments.size() == 4);
    CHECK(segments[1].corner == 0);
    CHECK(segments[2].corner == 0);
    CHECK(segments[3].corner != 0);
    CHECK(open("<path d='M0 0C0 5 5 10 10 10C5 10 20 15 20 20'/>")
              .document->root()
              .firstChild()
              ->firstChild()
              ->segments()[1]
              .corner != 0); // a cusp: both handles on one side
}

TEST_CASE("styles come from attributes, sheets, the style attribute and ancestors") {
    struct Row {
        const char* content;
        const char* fill; ///< Red, green, blue in 0..9; "none".
    };
    const Row rows[] = {
        {"<path d='M0 0H1'/>", "000"},
        {"<path d='M0 0H1' fill='none'/>", "none"},
        {"<path d='M0 0H1' fill='lime'/>", "090"},
        {"<g fill='red'><path d='M0 0H1'/></g>", "900"},
        {"<g color='blue'><path d='M0 0H1' fill='currentColor'/></g>", "009"},
        {"<path d='M0 0H1' fill='red' style='fill:blue'/>", "009"},
        {"<style>.a{fill:blue}</style><path d='M0 0H1' class='a' fill='red'/>", "009"},
        {"<style>.a{fill:blue}</style><path d='M0 0H1' class='a' style='fill:red'/>", "900"},
        {"<style>.a{fill:blue!important}</style><path d='M0 0H1' class='a' style='fill:red'/>",
         "009"},
        {"<style><![CDATA[g path{fill:red}]]></style><g><path d='M0 0H1'/></g>", "900"},
        {"<path d='M0 0H1' fill='nonsense'/>", "000"},
    };
    for (const auto& row : rows) {
        INFO(std::string{row.content});
        const auto opened = open(row.content);
        const Art* art = &topArt(opened);
        while (art->type() == kGroupArt)
            art = art->firstChild();
        const AIPathStyle& style = art->style().path;
        std::string found = "none";
        if (style.fillPaint != 0) {
            const AIThreeColorStyle& rgb = style.fill.color.c.rgb;
            found.clear();
            for (const float channel : {rgb.red, rgb.green, rgb.blue})
                found += std::to_string(std::lround(channel * 9));
        }
        CHECK(found == row.fill);
    }
}

TEST_CASE("strokes are scaled with the path that they are on") {
    const auto opened = open("<g transform='scale(3)' stroke='red' stroke-width='2'>"
                             "<path d='M0 0H9' stroke-dasharray='1 2 3' stroke-dashoffset='1' "
                             "stroke-linecap='round' stroke-linejoin='bevel'/></g>");
    const AIStrokeStyle& stroke = topArt(opened).firstChild()->style().path.stroke;
    CHECK(stroke.width == 6);
    CHECK(stroke.dash.length == 6); // an odd pattern is repeated
    CHECK(stroke.dash.array[2] == 9);
    CHECK(stroke.dash.offset == 3);
    CHECK(stroke.cap == kAIRoundCap);
    CHECK(stroke.join == kAIBevelJoin);
}

TEST_CASE("layers are recognised, and loose art gets layers that keep the paint order") {
    const auto opened =
        open("<path d='M0 0H1'/>"
             "<g inkscape:groupmode='layer' inkscape:label='Low' sodipodi:insensitive='true'>"
             "<g inkscape:groupmode='layer' inkscape:label='Sub' style='display:none'/>"
             "<g inkscape:label='Plain'><path d='M0 0H2'/></g></g>"
             "<path d='M0 0H3'/>");
    const Art* layer = opened.document->root().lastChild();
    CHECK(layer->details().layer.title == "Layer 1");
    layer = layer->previous();
    CHECK(layer->details().layer.title == "Low");
    CHECK(layer->has(kArtLocked));
    const Art& sub = *layer->lastChild();
    CHECK(sub.isLayer());
    CHECK(sub.has(kArtHidden));
    CHECK(layer->firstChild()->details().name == "Plain");
    CHECK_FALSE(layer->firstChild()->isLayer());
    layer = layer->previous();
    CHECK(layer->details().layer.title == "Layer 2");
    CHECK(opened.document->state().currentLayer == layer);
}

TEST_CASE("an empty drawing has one layer, and the current one can be worked on") {
    CHECK(open("").document->root().firstChild()->details().layer.title == "Layer 1");
    const auto hidden =
        open("<g inkscape:groupmode='layer' inkscape:label='A'/>"
             "<g inkscape:groupmode='layer' inkscape:label='B' style='display:none'/>");
    CHECK(hidden.document->state().currentLayer->details().layer.title == "A");
}

TEST_CASE("soft coordinates start at the drawing's origin, y upwards") {
    const auto opened = readSvgText(
        easel::session(), "<svg viewBox='10 20 100 50'><path d='M10 20L30 40'/></svg>", "x");
    const auto segments = topArt(opened).segments();
    CHECK(segments[0].p.h == 10);
    CHECK(segments[0].p.v == -20);
    const AIRealRect artboard = opened.document->artboard();
    CHECK(artboard.left == 10);
    CHECK(artboard.top == -20);
    CHECK(artboard.bottom == -70);
}

TEST_CASE("clip paths make clip groups") {
    const std::string defs = "<clipPath id='c'><circle cx='5' cy='5' r='5'/></clipPath>"
                             "<clipPath id='two'><rect width='1' height='1'/>"
                             "<rect x='3' width='1' height='1'/></clipPath>"
                             "<clipPath id='mixed'><rect width='1' height='1'/>"
                             "<rect x='3' width='1' height='1' clip-rule='evenodd'/></clipPath>"
                             "<clipPath id='box' clipPathUnits='objectBoundingBox'>"
                             "<rect width='.5' height='.5'/></clipPath>"
                             "<clipPath id='both' clip-path='url(#c)'><rect width='2' height='9'/>"
                             "</clipPath><clipPath id='text'><text>A</text></clipPath>";
    struct Row {
        const char* content;
        int masks;
        ai::int16 type; ///< Of the front-most mask.
        const char* bounds;
    };
    const Row rows[] = {
        {"<g clip-path='url(#c)'><path d='M0 0H9'/></g>", 1, kPathArt, "0 0 1000 1000 "},
        {"<path clip-path='url(#c)' transform='scale(2)' d='M0 0H9'/>", 1, kPathArt,
         "0 0 2000 2000 "},
        {"<g clip-path='url(#two)'><path d='M0 0H9'/></g>", 1, kCompoundPathArt, "0 0 400 100 "},
        {"<g clip-path='url(#mixed)'><path d='M0 0H9'/></g>", 0, kPathArt, "0 0 900 0 "},
        {"<g clip-path='url(#box)'><path d='M0 0H8V8'/></g>", 1, kPathArt, "0 0 400 400 "},
        {"<g clip-path='url(#both)'><path d='M0 0H9'/></g>", 2, kPathArt, "0 0 1000 1000 "},
        {"<g clip-path='url(#text)'><path d='M0 0H9'/></g>", 0, kPathArt, "0 0 900 0 "},
        {"<g clip-path='url(#none)'><path d='M0 0H9'/></g>", 0, kPathArt, "0 0 900 0 "},
    };
    for (const auto& row : rows) {
        INFO(std::string{row.content});
        const auto opened = open(defs + row.content);
        const Art& group = topArt(opened);
        CHECK(group.content().clipped == (row.masks > 0));
        int found = 0;
        for (const Art* art = group.firstChild(); art != nullptr; art = art->next())
            if (art->has(kArtIsClipMask)) ++found;
        CHECK(found == row.masks);
        CHECK(group.firstChild()->type() == row.type);
        CHECK(boundsText(*group.firstChild()) == row.bounds);
    }
}

TEST_CASE("text, images and uses are opaque art with a matrix and a box") {
    const auto opened =
        open("<rect id='r' width='4' height='2'/><g transform='translate(10 0)'>"
             "<use href='#r' x='1' y='3'/>"
             "<image x='5' y='6' width='7' height='8'/>"
             "<text x='1' y='9' font-size='10'>ab<tspan dy='2'>c</tspan></text></g>");
    const Art& group = topArt(opened);
    const Art* art = group.lastChild();
    CHECK(art->type() == kSymbolArt);
    CHECK(boundsText(*art) == "1100 300 1500 500 ");
    CHECK(art->details().symbol->id() == "r");
    art = art->previous();
    CHECK(art->type() == kRasterArt);
    CHECK(boundsText(*art) == "1500 600 2200 1400 ");
    art = art->previous();
    CHECK(art->type() == kTextFrameArt);
    const auto* text = dynamic_cast<const TextContent*>(art->details().foreign.get());
    REQUIRE(text->runs.size() == 2);
    CHECK(text->runs[0].text == "ab");
    CHECK(text->runs[1].position.y == 11);
}

TEST_CASE("a use that refers to itself, or multiplies, ends") {
    const auto self = open("<g id='a'><use href='#b'/></g><g id='b'><use href='#a'/></g>");
    CHECK(topArt(self).type() == kGroupArt);
    std::string bomb = "<path id='x0' d='M0 0H1'/>";
    for (int i = 1; i < 30; ++i) {
        const std::string last = "<use href='#x" + std::to_string(i - 1) + "'/>";
        bomb += "<g id='x" + std::to_string(i) + "'>";
        for (int k = 0; k < 10; ++k)
            bomb += last;
        bomb += "</g>";
    }
    CHECK(topArt(open(bomb)).type() == kGroupArt);
}

TEST_CASE("a broken file is one line that says where, what, and what would be right") {
    struct Row {
        std::string text;
        const char* message;
    };
    const Row rows[] = {
        {"", "a.svg:1: there is no drawing in this file; an SVG file holds one <svg> element"},
        {"hello", "a.svg:1: there is text outside the drawing; only comments may stand there"},
        {"<svg>\n<g>\n</svg>", "a.svg:3: </svg> stands where </g> is due, for the <g> of line 2"},
        {"<svg>\n<g>", "a.svg:2: <g> is never closed; the file may have been cut off"},
        {"<svg><g a=b/></svg>",
         "a.svg:1: the value of a in <g> is not in quotes; write a=\"value\""},
        {"<svg>\n\n<g a='1' a='2'/></svg>", "a.svg:3: a stands twice in <g>; keep one"},
        {"<svg><g a/></svg>", "a.svg:1: an attribute of <g> is broken; write name=\"value\""},
        {"<svg>a < b</svg>", "a.svg:1: < is not followed by a name; a plain < is written &lt;"},
        {"<svg/><svg/>",
         "a.svg:1: there is a second outermost element; an SVG file holds one <svg> element"},
        {"<svg viewBox='0 0 10'/>", "a.svg:1: the viewBox is '0 0 10'; write its left, top, width "
                                    "and height, as in viewBox=\"0 0 800 600\""},
        {"<svg>\n<path d='M0 0' transform='turn(9)'/></svg>",
         "a.svg:2: the transform of <path> is not understood; write matrix, translate, scale, "
         "rotate, skewX or skewY with numbers"},
        {"<svg>\n<g easel:dictionary='{}'/></svg>",
         "a.svg:2: the entries of <g> are broken: it is no list"},
        {"<svg><g easel:dictionary='[{\"key\":\"a\",\"type\":\"integer\",\"value\":1e9}]'/></svg>",
         "a.svg:1: the entries of <g> are broken: an integer entry is no whole number"},
        {"<svg><path d='M0 0H1M2 2H3' easel:members='[{\"locked\":3}]'/></svg>",
         "a.svg:1: easel:members is no list of what the subpaths carry"},
        {"<svg>\n<g id='\xC3'/></svg>",
         "a.svg:2: byte 8 of the line is no UTF-8; save the drawing in UTF-8"},
        {std::string{"<svg\0/>", 7}, "a.svg:1: this is no text; an SVG file is XML in UTF-8"},
    };
    for (const auto& row : rows) {
        INFO(row.text);
        CHECK(messageFor(row.text) == row.message);
    }
}

TEST_CASE("what is too much is refused, and what is just allowed is read") {
    CHECK(messageFor("<svg>" + nested(499, "") + "</svg>") == "no error");
    CHECK(messageFor("<svg>" + nested(500, "") + "</svg>") ==
          "a.svg:1: elements are nested more than 500 deep; remove groups that hold only a group");
    // Each level doubles what it refers to, in its own style.
    std::string text = "<svg><path id='x0' d='M0 0'/>";
    for (int i = 1; i < 40; ++i) {
        text += "<g id='x" + std::to_string(i) + "'>";
        for (int k = 0; k < 2; ++k)
            text += "<use href='#x" + std::to_string(i - 1) + "' x='" + std::to_string(k) +
                    "' letter-spacing='" + std::to_string(i * 2 + k) + "'/>";
        text += "</g>";
    }
    CHECK(messageFor(text + "</svg>") == "no error");
}

TEST_CASE("entities that multiply the text are refused") {
    const auto drawing = [](int references) {
        std::string text =
            "<!DOCTYPE svg [<!ENTITY e '" + std::string(4000, 'x') + "'>]><svg><text>";
        for (int i = 0; i < references; ++i)
            text += "&e;";
        return text + "</text></svg>";
    };
    CHECK(messageFor(drawing(4000)) == "no error");
    CHECK(messageFor(drawing(4001)) ==
          "a.svg:1: entities make more than 16 MB of text; write what they stand for once");
}

TEST_CASE("what of a style is not understood is told once, where it stands") {
    struct Row {
        const char* content;
        const char* warning; ///< Empty: there is none.
    };
    const Row rows[] = {
        {"<style>path:nth-child(2) {fill:red}</style>",
         "x:1: 'path:nth-child(2)' in the style sheet is not understood; what it styles stays as "
         "it "
         "is, but is not shown so here"},
        {"<style>a:hover {fill:red} @font-face {src:url(x)}</style>", ""},
        {"\n<g fill='color-mix(in srgb, red, blue)'><path d='M0 0'/><path d='M0 0'/></g>",
         "x:2: fill of <g> is 'color-mix(in srgb, red, blue)', which is not understood; copies do "
         "not have it"},
        {"<path d='M0 0' stroke-width='1rem'/>",
         "x:1: stroke-width of <path> is '1rem', which is not understood; copies do not have it"},
        {"<path d='M0 0' style='transform:none'/>",
         "x:1: transform of <path> is 'none', which is not understood; copies do not have it"},
        {"<g fill='red'><path d='M0 0' fill='inherit' style='stroke:initial'/></g>", ""},
    };
    for (const auto& row : rows) {
        INFO(std::string{row.content});
        const auto opened = open(row.content);
        CHECK((opened.warnings.empty() ? "" : opened.warnings[0]) == row.warning);
        CHECK(opened.warnings.size() <= 1);
    }
}

TEST_CASE("a path with too many segments is kept as opaque art, with a warning") {
    const auto path = [](int segments) {
        std::string text = "\n<path d='M0 0";
        for (int i = 1; i < segments; ++i)
            text += "h1";
        return text + "'/>";
    };
    CHECK(topArt(open(path(32000))).type() == kPathArt);
    const auto tooLong = open(path(32001));
    CHECK(topArt(tooLong).type() == kForeignArt);
    REQUIRE(tooLong.warnings.size() == 1);
    CHECK(tooLong.warnings[0] == "x:2: the path has more than 32,000 segments; it is kept as it "
                                 "is, but cannot be edited");
    CHECK(svgText(*tooLong.document).find("h1h1h1") != std::string::npos);
}

TEST_CASE("path data that is wrong is told, and what comes before the mistake is kept") {
    const auto opened = open("\n\n<path d='M0 0L5 5 L oops'/>");
    REQUIRE(opened.warnings.size() == 1);
    CHECK(opened.warnings[0] == "x:3: <path>: in the path data 'oops' stands where a number is "
                                "due; what comes before it is kept");
    CHECK(topArt(opened).segments().size() == 2);
}

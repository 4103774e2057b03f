#include "easel/document/ArtTree.h"
#include "easel/document/Dump.h"
#include "easel/document/Layers.h"
#include "easel/document/Session.h"
#include "easel/document/TransformArt.h"
#include "easel/svg/SvgFile.h"

#include <doctest/doctest.h>

#include <string>
#include <vector>

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

/// Saves and opens: the model must be the same.
void checkStable(const Document& document) {
    const OpenedDrawing again = readSvgText(easel::session(), svgText(document), "saved");
    CHECK(dump(*again.document) == dump(document));
}

Art& firstArt(const Document& document) { return *document.root().firstChild()->firstChild(); }

/// Everything with a place of its own, from the bottom up.
std::vector<Art*> topArt(const Document& document) {
    std::vector<Art*> found;
    for (Art* layer = document.root().lastChild(); layer != nullptr; layer = layer->previous())
        for (Art* art = layer->lastChild(); art != nullptr; art = art->previous())
            found.push_back(art);
    return found;
}

/// What is done to drawings of unknown content.
struct Change {
    const char* name;
    void (*make)(Art&);
};
constexpr AIRealMatrix kMirrored{-1, 0, 0, 1, 100, 0};
constexpr ai::int32 kAll = kTransformObjects | kTransformChildren | kTransformFillGradients |
                           kTransformFillPatterns | kTransformStrokeGradients |
                           kTransformStrokePatterns;
const Change kChanges[] = {
    {"nothing", [](Art&) {}},
    {"a mirrored copy",
     [](Art& art) { transformArt(duplicateArt(art, onTopOf(*art.parent())), kMirrored, 1, kAll); }},
    {"moved",
     [](Art& art) {
         transformArt(art, {1, 0, 0, 1, 3, -4}, 1, kAll);
     }},
    {"locked and hidden", [](Art& art) { art.write().attributes |= kArtLocked | kArtHidden; }},
    {"to the front", [](Art& art) { moveArt(art, onTopOf(*art.parent())); }},
    {"into a group of its own",
     [](Art& art) {
         if (art.isLayer()) return;
         Art& group = createArt(art.document(), kGroupArt, inFrontOf(art));
         moveArt(art, onTopOf(group));
     }},
};

} // namespace

TEST_CASE("drawings of all kinds are the same after changing, saving and opening") {
    const char* const contents[] = {
        "<path d='M0 0C1 2 3 4 5 6S7 8 9 10Z' stroke='red' stroke-dasharray='1 2 3 4 5 6 7 8'/>",
        "<path d='M0 0H5V5H0ZM1 1H2V2Z' fill-rule='evenodd' opacity='.3'/>",
        "<path d='M0 0L5 5L0 0Z'/><path d='M3 3Z'/><path d='M3 3'/><path d=''/>",
        "<g opacity='.5' filter='url(#f)'><g/><path d='M0 0H1' mask='url(#m)'/></g>",
        "<linearGradient id='a'><stop offset='0'/><stop offset='1' stop-color='red'/>"
        "</linearGradient><rect width='9' height='5' transform='rotate(20)' fill='url(#a)'/>"
        "<rect width='9' height='5' stroke='url(#a)'/>",
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
        "<g transform='rotate(30) scale(3 2)' stroke='red'><path d='M1 2L3 4H7'/></g>"
        "<path d='M0 0H1'/><g inkscape:groupmode='layer'><g visibility='hidden'><rect id='r' "
        "width='3' height='3'/></g></g><use xlink:href='#r'/>",
        "<svg viewBox='0 0 3 3' width='9' height='9'><path d='M0 0H9V9'/></svg>",
    };
    for (const char* content : contents)
        for (const Change& change : kChanges) {
            INFO((std::string{content} + ": " + change.name));
            const OpenedDrawing opened = readSvgText(easel::session(), file(content), "x");
            Document& document = *opened.document;
            for (Art* art : topArt(document))
                change.make(*art);
            checkStable(document);
        }
}

TEST_CASE("what was not touched is not changed") {
    struct Row {
        const char* what;
        const char* before;
        void (*change)(Document&);
        const char* after;
    };
    const auto first = [](Document& document) -> Art& { return *topArt(document).front(); };
    static const auto firstOf = first;
    const Row rows[] = {
        {"an object among others is locked",
         "\n <!--a--> <path  id='p' d='M0 0H1'/>  <g fill='red'>\n<rect width='1' height='2' "
         "/></g>",
         [](Document& document) { firstOf(document).write().attributes |= kArtLocked; },
         "\n <!--a--> <path id='p' d='M0 0H1' sodipodi:insensitive=\"true\"/>  <g fill='red'>\n"
         "<rect width='1' height='2' /></g>"},
        {"an object is gone, what stood before it stays",
         "\n<path id='a' d='M0 0H1'/><!--1-->\n<path id='b' d='M0 0H2'/><!--2-->",
         [](Document& document) { disposeArt(firstOf(document)); },
         "<!--1-->\n<path id='b' d='M0 0H2'/><!--2-->"},
        {"a rectangle in a turned group has become another shape",
         "<g transform='scale(2)'><rect class='c' width='4' height='5' x:recipe='1'/></g>",
         [](Document& document) {
             firstOf(document).firstChild()->write().segments.write()[0].p.h = 7;
         },
         "<g transform='scale(2)'><path class='c' x:recipe='1' d=\"M3.5 0C0 0 4 0 4 0V5H0C0 5 0 0 "
         "3.5 0Z\"/></g>"},
        {"a copy is written where it lies, in the coordinates of the place",
         "<g transform='scale(2)' fill='red'><path id='p' d='M0 0H4'/></g>",
         [](Document& document) {
             Art& art = *firstOf(document).firstChild();
             transformArt(duplicateArt(art, onTopOf(*art.parent())), kMirrored, 1, kAll);
         },
         "<g transform='scale(2)' fill='red'><path id='p' d='M0 0H4'/>\n      <path d=\"M50 0H46\" "
         "fill=\"#ff0000\"/></g>"},
        {"effects of a copy have their meaning in their own user space",
         "<g transform='translate(5)'><path d='M0 0H4' filter='url(#f)'/></g>",
         [](Document& document) {
             Art& art = *firstOf(document).firstChild();
             transformArt(duplicateArt(art, onTopOf(*art.parent())), kMirrored, 1, kAll);
         },
         "<g transform='translate(5)'><path d='M0 0H4' filter='url(#f)'/>\n      <path "
         "transform=\"matrix(-1 0 0 1 90 0)\" d=\"M0 0H4\" filter=\"url(#f)\"/></g>"},
        {"what clones refer to stays what it is when the art has changed",
         "<path id='p' d='M0 0H4'/><use xlink:href='#p'/>",
         [](Document& document) { firstOf(document).write().segments.write()[0].p.v = -3; },
         "\n    <path d=\"M0 3C0 0 4 0 4 0\" easel:ends=\"0 0 4 0\"/><use xlink:href='#p'/>\n  "
         "<defs "
         "easel:generated=\"true\">\n    <path id='p' d='M0 0H4'/>\n  </defs>"},
        {"a definition outlives the group that it stood in",
         "<g><linearGradient id='a'><stop/></linearGradient><!--gone--></g>",
         [](Document& document) { disposeArt(firstOf(document)); },
         "\n  <defs easel:generated=\"true\">\n    <linearGradient "
         "id='a'><stop/></linearGradient>\n"
         "  </defs>"},
        {"what nothing refers to any more goes, what others have added stays",
         "<linearGradient id='a'/><path d='M0 0H1' fill='url(#easel-paint-1)'/><defs "
         "easel:generated='true'><linearGradient id='easel-paint-1' easel:derived='true' "
         "easel:source='a'/><filter id='f'/></defs>",
         [](Document& document) { disposeArt(firstOf(document)); },
         "<linearGradient id='a'/><defs easel:generated='true'><filter id='f'/></defs>"},
        {"loose art gets a layer when the layer has something to say", "<path d='M0 0H1'/>",
         [](Document& document) { document.root().firstChild()->write().attributes |= kArtLocked; },
         "\n  <g inkscape:groupmode=\"layer\" inkscape:label=\"Layer 1\" "
         "sodipodi:insensitive=\"true\">"
         "<path d='M0 0H1'/>\n  </g>"},
        {"a style sheet does not reach what is new",
         "<style>path{fill:red;stroke-width:9}</style><rect width='4' height='1'/>",
         [](Document& document) {
             Art& art = firstOf(document);
             transformArt(duplicateArt(art, onTopOf(*art.parent())), {1, 0, 0, 1, 5, 0}, 1, kAll);
         },
         "<style>path{fill:red;stroke-width:9}</style><rect width='4' height='1'/>\n    <path "
         "d=\"M5 0H9V1H5Z\" style=\"fill:#000000;stroke-width:1\"/>"},
    };
    for (const auto& row : rows) {
        INFO(std::string{row.what});
        const OpenedDrawing opened = readSvgText(easel::session(), file(row.before), "x");
        row.change(*opened.document);
        CHECK(svgText(*opened.document) == file(row.after));
        checkStable(*opened.document);
    }
}

TEST_CASE("what a copy cannot carry is told once") {
    const OpenedDrawing opened = readSvgText(
        easel::session(), file("\n<path d='M0 0H1'><animate attributeName='d'/></path>"), "x");
    Art& art = firstArt(*opened.document);
    for (int i = 0; i < 2; ++i)
        duplicateArt(art, onTopOf(*art.parent()));
    std::vector<std::string> warnings;
    CHECK(svgText(*opened.document, &warnings).find("<animate attributeName='d'/>") !=
          std::string::npos);
    CHECK(warnings == std::vector<std::string>{"3: copies are written without <animate>"});
}

TEST_CASE("what a plug-in made survives") {
    const auto opened = readSvgText(easel::session(), file("<path d='M0 0C1 2 3 4 5 6'/>"), "x");
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
    array->append(Value{AIReal{0.1F}});
    array->append(Value{AIRealPoint{1.5F, -2}});
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
    const auto opened = readSvgText(easel::session(), file("<path d='M0 0H1'/>"), "x");
    firstArt(*opened.document).dictionary().set(internKey("-now"), Value{ai::int32{1}});
    CHECK(svgText(*opened.document).find("-now") == std::string::npos);
}

TEST_CASE("a moved ruler origin is kept, and the drawing stays where it is") {
    const auto opened = readSvgText(easel::session(), file("<path d='M10 20L30 45.5'/>"), "x");
    const AIRealPoint origin = opened.document->state().rulerOrigin;
    opened.document->setRulerOrigin({origin.h + 7.5F, origin.v - 3});
    CHECK(svgText(*opened.document).find("M10 20L30 45.5") != std::string::npos);
    checkStable(*opened.document);
}

TEST_CASE("a document that no file was read for can be saved") {
    Document document{easel::session(), AISize{200, 100}};
    Art& path = createArt(document, kPathArt, onTopOf(*document.root().firstChild()));
    path.write().segments = Cow<Segments>{{{{1, -2}, {1, -2}, {1, -2}, 1}}};
    const OpenedDrawing again = readSvgText(easel::session(), svgText(document), "x");
    CHECK(dump(*again.document) == dump(document));
}

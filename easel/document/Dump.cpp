#include "easel/document/Dump.h"

#include "easel/document/Document.h"
#include "easel/document/Layers.h"
#include "easel/document/Session.h"

#include <charconv>

namespace easel {
namespace {

constexpr struct {
    AIArtUserAttr bit;
    const char* name;
} kAttributeNames[] = {
    {kArtSelected, "selected"},
    {kArtFullySelected, "fully-selected"},
    {kArtLocked, "locked"},
    {kArtHidden, "hidden"},
    {kArtExpanded, "expanded"},
    {kArtTargeted, "targeted"},
    {kArtIsClipMask, "clip-mask"},
    {kArtIsTextWrap, "text-wrap"},
    {kArtStyleIsDirty, "style-dirty"},
};

constexpr struct {
    ai::int16 type;
    const char* name;
} kTypeNames[] = {
    {kGroupArt, "group"},   {kPathArt, "path"},      {kCompoundPathArt, "compound"},
    {kPlacedArt, "placed"}, {kRasterArt, "raster"},  {kPluginArt, "plugin-group"},
    {kMeshArt, "mesh"},     {kTextFrameArt, "text"}, {kSymbolArt, "symbol"},
};

const char* typeName(const Art& art) {
    if (art.isLayer()) return "layer";
    for (const auto& [type, name] : kTypeNames)
        if (type == art.type()) return name;
    return "opaque";
}

class Dumper {
public:
    std::string text;

    void document(const Document& document) {
        const DocumentState& state = document.state();
        text += "document";
        numbers("artboard", state.setup.width, state.setup.height);
        numbers("origin", state.rulerOrigin.h, state.rulerOrigin.v);
        if (state.currentLayer != nullptr)
            quoted("current", state.currentLayer->details().layer.title);
        text += '\n';
        dictionary(document.recordedDictionary(), 1);
        // The depth of each object follows from where the walk climbs; nothing recurses.
        const Art& root = document.root();
        int depth = 0;
        const Art* before = &root;
        for (const Art* each = root.firstChild(); each != nullptr;
             each = nextInPreorder(*each, root)) {
            if (each->parent() == before) ++depth;
            for (const Art* up = before; up != each->parent() && up->parent() != each->parent();
                 up = up->parent())
                --depth;
            art(*each, depth - 1);
            before = each;
        }
    }

    void art(const Art& art, int depth) {
        indent(depth);
        text += typeName(art);
        attributes(art);
        details(art);
        text += '\n';
        if (art.dictionaryIfAny() != nullptr) dictionary(*art.dictionaryIfAny(), depth + 1);
        if (!isContainer(art) || art.type() == kCompoundPathArt) style(art, depth + 1);
        segments(art, depth + 1);
    }

private:
    void indent(int depth) { text.append(2 * static_cast<std::size_t>(depth), ' '); }
    void word(const char* name) { text.append(" ").append(name); }
    void quoted(std::string_view name) {
        text += " \"";
        for (const char c : name) {
            if (c == '"' || c == '\\') text += '\\';
            if (c == '\n')
                text += "\\n";
            else
                text += c;
        }
        text += '"';
    }

    void quoted(const char* name, std::string_view content) {
        word(name);
        quoted(content);
    }

    /// The shortest text that reads back as the same number; zero has no sign.
    template <typename Number> void number(Number value) {
        char digits[32];
        const auto end =
            std::to_chars(digits, digits + sizeof digits, value == 0 ? Number{} : value).ptr;
        text += ' ';
        text.append(digits, end);
    }

    template <typename... Numbers> void numbers(const char* name, Numbers... values) {
        word(name);
        (number(values), ...);
    }

    void matrix(const char* name, const AIRealMatrix& m) {
        numbers(name, m.a, m.b, m.c, m.d, m.tx, m.ty);
    }

    void attributes(const Art& art) {
        for (const auto& [bit, name] : kAttributeNames)
            if (art.has(bit)) word(name);
        const ArtContent& content = art.content();
        if (content.closed) word("closed");
        if (content.guide) word("guide");
        if (content.clipped) word("clipped");
    }

    void details(const Art& art) {
        const ArtDetails& details = art.details();
        if (art.isLayer()) {
            const LayerProperties& layer = details.layer;
            quoted(layer.title);
            numbers("colour", layer.color.red, layer.color.green, layer.color.blue);
            if (!layer.preview) word("outline");
            if (!layer.printed) word("not-printed");
            if (layer.isTemplate) word("template");
            if (layer.dimPlacedImages) numbers("dimmed", layer.dimmedPercent);
        }
        if (!details.name.empty()) quoted("name", details.name);
        if (!details.note.empty()) quoted("note", details.note);
        const bool showsThroughMatrix = art.type() != kPathArt && !isContainer(art);
        if (showsThroughMatrix) {
            matrix("matrix", details.matrix);
            numbers("box", details.box.left, details.box.top, details.box.right,
                    details.box.bottom);
        }
        if (details.symbol != nullptr) quoted("of", details.symbol->id());
    }

    void color(const AIColor& color, const Definition* definition) {
        if (definition != nullptr) return quoted(definition->id());
        switch (color.kind) {
        case kGrayColor:
            return numbers("gray", color.c.g.gray);
        case kThreeColor:
            return numbers("rgb", color.c.rgb.red, color.c.rgb.green, color.c.rgb.blue);
        case kFourColor:
            return numbers("cmyk", color.c.f.cyan, color.c.f.magenta, color.c.f.yellow,
                           color.c.f.black);
        default:
            return numbers("colour-kind", static_cast<int>(color.kind));
        }
    }

    void style(const Art& art, int depth) {
        const ArtStyle& style = art.style();
        const AIPathStyle& path = style.path;
        indent(depth);
        text += "style";
        if (path.fillPaint != 0) {
            word("fill");
            color(path.fill.color, style.fillDefinition);
            if (style.fillDefinition != nullptr) matrix("by", style.fillMatrix);
        }
        if (path.strokePaint != 0) {
            const AIStrokeStyle& stroke = path.stroke;
            word("stroke");
            color(stroke.color, style.strokeDefinition);
            if (style.strokeDefinition != nullptr) matrix("by", style.strokeMatrix);
            numbers("width", stroke.width);
            numbers("cap", static_cast<int>(stroke.cap));
            numbers("join", static_cast<int>(stroke.join));
            numbers("miter", stroke.miterLimit);
            if (stroke.dash.length > 0) numbers("dash", stroke.dash.offset);
            for (int i = 0; i < stroke.dash.length && i < 6; ++i)
                number(stroke.dash.array[i]);
        }
        if (path.evenodd != 0) word("even-odd");
        if (style.opacity != 1) numbers("opacity", style.opacity);
        if (style.fillOpacity != 1) numbers("fill-opacity", style.fillOpacity);
        if (style.strokeOpacity != 1) numbers("stroke-opacity", style.strokeOpacity);
        text += '\n';
    }

    void segments(const Art& art, int depth) {
        const SegmentSelections& selections = *art.content().segmentSelection;
        for (std::size_t i = 0; i < art.segments().size(); ++i) {
            const AIPathSegment& segment = art.segments()[i];
            indent(depth);
            text += segment.corner != 0 ? "corner" : "smooth";
            number(segment.p.h);
            number(segment.p.v);
            numbers("in", segment.in.h, segment.in.v);
            numbers("out", segment.out.h, segment.out.v);
            if (!selections.empty() && selections[i] != 0) numbers("selected", int{selections[i]});
            text += '\n';
        }
    }

    void dictionary(const Dictionary& dictionary, int depth) {
        for (const auto& [key, content] : dictionary.sortedItems()) {
            indent(depth);
            text += "entry";
            quoted(*key);
            value(content, depth);
        }
    }

    void value(const Value& value, int depth) {
        if (const auto* child = std::get_if<Ref<Dictionary>>(&value)) {
            text += " dictionary\n";
            return dictionary(**child, depth + 1);
        }
        if (const auto* array = std::get_if<Ref<Array>>(&value)) {
            text += " array\n";
            for (const Value& item : (*array)->values()) {
                indent(depth + 1);
                text += "item";
                this->value(item, depth + 1);
            }
            return;
        }
        if (const auto* integer = std::get_if<ai::int32>(&value)) numbers("integer", *integer);
        if (const auto* boolean = std::get_if<Boolean>(&value))
            word(boolean->value ? "boolean true" : "boolean false");
        if (const auto* real = std::get_if<AIReal>(&value)) numbers("real", *real);
        if (const auto* string = std::get_if<SharedText>(&value)) quoted("string", **string);
        if (const auto* unicode = std::get_if<UnicodeText>(&value)) {
            word("unicode");
            for (const char16_t unit : **unicode)
                number(static_cast<int>(unit));
        }
        if (const auto* point = std::get_if<AIRealPoint>(&value))
            numbers("point", point->h, point->v);
        if (const auto* m = std::get_if<AIRealMatrix>(&value)) matrix("matrix", *m);
        if (const auto* binary = std::get_if<Binary>(&value)) {
            word("binary ");
            for (const std::byte each : **binary) {
                text += "0123456789abcdef"[std::to_integer<unsigned>(each) / 16];
                text += "0123456789abcdef"[std::to_integer<unsigned>(each) % 16];
            }
        }
        if (std::holds_alternative<std::monostate>(value)) word("unknown");
        text += '\n';
    }
};

} // namespace

std::string dump(const Document& document) {
    Dumper dumper;
    dumper.document(document);
    return std::move(dumper.text);
}

} // namespace easel

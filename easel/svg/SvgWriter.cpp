#include "easel/document/Layers.h"
#include "easel/svg/DictionaryJson.h"
#include "easel/svg/Element.h"
#include "easel/svg/Ink.h"
#include "easel/svg/Numbers.h"
#include "easel/svg/PathText.h"
#include "easel/svg/StyleText.h"
#include "easel/svg/SvgFile.h"
#include "easel/svg/XmlTree.h"

#include <nlohmann/json.hpp>

#include <algorithm>
#include <cmath>
#include <fstream>
#include <map>
#include <sstream>
#include <unordered_map>
#include <unordered_set>
#include <utility>

namespace easel::svg {
namespace {

/// Text is handed on in pieces of about this size.
constexpr std::size_t kPieceSize = 1 << 20;

struct Namespace {
    std::string_view attribute;
    std::string_view name;
};
constexpr Namespace kNamespaces[] = {
    {"xmlns", "http://www.w3.org/2000/svg"},
    {"xmlns:xlink", "http://www.w3.org/1999/xlink"},
    {"xmlns:inkscape", "http://www.inkscape.org/namespaces/inkscape"},
    {"xmlns:sodipodi", "http://sodipodi.sourceforge.net/DTD/sodipodi-0.dtd"},
    {"xmlns:easel", kNamespace},
};

bool isWrittenAsGroup(const Art& art) {
    return art.type() == kGroupArt || art.type() == kPluginArt;
}

bool isClipMask(const Art& art) {
    return art.has(kArtIsClipMask) && art.parent() != nullptr && art.parent()->content().clipped;
}

/// JSON holds many double quotes, so such values stand between single ones.
std::string singleQuoted(std::string_view text) {
    std::string result;
    for (const char c : text) {
        switch (c) {
        case '&':
            result += "&amp;";
            break;
        case '<':
            result += "&lt;";
            break;
        case '\'':
            result += "&apos;";
            break;
        default:
            result += c;
        }
    }
    return result;
}

/// The paths of a compound path, bottom-most first, whatever groups they are in.
void gatherMembers(const Art& container, std::vector<const Art*>& members) {
    for (const Art* art = container.lastChild(); art != nullptr; art = art->previous())
        if (art->type() == kPathArt)
            members.push_back(art);
        else
            gatherMembers(*art, members);
}

bool isGuide(const Art& art) {
    if (art.type() == kPathArt) return art.content().guide;
    if (art.type() != kCompoundPathArt) return false;
    std::vector<const Art*> members;
    gatherMembers(art, members);
    if (members.empty()) return false;
    for (const Art* member : members)
        if (!member->content().guide) return false;
    return true;
}

class SvgWriter {
public:
    SvgWriter(const Document& document, std::ostream& out)
        : document_(document), out_(out), source_(sourceOf(document)),
          offset_(rulerOffset(document)), servers_(document, offset_),
          explicit_(source_ != nullptr && source_->hasStyleSheet ? Explicit::Yes : Explicit::No) {}

    void write() {
        text_ =
            source_ != nullptr ? source_->prologue : "<?xml version=\"1.0\" encoding=\"UTF-8\"?>\n";
        writeRootTag();
        open_.push_back({nullptr, document_.root().lastChild(), nullptr, 0, "\n", {}, {}});
        open_.back().interludes = source_ != nullptr ? &source_->interludes : nullptr;
        indexInterludes(open_.back());
        while (!open_.empty())
            writeNext();
        text_ += "</svg>";
        text_ += source_ != nullptr ? source_->epilogue : "\n";
        flush();
    }

private:
    /// A container between its start and its end tag. An explicit stack, because art may be nested
    /// deeper than the stack of calls allows.
    struct Open {
        const Art* container;
        const Art* next;
        const std::vector<Interlude>* interludes;
        std::size_t interlude;
        std::string endTag;
        std::unordered_map<AIArtHandle, std::size_t> lastBefore; ///< Interludes up to that index.
        std::string clipId;                                      ///< Of the clip mask last written.
    };

    void flush() {
        out_.write(text_.data(), static_cast<std::streamsize>(text_.size()));
        text_.clear();
    }

    void newLine() {
        text_ += '\n';
        text_.append(2 * open_.size(), ' ');
    }

    void attribute(std::string_view name, std::string_view value) {
        text_ += ' ';
        text_ += name;
        text_ += "=\"";
        text_ += escaped(value);
        text_ += '"';
    }

    void entries(std::string_view name, const Dictionary* dictionary) {
        if (dictionary == nullptr) return;
        const std::string json = dictionaryJson(*dictionary);
        if (json.empty()) return;
        text_ += ' ';
        text_ += name;
        text_ += "='";
        text_ += singleQuoted(json);
        text_ += '\'';
    }

    void writeRootTag() {
        text_ += "<svg";
        if (source_ != nullptr) text_ += source_->rootAttributes;
        const std::vector<std::string> given =
            source_ != nullptr ? source_->rootNames : std::vector<std::string>{};
        for (const Namespace& space : kNamespaces)
            if (std::ranges::find(given, space.attribute) == given.end())
                attribute(space.attribute, space.name);
        writeSize();
        const DocumentState& state = document_.state();
        if (offset_ != Point{} && source_ != nullptr)
            attribute("easel:ruler-origin",
                      formatNumber(state.rulerOrigin.h) + ' ' + formatNumber(state.rulerOrigin.v));
        if (state.currentLayer != nullptr && state.currentLayer != &startingLayer(document_))
            attribute("easel:current-layer",
                      std::to_string(layerNumber(document_, state.currentLayer)));
        if (document_.rulerUnits != kPointsUnits)
            attribute("easel:ruler-units", std::to_string(document_.rulerUnits));
        if (document_.colorModel != 1)
            attribute("easel:color-model", std::to_string(document_.colorModel));
        entries("easel:document", &document_.recordedDictionary());
        entries("easel:unrecorded", &document_.otherDictionary());
        text_ += '>';
    }

    void writeSize() {
        const AIDocumentSetup& setup = document_.state().setup;
        const bool same = source_ != nullptr && source_->size.width == setup.width &&
                          source_->size.height == setup.height;
        if (same) {
            text_ += source_->sizeAttributes;
            return;
        }
        const std::string width = formatNumber(setup.width);
        const std::string height = formatNumber(setup.height);
        const Point corner = source_ != nullptr ? source_->viewBoxCorner : Point{};
        attribute("width", width);
        attribute("height", height);
        attribute("viewBox", formatNumber(corner.x) + ' ' + formatNumber(corner.y) + ' ' + width +
                                 ' ' + height);
    }

    void indexInterludes(Open& open) {
        if (open.interludes == nullptr) return;
        for (std::size_t i = 0; i < open.interludes->size(); ++i)
            open.lastBefore[(*open.interludes)[i].before] = i + 1;
    }

    /// All that stood in front of `art`; what stood in front of art that is gone comes along.
    void writeInterludes(Open& open, AIArtHandle before) {
        const auto found = open.lastBefore.find(before);
        if (found == open.lastBefore.end()) return;
        while (open.interlude < found->second)
            writeInterlude((*open.interludes)[open.interlude++]);
    }

    void writeInterlude(const Interlude& interlude) {
        newLine();
        text_ += interlude.source;
    }

    void writeNext() {
        if (text_.size() > kPieceSize) flush();
        Open& open = open_.back();
        const Art* const art = open.next;
        if (art == nullptr) {
            closeContainer(open);
            return;
        }
        open.next = art->previous();
        writeInterludes(open, art->handle());
        if (isWrittenAsGroup(*art))
            openGroup(*art);
        else
            writeLeaf(*art, open);
    }

    void closeContainer(Open& open) {
        if (open.interludes != nullptr)
            while (open.interlude < open.interludes->size())
                writeInterlude((*open.interludes)[open.interlude++]);
        const bool isRoot = open_.size() == 1;
        if (isRoot) writeLostDefinitions();
        if (isRoot && !servers_.elements().empty()) {
            newLine();
            text_ += "<defs easel:generated=\"true\">" + servers_.elements();
            newLine();
            text_ += "</defs>";
        }
        std::string endTag = std::move(open.endTag);
        open_.pop_back();
        if (!isRoot) newLine();
        text_ += endTag;
    }

    /// Definitions that stood in a group that is gone: art elsewhere may refer to them. They are
    /// kept in the order of the text that they were read from.
    void writeLostDefinitions() {
        if (source_ == nullptr) return;
        std::map<std::size_t, const std::string*> lost;
        for (const auto& [handle, element] : source_->elements)
            if (!written_.contains(handle))
                for (const Interlude& interlude : element.interludes)
                    if (interlude.isDefinition) lost.emplace(interlude.number, &interlude.source);
        for (const auto& [number, source] : lost) {
            newLine();
            text_ += *source;
        }
    }

    void openGroup(const Art& group) {
        const ElementSource* const source = source_ != nullptr ? source_->find(group) : nullptr;
        const std::string tag = source != nullptr && !source->tag.empty() ? source->tag : "g";
        newLine();
        text_ += '<' + tag;
        if (source != nullptr) text_ += source->attributes;
        if (group.isLayer()) writeLayer(group.details().layer);
        Open open{&group, groupContent(group), nullptr, 0, "</" + tag + '>', {}, {}};
        if (group.content().clipped) writeClip(group);
        writeState(group);
        const ArtStyle& style = group.style();
        Properties properties = extras(style);
        if (group.has(kArtHidden)) properties["display"] = "none";
        if (style.opacity != 1.0F || explicit_ == Explicit::Yes)
            properties["opacity"] = formatNumber(style.opacity);
        if (explicit_ == Explicit::Yes) attribute("easel:styled", "true");
        if (!properties.empty()) attribute("style", declarationText(properties));
        if (source != nullptr && !source->interludes.empty()) {
            open.interludes = &source->interludes;
            written_.insert(group.handle());
        }
        if (open.next == nullptr && open.interludes == nullptr) {
            text_ += "/>";
            return;
        }
        text_ += '>';
        indexInterludes(open);
        open_.push_back(std::move(open));
    }

    /// Of a plug-in group, what it looks like.
    static const Art* groupContent(const Art& group) {
        if (group.type() != kPluginArt) return group.lastChild();
        const Art* const result = resultArt(group);
        if (result != nullptr && result->lastChild() != nullptr) return result->lastChild();
        return editArt(group) != nullptr ? editArt(group)->lastChild() : nullptr;
    }

    /// Several masks cut one another: each clip path is clipped by the one before. The group is
    /// clipped by the last.
    void writeClip(const Art& group) {
        attribute("easel:clipped", "true");
        std::string last;
        int number = clipNumber_;
        for (const Art* art = group.lastChild(); art != nullptr; art = art->previous())
            if (art->has(kArtIsClipMask)) last = servers_.newId("easel-clip-", number);
        if (!last.empty()) attribute("clip-path", "url(#" + last + ")");
        clipNumbers_.emplace(&group, clipNumber_);
        clipNumber_ = number;
    }

    void writeLayer(const LayerProperties& layer) {
        attribute("inkscape:groupmode", "layer");
        attribute("inkscape:label", layer.title);
        const LayerProperties standard;
        const AIRGBColor& color = layer.color;
        if (color.red != standard.color.red || color.green != standard.color.green ||
            color.blue != standard.color.blue) {
            const auto channel = [](ai::uint16 value) {
                return static_cast<float>(value) / 65535.0F;
            };
            attribute(
                "inkscape:highlight-color",
                formatColour({channel(color.red), channel(color.green), channel(color.blue)}));
        }
        if (!layer.preview) attribute("easel:preview", "false");
        if (!layer.printed) attribute("easel:printed", "false");
        if (layer.dimPlacedImages) attribute("easel:dim-images", "true");
        if (layer.isTemplate) attribute("easel:template", "true");
        if (layer.dimmedPercent != standard.dimmedPercent)
            attribute("easel:dimmed-percent", std::to_string(layer.dimmedPercent));
    }

    /// Name, lock, note and dictionary.
    void writeState(const Art& art) {
        const ArtDetails& details = art.details();
        if (!details.name.empty() && !art.isLayer()) attribute("inkscape:label", details.name);
        if (art.has(kArtLocked)) attribute("sodipodi:insensitive", "true");
        if (!details.note.empty()) attribute("easel:note", details.note);
        entries("easel:dictionary", art.dictionaryIfAny());
    }

    static Properties extras(const ArtStyle& style) {
        const auto* const kept = dynamic_cast<const StyleExtras*>(style.foreign.get());
        return kept != nullptr ? kept->properties : Properties{};
    }

    void writeLeaf(const Art& art, Open& open) {
        newLine();
        const bool mask = isClipMask(art);
        if (mask) {
            const std::string former = std::exchange(
                open.clipId, servers_.newId("easel-clip-", clipNumbers_.at(open.container)));
            text_ += "<clipPath";
            attribute("id", open.clipId);
            attribute("easel:clip", "true");
            if (!former.empty()) attribute("clip-path", "url(#" + former + ")");
            text_ += '>';
        }
        if (const auto* opaque = dynamic_cast<const OpaqueContent*>(art.details().foreign.get()))
            writeOpaque(art, opaque->raw);
        else if (art.type() == kPathArt || art.type() == kCompoundPathArt)
            writeShape(art);
        else
            writeInstance(art);
        if (mask) text_ += "</clipPath>";
    }

    void writeOpaque(const Art& art, const RawElement& raw) {
        text_ += '<' + raw.tag;
        writeOwn(art);
        text_ += raw.attributes;
        writePlacement(art);
        if (raw.inner.empty())
            text_ += "/>";
        else
            text_ += '>' + raw.inner + "</" + raw.tag + '>';
    }

    void writeOwn(const Art& art) {
        if (const ElementSource* source = source_ != nullptr ? source_->find(art) : nullptr)
            text_ += source->attributes;
    }

    void writePlacement(const Art& art) {
        const AIRealMatrix& matrix = art.details().matrix;
        if (fromSoft(matrix, offset_) != Matrix{})
            attribute("transform", transformText(matrix, offset_));
        writeState(art);
        if (art.has(kArtHidden)) attribute("display", "none");
        if (art.style().opacity != 1.0F) attribute("opacity", formatNumber(art.style().opacity));
        for (const auto& [property, value] : extras(art.style()))
            attribute(property, value);
    }

    /// Art that a plug-in made and that no drawing had.
    void writeInstance(const Art& art) {
        const Definition* const symbol = art.details().symbol;
        text_ += symbol != nullptr ? "<use" : "<g";
        if (symbol != nullptr) attribute("xlink:href", '#' + symbol->id());
        writeOwn(art);
        writePlacement(art);
        text_ += "/>";
    }

    void writeShape(const Art& art) {
        std::vector<const Art*> members;
        if (art.type() == kPathArt)
            members.push_back(&art);
        else
            gatherMembers(art, members);
        const ElementSource* const source = source_ != nullptr ? source_->find(art) : nullptr;
        text_ += "<path";
        if (source != nullptr) {
            text_ += source->attributes;
            const bool asRead = art.content().segments.sharesWith(source->shape);
            if (asRead && art.type() == kPathArt) text_ += source->shapeAttributes;
        }
        text_ += " d=\"";
        for (const Art* member : members)
            appendPathText(text_, member->segments(), member->content().closed, offset_);
        text_ += '"';
        writeStyle(art);
        writeState(art);
        if (art.type() == kPathArt)
            writeEndHandles(art);
        else
            writeMembers(members, isGuide(art));
        if (source != nullptr && !source->inner.empty())
            text_ += '>' + source->inner + "</path>";
        else
            text_ += "/>";
    }

    /// Guides are seen here alone: others would paint them.
    void writeStyle(const Art& art) {
        Properties properties = extras(art.style());
        const bool guide = isGuide(art);
        if (guide) attribute("easel:guide", "true");
        if (guide && art.has(kArtHidden)) attribute("easel:hidden", "true");
        if (guide || art.has(kArtHidden)) properties["display"] = "none";
        for (const PropertyText& property : styleText(art.style(), explicit_, servers_)) {
            if (explicit_ == Explicit::Yes)
                properties[property.name] = property.value;
            else
                attribute(property.name, property.value);
        }
        if (explicit_ == Explicit::Yes) attribute("easel:styled", "true");
        const AIPathStyle& path = art.style().path;
        if (isClipMask(art) && path.evenodd != 0) attribute("clip-rule", "evenodd");
        if (const std::string ink = inkText(path.fill.color); !ink.empty() && path.fillPaint != 0)
            attribute("easel:fill-ink", ink);
        if (const std::string ink = inkText(path.stroke.color);
            !ink.empty() && path.strokePaint != 0)
            attribute("easel:stroke-ink", ink);
        if (!properties.empty()) attribute("style", declarationText(properties));
    }

    void writeEndHandles(const Art& path) {
        const auto segments = path.segments();
        if (segments.empty() || path.content().closed) return;
        const auto same = [](AIRealPoint a, AIRealPoint b) { return a.h == b.h && a.v == b.v; };
        const AIPathSegment& first = segments.front();
        const AIPathSegment& last = segments.back();
        if (same(first.in, first.p) && same(last.out, last.p)) return;
        text_ += " easel:ends=\"";
        appendPoint(text_, first.in, offset_);
        text_ += ' ';
        appendPoint(text_, last.out, offset_);
        text_ += '"';
    }

    void writeMembers(const std::vector<const Art*>& members, bool allGuides) {
        auto list = nlohmann::ordered_json::array();
        bool any = false;
        for (const Art* member : members) {
            auto item = nlohmann::ordered_json::object();
            if (member->has(kArtLocked)) item["locked"] = true;
            if (member->has(kArtHidden)) item["hidden"] = true;
            if (member->content().guide && !allGuides) item["guide"] = true;
            if (!member->details().name.empty()) item["name"] = member->details().name;
            if (!member->details().note.empty()) item["note"] = member->details().note;
            const std::string json = member->dictionaryIfAny() != nullptr
                                         ? dictionaryJson(*member->dictionaryIfAny())
                                         : std::string{};
            if (!json.empty()) item["dictionary"] = json;
            any = any || !item.empty();
            list.push_back(std::move(item));
        }
        if (!any) return;
        text_ += " easel:members='";
        text_ += singleQuoted(list.dump(-1, ' ', false, nlohmann::json::error_handler_t::replace));
        text_ += '\'';
    }

    const Document& document_;
    std::ostream& out_;
    const DrawingSource* source_;
    Point offset_;
    DerivedServers servers_;
    Explicit explicit_;
    std::string text_;
    std::vector<Open> open_;
    std::unordered_set<AIArtHandle> written_; ///< Containers whose interludes were written.
    int clipNumber_ = 0;
    std::unordered_map<const Art*, int> clipNumbers_; ///< The next mask's number, by group.
};

} // namespace

void writeSvg(const Document& document, std::ostream& out) { SvgWriter{document, out}.write(); }

std::string svgText(const Document& document) {
    std::ostringstream out;
    writeSvg(document, out);
    return std::move(out).str();
}

void writeSvg(const Document& document, const std::filesystem::path& file) {
    std::filesystem::path part = file;
    part += ".part";
    const auto fail = [&](const std::string& what) {
        std::error_code ignored;
        std::filesystem::remove(part, ignored);
        throw FileError(file.string() + ": " + what);
    };
    std::ofstream out{part, std::ios::binary | std::ios::trunc};
    if (!out) fail("the file cannot be made; check that the folder exists and may be written to");
    writeSvg(document, out);
    out.close();
    if (!out) fail("the file cannot be written whole; check that there is room on the disk");
    std::error_code error;
    std::filesystem::rename(part, file, error);
    if (error) fail("the file cannot be replaced; check that it may be written to");
}

} // namespace easel::svg

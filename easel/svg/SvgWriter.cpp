#include "easel/document/Layers.h"
#include "easel/svg/ArtAttributes.h"
#include "easel/svg/ArtTag.h"
#include "easel/svg/AsRead.h"
#include "easel/svg/GeneratedDefinitions.h"
#include "easel/svg/LayerTags.h"
#include "easel/svg/Numbers.h"
#include "easel/svg/PaintServers.h"
#include "easel/svg/ReadingState.h"
#include "easel/svg/SvgFile.h"
#include "easel/svg/TagText.h"
#include "easel/svg/ViewBox.h"

#include <algorithm>
#include <map>
#include <set>
#include <utility>

namespace easel::svg {
namespace {

/// What a drawing that was never a file is written into.
std::shared_ptr<const DrawingSource> blankSource(const Document& document) {
    auto source = std::make_shared<DrawingSource>();
    source->attributes = documentAttributes(document);
    std::string text =
        "<?xml version=\"1.0\" encoding=\"UTF-8\"?>\n<svg" + attributeText("xmlns", kSvgNamespace);
    for (AttributeText& size : std::span{source->attributes}.first(3))
        text += attributeText(size.name, size.text);
    for (AttributeText& rest : std::span{source->attributes}.subspan(3))
        rest.text.clear();
    source->tree = std::make_shared<const XmlTree>(text + ">\n</svg>\n");
    source->isArt.resize(source->tree->size());
    const AIDocumentSetup& setup = document.state().setup;
    source->viewBoxSize = {setup.width, setup.height};
    return source;
}

/// Writes a document into the text that it was read from.
///
/// The art is walked from the back to the front, the text beside it. What lies between the elements
/// of art is copied as it stands. The element of an object that is still in its place is copied,
/// with what has changed of it set in its tag; what has no element, or not here, is written anew in
/// the coordinates of the place. Elements whose art is gone are left out, unless others refer to
/// them.
class SvgWriter {
public:
    explicit SvgWriter(const Document& document)
        : document_(document), kept_(document.foreign),
          blank_(sourceOf(document) == nullptr ? blankSource(document) : nullptr),
          source_(blank_ ? *blank_ : *sourceOf(document)), tree_(*source_.tree),
          offset_(rulerOffset(document)), asRead_(source_),
          layerTags_(layerTags(document, source_, asRead_)), references_(tree_),
          definitions_(source_, references_), servers_(tree_, document, offset_),
          written_(tree_.size(), false) {}

    /// To be called once.
    std::string write() {
        out_.reserve(expectedLength());
        const Element root{tree_, tree_.root()};
        TagText tag{root};
        const std::vector<AttributeText> now = documentAttributes(document_);
        for (std::size_t i = 0; i < now.size(); ++i)
            if (now[i].text != source_.attributes[i].text) tag.set(now[i].name, now[i].text);

        Frame frame = frameOf(document_.root(), root);
        frame.context =
            std::make_shared<const Context>(rootContext(root, source_.sheet, source_.viewBoxSize));
        frames_.push_back(std::move(frame));
        while (!frames_.empty())
            step();

        definitions_.keepLost(written_);
        std::string added = servers_.elements();
        if (!added.empty() || !definitions_.empty()) prefixes_.insert({"xlink", "easel"});
        const std::string generated = definitions_.text(std::move(added), out_, generatedAt_);
        if (generatedAt_ == std::string::npos && !generated.empty())
            generatedAt_ = out_.find_last_not_of(" \t\r\n") + 1;
        if (!generated.empty()) out_.insert(generatedAt_, generated);
        const bool empty = out_.empty() && tree_.isSelfClosing(root.node());
        std::string start = tag.text(empty, prefixes_);
        std::string declared;
        for (const Namespace& space : kNamespaces) {
            const std::string attribute = "xmlns:" + std::string{space.prefix};
            if (prefixes_.contains(space.prefix) && !root.has(attribute))
                declared += attributeText(attribute, space.name);
        }
        start.insert(start.size() - (empty ? 2 : 1), declared);
        out_.insert(0, std::string{tree_.prologue()} + start);
        if (!empty) out_ += endTag(root.node());
        out_ += tree_.epilogue();
        return std::move(out_);
    }

    [[nodiscard]] const std::vector<std::string>& warnings() const { return warnings_; }

private:
    /// A container between its start and its end tag. An explicit stack, because art may be nested
    /// deeper than the stack of calls allows.
    struct Frame {
        const Art* next = nullptr; ///< The next member to be written.
        NodeIndex node = kNoNode;  ///< The element that is copied; none: it is written anew.
        NodeIndex child = kNoNode; ///< Its next node that is not yet dealt with ...
        std::size_t at = 0;        ///< ... and up to where its text is.
        std::size_t start = 0;     ///< Where in the result it begins.
        bool loose = false;        ///< A layer without a tag: its members are the root's.
        bool keepsMasks = false;   ///< They stand elsewhere in the text.
        ElementName name;
        std::string endTag;
        std::string clipId; ///< Of the clip mask last written.
        /// What members are written under; made when it is first asked for.
        std::shared_ptr<const Context> context;
    };

    /// Of an element that is copied with `container` in it.
    [[nodiscard]] Frame frameOf(const Art& container, const Element& element) const {
        Frame frame;
        frame.next = container.lastChild();
        frame.node = element.node();
        frame.child = tree_.at(element.node()).firstChild;
        frame.at = tree_.at(element.node()).contentStart;
        frame.start = out_.size();
        frame.name = element.selectorName();
        return frame;
    }

    /// Rather too much than too little: memory that is not written to costs nothing, and a text
    /// that grows beyond it is for a while there twice.
    [[nodiscard]] std::size_t expectedLength() const {
        constexpr std::size_t kOfObject = 400;
        constexpr std::size_t kOfSegment = 80;
        std::size_t length = tree_.text().size();
        const Art& root = document_.root();
        for (const Art* art = &root; art != nullptr; art = nextInPreorder(*art, root))
            if (source_.find(*art) == nullptr)
                length += kOfObject + kOfSegment * art->content().segments->size();
        return length;
    }

    /// The look last written, and what it was written under.
    struct Look {
        std::shared_ptr<const Context> place; ///< None: in a user space of its own.
        bool isMask = false;
        Cow<ArtStyle> style;
        TagText tag{""};
    };

    // The text that is copied.

    [[nodiscard]] std::string endTag(NodeIndex node) const {
        if (tree_.isSelfClosing(node)) return "</" + std::string{tree_.tagName(node)} + '>';
        return std::string{tree_.slice(tree_.at(node).contentEnd, tree_.at(node).end)};
    }

    void newLine() {
        out_ += '\n';
        out_.append(2 * frames_.size(), ' ');
    }

    /// The frame whose element holds what is written now; none is held by what is written anew.
    [[nodiscard]] Frame& holder() {
        return frames_.back().loose ? frames_.front() : frames_.back();
    }

    [[nodiscard]] bool standsHere(NodeIndex node) {
        const Frame& frame = holder();
        return node != kNoNode && frame.node != kNoNode && tree_.at(node).parent == frame.node &&
               !written_[node];
    }

    /// Copies what stands before a member's element, or to the end. Elements of other art are left
    /// out with the blanks before them: they are gone, or are written where their art is now.
    void copyUpTo(NodeIndex target) {
        Frame& frame = holder();
        if (target != kNoNode && (frame.child == kNoNode || target < frame.child)) return newLine();
        while (frame.child != target) {
            const XmlTree::Node& child = tree_.at(frame.child);
            const std::string_view text = tree_.slice(frame.at, child.end);
            if (isGenerated(tree_, frame.child)) {
                out_ += text.substr(0, child.start - frame.at);
                generatedAt_ = out_.size();
            } else if (!source_.isArt[frame.child]) {
                out_ += text;
            }
            frame.at = child.end;
            frame.child = child.nextSibling;
        }
        const std::size_t end =
            target != kNoNode ? tree_.at(target).start : tree_.at(frame.node).contentEnd;
        out_ += tree_.slice(frame.at, end);
        frame.at = end;
    }

    /// The element that began at `start` in the result is complete.
    void finish(NodeIndex node, std::size_t start) {
        written_[node] = true;
        Frame& frame = holder();
        if (frame.child == node) {
            frame.at = tree_.at(node).end;
            frame.child = tree_.at(node).nextSibling;
        }
        // What refers to the element means what it was; the changed one goes without its name.
        const Element element{tree_, node};
        if (!references_.contain(element.get("id"))) return;
        if (std::string_view{out_}.substr(start) == tree_.source(node)) return;
        definitions_.keep(node);
        for (const XmlAttribute& attribute : element.attributes()) {
            const std::size_t at = out_.find(' ' + std::string{attribute.source}, start);
            if (attribute.name == "id" && at != std::string::npos)
                out_.erase(at, attribute.source.size() + 1);
        }
    }

    // What members are written under.

    /// From the root to the element that `depth` frames lead to.
    [[nodiscard]] std::vector<ElementName> path(std::size_t depth) const {
        std::vector<ElementName> names;
        for (std::size_t i = 0; i < depth; ++i)
            if (!frames_[i].loose) names.push_back(frames_[i].name);
        return names;
    }
    [[nodiscard]] std::vector<ElementName> path(ElementName last) const {
        std::vector<ElementName> names = path(frames_.size());
        names.push_back(last);
        return names;
    }

    const Context& place() {
        std::size_t known = frames_.size() - 1;
        while (!frames_[known].context)
            --known;
        for (; known + 1 < frames_.size(); ++known) {
            Frame& frame = frames_[known + 1];
            if (frame.loose)
                frame.context = frames_[known].context;
            else
                frame.context = std::make_shared<const Context>(
                    contentContext(Element{tree_, frame.node}, *frames_[known].context, known + 2));
        }
        return *frames_.back().context;
    }

    [[nodiscard]] UserSpace placeSpace() { return {place().matrix, offset_}; }

    /// What the content of an element that is copied is written under; `depth` frames lead to it.
    Context contentContext(const Element& element, const Context& parent, std::size_t depth) {
        Context context = contextOf(element, source_.sheet, path(depth), parent);
        if (element.name() == "svg") enterViewBox(element, context);
        return context;
    }

    /// What a new element of that name is given here, without attributes of its own.
    [[nodiscard]] Style given(std::string_view tag) {
        const Context& context = place();
        Properties rules;
        if (!source_.sheet.empty())
            for (const bool important : {false, true})
                for (const Declaration* each :
                     source_.sheet.matching(path({tag, {}, {}}), important))
                    rules[each->property] = each->value;
        return styleOf(rules, context.style, context.viewport.diagonal());
    }

    // One object after the other.

    void step() {
        Frame& frame = frames_.back();
        const Art* const art = frame.next;
        if (art == nullptr) return close();
        frame.next = art->previous();
        const ArtSource* const source = source_.find(*art);
        const bool isTop = frames_.size() == 1 && art->isLayer();
        if (frame.keepsMasks && isClipMask(*art) && source != nullptr)
            return keepMask(source->node);
        if (source != nullptr && standsHere(source->node) && keep(*art, *source)) return;
        const bool isLoose = isTop && source != nullptr && source->node == kNoNode;
        if (!isLoose) return writeAnew(*art);
        layerTags_.tagged.contains(art) ? openTagged(*art) : openLoose(*art);
    }

    void close() {
        Frame frame = std::move(frames_.back());
        if (frame.loose || frame.node == kNoNode) {
            frames_.pop_back();
            if (!frame.endTag.empty()) newLine();
            out_ += frame.endTag;
            return;
        }
        frames_.back() = frame;
        const bool wasEmpty = tree_.isSelfClosing(frame.node);
        if (!wasEmpty) copyUpTo(kNoNode);
        frames_.pop_back();
        if (frames_.empty()) {
            if (wasEmpty && !out_.empty()) out_ += '\n';
            return;
        }
        if (wasEmpty) newLine();
        out_ += endTag(frame.node);
        finish(frame.node, frame.start);
    }

    void openLoose(const Art& layer) {
        Frame frame;
        frame.loose = true;
        frame.next = layer.lastChild();
        frames_.push_back(std::move(frame));
    }

    /// The members keep their places in the text, between the new tags.
    void openTagged(const Art& layer) {
        newLine();
        TagText tag{std::string{tree_.prefix()} + "g"};
        describe(tag, layer, nullptr, source_, layerTags_.named);
        out_ += tag.text(false, prefixes_);
        openLoose(layer);
        frames_.back().endTag = "</" + tag.name() + '>';
    }

    // An element that is still there for its art.

    /// False when nothing of the element is of use.
    bool keep(const Art& art, const ArtSource& source) {
        const Element element{tree_, source.node};
        const bool isGroup = isGroupElement(element.name());
        if (isGroup != (art.type() == kGroupArt)) {
            const Art* const shown =
                art.type() == kGroupArt ? asRead_.onlyShown(art, source) : nullptr;
            return shown != nullptr && keepLeaf(*shown, *source_.find(*shown), true);
        }
        return isGroup ? keepGroup(art, source) : keepLeaf(art, source, false);
    }

    /// One that stands in its group is copied; others are where the clip path is.
    void keepMask(NodeIndex node) {
        if (!standsHere(node)) return;
        copyUpTo(node);
        const std::size_t start = out_.size();
        out_ += tree_.source(node);
        finish(node, start);
    }

    /// From the effects' user space to soft coordinates.
    static Matrix effectSpace(const Art& art, const Effects& effects) {
        return matrixOf(art.style().foreignMatrix) * effects.space;
    }

    /// The user space of art with effects that have their meaning in another one than the place's.
    UserSpace ownSpace(TagText& tag, const UserSpace& outer, const Matrix& toSoftCoordinates) {
        const Matrix matrix = outer.transformTo(toSoftCoordinates);
        tag.set("transform", matrix == Matrix{} ? std::string{} : formatTransform(matrix));
        return {outer.toDrawing() * matrix, offset_};
    }

    bool keepLeaf(const Art& art, const ArtSource& source, bool isClipped) {
        const Element element{tree_, source.node};
        const bool isShape = art.type() == kPathArt || art.type() == kCompoundPathArt;
        const bool sameShape = asRead_.hasSameShape(art);
        const Effects* const moved = source.stamp == art.stamp() ? nullptr : movedEffects(art);
        if (isClipped && (moved != nullptr || (!isShape && !sameShape))) return false;

        TagText tag{element};
        const bool sameStyle =
            source.stamp == art.stamp() || art.content().style.sharesWith(source.content.style);
        if (!isShape && !sameShape)
            static_cast<void>(ownSpace(tag, placeSpace(), matrixOf(art.details().matrix)));
        if (isShape && !(sameShape && sameStyle)) {
            const UserSpace outer = placeSpace();
            const UserSpace space = moved != nullptr
                                        ? ownSpace(tag, outer, effectSpace(art, *moved))
                                        : UserSpace{contextOf(element, source_.sheet,
                                                              path(element.selectorName()), place())
                                                        .matrix,
                                                    offset_};
            if (!sameShape) reshape(tag, element, art, space);
            restyle(tag, art.style(), *source.content.style, space, serverText(space), hasSheet());
        }
        if (!isShape && art.style().opacity != source.content.style->opacity)
            tag.setProperty("opacity", formatNumber(art.style().opacity), hasSheet());
        describe(tag, art, &source, source_, layerTags_.named);
        if (tag.hasChanged() && references_.contain(element.get("id"))) return false;
        copyUpTo(source.node);
        const std::size_t start = out_.size();
        out_ += tag.text(tree_.isSelfClosing(source.node), prefixes_);
        if (!tree_.isSelfClosing(source.node)) {
            out_ += tree_.content(source.node);
            out_ += tag.hasChanged() ? "</" + tag.name() + '>' : endTag(source.node);
        }
        finish(source.node, start);
        return true;
    }

    [[nodiscard]] bool hasSheet() const { return !source_.sheet.empty(); }

    [[nodiscard]] ServerText serverText(const UserSpace& space) {
        return [this, &space](const Definition& definition, const AIRealMatrix& matrix) {
            return servers_.reference(definition, matrix, space);
        };
    }

    bool keepGroup(const Art& group, const ArtSource& source) {
        const Element element{tree_, source.node};
        const bool keepsMasks = asRead_.hasSameMasks(group, source);
        if (!keepsMasks && element.name() == "svg") return false;
        TagText tag{element};
        const Effects* const moved = source.stamp == group.stamp() ? nullptr : movedEffects(group);
        std::shared_ptr<const Context> inner;
        if (moved != nullptr) {
            if (element.name() == "svg") return false;
            auto context = std::make_shared<Context>(
                contextOf(element, source_.sheet, path(element.selectorName()), place()));
            context->matrix = ownSpace(tag, placeSpace(), effectSpace(group, *moved)).toDrawing();
            inner = std::move(context);
        }
        if (group.style().opacity != source.content.style->opacity)
            tag.setProperty("opacity", formatNumber(group.style().opacity), hasSheet());
        describe(tag, group, &source, source_, layerTags_.named);
        if (!keepsMasks) describeMasks(tag, group);
        copyUpTo(source.node);
        Frame frame = frameOf(group, element);
        frame.keepsMasks = keepsMasks;
        frame.context = std::move(inner);
        const Art* member = group.lastChild();
        while (keepsMasks && member != nullptr && isClipMask(*member))
            member = member->previous();
        const bool empty = tree_.isSelfClosing(source.node) && member == nullptr;
        out_ += tag.text(empty, prefixes_);
        if (empty)
            finish(source.node, frame.start);
        else
            frames_.push_back(std::move(frame));
        return true;
    }

    /// Masks that are written among the members of their group. Several cut one another: each clip
    /// path is clipped by the one before, the group by the last.
    void describeMasks(TagText& tag, const Art& group) {
        tag.setProperty("clip-path", {}, false);
        tag.set("easel:clipped", group.content().clipped ? "true" : "");
        std::string last;
        for (const Art* art = group.lastChild(); art != nullptr; art = art->previous())
            if (isClipMask(*art)) clipIds_[art] = last = servers_.newId("easel-clip-", clipNumber_);
        if (!last.empty()) tag.setProperty("clip-path", "url(#" + last + ")", hasSheet());
    }

    // Art without an element in this place.

    void writeAnew(const Art& art) {
        warnOfLoss(art);
        newLine();
        if (art.type() == kGroupArt || art.type() == kPluginArt) return openAnew(art);
        const auto mask = clipIds_.find(&art);
        if (mask != clipIds_.end()) {
            Frame& frame = frames_.back();
            const std::string former = std::exchange(frame.clipId, mask->second);
            TagText tag{std::string{tree_.prefix()} + "clipPath"};
            tag.set("id", mask->second);
            tag.set("easel:clip", "true");
            if (!former.empty()) tag.set("clip-path", "url(#" + former + ")");
            out_ += tag.text(false, prefixes_);
        }
        if (const auto* opaque = dynamic_cast<const OpaqueContent*>(art.details().foreign.get()))
            writeOpaque(art, *opaque);
        else if (art.type() == kPathArt || art.type() == kCompoundPathArt)
            writeShape(art);
        else
            writeInstance(art);
        if (mask != clipIds_.end()) out_ += "</" + std::string{tree_.prefix()} + "clipPath>";
    }

    void warnOfLoss(const Art& art) {
        const Effects* const effects = effectsIn(art.style());
        if (effects != nullptr && !effects->lost.empty()) warn(effects->lost);
    }

    void warn(const std::string& warning) {
        if (std::ranges::find(warnings_, warning) == warnings_.end()) warnings_.push_back(warning);
    }

    /// The user space of new art: the place's, unless the art is meant for another.
    UserSpace spaceFor(TagText& tag, const Art& art) {
        const UserSpace outer = placeSpace();
        if (!outer.isPlane()) {
            warn("art in a group whose transform flattens it cannot be placed there");
            return outer;
        }
        const Effects* const effects = effectsIn(art.style());
        if (effects != nullptr && effects->spatial && inverse(effectSpace(art, *effects)))
            return ownSpace(tag, outer, effectSpace(art, *effects));
        const bool isStroked = !isContainer(art) && art.style().path.strokePaint != 0;
        if (isStroked && !isConformal(outer.toDrawing()))
            return ownSpace(tag, outer, softMatrix(Matrix{}, offset_));
        return outer;
    }

    [[nodiscard]] static Properties effectsOf(const Art& art) {
        const Effects* const effects = effectsIn(art.style());
        return effects != nullptr ? effects->properties : Properties{};
    }

    /// The name in the drawing stays with the object that has its element, or took its place.
    void setId(TagText& tag, const Art& art) {
        const std::string& id = *art.content().id;
        if (id.empty() || references_.contain(id)) return;
        const NodeIndex node = tree_.find(id);
        const ArtSource* const source = source_.find(art);
        const bool isOwn = source != nullptr && source->node == node;
        if (!isOwn && node != kNoNode && livingNodes().contains(node)) return;
        if (ids_.insert(id).second) tag.set("id", id);
    }

    const std::set<NodeIndex>& livingNodes() {
        const Art& root = document_.root();
        if (living_.empty())
            for (const Art* art = &root; art != nullptr; art = nextInPreorder(*art, root))
                if (const ArtSource* source = source_.find(*art)) living_.insert(source->node);
        return living_;
    }

    void openAnew(const Art& group) {
        TagText tag{std::string{tree_.prefix()} + "g"};
        setId(tag, group);
        const UserSpace space = spaceFor(tag, group);
        Frame frame;
        frame.next = lastShown(group);
        if (group.content().clipped) describeMasks(tag, group);
        Properties wanted = effectsOf(group);
        wanted["opacity"] = formatNumber(group.style().opacity);
        Style here = given("g");
        setProperties(tag, wanted, here, false, hasSheet());
        describe(tag, group, nullptr, source_, layerTags_.named);
        out_ += tag.text(frame.next == nullptr, prefixes_);
        if (frame.next == nullptr) return;
        frame.endTag = "</" + tag.name() + '>';
        frame.name = {"g", {}, {}};
        const Context& outer = place();
        if (hasSheet() || space.toDrawing() != outer.matrix)
            frame.context = std::make_shared<const Context>(
                Context{std::move(here), space.toDrawing(), outer.viewport});
        else
            frame.context = frames_.back().context;
        frames_.push_back(std::move(frame));
    }

    void writeShape(const Art& art) {
        TagText tag{std::string{tree_.prefix()} + "path"};
        setId(tag, art);
        const UserSpace space = spaceFor(tag, art);
        setShape(tag, art, space);
        tag.add(look(art, space));
        describe(tag, art, nullptr, source_, layerTags_.named);
        out_ += tag.text(true, prefixes_);
    }

    /// What a new shape's tag says of its look. Copies have that of their source and are written in
    /// a row, so what it came to serves the next.
    const TagText& look(const Art& art, const UserSpace& space) {
        const bool isOfPlace = space.toDrawing() == place().matrix;
        const bool isMask = isClipMask(art);
        const Cow<ArtStyle>& style = art.content().style;
        if (isOfPlace && look_.place == frames_.back().context && look_.isMask == isMask &&
            look_.style.sharesWith(style))
            return look_.tag;
        Properties wanted = effectsOf(art);
        for (const PropertyText& each : styleText(*style, space, serverText(space)))
            wanted.try_emplace(each.name, each.text);
        if (isMask) wanted["clip-rule"] = wanted["fill-rule"];
        wanted["visibility"] = "visible";
        look_ = {isOfPlace ? frames_.back().context : nullptr, isMask, style, TagText{""}};
        setProperties(look_.tag, wanted, given("path"), false, hasSheet());
        return look_.tag;
    }

    /// Its element again, in another place.
    void writeOpaque(const Art& art, const OpaqueContent& content) {
        const Element element{tree_, content.node};
        TagText tag{element};
        tag.set("id", {});
        setId(tag, art);
        static_cast<void>(ownSpace(tag, placeSpace(), matrixOf(art.details().matrix)));
        for (const char* const own : {"clip-path", "display", "opacity"})
            tag.setProperty(own, {}, false);
        const Properties effects = effectsOf(art);
        if (const auto clip = effects.find("clip-path"); clip != effects.end())
            tag.setProperty(clip->first, clip->second, hasSheet());
        if (art.style().opacity != 1)
            tag.setProperty("opacity", formatNumber(art.style().opacity), hasSheet());
        ElementName name = element.selectorName();
        name.id = {};
        const Context& outer = place();
        const Style here = styleOf(element.properties(source_.sheet, path(name)), outer.style,
                                   outer.viewport.diagonal());
        Properties wanted = content.style ? *content.style : Properties{};
        wanted["visibility"] = "visible";
        setProperties(tag, wanted, here, true, hasSheet());
        describe(tag, art, nullptr, source_, layerTags_.named);
        const std::string inner =
            source_.find(art) != nullptr
                ? std::string{tree_.content(content.node)}
                : withoutIds(tree_, content.node, tree_.at(content.node).contentStart,
                             tree_.at(content.node).contentEnd);
        const bool empty = tree_.isSelfClosing(content.node);
        out_ += tag.text(empty, prefixes_);
        if (!empty) out_ += inner + "</" + tag.name() + '>';
    }

    /// Art that a plug-in made and that no drawing had.
    void writeInstance(const Art& art) {
        const Definition* const symbol = art.details().symbol;
        TagText tag{std::string{tree_.prefix()} + (symbol != nullptr ? "use" : "g")};
        if (symbol != nullptr) tag.set("xlink:href", '#' + symbol->id());
        static_cast<void>(ownSpace(tag, placeSpace(), matrixOf(art.details().matrix)));
        setProperties(tag, {{"opacity", formatNumber(art.style().opacity)}}, given("use"), true,
                      hasSheet());
        describe(tag, art, nullptr, source_, layerTags_.named);
        out_ += tag.text(true, prefixes_);
    }

    const Document& document_;
    std::shared_ptr<const ForeignContent> kept_;
    std::shared_ptr<const DrawingSource> blank_;
    const DrawingSource& source_;
    const XmlTree& tree_;
    Point offset_;
    AsRead asRead_;
    LayerTags layerTags_;
    References references_;
    GeneratedDefinitions definitions_;
    DerivedServers servers_;
    std::vector<bool> written_; ///< By node: the element is in the result.
    std::string out_;           ///< What stands between the root's tags.
    std::vector<Frame> frames_;
    Look look_;
    std::set<std::string, std::less<>> prefixes_; ///< Those that the result needs.
    std::vector<std::string> warnings_;
    int clipNumber_ = 0;
    std::map<const Art*, std::string> clipIds_; ///< Of masks that are written anew.
    std::set<std::string> ids_;
    std::set<NodeIndex> living_;
    std::size_t generatedAt_ = std::string::npos;
};

} // namespace

std::string svgText(const Document& document, std::vector<std::string>* warnings) {
    SvgWriter writer{document};
    std::string text = writer.write();
    if (warnings != nullptr) *warnings = writer.warnings();
    return text;
}

} // namespace easel::svg

#include "easel/document/Layers.h"
#include "easel/svg/ArtBuilder.h"
#include "easel/svg/DictionaryJson.h"
#include "easel/svg/Numbers.h"
#include "easel/svg/PaintServers.h"
#include "easel/svg/SvgFile.h"
#include "easel/svg/ViewBox.h"

#include <algorithm>
#include <fstream>
#include <iterator>
#include <set>
#include <string_view>

namespace easel::svg {
namespace {

/// A larger text would need many times its size in memory.
constexpr std::uintmax_t kLargestFile = 1'000'000'000;

/// What a drawing without a size is given: the size of replaced content in CSS.
constexpr double kStandardWidth = 300.0;
constexpr double kStandardHeight = 150.0;

/// Ids that begin so are ours to give.
constexpr std::string_view kOwnIds = "easel-";

bool isLayerElement(const Element& element) {
    return element.name() == "g" && element.get("inkscape:groupmode") == "layer";
}

/// The artboard: the view box when there is one, so that its units are the document's points.
struct Artboard {
    Point corner;
    Point size;
};

Artboard artboardOf(const Element& root) {
    if (root.has("viewBox")) {
        const auto box = parseViewBox(root.get("viewBox"));
        if (box) return {box->corner, box->size};
        root.fail("the viewBox is '" + root.get("viewBox").substr(0, 40) +
                  "'; write its left, top, width and height, as in viewBox=\"0 0 800 600\"");
    }
    const auto side = [&](const char* name, double standard) {
        if (!root.has(name)) return standard;
        const auto length = parseLength(root.get(name), standard);
        if (length && *length > 0 && *length <= kLargestCoordinate) return *length;
        root.fail("the " + std::string{name} + " is '" + root.get(name).substr(0, 40) +
                  "'; write a length such as 800 or 210mm");
    };
    return {{}, {side("width", kStandardWidth), side("height", kStandardHeight)}};
}

/// Reads one file into a new document.
class SvgReader {
public:
    explicit SvgReader(std::string text) : state_(std::move(text)) {}

    std::unique_ptr<Document> read() {
        const Element root{state_.tree, state_.tree.root()};
        if (root.name() != "svg")
            root.fail("the outermost element is <" + std::string{root.name()} +
                      ">; an SVG file holds an <svg>");
        gatherStyleSheets();
        const Artboard artboard = artboardOf(root);
        document_ = std::make_unique<Document>(
            AISize{static_cast<AIReal>(artboard.size.x), static_cast<AIReal>(artboard.size.y)},
            FirstLayer::No);
        auto source = std::make_shared<DrawingSource>();
        source_ = source.get();
        document_->foreign = source;
        keepFile(root, artboard);
        placeRuler(root, artboard);

        ArtBuilder builder{state_, *document_, source_, rulerOffset(*document_)};
        const Pushed pushed{state_.path, root.selectorName()};
        Context start{Style{}, Matrix{}, {artboard.size.x, artboard.size.y}};
        const auto context = std::make_unique<Context>(start);
        context->style =
            styleOf(root.properties(state_.sheet, state_.path), Style{}, start.viewport.diagonal());
        readLayers(builder, root, *context);
        readDocumentState(root);
        static_cast<void>(document_->takeChanges());
        document_->undo().clear();
        document_->setModified(false);
        return std::move(document_);
    }

    [[nodiscard]] std::vector<std::string>& warnings() { return state_.warnings; }

private:
    void gatherStyleSheets() {
        for (NodeIndex node = 0; node < state_.tree.size(); ++node) {
            const XmlTree::Node& candidate = state_.tree.at(node);
            if (candidate.kind == XmlTree::Kind::Element && candidate.name == "style")
                state_.sheet.add(state_.tree.textOf(node));
        }
    }

    void keepFile(const Element& root, const Artboard& artboard) {
        source_->prologue = state_.tree.prologue();
        source_->epilogue = state_.tree.epilogue();
        source_->viewBoxCorner = artboard.corner;
        source_->size = {static_cast<AIReal>(artboard.size.x),
                         static_cast<AIReal>(artboard.size.y)};
        source_->hasStyleSheet = !state_.sheet.empty();
        for (const XmlAttribute& attribute : root.attributes()) {
            source_->rootNames.emplace_back(attribute.name);
            const bool isSize = attribute.name == "width" || attribute.name == "height" ||
                                attribute.name == "viewBox";
            const bool isOurs = attribute.name.starts_with("easel:");
            const bool handedDown = isProperty(attribute.name) && isInherited(attribute.name);
            if (isOurs || handedDown) continue;
            std::string& target = isSize ? source_->sizeAttributes : source_->rootAttributes;
            if (attribute.name == "style")
                target += rootStyle(root.get("style"), attribute.source);
            else
                target += ' ' + std::string{attribute.source};
        }
        for (const std::string& id : state_.tree.idsBeginningWith(kOwnIds)) {
            const NodeIndex node = state_.tree.find(id);
            const bool givenByUs =
                isMadeAnew(state_.tree, node) || Element{state_.tree, node}.isTrue("easel:clip");
            if (!givenByUs) source_->reservedIds.push_back(id);
        }
    }

    /// Inherited properties end in the leaves; of the others the look of the whole depends.
    static std::string rootStyle(const std::string& style, std::string_view source) {
        const std::vector<Declaration> given = parseDeclarations(style);
        const auto handedDown = [](const Declaration& declaration) {
            return isInherited(declaration.property);
        };
        if (std::ranges::none_of(given, handedDown)) return ' ' + std::string{source};
        Properties others;
        for (const Declaration& declaration : given)
            if (!handedDown(declaration)) others[declaration.property] = declaration.value;
        if (others.empty()) return {};
        return " style=\"" + escaped(declarationText(others)) + '"';
    }

    /// Puts the ruler origin at the drawing's (0, 0), or where the user had put it.
    void placeRuler(const Element& root, const Artboard& artboard) {
        AIRealPoint& origin = document_->writeState().rulerOrigin;
        origin.h -= static_cast<AIReal>(artboard.corner.x);
        origin.v -= static_cast<AIReal>(artboard.corner.y);
        source_->rulerOrigin = origin;
        const NumberList moved = parseNumbers(root.get("easel:ruler-origin"));
        if (moved.numbers.size() != 2) return;
        origin = {static_cast<AIReal>(moved.numbers[0]), static_cast<AIReal>(moved.numbers[1])};
    }

    /// Layers as they are; runs of art outside of layers become layers of their own.
    void readLayers(ArtBuilder& builder, const Element& root, const Context& context) {
        Art* loose = nullptr;
        PendingInterludes pending;
        for (NodeIndex node = state_.tree.at(root.node()).firstChild; node != kNoNode;
             node = state_.tree.at(node).nextSibling) {
            const bool isElement = state_.tree.at(node).kind == XmlTree::Kind::Element;
            const Element element{state_.tree, isElement ? node : root.node()};
            if (isGenerated(state_.tree, node)) {
                pending.addForeign(state_.tree, node);
            } else if (isElement && isLayerElement(element)) {
                loose = nullptr;
                pending.moveTo(source_->interludes, readLayer(builder, element, context).handle());
            } else if (isElement && ArtBuilder::isArt(element)) {
                if (loose == nullptr) {
                    loose = &createLayer(*document_, {}, onTopOf(document_->root()));
                    pending.moveTo(source_->interludes, loose->handle());
                }
                const Art* const art = builder.readElement(element, *loose, context);
                if (!pending.empty() && art != nullptr)
                    pending.moveTo(source_->elements[loose->handle()].interludes, art->handle());
            } else {
                pending.add(state_.tree, node);
            }
        }
        pending.moveTo(source_->interludes, nullptr);
        nameLayers();
    }

    Art& readLayer(ArtBuilder& builder, const Element& element, const Context& context) {
        const Deeper deeper{state_, element};
        const Pushed pushed{state_.path, element.selectorName()};
        state_.countElement(element);
        Art& layer = createLayer(*document_, {}, onTopOf(document_->root()));
        const auto inner = std::make_unique<const Context>(builder.contextOf(element, context));
        layer.write().clipped = element.isTrue("easel:clipped");
        builder.styleContainer(layer, inner->style);
        builder.readState(element, inner->style, layer);
        std::vector<Interlude> interludes;
        builder.readChildren(element.node(), layer, *inner, &interludes);
        builder.keepSource(element, layer, std::move(interludes));
        return layer;
    }

    /// Layers without a title get "Layer N", counted from the bottom; a document has at least one.
    void nameLayers() {
        Art& root = document_->root();
        if (root.firstChild() == nullptr) createLayer(*document_, {}, onTopOf(root));
        std::set<std::string> titles;
        for (const Art* layer = root.lastChild(); layer != nullptr; layer = layer->previous())
            titles.insert(layer->details().layer.title);
        int number = 1;
        for (Art* layer = root.lastChild(); layer != nullptr; layer = layer->previous()) {
            if (!layer->details().layer.title.empty()) continue;
            std::string title;
            do
                title = "Layer " + std::to_string(number++);
            while (titles.contains(title));
            layer->write().details.write().layer.title = title;
        }
    }

    void readDocumentState(const Element& root) {
        readEntries(root, "easel:document", document_->recordedDictionary());
        readEntries(root, "easel:unrecorded", document_->otherDictionary());
        if (const auto units = parseNumber(root.get("easel:ruler-units")))
            document_->rulerUnits = static_cast<ai::int16>(std::clamp(*units, 0.0, 10.0));
        if (const auto model = parseNumber(root.get("easel:color-model")))
            document_->colorModel = static_cast<ai::int16>(std::clamp(*model, 0.0, 2.0));
        const auto number = parseNumber(root.get("easel:current-layer"));
        Art* const current = number && *number >= 0 && *number <= kMostElements
                                 ? numberedLayer(*document_, static_cast<int>(*number))
                                 : nullptr;
        setCurrentLayer(*document_, current != nullptr ? *current : startingLayer(*document_));
    }

    static void readEntries(const Element& root, std::string_view attribute, Dictionary& target) {
        if (!root.has(attribute)) return;
        try {
            readDictionaryJson(root.get(attribute), target);
        } catch (const std::invalid_argument& error) {
            root.fail("the entries of the document are broken: " + std::string{error.what()});
        }
    }

    ReadingState state_;
    std::unique_ptr<Document> document_;
    DrawingSource* source_ = nullptr;
};

std::string readWhole(const std::filesystem::path& file) {
    const std::string name = file.string();
    std::error_code error;
    if (std::filesystem::is_directory(file, error))
        throw FileError(name + ": this is a folder; name an SVG file");
    std::ifstream in{file, std::ios::binary};
    if (!in) throw FileError(name + ": the file cannot be opened; check its name and permissions");
    const auto size = std::filesystem::file_size(file, error);
    if (!error && size > kLargestFile)
        throw FileError(name + ": the file is larger than 1 GB; divide the drawing");
    std::string text{std::istreambuf_iterator<char>{in}, std::istreambuf_iterator<char>{}};
    if (in.bad()) throw FileError(name + ": the file cannot be read to its end");
    return text;
}

} // namespace

OpenedDrawing readSvg(const std::filesystem::path& file) {
    OpenedDrawing opened = readSvgText(readWhole(file), file.string());
    opened.document->path = file;
    return opened;
}

OpenedDrawing readSvgText(std::string text, const std::string& name) {
    const std::string prefix = name + ':';
    OpenedDrawing opened;
    try {
        if (text.find('\0') != std::string::npos)
            throw SvgError(1, "this is no text; an SVG file is XML in UTF-8");
        SvgReader reader{std::move(text)};
        opened.document = reader.read();
        for (const std::string& warning : reader.warnings())
            opened.warnings.push_back(prefix + warning);
    } catch (const SvgError& error) {
        throw FileError(prefix + std::to_string(error.line) + ": " + error.what());
    }
    return opened;
}

} // namespace easel::svg

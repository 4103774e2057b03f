#include "easel/document/Layers.h"
#include "easel/svg/ArtBuilder.h"
#include "easel/svg/Numbers.h"
#include "easel/svg/SvgFile.h"
#include "easel/svg/ViewBox.h"

#include <algorithm>
#include <fstream>
#include <iterator>

namespace easel::svg {
namespace {

/// A larger text would need many times its size in memory.
constexpr std::uintmax_t kLargestFile = 1'000'000'000;

/// What a drawing without a size is given: the size of replaced content in CSS.
constexpr double kStandardWidth = 300.0;
constexpr double kStandardHeight = 150.0;

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
    SvgReader(Session& session, std::string text) : state_(session, std::move(text)) {}

    std::unique_ptr<Document> read() {
        const Element root{state_.tree, state_.tree.root()};
        if (root.name() != "svg")
            root.fail("the outermost element is <" +
                      std::string{state_.tree.tagName(state_.tree.root())} +
                      ">; an SVG file holds an <svg>");
        gatherStyleSheets();
        const Artboard artboard = artboardOf(root);
        document_ = std::make_unique<Document>(
            state_.session,
            AISize{static_cast<AIReal>(artboard.size.x), static_cast<AIReal>(artboard.size.y)},
            FirstLayer::No);
        auto source = std::make_shared<DrawingSource>();
        source_ = source.get();
        source_->tree = state_.text;
        source_->viewBoxCorner = artboard.corner;
        source_->viewBoxSize = artboard.size;
        source_->isArt.resize(state_.tree.size());
        document_->foreign = source;
        placeRuler(root, artboard);

        ArtBuilder builder{state_, *document_, source_, rulerOffset(*document_)};
        const auto here = pushed(state_.path, root.selectorName());
        const auto context =
            std::make_unique<const Context>(rootContext(root, state_.sheet, artboard.size));
        readLayers(builder, root, *context);
        readDocumentState(root);
        static_cast<void>(document_->takeChanges());
        document_->undo().clear();
        document_->setModified(false);
        keepFingerprints();
        return std::move(document_);
    }

    [[nodiscard]] std::vector<std::string>& warnings() { return state_.warnings; }

private:
    void gatherStyleSheets() {
        for (NodeIndex node = 0; node < state_.tree.size(); ++node) {
            const XmlTree::Node& candidate = state_.tree.at(node);
            if (candidate.kind != XmlTree::Kind::Element || candidate.name != "style") continue;
            for (const std::string& unknown : state_.sheet.add(state_.tree.textOf(node)))
                state_.warn(
                    Element{state_.tree, node},
                    '\'' + unknown.substr(0, 40) +
                        "' in the style sheet is not understood; what it styles stays as it "
                        "is, but is not shown so here");
        }
    }

    /// All of the art as it is now is the art as it was read.
    void keepFingerprints() {
        const Art& root = document_->root();
        for (const Art* art = &root; art != nullptr; art = nextInPreorder(*art, root)) {
            ArtSource& source = source_->art[art->handle()];
            source.content = art->content();
            source.stamp = art->stamp();
            if (art->type() != kCompoundPathArt) continue;
            source.parts.clear();
            for (const Art* part = art->lastChild(); part != nullptr; part = part->previous())
                source.parts.push_back(part->handle());
        }
        source_->sheet = std::move(state_.sheet);
        source_->attributes = documentAttributes(*document_);
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
        for (const NodeIndex node : childElements(state_.tree, root.node())) {
            const Element element{state_.tree, node};
            if (isLayerElement(element)) {
                loose = nullptr;
                readLayer(builder, element, context);
            } else if (ArtBuilder::isArt(element)) {
                if (loose == nullptr)
                    loose = &createLayer(*document_, {}, onTopOf(document_->root()));
                static_cast<void>(builder.readElement(element, *loose, context));
            }
        }
        nameLayers();
    }

    void readLayer(ArtBuilder& builder, const Element& element, const Context& context) {
        const auto nested = deeper(state_, element);
        const auto here = pushed(state_.path, element.selectorName());
        state_.countElement(element);
        Art& layer = createLayer(*document_, {}, onTopOf(document_->root()));
        const auto inner = std::make_unique<const Context>(builder.contextOf(element, context));
        builder.readContainer(element, layer, *inner);
    }

    /// A document has at least one layer, and every layer a title.
    void nameLayers() {
        Art& root = document_->root();
        if (root.firstChild() == nullptr) createLayer(*document_, {}, onTopOf(root));
        std::vector<std::string> titles;
        for (const Art* layer = root.lastChild(); layer != nullptr; layer = layer->previous())
            titles.push_back(layer->details().layer.title);
        fillInTitles(titles);
        auto title = titles.begin();
        for (Art* layer = root.lastChild(); layer != nullptr; layer = layer->previous(), ++title)
            if (layer->details().layer.title.empty())
                layer->write().details.write().layer.title = *title;
    }

    void readDocumentState(const Element& root) {
        if (root.has("easel:document"))
            readEntries(root, root.get("easel:document"), document_->recordedDictionary());
        if (root.has("easel:unrecorded"))
            readEntries(root, root.get("easel:unrecorded"), document_->otherDictionary());
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

OpenedDrawing readSvg(Session& session, const std::filesystem::path& file) {
    OpenedDrawing opened = readSvgText(session, readWhole(file), file.string());
    opened.document->path = file;
    return opened;
}

OpenedDrawing readSvgText(Session& session, std::string text, const std::string& name) {
    const std::string prefix = name + ':';
    OpenedDrawing opened;
    try {
        if (text.find('\0') != std::string::npos)
            throw SvgError(1, "this is no text; an SVG file is XML in UTF-8");
        SvgReader reader{session, std::move(text)};
        opened.document = reader.read();
        for (const std::string& warning : reader.warnings())
            opened.warnings.push_back(prefix + warning);
    } catch (const SvgError& error) {
        throw FileError(prefix + std::to_string(error.line) + ": " + error.what());
    }
    return opened;
}

} // namespace easel::svg

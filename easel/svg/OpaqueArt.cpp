#include "easel/document/Bounds.h"
#include "easel/svg/ArtBuilder.h"
#include "easel/svg/Base64.h"
#include "easel/svg/Numbers.h"
#include "easel/svg/ViewBox.h"

#include <algorithm>

namespace easel::svg {
namespace {

/// How wide a letter is on the average, in parts of the font size; text is measured without fonts,
/// so that its bounds are the same everywhere.
constexpr double kLetterWidth = 0.55;
constexpr double kAscent = 0.8;
constexpr double kDescent = 0.2;

/// A picture of more takes seconds and hundreds of megabytes each time it is painted.
constexpr double kMostImagePixels = 50e6;

/// Lines and blanks count as one blank, as XML text is shown.
std::string collapsed(std::string_view text) {
    std::string result;
    for (const char c : text) {
        const bool blank = c == ' ' || c == '\t' || c == '\n' || c == '\r';
        if (!blank)
            result += c;
        else if (result.empty() || result.back() != ' ')
            result += ' ';
    }
    return result;
}

std::size_t letterCount(std::string_view text) {
    return static_cast<std::size_t>(std::ranges::count_if(
        text, [](char c) { return (static_cast<unsigned char>(c) & 0xC0) != 0x80; }));
}

void addRun(Box& box, const TextRun& run) {
    const double width = kLetterWidth * run.font.size * static_cast<double>(letterCount(run.text));
    const double before = run.anchor == TextAnchor::Start    ? 0.0
                          : run.anchor == TextAnchor::Middle ? width / 2
                                                             : width;
    const Point start{run.position.x - before, run.position.y};
    box.add({start.x, start.y - kAscent * run.font.size});
    box.add({start.x + width, start.y + kDescent * run.font.size});
}

/// Gathers the runs of a text element and of the spans inside it.
class TextReader {
public:
    TextReader(ReadingState& state, TextContent& content) : state_(state), content_(content) {}

    void read(const Element& element, const Context& context) {
        const auto nested = deeper(state_, element);
        move(element, context);
        for (NodeIndex node = state_.tree.at(element.node()).firstChild; node != kNoNode;
             node = state_.tree.at(node).nextSibling) {
            const XmlTree::Kind kind = state_.tree.at(node).kind;
            if (kind == XmlTree::Kind::Text)
                add(state_.tree.decode(state_.tree.source(node)), context.style);
            else if (kind == XmlTree::Kind::CData)
                add(std::string{state_.tree.content(node)}, context.style);
            else if (kind == XmlTree::Kind::Element)
                readSpan(Element{state_.tree, node}, context);
        }
    }

private:
    void readSpan(const Element& element, const Context& parent) {
        if (element.name() != "tspan" && element.name() != "a") return;
        const auto here = pushed(state_.path, element.selectorName());
        state_.countElement(element);
        Context context = parent;
        context.style = styleOf(element.properties(state_.sheet, state_.path), parent.style,
                                parent.viewport.diagonal());
        if (context.style.displayed) read(element, context);
    }

    void move(const Element& element, const Context& context) {
        const auto first = [&](std::string_view name, double whole) -> std::optional<double> {
            const std::string text = element.get(name);
            const std::string_view one = std::string_view{text}.substr(0, text.find_first_of(", "));
            return parseLength(one, whole, context.style.font.size);
        };
        const auto x = first("x", context.viewport.width);
        const auto y = first("y", context.viewport.height);
        const auto dx = first("dx", context.viewport.width);
        const auto dy = first("dy", context.viewport.height);
        if (x || y || dx || dy) positioned_ = true;
        next_ = {x.value_or(next_.x) + dx.value_or(0.0), y.value_or(next_.y) + dy.value_or(0.0)};
    }

    void add(const std::string& text, const Style& style) {
        TextRun run;
        run.text = collapsed(text);
        if (content_.runs.empty() && run.text.starts_with(' ')) run.text.erase(0, 1);
        if (run.text.empty()) return;
        run.position = next_;
        run.positioned = positioned_ || content_.runs.empty();
        run.font = style.font;
        run.anchor = style.anchor;
        run.fill = style.visible ? style.fill : Paint{};
        run.fillOpacity = style.fillOpacity;
        positioned_ = false;
        next_.x += kLetterWidth * run.font.size * static_cast<double>(letterCount(run.text));
        content_.runs.push_back(std::move(run));
    }

    ReadingState& state_;
    TextContent& content_;
    Point next_;
    bool positioned_ = true;
};

std::vector<std::byte> pngOf(const Element& element) {
    constexpr std::string_view kPrefix = "data:image/png;base64,";
    std::string source = element.get("href");
    if (source.empty()) source = element.get("xlink:href");
    if (!source.starts_with(kPrefix)) return {};
    return decodeBase64(std::string_view{source}.substr(kPrefix.size()))
        .value_or(std::vector<std::byte>{});
}

/// How many pixels a PNG file has across and down, from its head alone; 0, 0: it is none.
Point pngSize(std::span<const std::byte> png) {
    constexpr std::size_t kHead = 24;
    constexpr std::string_view kMark = "\x89PNG\r\n\x1A\n";
    const auto byteAt = [&](std::size_t i) { return std::to_integer<unsigned char>(png[i]); };
    if (png.size() < kHead) return {};
    for (std::size_t i = 0; i < kMark.size(); ++i)
        if (byteAt(i) != static_cast<unsigned char>(kMark[i])) return {};
    const auto number = [&](std::size_t at) {
        double value = 0.0;
        for (std::size_t i = at; i < at + 4; ++i)
            value = 256.0 * value + byteAt(i);
        return value;
    };
    return {number(16), number(20)};
}

std::string inheritedText(const Style& style) {
    return style.inherited ? declarationText(*style.inherited) : std::string{};
}

} // namespace

Art* ArtBuilder::readOpaque(const Element& element, Art& parent, const Context& context) {
    if (element.name() == "use") return readUse(element, parent, context);
    Box box;
    if (element.name() == "image") {
        auto content = std::make_shared<ImageContent>();
        const Viewport& viewport = context.viewport;
        content->png = pngOf(element);
        content->pixels = pngSize(content->png);
        if (content->pixels.x * content->pixels.y > kMostImagePixels) {
            state_.warn(element,
                        "the picture has " + formatNumber(content->pixels.x) + " x " +
                            formatNumber(content->pixels.y) +
                            " pixels; those of more than 50 million are kept, but shown as "
                            "a frame");
            content->pixels = {};
        }
        content->corner = {element.length("x", viewport.width, 0),
                           element.length("y", viewport.height, 0)};
        content->size = {element.length("width", viewport.width, 0),
                         element.length("height", viewport.height, 0)};
        content->keepsAspect = element.get("preserveAspectRatio") != "none";
        box.add(content->corner);
        box.add(content->corner + content->size);
        return &addOpaque(kRasterArt, element, parent, context, box, content);
    }
    auto content = std::make_shared<TextContent>();
    TextReader{state_, *content}.read(element, context);
    for (const TextRun& run : content->runs)
        addRun(box, run);
    return &addOpaque(kTextFrameArt, element, parent, context, box, content);
}

Art& ArtBuilder::addOpaque(ai::int16 type, const Element& element, Art& parent,
                           const Context& context, const Box& box,
                           std::shared_ptr<OpaqueContent> content) {
    content->node = element.node();
    content->style = context.style.inherited;
    Art& art = createArt(document_, type, onTopOf(parent));
    ArtContent& target = art.write();
    ArtDetails& details = target.details.write();
    details.matrix = toSoft(context.matrix, offset_);
    details.box = {static_cast<AIReal>(box.min.x), static_cast<AIReal>(box.max.y),
                   static_cast<AIReal>(box.max.x), static_cast<AIReal>(box.min.y)};
    details.foreign = std::move(content);
    if (context.style.opacity != 1.0)
        target.style.write().opacity = static_cast<AIReal>(context.style.opacity);
    readState(element, context.style, art);
    keepSource(element, art);
    return art;
}

Art* ArtBuilder::readUse(const Element& element, Art& parent, const Context& context) {
    state_.countReference(element);
    const Viewport& viewport = context.viewport;
    const Point corner{element.length("x", viewport.width, 0),
                       element.length("y", viewport.height, 0)};
    const Point size{element.length("width", viewport.width, 0),
                     element.length("height", viewport.height, 0)};
    const NodeIndex target = state_.tree.find(element.reference());
    std::string variant = inheritedText(context.style);
    for (const double number : {corner.x, corner.y, size.x, size.y})
        variant += ' ' + formatNumber(number);
    Context inner{context.style, translation(corner), viewport};
    inner.style.opacity = 1.0;
    inner.style.clipPath.clear();
    inner.style.others.clear();
    std::shared_ptr<const DrawingContent> drawing;
    Box box;
    if (target != kNoNode) {
        if (const std::string_view name = state_.tree.at(target).name;
            name == "symbol" || name == "svg")
            enterViewBox(Element{state_.tree, target}, inner, size);
        drawing = drawingOf(element, target, inner, variant, Entered::Element);
    }
    if (drawing)
        if (const auto bounds = boundsOf(drawing->drawing->root(), kVisibleBounds)) {
            box.add({bounds->left, -bounds->top});
            box.add({bounds->right, -bounds->bottom});
        }
    Art& art =
        addOpaque(kSymbolArt, element, parent, context, box, std::make_shared<OpaqueContent>());
    Definition& symbol =
        definition(Definition::Kind::Symbol, element.reference(), drawing, variant);
    if (!box.empty) symbol.box = art.details().box;
    art.write().details.write().symbol = &symbol;
    return &art;
}

std::shared_ptr<const DrawingContent>
ArtBuilder::drawingOf(const Element& referring, NodeIndex target, const Context& context,
                      const std::string& variant, Entered entered) {
    if (std::ranges::find(state_.referring, target) != state_.referring.end()) return nullptr;
    const auto known = state_.drawings.find({target, variant});
    if (known != state_.drawings.end()) return known->second;

    const auto nested = deeper(state_, referring);
    const auto here = pushed(state_.referring, target);
    std::vector<ElementName> ancestors;
    for (NodeIndex node = state_.tree.at(target).parent; node != kNoNode;
         node = state_.tree.at(node).parent)
        ancestors.push_back(Element{state_.tree, node}.selectorName());
    std::ranges::reverse(ancestors);
    state_.path.swap(ancestors);
    const PutBack former{[&] { state_.path.swap(ancestors); }};

    auto content = std::make_shared<DrawingContent>();
    content->drawing = std::make_unique<Document>(state_.session, AISize{1, 1}, FirstLayer::Yes);
    ArtBuilder builder{state_, *content->drawing, nullptr, Point{}};
    Art& layer = *content->drawing->root().firstChild();
    const Element element{state_.tree, target};
    const bool hasContentOnly =
        entered == Entered::Content || element.name() == "symbol" || element.name() == "svg";
    if (hasContentOnly) {
        const auto own = pushed(state_.path, element.selectorName());
        builder.readChildren(target, layer, context);
    } else {
        builder.readElement(element, layer, context);
    }
    return state_.drawings.emplace(std::pair{target, variant}, std::move(content)).first->second;
}

} // namespace easel::svg

#include "easel/svg/ArtBuilder.h"

#include "easel/document/Layers.h"
#include "easel/svg/Numbers.h"
#include "easel/svg/ViewBox.h"

#include <nlohmann/json.hpp>

#include <algorithm>
#include <cmath>

namespace easel::svg {
namespace {

/// Handles in one line through the anchor make it smooth: their sine may be off by what rounding to
/// single precision does to short handles far out.
constexpr double kSmoothSine = 1e-3;

bool isOpaque(std::string_view element) {
    return element == "text" || element == "image" || element == "use";
}

AIBoolean isCorner(const AIPathSegment& segment) {
    if (same(segment.p, segment.in) || same(segment.p, segment.out)) return 1;
    const double inX = static_cast<double>(segment.p.h) - segment.in.h;
    const double inY = static_cast<double>(segment.p.v) - segment.in.v;
    const double outX = static_cast<double>(segment.out.h) - segment.p.h;
    const double outY = static_cast<double>(segment.out.v) - segment.p.v;
    const double lengths = std::hypot(inX, inY) * std::hypot(outX, outY);
    const bool onward = inX * outX + inY * outY > 0;
    return onward && std::abs(inX * outY - inY * outX) <= kSmoothSine * lengths ? 0 : 1;
}

void setAttribute(Art& art, AIArtUserAttr attribute) {
    art.write().attributes |= static_cast<std::uint32_t>(attribute);
}

/// An open path's outermost handles draw nothing and so stand in an attribute of ours.
void readEndHandles(const Element& element, Art& path, Point offset) {
    const NumberList list = parseNumbers(element.get("easel:ends"));
    if (list.numbers.size() != 4 || path.segments().empty()) return;
    Segments& segments = path.write().segments.write();
    segments.front().in = toSoft(Point{list.numbers[0], list.numbers[1]}, offset);
    segments.back().out = toSoft(Point{list.numbers[2], list.numbers[3]}, offset);
}

} // namespace

bool ArtBuilder::isArt(const Element& element) {
    const std::string_view name = element.name();
    return isGroupElement(name) || isShape(name) || isOpaque(name) ||
           (name == "clipPath" && element.isTrue("easel:clip"));
}

void ArtBuilder::readChildren(NodeIndex node, Art& parent, const Context& context) {
    for (const NodeIndex child : childElements(state_.tree, node))
        static_cast<void>(readElement(Element{state_.tree, child}, parent, context));
}

Context ArtBuilder::contextOf(const Element& element, const Context& parent) {
    Context context = svg::contextOf(element, state_.sheet, state_.path, parent);
    for (const auto& [property, value] : context.style.unknown) {
        const auto known = parent.style.unknown.find(property);
        if (known != parent.style.unknown.end() && known->second == value) continue;
        state_.warn(element, property + " of <" + std::string{element.name()} + "> is '" +
                                 value.substr(0, 40) +
                                 "', which is not understood; copies do not have it");
    }
    return context;
}

Art* ArtBuilder::readElement(const Element& element, Art& parent, const Context& parentContext) {
    if (!isArt(element)) return nullptr;
    const std::string_view name = element.name();
    const auto nested = deeper(state_, element);
    const auto here = pushed(state_.path, element.selectorName());
    state_.countElement(element);
    const auto context = std::make_unique<const Context>(contextOf(element, parentContext));
    if (name == "clipPath") return readClipMembers(element, parent, *context);
    if (isGroupElement(name)) return readGroup(element, parent, *context);

    const std::string& clipPath = context->style.clipPath;
    Art* const clipGroup =
        clipPath.empty() ? nullptr : &createArt(document_, kGroupArt, onTopOf(parent));
    Art& home = clipGroup != nullptr ? *clipGroup : parent;
    Art* const art =
        isShape(name) ? readShape(element, home, *context) : readOpaque(element, home, *context);
    if (clipGroup == nullptr) return art;
    if (art != nullptr &&
        clip(*clipGroup, clipPath, *context, localBounds(*art, context->matrix))) {
        keepSource(element, *clipGroup);
        return clipGroup;
    }
    if (art != nullptr) {
        moveArt(*art, onTopOf(parent));
        keepClipAsText(element, *art, *context);
    }
    disposeArt(*clipGroup);
    return art;
}

Art* ArtBuilder::readGroup(const Element& element, Art& parent, const Context& context) {
    Art& group = createArt(document_, kGroupArt, onTopOf(parent));
    const bool isLayer = parent.isLayer() && element.get("inkscape:groupmode") == "layer";
    if (isLayer) group.write().isLayerGroup = true;
    readContainer(element, group, context);
    return &group;
}

void ArtBuilder::readContainer(const Element& element, Art& group, const Context& context) {
    const auto inner = std::make_unique<Context>(context);
    if (element.name() == "svg") enterViewBox(element, *inner);
    group.write().clipped = element.isTrue("easel:clipped");
    if (context.style.opacity != 1.0)
        group.write().style.write().opacity = static_cast<AIReal>(context.style.opacity);
    if (auto effects = effectsOf(element, context))
        group.write().style.write().foreign = std::move(effects);
    readState(element, context.style, group);
    readChildren(element.node(), group, *inner);
    keepSource(element, group);
    if (element.name() == "svg") clipToViewport(element, group, context);
    const std::string& clipPath = context.style.clipPath;
    if (clipPath.empty() || element.isTrue("easel:clipped")) return;
    if (group.isLayer()) {
        static_cast<void>(clipLayer(group, clipPath, context));
        return;
    }
    if (!clip(group, clipPath, context, localBounds(group, context.matrix)))
        keepClipAsText(element, group, context);
}

/// Our own way of keeping a clip mask where it stands among the members of its group.
Art* ArtBuilder::readClipMembers(const Element& element, Art& parent, const Context& context) {
    Art* const before = parent.firstChild();
    parent.write().clipped = true;
    readChildren(element.node(), parent, context);
    Art* first = nullptr;
    for (Art* art = parent.firstChild(); art != before; art = art->next()) {
        setAttribute(*art, kArtIsClipMask);
        keepSource(element, *art); // its place is that of the clip path
        first = art;
    }
    if (source_ != nullptr)
        for (Art* art = first; art != nullptr && art != before; art = art->previous())
            source_->art[parent.handle()].parts.push_back(art->handle());
    return first;
}

Art* ArtBuilder::readShape(const Element& element, Art& parent, const Context& context) {
    const auto attribute = [&](std::string_view name) { return element.get(name); };
    std::optional<ShapeOutline> shape =
        shapeOutline(element.name(), attribute, context.viewport, context.style.font.size);
    if (!shape->error.empty())
        state_.warn(element, "<" + std::string{element.name()} + ">: " + shape->error +
                                 "; what comes before it is kept");
    const auto isTooLong = [](const Subpath& subpath) {
        return subpath.anchors.size() > static_cast<std::size_t>(kMaxPathSegments);
    };
    if (std::ranges::any_of(shape->outline, isTooLong)) {
        state_.warn(element, "the path has more than 32,000 segments; it is kept as it is, but "
                             "cannot be edited");
        return &addOpaque(kForeignArt, element, parent, context, boundsOf(shape->outline),
                          std::make_shared<OpaqueContent>());
    }
    ArtStyle style = styleFor(element, context, shape->outline);
    readInks(element, style);
    Art& art = addOutline(std::move(shape->outline), parent, context.matrix, style);
    if (art.type() == kPathArt) readEndHandles(element, art, offset_);
    readState(element, context.style, art);
    readMembers(element, art);
    keepSource(element, art);
    return &art;
}

Art& ArtBuilder::addOutline(Outline outline, Art& parent, const Matrix& matrix,
                            const ArtStyle& style) {
    Art& art =
        createArt(document_, outline.size() > 1 ? kCompoundPathArt : kPathArt, onTopOf(parent));
    const Cow<ArtStyle> shared{style};
    art.write().style = shared;
    if (art.type() == kPathArt) {
        if (!outline.empty()) setSegments(art, outline.front(), matrix);
        return art;
    }
    for (const Subpath& subpath : outline) {
        Art& member = createArt(document_, kPathArt, onTopOf(art));
        member.write().style = shared;
        setSegments(member, subpath, matrix);
    }
    return art;
}

void ArtBuilder::setSegments(Art& path, const Subpath& subpath, const Matrix& matrix) {
    Segments segments;
    segments.reserve(subpath.anchors.size());
    const auto place = [&](Point point) { return toSoft(matrix * point, offset_); };
    for (const Anchor& anchor : subpath.anchors) {
        AIPathSegment segment{place(anchor.p), place(anchor.in), place(anchor.out), 1};
        segment.corner = isCorner(segment);
        segments.push_back(segment);
    }
    ArtContent& content = path.write();
    content.segments = Cow<Segments>{std::move(segments)};
    content.closed = subpath.closed;
}

void ArtBuilder::readState(const Element& element, const Style& style, Art& art) {
    const bool guide = element.isTrue("easel:guide");
    const bool hidden = guide ? element.isTrue("easel:hidden")
                              : !style.displayed || (!style.visible && !isContainer(art));
    if (hidden) setAttribute(art, kArtHidden);
    if (element.isTrue("sodipodi:insensitive")) setAttribute(art, kArtLocked);
    if (guide && art.type() == kPathArt) art.write().guide = true;
    if (guide && art.type() == kCompoundPathArt)
        for (Art* member = art.firstChild(); member != nullptr; member = member->next())
            member->write().guide = true;
    if (element.has("easel:dictionary"))
        readEntries(element, element.get("easel:dictionary"), art.dictionary());
    if (source_ != nullptr && element.has("id")) art.write().id = Cow{element.get("id")};
    if (element.has("easel:note")) art.write().details.write().note = element.get("easel:note");
    const std::string label = element.get("inkscape:label");
    if (art.isLayer())
        readLayer(element, label, art.write().details.write().layer);
    else if (!label.empty())
        art.write().details.write().name = label;
}

void ArtBuilder::readLayer(const Element& element, const std::string& title,
                           LayerProperties& layer) {
    layer.title = title.empty() ? element.get("id") : title;
    layer.preview = element.get("easel:preview") != "false";
    layer.printed = element.get("easel:printed") != "false";
    layer.dimPlacedImages = element.isTrue("easel:dim-images");
    layer.isTemplate = element.isTrue("easel:template");
    if (const auto percent = parseNumber(element.get("easel:dimmed-percent")))
        layer.dimmedPercent = static_cast<ai::int32>(std::clamp(*percent, 0.0, 100.0));
    if (const auto colour = parseColour(element.get("inkscape:highlight-color"))) {
        const auto channel = [](float value) {
            return static_cast<ai::uint16>(std::lround(value * 65535.0F));
        };
        layer.color = {channel(colour->red), channel(colour->green), channel(colour->blue)};
    }
}

/// What members of a compound path have of their own, in the order of its subpaths.
void ArtBuilder::readMembers(const Element& element, Art& compound) {
    if (!element.has("easel:members") || compound.type() != kCompoundPathArt) return;
    using Json = nlohmann::json;
    try {
        const Json list = Json::parse(element.get("easel:members"));
        Art* member = compound.lastChild();
        for (const Json& item : list) {
            if (member == nullptr) return;
            if (item.value("locked", false)) setAttribute(*member, kArtLocked);
            if (item.value("hidden", false)) setAttribute(*member, kArtHidden);
            if (item.value("guide", false)) member->write().guide = true;
            if (item.contains("name") || item.contains("note")) {
                ArtDetails& details = member->write().details.write();
                details.name = item.value("name", "");
                details.note = item.value("note", "");
            }
            if (item.contains("dictionary"))
                readEntries(element, item.value("dictionary", ""), member->dictionary());
            member = member->previous();
        }
    } catch (const Json::exception&) {
        element.fail("easel:members is no list of what the subpaths carry");
    }
}

void ArtBuilder::keepSource(const Element& element, const Art& art) {
    if (source_ == nullptr) return;
    ArtSource& source = source_->art[art.handle()];
    source.node = element.node();
    source_->isArt[element.node()] = true;
}

} // namespace easel::svg

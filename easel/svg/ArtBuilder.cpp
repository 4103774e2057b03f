#include "easel/svg/ArtBuilder.h"

#include "easel/document/Layers.h"
#include "easel/svg/DictionaryJson.h"
#include "easel/svg/Numbers.h"
#include "easel/svg/ViewBox.h"

#include <nlohmann/json.hpp>

#include <algorithm>
#include <cmath>
#include <stdexcept>

namespace easel::svg {
namespace {

/// Handles in one line through the anchor make it smooth: their sine may be off by what rounding to
/// single precision does to short handles far out.
constexpr double kSmoothSine = 1e-3;

bool isGroup(std::string_view element) {
    return element == "g" || element == "a" || element == "switch" || element == "svg";
}

bool isOpaque(std::string_view element) {
    return element == "text" || element == "image" || element == "use";
}

bool isShape(std::string_view element) {
    for (const std::string_view shape :
         {"path", "rect", "circle", "ellipse", "line", "polyline", "polygon"})
        if (shape == element) return true;
    return false;
}

bool samePlace(AIRealPoint a, AIRealPoint b) { return a.h == b.h && a.v == b.v; }

AIBoolean isCorner(const AIPathSegment& segment) {
    if (samePlace(segment.p, segment.in) || samePlace(segment.p, segment.out)) return 1;
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
    return isGroup(name) || isShape(name) || isOpaque(name) ||
           (name == "clipPath" && element.isTrue("easel:clip"));
}

void ArtBuilder::readChildren(NodeIndex node, Art& parent, const Context& context,
                              std::vector<Interlude>* interludes) {
    PendingInterludes pending;
    const auto keepPending = [&](AIArtHandle before) {
        if (interludes != nullptr) pending.moveTo(*interludes, before);
    };
    for (NodeIndex child = state_.tree.at(node).firstChild; child != kNoNode;
         child = state_.tree.at(child).nextSibling) {
        Art* art = nullptr;
        if (state_.tree.at(child).kind == XmlTree::Kind::Element) {
            const Element element{state_.tree, child};
            art = readElement(element, parent, context);
        }
        if (art != nullptr)
            keepPending(art->handle());
        else if (interludes != nullptr)
            pending.add(state_.tree, child);
    }
    keepPending(nullptr);
}

Context ArtBuilder::contextOf(const Element& element, const Context& parent) {
    Context context{styleOf(element.properties(state_.sheet, state_.path), parent.style,
                            parent.viewport.diagonal()),
                    parent.matrix, parent.viewport};
    if (element.has("transform")) {
        const auto matrix = parseTransform(element.get("transform"));
        if (!matrix) {
            element.fail("the transform of <" + std::string{element.name()} +
                         "> is not understood; write matrix, translate, scale, rotate, skewX or "
                         "skewY with numbers");
        }
        context.matrix = parent.matrix * *matrix;
    }
    for (const double entry : {context.matrix.a, context.matrix.b, context.matrix.c,
                               context.matrix.d, context.matrix.e, context.matrix.f})
        if (!(std::abs(entry) <= kLargestCoordinate))
            element.fail("the transforms here lead beyond 1e9 user units; make them smaller");
    return context;
}

Art* ArtBuilder::readElement(const Element& element, Art& parent, const Context& parentContext) {
    if (!isArt(element)) return nullptr;
    const std::string_view name = element.name();
    const Deeper deeper{state_, element};
    const Pushed pushed{state_.path, element.selectorName()};
    state_.countElement(element);
    const auto context = std::make_unique<const Context>(contextOf(element, parentContext));
    if (name == "clipPath") return readClipMembers(element, parent, *context);
    if (isGroup(name)) return readGroup(element, parent, *context);

    const std::string& clipPath = context->style.clipPath;
    Art* const clipGroup =
        clipPath.empty() ? nullptr : &createArt(document_, kGroupArt, onTopOf(parent));
    Art& home = clipGroup != nullptr ? *clipGroup : parent;
    Art* const art = isShape(name) ? readShape(element, home, *context)
                                   : readOpaque(element, home, parentContext);
    if (clipGroup == nullptr) return art;
    if (art != nullptr && clip(*clipGroup, clipPath, *context, localBounds(*art, context->matrix)))
        return clipGroup;
    if (art != nullptr) {
        moveArt(*art, onTopOf(parent));
        keepClipAsText(*art, clipPath);
    }
    disposeArt(*clipGroup);
    return art;
}

Art* ArtBuilder::readGroup(const Element& element, Art& parent, const Context& context) {
    Art& group = createArt(document_, kGroupArt, onTopOf(parent));
    auto inner = std::make_unique<Context>(context);
    if (element.name() == "svg") enterViewBox(element, *inner);
    const bool isLayer = parent.isLayer() && element.get("inkscape:groupmode") == "layer";
    if (isLayer) group.write().isLayerGroup = true;
    group.write().clipped = element.isTrue("easel:clipped");
    styleContainer(group, context.style);
    readState(element, context.style, group);
    std::vector<Interlude> interludes;
    readChildren(element.node(), group, *inner, source_ == nullptr ? nullptr : &interludes);
    keepSource(element, group, std::move(interludes));
    const std::string& clipPath = context.style.clipPath;
    if (!clipPath.empty() && !group.content().clipped &&
        !clip(group, clipPath, context, localBounds(group, context.matrix)))
        keepClipAsText(group, clipPath);
    return &group;
}

/// Our own way of keeping a clip mask where it stands among the members of its group.
Art* ArtBuilder::readClipMembers(const Element& element, Art& parent, const Context& context) {
    Art* const before = parent.firstChild();
    parent.write().clipped = true;
    readChildren(element.node(), parent, context, nullptr);
    Art* first = nullptr;
    for (Art* art = parent.firstChild(); art != before; art = art->next()) {
        setAttribute(*art, kArtIsClipMask);
        first = art;
    }
    return first;
}

void ArtBuilder::styleContainer(Art& group, const Style& style) {
    if (style.opacity == 1.0 && style.others.empty()) return;
    ArtStyle& target = group.write().style.write();
    target.opacity = static_cast<AIReal>(style.opacity);
    if (style.others.empty()) return;
    auto extras = std::make_shared<StyleExtras>();
    extras->properties = style.others;
    target.foreign = std::move(extras);
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
        return &addOpaque(kForeignArt, element, parent, context, context, boundsOf(shape->outline),
                          std::make_shared<OpaqueContent>());
    }
    ArtStyle style = styleFor(context, shape->outline);
    readInks(element, style);
    Art& art = addOutline(std::move(shape->outline), parent, context.matrix, style);
    if (art.type() == kPathArt) readEndHandles(element, art, offset_);
    readState(element, context.style, art);
    readMembers(element, art);
    keepSource(element, art, {});
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
        readDictionary(element, element.get("easel:dictionary"), art.dictionary());
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
                readDictionary(element, item.value("dictionary", ""), member->dictionary());
            member = member->previous();
        }
    } catch (const Json::exception&) {
        element.fail("easel:members is no list of what the subpaths carry");
    }
}

void ArtBuilder::readDictionary(const Element& element, std::string_view text,
                                Dictionary& dictionary) {
    try {
        readDictionaryJson(text, dictionary);
    } catch (const std::invalid_argument& error) {
        element.fail("the entries of <" + std::string{element.name()} +
                     "> are broken: " + error.what());
    }
}

void ArtBuilder::keepSource(const Element& element, Art& art, std::vector<Interlude> interludes) {
    if (source_ == nullptr) return;
    ElementSource source;
    KeptAttributes kept = keptAttributes(element);
    source.attributes = std::move(kept.own);
    source.shapeAttributes = std::move(kept.shape);
    source.interludes = std::move(interludes);
    if (isGroup(element.name()) && element.name() != "g" && element.name() != "svg")
        source.tag = element.name();
    if (!source.shapeAttributes.empty()) source.shape = art.content().segments;
    if (isShape(element.name())) source.inner = trimmed(state_.tree.content(element.node()));
    const bool plain = source.attributes.empty() && source.shapeAttributes.empty() &&
                       source.interludes.empty() && source.tag.empty() && source.inner.empty();
    if (!plain) source_->elements.insert_or_assign(art.handle(), std::move(source));
}

} // namespace easel::svg

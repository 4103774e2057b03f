#include "easel/cli/Info.h"

#include "easel/document/Layers.h"
#include "easel/svg/Content.h"
#include "easel/svg/Numbers.h"
#include "easel/svg/SvgFile.h"

#include <nlohmann/json.hpp>

#include <algorithm>
#include <cmath>
#include <iostream>
#include <numbers>
#include <optional>
#include <string>
#include <vector>

namespace easel {
namespace {

using Json = nlohmann::ordered_json;

/// What a plug-in stores in a drawing, by the names under which it does.
constexpr std::string_view kAxesEntry = "FacettaFT";
constexpr std::string_view kCopyEntry = "FTMirroredv1";
constexpr std::string_view kGuideEntry = "FTAxisGuide";

struct KindName {
    ai::int16 type;
    const char* name;
};
constexpr KindName kKinds[] = {
    {kGroupArt, "groups"},
    {kPathArt, "paths"},
    {kCompoundPathArt, "compound paths"},
    {kTextFrameArt, "texts"},
    {kRasterArt, "images"},
    {kPlacedArt, "placed images"},
    {kSymbolArt, "symbols"},
    {kPluginArt, "plug-in groups"},
    {kMeshArt, "meshes"},
    {kForeignArt, "other art"},
};

struct Axes {
    int count = 0;
    double angleDegrees = 0.0;
    svg::Point origin; ///< In user units.
    bool automatic = true;
};

struct Counts {
    std::vector<int> kinds = std::vector<int>(std::size(kKinds));
    int segments = 0;
    int copies = 0;
    int guides = 0;
    int axisGuides = 0;

    void add(const Counts& other) {
        for (std::size_t i = 0; i < kinds.size(); ++i)
            kinds[i] += other.kinds[i];
        segments += other.segments;
        copies += other.copies;
        guides += other.guides;
        axisGuides += other.axisGuides;
    }
};

struct LayerInfo {
    const Art* layer;
    int depth;
    std::optional<Axes> axes;
    Counts counts; ///< Without those of sublayers.
};

const Value* find(const Dictionary* dictionary, std::string_view key) {
    return dictionary == nullptr ? nullptr : dictionary->find(internKey(key));
}

template <typename T> const T* find(const Dictionary* dictionary, std::string_view key) {
    const Value* const value = find(dictionary, key);
    return value == nullptr ? nullptr : std::get_if<T>(value);
}

/// A number kept as text; 0 when there is none.
double numberIn(const Dictionary& entries, std::string_view key) {
    const SharedText* const text = find<SharedText>(&entries, key);
    return text == nullptr ? 0.0 : svg::parseNumber(**text).value_or(0.0);
}

/// The origin is stored in canvas coordinates, whose y runs down as the drawing's does.
std::optional<Axes> axesOf(const Art& layer) {
    const auto* const entry = find<Ref<Dictionary>>(layer.dictionaryIfAny(), kAxesEntry);
    if (entry == nullptr) return std::nullopt;
    const Dictionary& entries = **entry;
    const Document& document = layer.document();
    const AIRealPoint ruler = document.state().rulerOrigin;
    const svg::Point offset = svg::rulerOffset(document);
    Axes axes;
    const ai::int32* const count = find<ai::int32>(&entries, "ac");
    axes.count = count == nullptr ? 1 : std::clamp(*count, 1, 72);
    axes.angleDegrees = numberIn(entries, "aa") * 180.0 / std::numbers::pi;
    axes.origin = {numberIn(entries, "cx") - ruler.h + offset.x,
                   numberIn(entries, "cy") - ruler.v + offset.y};
    if (const Boolean* const automatic = find<Boolean>(&entries, "au"))
        axes.automatic = automatic->value;
    return axes;
}

void count(const Art& art, Counts& counts) {
    for (std::size_t i = 0; i < std::size(kKinds); ++i)
        if (kKinds[i].type == art.type()) ++counts.kinds[i];
    counts.segments += static_cast<int>(art.segments().size());
    if (art.content().guide) ++counts.guides;
    const Dictionary* const entries = art.dictionaryIfAny();
    const ai::int32* const copy = find<ai::int32>(entries, kCopyEntry);
    if (copy != nullptr && *copy == 1) ++counts.copies;
    if (find(entries, kGuideEntry) != nullptr) ++counts.axisGuides;
}

std::vector<LayerInfo> layersOf(const Document& document) {
    std::vector<LayerInfo> layers;
    for (const Art* layer = layerFrom(document.root().firstChild()); layer != nullptr;
         layer = nextLayerInPreorder(*layer)) {
        LayerInfo info{layer, 0, axesOf(*layer), {}};
        for (const Art* parent = parentLayer(*layer); parent != nullptr;
             parent = parentLayer(*parent))
            ++info.depth;
        const Art* art = nextInPreorder(*layer, *layer);
        while (art != nullptr) {
            if (art->isLayer()) {
                art = nextSkippingChildren(*art, *layer);
                continue;
            }
            count(*art, info.counts);
            art = nextInPreorder(*art, *layer);
        }
        layers.push_back(std::move(info));
    }
    return layers;
}

Json countsJson(const Counts& counts) {
    Json kinds = Json::object();
    for (std::size_t i = 0; i < std::size(kKinds); ++i)
        if (counts.kinds[i] > 0) kinds[kKinds[i].name] = counts.kinds[i];
    return {{"art", kinds},
            {"segments", counts.segments},
            {"copies", counts.copies},
            {"guides", counts.guides},
            {"axisGuides", counts.axisGuides}};
}

Json layerJson(const LayerInfo& info) {
    Json json{{"title", info.layer->details().layer.title},
              {"depth", info.depth},
              {"visible", !info.layer->has(kArtHidden)},
              {"editable", !info.layer->has(kArtLocked)},
              {"axes", nullptr}};
    if (info.axes)
        json["axes"] = {{"count", info.axes->count},
                        {"angle", info.axes->angleDegrees},
                        {"origin", {info.axes->origin.x, info.axes->origin.y}},
                        {"automatic", info.axes->automatic}};
    json.update(countsJson(info.counts));
    return json;
}

/// At most three digits after the point: what a person wants to know of an angle or a place.
std::string rounded(double value) { return svg::formatNumber(std::round(value * 1000.0) / 1000.0); }

void printCounts(const Counts& counts, const std::string& indent, std::ostream& out) {
    std::string line;
    const auto add = [&](int number, const std::string& what) {
        if (number == 0) return;
        line += (line.empty() ? "" : ", ") + std::to_string(number) + ' ' + what;
    };
    for (std::size_t i = 0; i < std::size(kKinds); ++i)
        add(counts.kinds[i], kKinds[i].name);
    add(counts.segments, "segments");
    out << indent << (line.empty() ? "empty" : line) << '\n';
    line.clear();
    add(counts.copies, "mirrored copies");
    add(counts.guides, "guides");
    add(counts.axisGuides, "axis guides");
    if (!line.empty()) out << indent << line << '\n';
}

void printLayer(const LayerInfo& info, std::ostream& out) {
    const std::string indent(2 * static_cast<std::size_t>(info.depth) + 2, ' ');
    out << indent << "layer \"" << info.layer->details().layer.title << '"';
    if (info.layer->has(kArtHidden)) out << ", hidden";
    if (info.layer->has(kArtLocked)) out << ", locked";
    out << '\n';
    if (const auto& axes = info.axes)
        out << indent << "  axes " << axes->count << ", angle " << rounded(axes->angleDegrees)
            << ", origin " << rounded(axes->origin.x) << ',' << rounded(axes->origin.y)
            << (axes->automatic ? ", automatic" : ", by hand") << '\n';
    printCounts(info.counts, indent + "  ", out);
}

} // namespace

int runInfo(const InfoOptions& options, std::ostream& out) {
    const svg::OpenedDrawing opened = svg::readSvg(options.file);
    for (const std::string& warning : opened.warnings)
        std::cerr << warning << '\n';
    const AIDocumentSetup& setup = opened.document->state().setup;
    const std::vector<LayerInfo> layers = layersOf(*opened.document);
    Counts all;
    for (const LayerInfo& info : layers)
        all.add(info.counts);
    if (options.json) {
        Json list = Json::array();
        for (const LayerInfo& info : layers)
            list.push_back(layerJson(info));
        Json json{{"file", options.file.string()},
                  {"width", setup.width},
                  {"height", setup.height},
                  {"layers", std::move(list)}};
        json.update(countsJson(all));
        out << json.dump(2, ' ', false, Json::error_handler_t::replace) << '\n';
        return 0;
    }
    out << options.file.string() << ": " << rounded(static_cast<double>(setup.width)) << " x "
        << rounded(static_cast<double>(setup.height)) << '\n';
    for (const LayerInfo& info : layers)
        printLayer(info, out);
    out << "in all\n";
    printCounts(all, "  ", out);
    return 0;
}

} // namespace easel

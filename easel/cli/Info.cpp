#include "easel/cli/Info.h"

#include "easel/document/Layers.h"
#include "easel/session/Inventory.h"
#include "easel/svg/Numbers.h"
#include "easel/svg/SvgFile.h"

#include <nlohmann/json.hpp>

#include <cmath>
#include <iostream>
#include <optional>
#include <string>
#include <vector>

namespace easel {
namespace {

using Json = nlohmann::ordered_json;

struct LayerInfo {
    const Art* layer;
    int depth;
    std::optional<LayerAxes> axes;
    Inventory counts; ///< Without those of sublayers.
};

std::vector<LayerInfo> layersOf(const Document& document) {
    std::vector<LayerInfo> layers;
    for (const Art* layer = layerFrom(document.root().firstChild()); layer != nullptr;
         layer = nextLayerInPreorder(*layer)) {
        LayerInfo info{layer, 0, axesOn(*layer), inventoryOf(*layer)};
        for (const Art* parent = parentLayer(*layer); parent != nullptr;
             parent = parentLayer(*parent))
            ++info.depth;
        layers.push_back(std::move(info));
    }
    return layers;
}

Json countsJson(const Inventory& counts) {
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

void printCounts(const Inventory& counts, const std::string& indent, std::ostream& out) {
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

int runInfo(Session& session, const InfoOptions& options, std::ostream& out) {
    const svg::OpenedDrawing opened = svg::readSvg(session, options.file);
    for (const std::string& warning : opened.warnings)
        std::cerr << warning << '\n';
    const AIDocumentSetup& setup = opened.document->state().setup;
    const std::vector<LayerInfo> layers = layersOf(*opened.document);
    Inventory all;
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

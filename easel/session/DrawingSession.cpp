#include "easel/session/DrawingSession.h"

#include "easel/svg/SvgFile.h"

namespace easel {

DrawingSession::DrawingSession(Session& session, HostSettings settings) : host(session, settings) {}

DrawingSession::~DrawingSession() {
    if (running_) host.quit();
}

void DrawingSession::start() {
    host.user.browserAvailable = false; // a plug-in's first start would open a page for nobody
    try {
        running_ = true;
        host.start();
    } catch (const ai::Error& error) {
        throw SessionError("the plug-in's library cannot be loaded: " + codeText(error.code));
    }
    for (const auto& [handle, plugin] : host.plugins)
        if (plugin->broken) throw SessionError(plugin->name + ": the plug-in did not start");
}

std::vector<std::string> DrawingSession::open(const std::filesystem::path& file) {
    svg::OpenedDrawing drawing = svg::readSvg(host.session, file);
    host.open(std::move(drawing.document));
    return std::move(drawing.warnings);
}

std::vector<std::string> DrawingSession::save(const std::filesystem::path& file,
                                              OutputFile* together) {
    host.beforeSaving();
    std::vector<std::string> warnings;
    OutputFile output{file};
    output.prepare(svg::svgText(host.session.document(), &warnings));
    output.commit();
    if (together != nullptr) together->commit();
    host.afterSaving();
    return warnings;
}

std::vector<std::string> DrawingSession::finish() {
    running_ = false;
    host.quit();
    return host.complaints();
}

void addPluginLibrary(Host& host, const std::filesystem::path& file) {
    try {
        host.addPlugins(file);
    } catch (const ai::Error& error) {
        const std::string name = file.string();
        if (error.code == kSPPluginNotFoundError)
            throw SessionError(name + ": there is no plug-in; --plugin FILE names another");
        throw SessionError(name + ": not a plug-in that can be loaded: " + codeText(error.code));
    }
}

std::filesystem::path defaultPluginLibrary() {
    const std::filesystem::path program = programFolder();
    const std::filesystem::path name = pluginFileName();
    const std::filesystem::path places[] = {
        program / name,
        program / "dist" / name,
        program.parent_path() / "dist" / name,
        std::filesystem::current_path() / "dist" / name,
    };
    for (const std::filesystem::path& place : places)
        if (std::filesystem::exists(place)) return place;
    return places[0];
}

} // namespace easel

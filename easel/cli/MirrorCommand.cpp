#include "easel/cli/MirrorCommand.h"

#include "easel/cli/Progress.h"
#include "easel/cli/Statistics.h"
#include "easel/cli/Terminal.h"
#include "easel/core/HostCalls.h"
#include "easel/paint/PaintDocument.h"
#include "easel/svg/SvgFile.h"

namespace easel {
namespace {

void tellAlerts(const Host& host, std::ostream& error) {
    for (const Alert& alert : host.user.alerts)
        error << "easel: alert: " << alert.text << '\n';
}

/// The command step by step; throws what goes wrong.
ExitStatus mirrorDrawing(const MirrorCommand& command, Statistics& statistics,
                         std::ostream& error) {
    Progress progress{error, errorIsTerminal()};
    const auto phase = [&](const char* key, const char* shown) {
        statistics.time.begin(key);
        progress.begin(shown);
    };
    MirrorSession session;
    phase("start", "Starting");
    addPluginLibrary(session.host,
                     command.plugin.empty() ? defaultPluginLibrary() : command.plugin);
    session.prepare(command.request);
    session.start();
    phase("read", "Reading");
    for (const std::string& warning : session.open(command.input))
        error << warning << '\n';
    statistics.before = countArt(currentDocument());
    phase("mirror", "Mirroring");
    session.mirror(command.request);
    statistics.after = countArt(currentDocument());
    phase("write", "Writing");
    session.save(command.output);
    if (!command.picture.empty()) {
        phase("paint", "Painting");
        if (!paint::writePng(paint::paintDocument(currentDocument()), command.picture))
            throw SessionError(command.picture.string() + ": cannot be written");
    }
    phase("quit", "Quitting");
    const std::vector<std::string> complaints = session.finish();
    statistics.time.end();
    tellAlerts(session.host, error);
    for (const std::string& complaint : complaints)
        error << "easel: plug-in: " << complaint << '\n';
    return complaints.empty() ? ExitStatus::Done : ExitStatus::Fault;
}

} // namespace

ExitStatus runMirror(const MirrorCommand& command, std::ostream& out, std::ostream& error) {
    Statistics statistics;
    hostCalls().resetCounts();
    try {
        const ExitStatus status = mirrorDrawing(command, statistics, error);
        statistics.hostCalls = hostCalls().total();
        if (command.statistics) out << toJson(statistics) << '\n';
        return status;
    } catch (const svg::FileError& wrong) {
        error << wrong.what() << '\n';
    } catch (const ai::Error& wrong) {
        error << "easel: " << command.input.string() << ": failed with " << codeText(wrong.code)
              << '\n';
    } catch (const std::exception& wrong) {
        error << "easel: " << wrong.what() << '\n';
    }
    return ExitStatus::Fault;
}

} // namespace easel

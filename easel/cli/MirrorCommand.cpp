#include "easel/cli/MirrorCommand.h"

#include "easel/cli/Progress.h"
#include "easel/cli/Statistics.h"
#include "easel/cli/Terminal.h"
#include "easel/paint/PaintDocument.h"

#include <optional>

namespace easel {
namespace {

void tellAlerts(const Host& host, std::ostream& error) {
    for (const Alert& alert : host.user.alerts)
        error << "easel: alert: " << alert.text << '\n';
}

/// What the phases of the command tell as they go: their names to a waiting user, their time to the
/// statistics.
struct Report {
    Statistics& statistics;
    std::ostream& error;
    HostCalls& calls;
    Progress progress{calls, error, errorIsTerminal()};

    void begin(const char* key, const char* shown) {
        statistics.time.begin(key);
        progress.begin(shown);
    }
};

void start(MirrorSession& session, const MirrorCommand& command) {
    addPluginLibrary(session.host,
                     command.plugin.empty() ? defaultPluginLibrary() : command.plugin);
    session.prepare(command.request);
    session.start();
}

/// The command step by step, up to the saved result.
void mirrorDrawing(MirrorSession& session, const MirrorCommand& command, Report& report) {
    report.begin("start", "Starting");
    start(session, command);
    report.begin("read", "Reading");
    for (const std::string& warning : session.open(command.input))
        report.error << warning << '\n';
    report.statistics.before = inventoryOf(session.host.session.document());
    report.begin("mirror", "Mirroring");
    session.mirror(command.request);
    report.statistics.after = inventoryOf(session.host.session.document());
    // The picture first: if it cannot be made, no drawing is written either.
    std::optional<OutputFile> picture;
    if (!command.picture.empty()) {
        report.begin("paint", "Painting");
        picture.emplace(command.picture);
        picture->prepare(paint::pngText(paint::paintDocument(session.host.session.document())));
    }
    report.begin("write", "Writing");
    for (const std::string& warning : session.save(command.output, picture ? &*picture : nullptr))
        report.error << command.input.string() << ':' << warning << '\n';
}

ExitStatus runSession(Session& all, const MirrorCommand& command, Statistics& statistics,
                      std::ostream& error) {
    Report report{statistics, error, all.calls};
    MirrorSession session{all};
    try {
        mirrorDrawing(session, command, report);
    } catch (...) {
        tellAlerts(session.host, error); // the plug-in may have said more about it
        throw;
    }
    report.begin("quit", "Quitting");
    const std::vector<std::string> complaints = session.finish();
    statistics.time.end();
    tellAlerts(session.host, error);
    for (const std::string& complaint : complaints)
        error << "easel: plug-in: " << complaint << '\n';
    return complaints.empty() ? ExitStatus::Done : ExitStatus::Fault;
}

} // namespace

ExitStatus runMirror(Session& session, const MirrorCommand& command, std::ostream& out,
                     std::ostream& error) {
    Statistics statistics;
    session.calls.resetCounts();
    try {
        const ExitStatus status = runSession(session, command, statistics, error);
        statistics.hostCalls = session.calls.total();
        if (command.statistics) out << toJson(statistics) << '\n';
        return status;
    } catch (const FileError& wrong) {
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

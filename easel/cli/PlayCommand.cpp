#include "easel/cli/PlayCommand.h"

#include "easel/script/Script.h"

#include <algorithm>
#include <fstream>
#include <iterator>

namespace easel {
namespace {

using Path = std::filesystem::path;

constexpr const char* kScriptExtension = ".play";

/// The scripts one by one, those of a folder by name.
std::vector<Path> filesOf(const std::vector<Path>& given) {
    std::vector<Path> files;
    for (const Path& each : given) {
        if (!std::filesystem::is_directory(each)) {
            files.push_back(each);
            continue;
        }
        std::vector<Path> inside;
        for (const auto& entry : std::filesystem::directory_iterator(each))
            if (entry.path().extension() == kScriptExtension) inside.push_back(entry.path());
        std::sort(inside.begin(), inside.end());
        files.insert(files.end(), inside.begin(), inside.end());
        if (inside.empty())
            throw SessionError(each.string() + ": there are no scripts; their names end in " +
                               kScriptExtension);
    }
    return files;
}

std::string contentOf(const Path& file) {
    std::ifstream stream(file, std::ios::binary);
    if (!stream) throw SessionError(file.generic_string() + ": there is no such script");
    return {std::istreambuf_iterator<char>(stream), {}};
}

Switches hostOf(const PlayCommand& command) {
    Switches host;
    const std::span<const SwitchName> names = switchNames();
    for (const std::string& turned : command.turned) {
        const auto named = std::ranges::find(names, turned, &SwitchName::name);
        if (named == names.end()) throw SessionError("hosts do not differ in \"" + turned + '"');
        host.*named->value = !(host.*named->value);
    }
    return host;
}

script::Outcome playFile(Session& session, const PlayCommand& command, const Path& file) {
    const std::string name = file.generic_string();
    script::Script script = script::readScript(contentOf(file), name);
    if (!script.mistakes.empty()) return {0, std::move(script.mistakes)};
    return script::play(session, script, name,
                        {.plugin = command.plugin.empty() ? defaultPluginLibrary() : command.plugin,
                         .folder = file.parent_path(),
                         .output = command.output,
                         .name = file.stem().string(),
                         .host = hostOf(command)});
}

} // namespace

ExitStatus runPlay(Session& session, const PlayCommand& command, std::ostream& out,
                   std::ostream& error) {
    ExitStatus status = ExitStatus::Done;
    try {
        for (const Path& file : filesOf(command.scripts)) {
            const script::Outcome outcome = playFile(session, command, file);
            for (const std::string& failure : outcome.failures)
                error << failure << '\n';
            if (!outcome.failures.empty())
                status = ExitStatus::Fault;
            else
                out << file.generic_string() << ": as it should be, " << outcome.expectations
                    << " expectations\n";
            out.flush();
        }
    } catch (const std::exception& wrong) {
        error << "easel: " << wrong.what() << '\n';
        status = ExitStatus::Fault;
    }
    return status;
}

} // namespace easel

#include "easel/cli/Info.h"
#include "easel/cli/MirrorCommand.h"
#include "easel/cli/PlayCommand.h"
#include "easel/cli/Terminal.h"
#include "easel/cli/ValidateCommand.h"
#include "easel/script/Commands.h"
#include "easel/suites/Suites.h"
#include "easel/window/Window.h"

#include "Version.h"

#include <CLI/CLI.hpp>

#include <algorithm>
#include <cmath>
#include <iostream>
#include <utility>

namespace {

using easel::ExitStatus;

constexpr int kMostAxes = 72;
constexpr const char* kSelectionMode = "selection";
constexpr const char* kLayerMode = "layer";

/// An option that names a file.
CLI::Option* addFile(CLI::App* command, const std::string& name, std::filesystem::path& file,
                     const std::string& meaning) {
    const auto read = [&file](const std::string& text) { file = easel::pathFromUtf8(text); };
    return command->add_option_function<std::string>(name, read, meaning);
}

void addPlugin(CLI::App* command, std::filesystem::path& plugin) {
    addFile(command, "--plugin", plugin, "The plug-in's library")->type_name("FILE");
}

CLI::Validator finite() {
    return {[](const std::string& text) -> std::string {
                double value = 0;
                const bool isNumber = CLI::detail::lexical_cast(text, value);
                return isNumber && std::isfinite(value) ? "" : text + " is not a number";
            },
            ""};
}

void addMirror(CLI::App& app, easel::MirrorCommand& command) {
    easel::MirrorRequest& request = command.request;
    CLI::App* const mirror = app.add_subcommand("mirror", "Mirror a drawing across axes");
    addFile(mirror, "input", command.input, "The drawing")->required()->type_name("IN.svg");
    addFile(mirror, "-o,--output", command.output, "Where the result goes")
        ->required()
        ->type_name("OUT.svg");
    mirror->add_option("--axes", request.axes, "Number of axes, 1 to 72")
        ->required()
        ->check(CLI::Range(1, kMostAxes))
        ->option_text("N REQUIRED");
    mirror
        ->add_option("--angle", request.angleDegrees,
                     "Angle of the first axis, degrees counter-clockwise")
        ->check(finite())
        ->option_text("DEG");
    const auto readOrigin = [&request](const std::vector<double>& place) {
        request.origin = easel::DrawingPoint{place[0], place[1]};
    };
    mirror
        ->add_option_function<std::vector<double>>(
            "--origin", readOrigin,
            "Where the axes cross, in the drawing's units, y down; by default its middle")
        ->delimiter(',')
        ->expected(2)
        ->check(finite())
        ->option_text("X,Y");
    const auto readMode = [&request](const std::string& mode) {
        if (mode == kLayerMode) request.mode = easel::MirrorMode::Layer;
    };
    mirror
        ->add_option_function<std::string>(
            "--mode", readMode,
            "selection: mirror the art once; layer: leave the axes on the layer")
        ->check(CLI::IsMember({kSelectionMode, kLayerMode}))
        ->option_text("selection|layer");
    mirror->add_option("--layer", request.layer, "Only this layer")->type_name("NAME");
    mirror->add_flag("--keep-points", request.keepPoints,
                     "Keep the points made on the axes where the shape needs none");
    addFile(mirror, "--png", command.picture, "Paint the result as well")->type_name("OUT.png");
    addPlugin(mirror, command.plugin);
    mirror->add_flag("--stats", command.statistics, "Tell counts and seconds as JSON");
}

void addInfo(CLI::App& app, easel::InfoOptions& options) {
    CLI::App* const info = app.add_subcommand("info", "Tell what a drawing holds");
    addFile(info, "file", options.file, "The drawing")->required()->type_name("FILE.svg");
    info->add_flag("--json", options.json, "As JSON");
}

void addPlay(CLI::App& app, easel::PlayCommand& command, bool& tells) {
    CLI::App* const play = app.add_subcommand("play", "Replay what a user does, from scripts");
    const auto readScripts = [&command](const std::vector<std::string>& scripts) {
        for (const std::string& each : scripts)
            command.scripts.push_back(easel::pathFromUtf8(each));
    };
    auto* const scripts = play->add_option_function<std::vector<std::string>>(
        "scripts", readScripts, "Scripts, or folders of *.play files");
    scripts->type_name("SCRIPT");
    addFile(play, "-o,--output", command.output,
            "The folder for what scripts save and for pictures of failures")
        ->type_name("DIR");
    addPlugin(play, command.plugin);
    play->add_option("--host", command.turned,
                     "What the host does the other way; names as of the script command \"host\"")
        ->type_name("NAME")
        ->allow_extra_args(false);
    play->add_flag("--commands", tells, "Tell the commands of scripts instead")->excludes(scripts);
    play->callback([&] {
        if (command.scripts.empty() && !tells) throw CLI::RequiredError("SCRIPT");
    });
}

void addOpen(CLI::App& app, easel::window::WindowOptions& options) {
    CLI::App* const open = app.add_subcommand("open", "Show a window to draw in");
    addFile(open, "file", options.file, "The drawing; an empty one if none is named")
        ->type_name("FILE.svg");
    addFile(open, "--record", options.record, "Keep what is done as a script for \"play\"")
        ->type_name("FILE.play");
    addFile(open, "--figures", options.figures, "Tell four times a second what the window costs")
        ->type_name("FILE");
    addPlugin(open, options.plugin);
}

ExitStatus open(easel::Session& session, easel::window::WindowOptions options) {
    if (options.plugin.empty()) options.plugin = easel::defaultPluginLibrary();
    const auto problems = easel::window::openWindow(session, options);
    for (const std::string& problem : problems)
        std::cerr << "easel: " << problem << '\n';
    return problems.empty() ? ExitStatus::Done : ExitStatus::Fault;
}

void addValidate(CLI::App& app, easel::ValidateCommand& command) {
    easel::validate::Options& options = command.options;
    CLI::App* const validate =
        app.add_subcommand("validate", "Try every way in which a plug-in could go wrong");
    addPlugin(validate, options.plugin);
    validate->add_option("--strictness", options.strictness, "How much is tried, 1 to 5")
        ->check(CLI::Range(1, 5))
        ->option_text("N");
    validate->add_option("--seed", options.seed, "Of what is chosen at random")->type_name("N");
    validate->add_option("--from", options.from, "The number of the first try of each check")
        ->type_name("K");
    validate->add_option("--count", options.count, "The most tries of each check")->type_name("N");
    validate->add_option("--only", options.only, "This check alone")->type_name("CHECK");
    auto* const json = validate->add_flag("--json", command.json, "Tell all as JSON");
    validate
        ->add_flag("--here", command.here,
                   "In this process and line by line, for a debugger; needs --only")
        ->needs("--only")
        ->excludes(json);
}

/// Takes the arguments without the program's name.
ExitStatus run(std::vector<std::string> arguments) {
    CLI::App app{"Easel opens drawings, mirrors them with the Facetta plug-in and saves them.",
                 "easel"};
    app.allow_windows_style_options(false); // "/drawings/a.svg" is a file, here as there
    app.set_version_flag("--version", "easel " FACETTA_VERSION);
    app.require_subcommand(1);
    easel::MirrorCommand mirror;
    addMirror(app, mirror);
    easel::InfoOptions info;
    addInfo(app, info);
    easel::PlayCommand play;
    bool tellsCommands = false;
    addPlay(app, play, tellsCommands);
    easel::window::WindowOptions window;
    addOpen(app, window);
    easel::ValidateCommand validate;
    addValidate(app, validate);
    try {
        std::reverse(arguments.begin(), arguments.end()); // the parser takes them from the back
        app.parse(std::move(arguments));
    } catch (const CLI::ParseError& error) {
        return app.exit(error) == 0 ? ExitStatus::Done : ExitStatus::Usage;
    }
    easel::Session& session = easel::sessionWithSuites();
    if (app.got_subcommand("info"))
        return static_cast<ExitStatus>(runInfo(session, info, std::cout));
    if (app.got_subcommand("open")) return open(session, std::move(window));
    if (app.got_subcommand("validate"))
        return runValidate(session, std::move(validate), std::cout, std::cerr);
    if (tellsCommands) {
        std::cout << easel::script::languageTables();
        return ExitStatus::Done;
    }
    if (app.got_subcommand("play")) return runPlay(session, play, std::cout, std::cerr);
    return runMirror(session, mirror, std::cout, std::cerr);
}

} // namespace

int main(int count, char** arguments) {
    try {
        std::vector<std::string> given = easel::utf8Arguments(count, arguments);
        given.erase(given.begin());
        return static_cast<int>(run(std::move(given)));
    } catch (const std::exception& wrong) {
        std::cerr << wrong.what() << '\n';
        return static_cast<int>(ExitStatus::Fault);
    }
}

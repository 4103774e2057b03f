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

/// The options of `easel mirror` as they stand on the command line.
struct MirrorWords {
    easel::MirrorCommand command;
    std::string input;
    std::string output;
    std::string picture;
    std::string plugin;
    std::string mode = kSelectionMode;
    std::vector<double> origin;
};

CLI::Validator finite() {
    return {[](const std::string& text) -> std::string {
                double value = 0;
                const bool isNumber = CLI::detail::lexical_cast(text, value);
                return isNumber && std::isfinite(value) ? "" : text + " is not a number";
            },
            ""};
}

void addMirror(CLI::App& app, MirrorWords& words) {
    easel::MirrorRequest& request = words.command.request;
    CLI::App* const mirror = app.add_subcommand("mirror", "Mirror a drawing across axes");
    mirror->add_option("input", words.input, "The drawing")->required()->type_name("IN.svg");
    mirror->add_option("-o,--output", words.output, "Where the result goes")
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
    mirror
        ->add_option("--origin", words.origin,
                     "Where the axes cross, in the drawing's units, y down; by default its middle")
        ->delimiter(',')
        ->expected(2)
        ->check(finite())
        ->option_text("X,Y");
    mirror
        ->add_option("--mode", words.mode,
                     "selection: mirror the art once; layer: leave the axes on the layer")
        ->check(CLI::IsMember({kSelectionMode, kLayerMode}))
        ->option_text("selection|layer");
    mirror->add_option("--layer", request.layer, "Only this layer")->type_name("NAME");
    mirror->add_flag("--keep-points", request.keepPoints,
                     "Keep the points made on the axes where the shape needs none");
    mirror->add_option("--png", words.picture, "Paint the result as well")->type_name("OUT.png");
    mirror->add_option("--plugin", words.plugin, "The plug-in's library")->type_name("FILE");
    mirror->add_flag("--stats", words.command.statistics, "Tell counts and seconds as JSON");
}

ExitStatus mirror(MirrorWords& words) {
    easel::MirrorCommand& command = words.command;
    command.input = easel::pathFromUtf8(words.input);
    command.output = easel::pathFromUtf8(words.output);
    command.picture = easel::pathFromUtf8(words.picture);
    command.plugin = easel::pathFromUtf8(words.plugin);
    if (words.mode == kLayerMode) command.request.mode = easel::MirrorMode::Layer;
    if (!words.origin.empty())
        command.request.origin = easel::DrawingPoint{words.origin[0], words.origin[1]};
    return easel::runMirror(easel::sessionWithSuites(), command, std::cout, std::cerr);
}

struct InfoWords {
    std::string file;
    easel::InfoOptions options;
};

void addInfo(CLI::App& app, InfoWords& words) {
    CLI::App* const info = app.add_subcommand("info", "Tell what a drawing holds");
    info->add_option("file", words.file, "The drawing")->required()->type_name("FILE.svg");
    info->add_flag("--json", words.options.json, "As JSON");
}

ExitStatus info(InfoWords& words) {
    words.options.file = easel::pathFromUtf8(words.file);
    return static_cast<ExitStatus>(
        easel::runInfo(easel::sessionWithSuites(), words.options, std::cout));
}

struct PlayWords {
    std::vector<std::string> scripts;
    std::string output = ".";
    std::string plugin;
    std::vector<std::string> turned;
    bool commands = false;
};

void addPlay(CLI::App& app, PlayWords& words) {
    CLI::App* const play = app.add_subcommand("play", "Replay what a user does, from scripts");
    auto* const scripts =
        play->add_option("scripts", words.scripts, "Scripts, or folders of *.play files");
    scripts->type_name("SCRIPT");
    play->add_option("-o,--output", words.output,
                     "The folder for what scripts save and for pictures of failures")
        ->type_name("DIR");
    play->add_option("--plugin", words.plugin, "The plug-in's library")->type_name("FILE");
    play->add_option("--host", words.turned,
                     "What the host does the other way; names as of the script command \"host\"")
        ->type_name("NAME")
        ->allow_extra_args(false);
    play->add_flag("--commands", words.commands, "Tell the commands of scripts instead")
        ->excludes(scripts);
    play->callback([&words] {
        if (words.scripts.empty() && !words.commands) throw CLI::RequiredError("SCRIPT");
    });
}

ExitStatus play(const PlayWords& words) {
    if (words.commands) {
        std::cout << easel::script::languageTables();
        return ExitStatus::Done;
    }
    easel::PlayCommand command;
    for (const std::string& each : words.scripts)
        command.scripts.push_back(easel::pathFromUtf8(each));
    command.output = easel::pathFromUtf8(words.output);
    command.plugin = easel::pathFromUtf8(words.plugin);
    command.turned = words.turned;
    return easel::runPlay(easel::sessionWithSuites(), command, std::cout, std::cerr);
}

struct OpenWords {
    std::string file;
    std::string record;
    std::string plugin;
};

void addOpen(CLI::App& app, OpenWords& words) {
    CLI::App* const open = app.add_subcommand("open", "Show a window to draw in");
    open->add_option("file", words.file, "The drawing; an empty one if none is named")
        ->type_name("FILE.svg");
    open->add_option("--record", words.record, "Keep what is done as a script for \"play\"")
        ->type_name("FILE.play");
    open->add_option("--plugin", words.plugin, "The plug-in's library")->type_name("FILE");
}

ExitStatus open(const OpenWords& words) {
    const auto problems = easel::window::openWindow(
        easel::sessionWithSuites(),
        {.file = easel::pathFromUtf8(words.file),
         .record = easel::pathFromUtf8(words.record),
         .plugin = words.plugin.empty() ? easel::defaultPluginLibrary()
                                        : easel::pathFromUtf8(words.plugin)});
    for (const std::string& problem : problems)
        std::cerr << "easel: " << problem << '\n';
    return problems.empty() ? ExitStatus::Done : ExitStatus::Fault;
}

struct ValidateWords {
    std::string plugin;
    easel::ValidateCommand command;
};

void addValidate(CLI::App& app, ValidateWords& words) {
    easel::validate::Options& options = words.command.options;
    CLI::App* const validate =
        app.add_subcommand("validate", "Try every way in which a plug-in could go wrong");
    validate->add_option("--plugin", words.plugin, "The plug-in's library")->type_name("FILE");
    validate->add_option("--strictness", options.strictness, "How much is tried, 1 to 5")
        ->check(CLI::Range(1, 5))
        ->option_text("N");
    validate->add_option("--seed", options.seed, "Of what is chosen at random")->type_name("N");
    validate->add_option("--from", options.from, "The number of the first try of each check")
        ->type_name("K");
    validate->add_option("--count", options.count, "The most tries of each check")->type_name("N");
    validate->add_option("--only", options.only, "This check alone")->type_name("CHECK");
    auto* const json = validate->add_flag("--json", words.command.json, "Tell all as JSON");
    validate
        ->add_flag("--here", words.command.here,
                   "In this process and line by line, for a debugger; needs --only")
        ->needs("--only")
        ->excludes(json);
}

ExitStatus validate(ValidateWords& words) {
    words.command.options.plugin = easel::pathFromUtf8(words.plugin);
    return easel::runValidate(easel::sessionWithSuites(), words.command, std::cout, std::cerr);
}

/// Takes the arguments without the program's name.
int run(std::vector<std::string> arguments) {
    CLI::App app{"Easel opens drawings, mirrors them with the Facetta plug-in and saves them.",
                 "easel"};
    app.allow_windows_style_options(false); // "/drawings/a.svg" is a file, here as there
    app.set_version_flag("--version", "easel " FACETTA_VERSION);
    app.require_subcommand(1);
    MirrorWords mirrorWords;
    InfoWords infoWords;
    addMirror(app, mirrorWords);
    PlayWords playWords;
    addInfo(app, infoWords);
    addPlay(app, playWords);
    OpenWords openWords;
    addOpen(app, openWords);
    ValidateWords validateWords;
    addValidate(app, validateWords);
    try {
        std::reverse(arguments.begin(), arguments.end()); // the parser takes them from the back
        app.parse(std::move(arguments));
    } catch (const CLI::ParseError& error) {
        return static_cast<int>(app.exit(error) == 0 ? ExitStatus::Done : ExitStatus::Usage);
    }
    if (app.got_subcommand("info")) return static_cast<int>(info(infoWords));
    if (app.got_subcommand("open")) return static_cast<int>(open(openWords));
    if (app.got_subcommand("validate")) return static_cast<int>(validate(validateWords));
    if (app.got_subcommand("play")) return static_cast<int>(play(playWords));
    return static_cast<int>(mirror(mirrorWords));
}

} // namespace

int main(int count, char** arguments) {
    try {
        std::vector<std::string> given = easel::utf8Arguments(count, arguments);
        given.erase(given.begin());
        return run(std::move(given));
    } catch (const std::exception& wrong) {
        std::cerr << wrong.what() << '\n';
        return static_cast<int>(ExitStatus::Fault);
    }
}

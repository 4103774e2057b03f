#include "easel/cli/ValidateCommand.h"

#include "easel/session/DrawingSession.h"
#include "easel/validate/Validate.h"

#include <nlohmann/json.hpp>

#include <cmath>

namespace easel {
namespace {

using Json = nlohmann::ordered_json;

/// More of one check say no more than these.
constexpr std::size_t kMostShown = 20;

double tenths(double seconds) { return std::round(seconds * 10) / 10; }

void tell(const validate::Result& result, std::ostream& out) {
    Json seconds = tenths(result.seconds); // which writes 0.3 as 0.3
    out << result.check->name << ": " << result.tries << " tries in " << seconds << " s, "
        << (result.faults.empty() ? "nothing found"
                                  : std::to_string(result.faults.size()) + " found")
        << '\n';
    for (std::size_t i = 0; i < std::min(result.faults.size(), kMostShown); ++i) {
        const validate::Fault& fault = result.faults[i];
        out << "  " << fault.tried << ": " << fault.found << "\n    " << fault.command << '\n';
        for (const std::string& line : fault.more)
            out << "    | " << line << '\n';
    }
    out.flush();
}

Json jsonOf(const validate::Result& result) {
    Json faults = Json::array();
    for (const validate::Fault& fault : result.faults)
        faults.push_back({{"number", fault.number},
                          {"tried", fault.tried},
                          {"found", fault.found},
                          {"more", fault.more},
                          {"command", fault.command}});
    return {{"check", result.check->name},
            {"promise", result.check->promise},
            {"tries", result.tries},
            {"seconds", tenths(result.seconds)},
            {"found", std::move(faults)}};
}

} // namespace

ExitStatus runValidate(Session& session, ValidateCommand command, std::ostream& out,
                       std::ostream& error) {
    try {
        validate::Options& options = command.options;
        if (options.plugin.empty()) options.plugin = defaultPluginLibrary();
        if (command.here) {
            validate::runInThisProcess(session, options, out);
            return ExitStatus::Done;
        }
        bool sound = true;
        Json checks = Json::array();
        validate::runChecks(options, [&](const validate::Result& result) {
            sound = sound && result.faults.empty();
            if (command.json)
                checks.push_back(jsonOf(result));
            else
                tell(result, out);
        });
        if (command.json)
            out << Json{{"plugin", options.plugin.string()},
                        {"strictness", options.strictness},
                        {"seed", options.seed},
                        {"sound", sound},
                        {"checks", std::move(checks)}}
                       .dump(2)
                << '\n';
        return sound ? ExitStatus::Done : ExitStatus::Fault;
    } catch (const std::invalid_argument& wrong) {
        error << "easel: " << wrong.what() << '\n';
        return ExitStatus::Usage;
    } catch (const ai::Error& wrong) {
        error << "easel: failed with " << codeText(wrong.code) << '\n';
    } catch (const std::exception& wrong) {
        error << "easel: " << wrong.what() << '\n';
    }
    return ExitStatus::Fault;
}

} // namespace easel

#include "shell/Plugin.h"
#include "shell/Routing.h"

#include <doctest/doctest.h>

#include <string>

using namespace facetta;

namespace {

/// Notes which operation a message reached.
class RecordingPlugin final : public Plugin {
public:
    RecordingPlugin() : Plugin(nullptr) {}

    AIErr GoMenuItem(AIMenuMessage&) override { return note("GoMenuItem"); }
    AIErr ToolMouseDrag(AIToolMessage&) override { return note("ToolMouseDrag"); }
    AIErr GoTimer(AITimerMessage&) override { return note("GoTimer"); }
    AIErr SetFileFormatParameters(AIFileFormatMessage&) override { return note("file format"); }
    AIErr WorkspaceWrite(AIWorkspaceMessage&) override { return note("WorkspaceWrite"); }
    bool Purge() override { return flushed; }

    std::string reached;
    bool flushed = false;

private:
    AIErr note(const char* operation) {
        reached = operation;
        return kBadParameterErr;
    }
};

/// Large enough for the record of any message.
struct AnyMessage {
    alignas(std::max_align_t) std::array<std::byte, 256> bytes{};
};

struct Row {
    const char* caller;
    const char* selector;
    const char* operation; ///< empty: nobody handles it
    AIErr answer;          ///< of the plug-in, or of its base where the operation is not named here
};

constexpr Row kRows[] = {
    {"AI Menu", "AI Go", "GoMenuItem", kBadParameterErr},
    {"AI Tool", "AI Mouse Drag", "ToolMouseDrag", kBadParameterErr},
    {"AI Timer", "AI Go", "GoTimer", kBadParameterErr},
    {"AI File Format", "Do Action", "file format", kBadParameterErr},
    {"Workspace Manager", "Write Woskspace", "WorkspaceWrite", kBadParameterErr}, // the host's way
    // What the base answers.
    {"SP Interface", "Startup", "", kNoErr},
    {"Action Manager", "Do Action", "", kNoErr},
    {"AI Tool", "AI Reselect", "", kNoErr},
    {"AI Tool", "AI Decrease Diameter", "", kNoErr},
    {"AI Annotation", "AI Draw", "", kNoErr},
    {"AI Tool", "AI Mouse Down", "", kUnhandledMsgErr},
    {"AI Clipboard", "AI Clone", "", kUnhandledMsgErr},
    {"Workspace Manager", "Default Woskspace", "", kUnhandledMsgErr},
    // What nobody handles.
    {"Workspace Manager", "Write Workspace", "", kUnhandledMsgErr},
    {"AI Menu", "AI go", "", kUnhandledMsgErr},
    {"AI Menu", "AI Go ", "", kUnhandledMsgErr},
    {"AI Timer", "AI Update", "", kUnhandledMsgErr},
    {"AI Toolbox", "AI Mouse Down", "", kUnhandledMsgErr},
    {"", "", "", kUnhandledMsgErr},
};

} // namespace

TEST_CASE("a message reaches its operation, and no other; the base answers or leaves the rest") {
    for (const Row& row : kRows) {
        INFO(row.caller, " / ", row.selector);
        RecordingPlugin plugin;
        AnyMessage message;
        CHECK(route(plugin, row.caller, row.selector, &message) == row.answer);
        CHECK(plugin.reached == row.operation);
    }
}

TEST_CASE("a purge tells whether caches were flushed") {
    RecordingPlugin plugin;
    AnyMessage message;
    CHECK(route(plugin, "SP Cache", "Plug-in Purge", &message) == kNoErr);
    plugin.flushed = true;
    CHECK(route(plugin, "SP Cache", "Plug-in Purge", &message) == kSPPluginCachesFlushResponse);
}

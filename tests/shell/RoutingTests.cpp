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

    AIErr Reload(SPAccessMessage&) override { return note("Reload"); }
    AIErr AcquireProperty(SPPropertiesMessage&) override { return note("AcquireProperty"); }
    AIErr About(SPInterfaceMessage&) override { return note("About"); }
    AIErr GoAction(DoActionMessage&) override { return note("GoAction"); }
    AIErr GoMenuItem(AIMenuMessage&) override { return note("GoMenuItem"); }
    AIErr GetFilterParameters(AIFilterMessage&) override { return note("GetFilterParameters"); }
    AIErr PluginGroupUpdate(AIPluginGroupMessage&) override { return note("PluginGroupUpdate"); }
    AIErr SetFileFormatParameters(AIFileFormatMessage&) override {
        return note("SetFileFormatParameters");
    }
    AIErr ToolMouseDrag(AIToolMessage&) override { return note("ToolMouseDrag"); }
    AIErr AnnotatorDraw(AIAnnotatorMessage&) override { return note("AnnotatorDraw"); }
    AIErr LiveEffectGoLive(AILiveEffectGoMessage&) override { return note("GoLive"); }
    AIErr LiveEffectConvertColorSpace(SPMessageData&) override { return note("ConvertColor"); }
    AIErr GoTimer(AITimerMessage&) override { return note("GoTimer"); }
    AIErr ClipboardCanCopy(AIClipboardMessage&) override { return note("ClipboardCanCopy"); }
    AIErr WorkspaceWrite(AIWorkspaceMessage&) override { return note("WorkspaceWrite"); }
    bool Purge() override { return flushed; }

    std::string reached;
    bool flushed = false;

private:
    static constexpr AIErr kReached = 4711;
    AIErr note(const char* operation) {
        reached = operation;
        return kReached;
    }
};

/// Large enough for the record of any message.
struct AnyMessage {
    alignas(std::max_align_t) std::array<std::byte, 256> bytes{};
};

struct Row {
    const char* caller;
    const char* selector;
    const char* operation;
};

/// One of each kind of record, and those with odd names.
constexpr Row kRows[] = {
    {"SP Access", "Reload", "Reload"},
    {"SP Interface", "About", "About"},
    {"SP Properties", "Acquire", "AcquireProperty"},
    {"Action Manager", "Do Action", "GoAction"},
    {"AI Menu", "AI Go", "GoMenuItem"},
    {"AI Filter", "AI Get Parameters", "GetFilterParameters"},
    {"AI Plugin Group", "AI Update", "PluginGroupUpdate"},
    {"AI File Format", "Do Action", "SetFileFormatParameters"},
    {"AI Tool", "AI Mouse Drag", "ToolMouseDrag"},
    {"AI Annotation", "AI Draw", "AnnotatorDraw"},
    {"AI Live Effect", "AI Live Effect Go Live", "GoLive"},
    {"AI Live Effect", "AI Live Effect Convert Color Space", "ConvertColor"},
    {"AI Timer", "AI Go", "GoTimer"},
    {"AI Clipboard", "AI Can Copy", "ClipboardCanCopy"},
    {"Workspace Manager", "Write Woskspace", "WorkspaceWrite"},
    // Not handled by anyone.
    {"Workspace Manager", "Write Workspace", ""},
    {"AI Menu", "AI go", ""},
    {"AI Menu", "AI Go ", ""},
    {"AI Timer", "AI Update", ""},
    {"AI Toolbox", "AI Mouse Down", ""},
    {"ai tool", "AI Mouse Down", ""},
    {"SP Adapters", "Startup", ""},
    {"", "", ""},
};

} // namespace

TEST_CASE("each pair of caller and selector reaches its operation, and no other pair any") {
    for (const auto& row : kRows) {
        INFO(row.caller, " / ", row.selector);
        RecordingPlugin plugin;
        AnyMessage message;
        const AIErr result = route(plugin, row.caller, row.selector, &message);
        CHECK(plugin.reached == row.operation);
        CHECK((result == kUnhandledMsgErr) == plugin.reached.empty());
    }
}

TEST_CASE("a purge tells whether caches were flushed") {
    RecordingPlugin plugin;
    AnyMessage message;
    CHECK(route(plugin, "SP Cache", "Plug-in Purge", &message) == kNoErr);
    plugin.flushed = true;
    CHECK(route(plugin, "SP Cache", "Plug-in Purge", &message) == kSPPluginCachesFlushResponse);
}

TEST_CASE("the base answers some messages with success and leaves the others unhandled") {
    struct BaseRow {
        const char* caller;
        const char* selector;
        AIErr answer;
    };
    const BaseRow rows[] = {
        {"SP Interface", "Startup", kNoErr},
        {"Action Manager", "Do Action", kNoErr},
        {"AI Tool", "AI Reselect", kNoErr},
        {"AI Tool", "AI Decrease Diameter", kNoErr},
        {"AI Tool", "AI Mouse Down", kUnhandledMsgErr},
        {"AI Annotation", "AI Draw", kNoErr},
        {"AI Menu", "AI Go", kUnhandledMsgErr},
        {"AI Timer", "AI Go", kUnhandledMsgErr},
        {"AI Clipboard", "AI Clone", kUnhandledMsgErr},
        {"SP Properties", "Acquire", kUnhandledMsgErr},
        {"Workspace Manager", "Default Woskspace", kUnhandledMsgErr},
    };
    for (const auto& row : rows) {
        INFO(row.caller, " / ", row.selector);
        Plugin plugin(nullptr);
        AnyMessage message;
        CHECK(route(plugin, row.caller, row.selector, &message) == row.answer);
    }
}

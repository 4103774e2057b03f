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

    AIErr Unload(SPAccessMessage&) override { return note("Unload"); }
    AIErr Reload(SPAccessMessage&) override { return note("Reload"); }
    AIErr AcquireProperty(SPPropertiesMessage&) override { return note("AcquireProperty"); }
    AIErr ReleaseProperty(SPPropertiesMessage&) override { return note("ReleaseProperty"); }
    AIErr About(SPInterfaceMessage&) override { return note("About"); }
    AIErr GoAction(DoActionMessage&) override { return note("GoAction"); }
    AIErr GoMenuItem(AIMenuMessage&) override { return note("GoMenuItem"); }
    AIErr UpdateMenuItem(AIMenuMessage&) override { return note("UpdateMenuItem"); }
    AIErr GetFilterParameters(AIFilterMessage&) override { return note("GetFilterParameters"); }
    AIErr GoFilter(AIFilterMessage&) override { return note("GoFilter"); }
    AIErr PluginGroupNotify(AIPluginGroupMessage&) override { return note("PluginGroupNotify"); }
    AIErr PluginGroupUpdate(AIPluginGroupMessage&) override { return note("PluginGroupUpdate"); }
    AIErr GetFileFormatParameters(AIFileFormatMessage&) override {
        return note("GetFileFormatParameters");
    }
    AIErr GoFileFormat(AIFileFormatMessage&) override { return note("GoFileFormat"); }
    AIErr CheckFileFormat(AIFileFormatMessage&) override { return note("CheckFileFormat"); }
    AIErr FileFormatUpdate(AIFileFormatMessage&) override { return note("FileFormatUpdate"); }
    AIErr SetFileFormatParameters(AIFileFormatMessage&) override {
        return note("SetFileFormatParameters");
    }
    AIErr EditTool(AIToolMessage&) override { return note("EditTool"); }
    AIErr TrackToolCursor(AIToolMessage&) override { return note("TrackToolCursor"); }
    AIErr ToolMouseDown(AIToolMessage&) override { return note("ToolMouseDown"); }
    AIErr ToolMouseDrag(AIToolMessage&) override { return note("ToolMouseDrag"); }
    AIErr ToolMouseUp(AIToolMessage&) override { return note("ToolMouseUp"); }
    AIErr SelectTool(AIToolMessage&) override { return note("SelectTool"); }
    AIErr DeselectTool(AIToolMessage&) override { return note("DeselectTool"); }
    AIErr ReselectTool(AIToolMessage&) override { return note("ReselectTool"); }
    AIErr DecreaseDiameter(AIToolMessage&) override { return note("DecreaseDiameter"); }
    AIErr IncreaseDiameter(AIToolMessage&) override { return note("IncreaseDiameter"); }
    AIErr AnnotatorDraw(AIAnnotatorMessage&) override { return note("AnnotatorDraw"); }
    AIErr AnnotatorInvalidate(AIAnnotatorMessage&) override { return note("AnnotatorInvalidate"); }
    AIErr LiveEffectEditParameters(SPMessageData&) override { return note("EditParameters"); }
    AIErr LiveEffectGoLive(AILiveEffectGoMessage&) override { return note("GoLive"); }
    AIErr LiveEffectInterpolate(SPMessageData&) override { return note("Interpolate"); }
    AIErr LiveEffectInputType(SPMessageData&) override { return note("InputType"); }
    AIErr LiveEffectConvertColorSpace(SPMessageData&) override { return note("ConvertColor"); }
    AIErr LiveEffectScaleParameters(SPMessageData&) override { return note("ScaleParameters"); }
    AIErr LiveEffectAdjustColors(SPMessageData&) override { return note("AdjustColors"); }
    AIErr LiveEffectHandleMerge(SPMessageData&) override { return note("HandleMerge"); }
    AIErr GoTimer(AITimerMessage&) override { return note("GoTimer"); }
    AIErr ClipboardGo(AIClipboardMessage&) override { return note("ClipboardGo"); }
    AIErr ClipboardCanCopy(AIClipboardMessage&) override { return note("ClipboardCanCopy"); }
    AIErr ClipboardClone(AIClipboardMessage&) override { return note("ClipboardClone"); }
    AIErr ClipboardDispose(AIClipboardMessage&) override { return note("ClipboardDispose"); }
    AIErr WorkspaceWrite(AIWorkspaceMessage&) override { return note("WorkspaceWrite"); }
    AIErr WorkspaceRestore(AIWorkspaceMessage&) override { return note("WorkspaceRestore"); }
    AIErr WorkspaceDefault(AIWorkspaceMessage&) override { return note("WorkspaceDefault"); }
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

constexpr Row kRows[] = {
    {"SP Access", "Unload", "Unload"},
    {"SP Access", "Reload", "Reload"},
    {"SP Interface", "About", "About"},
    {"SP Properties", "Acquire", "AcquireProperty"},
    {"SP Properties", "Release", "ReleaseProperty"},
    {"Action Manager", "Do Action", "GoAction"},
    {"AI Menu", "AI Go", "GoMenuItem"},
    {"AI Menu", "AI Update", "UpdateMenuItem"},
    {"AI Filter", "AI Get Parameters", "GetFilterParameters"},
    {"AI Filter", "AI Go", "GoFilter"},
    {"AI Plugin Group", "AI Notify Edits", "PluginGroupNotify"},
    {"AI Plugin Group", "AI Update", "PluginGroupUpdate"},
    {"AI File Format", "AI Get Parameters", "GetFileFormatParameters"},
    {"AI File Format", "AI Go", "GoFileFormat"},
    {"AI File Format", "AI Check", "CheckFileFormat"},
    {"AI File Format", "AI Update AI140", "FileFormatUpdate"},
    {"AI File Format", "Do Action", "SetFileFormatParameters"},
    {"AI Tool", "AI Edit Options", "EditTool"},
    {"AI Tool", "AI Track Cursor", "TrackToolCursor"},
    {"AI Tool", "AI Mouse Down", "ToolMouseDown"},
    {"AI Tool", "AI Mouse Drag", "ToolMouseDrag"},
    {"AI Tool", "AI Mouse Up", "ToolMouseUp"},
    {"AI Tool", "AI Select", "SelectTool"},
    {"AI Tool", "AI Deselect", "DeselectTool"},
    {"AI Tool", "AI Reselect", "ReselectTool"},
    {"AI Tool", "AI Decrease Diameter", "DecreaseDiameter"},
    {"AI Tool", "AI Increase Diameter", "IncreaseDiameter"},
    {"AI Annotation", "AI Draw", "AnnotatorDraw"},
    {"AI Annotation", "AI Invalidate", "AnnotatorInvalidate"},
    {"AI Live Effect", "AI Live Effect Edit Parameters", "EditParameters"},
    {"AI Live Effect", "AI Live Effect Go Live", "GoLive"},
    {"AI Live Effect", "AI Live Effect Interpolate Parameters", "Interpolate"},
    {"AI Live Effect", "AI Live Effect Input Type", "InputType"},
    {"AI Live Effect", "AI Live Effect Scale Parameters", "ScaleParameters"},
    {"AI Live Effect", "AI Live Effect Convert Color Space", "ConvertColor"},
    {"AI Live Effect", "AI Live Effect Adjust Colors", "AdjustColors"},
    {"AI Live Effect", "AI Live Effect Handle Merge", "HandleMerge"},
    {"AI Timer", "AI Go", "GoTimer"},
    {"AI Clipboard", "AI Go", "ClipboardGo"},
    {"AI Clipboard", "AI Can Copy", "ClipboardCanCopy"},
    {"AI Clipboard", "AI Clone", "ClipboardClone"},
    {"AI Clipboard", "AI Dispose", "ClipboardDispose"},
    {"Workspace Manager", "Write Woskspace", "WorkspaceWrite"},
    {"Workspace Manager", "Restore Woskspace", "WorkspaceRestore"},
    {"Workspace Manager", "Default Woskspace", "WorkspaceDefault"},
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

/// Any bytes as messages to the plug-in's entry: names that there are and that there are not,
/// records of just their size, and nulls. Whatever comes, it answers, and quits in order.

#include "easel/script/Dialogs.h"
#include "easel/session/DrawingSession.h"
#include "easel/suites/Suites.h"
#include "fuzz/Input.h"
#include "fuzz/Plugin.h"
#include "fuzz/Require.h"
#include "host/MessageNames.h"

#include <memory>

namespace {

using namespace easel;
using facetta::fuzz::Input;
using facetta::fuzz::require;

constexpr int kMostMessages = 40;

constexpr const char* kSelectors[] = {
    kSelectorStartup,
    kSelectorAbout,
    kSelectorReload,
    kSelectorPurge,
    kSelectorNotify,
    kSelectorGo,
    kSelectorUpdate,
    kSelectorEditOptions,
    kSelectorTrackCursor,
    kSelectorMouseDown,
    kSelectorMouseDrag,
    kSelectorMouseUp,
    kSelectorSelect,
    kSelectorDeselect,
    kSelectorReselect,
    kSelectorDraw,
    kSelectorInvalidate,
    kSelectorDoAction,
    kSelectorCheck,
    kSelectorDecreaseDiameter,
    kSelectorIncreaseDiameter,
    kSelectorGetParameters,
};
constexpr const char* kTypes[] = {
    kApplicationStartedNotifier,   kAllPluginsStartedNotifier,    kApplicationShutdownNotifier,
    kUIBrightnessChangedNotifier,  kPreferenceChangedNotifier,    kArtSelectionChangedNotifier,
    kArtPropertiesChangedNotifier, "AI Document Closed Notifier", "AI Current Layer Notifier",
};

/// One of the names, or one that the input spells.
template <std::size_t count> std::string name(const char* const (&names)[count], Input& input) {
    const std::uint8_t which = input.byte();
    if (which < 240) return names[which % count];
    std::string spelt(which - 240U, ' ');
    for (char& letter : spelt)
        letter = static_cast<char>(input.byte());
    return spelt.c_str(); // a zero ends it
}

class Stranger {
public:
    Stranger(Host& host, Input& input)
        : host_(host), input_(input), plugin_(host.plugins.handles().front()) {}

    void send() {
        constexpr Row kRows[] = {
            {kCallerTool, &Stranger::sendTool},
            {kCallerTool, &Stranger::sendTool},
            {kCallerNotifier, &Stranger::sendNotifier},
            {kCallerMenu, &Stranger::sendMenu},
            {kCallerTimer, &Stranger::sendTimer},
            {kCallerAnnotation, &Stranger::sendAnnotation},
            {kCallerInterface, &Stranger::sendRecord<SPInterfaceMessage>},
            {kCallerAction, &Stranger::sendRecord<DoActionMessage>},
            {kCallerFilter, &Stranger::sendRecord<AIFilterMessage>},
            {kCallerPluginGroup, &Stranger::sendRecord<AIPluginGroupMessage>},
            {kCallerFileFormat, &Stranger::sendRecord<AIFileFormatMessage>},
            {kCallerClipboard, &Stranger::sendRecord<AIClipboardMessage>},
            {kCallerWorkspace, &Stranger::sendRecord<AIWorkspaceMessage>},
            {kCallerProperties, &Stranger::sendRecord<SPPropertiesMessage>},
        };
        const std::uint8_t which = input_.byte();
        if (which < 240) {
            const Row& row = kRows[which % std::size(kRows)];
            caller_ = row.caller;
            return (this->*row.send)();
        }
        if (which < 248) return sendNothing(which % 8U);
        static constexpr const char* kNobody[] = {"", "SP Adapters", "AI"};
        caller_ = name(kNobody, input_);
        sendRecord<SPInterfaceMessage>();
    }

private:
    struct Row {
        const char* caller;
        void (Stranger::*send)();
    };

    void sendTool() {
        auto message = std::make_unique<AIToolMessage>();
        if (input_.byte() % 8 != 0)
            message->tool = host_.tools.handleOf(host_.tools.numberOf("Facetta Tool"));
        message->cursor = {input_.take<std::int16_t>() / 8.0F, input_.take<std::int16_t>() / 8.0F};
        const auto event = std::make_unique<AIEvent>();
        event->modifiers = input_.take<std::uint16_t>();
        if (input_.byte() % 2 != 0) message->event = event.get();
        deliver(*message);
    }
    void sendNotifier() {
        const std::string type = name(kTypes, input_);
        auto message = std::make_unique<AINotifierMessage>();
        if (input_.byte() % 8 != 0) message->type = type.c_str();
        deliver(*message);
    }
    void sendMenu() {
        auto message = std::make_unique<AIMenuMessage>();
        pick(message->menuItem, host_.menus.items.handles());
        deliver(*message);
    }
    void sendTimer() {
        auto message = std::make_unique<AITimerMessage>();
        pick(message->timer, host_.timers.handles());
        deliver(*message);
    }
    void sendAnnotation() {
        auto message = std::make_unique<AIAnnotatorMessage>();
        pick(message->annotator, host_.annotators.annotators.handles());
        if (input_.byte() % 2 != 0) message->view = host_.currentView();
        deliver(*message);
    }
    /// Just as large as it is, so that reading beyond it is noticed.
    template <typename Message> void sendRecord() { deliver(*std::make_unique<Message>()); }

    void sendNothing(unsigned there) {
        const SPPluginEntryFunc entry = host_.plugins.at(plugin_).entry;
        SPInterfaceMessage message{};
        if (there == 7) return;
        const SPErr answer = entry((there & 1U) != 0 ? kCallerTool : nullptr,
                                   (there & 2U) != 0 ? kSelectorSelect : nullptr,
                                   (there & 4U) != 0 ? &message : nullptr);
        require(answer == kSPBadParameterError, "nulls are refused");
    }

    template <typename Message> void deliver(Message& message) {
        const std::string selector = name(kSelectors, input_);
        static_cast<void>(host_.send(plugin_, caller_.c_str(), selector.c_str(), message));
    }
    template <typename Handle> void pick(Handle& handle, const std::vector<Handle>& handles) {
        const std::uint8_t which = input_.byte();
        if (which % 8 != 0 && !handles.empty()) handle = handles[which % handles.size()];
    }

    Host& host_;
    Input& input_;
    SPPluginRef plugin_;
    std::string caller_;
};

} // namespace

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size) {
    DrawingSession session(sessionWithSuites());
    addPluginLibrary(session.host, facetta::fuzz::pluginLibrary());
    session.start();
    session.host.open(std::make_unique<Document>(session.host.session, AISize{400, 400}));
    Input input({data, size});
    Stranger stranger(session.host, input);
    int left = kMostMessages;
    serveUser([&] {
        if (input.empty() || left-- == 0) return false;
        Dialog* const dialog = modalDialog();
        if (dialog != nullptr && input.byte() % 4 != 0)
            dialog->clickCloseBox(); // or they would pile up
        else
            stranger.send();
        return true;
    });
    for (const std::string& complaint : session.finish())
        require(false, "all is well at the end", complaint);
    return 0;
}

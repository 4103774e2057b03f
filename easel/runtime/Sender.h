#pragma once

#include "easel/runtime/Contexts.h"
#include "easel/runtime/Plugin.h"

#include <functional>
#include <string>
#include <string_view>
#include <vector>

namespace easel {

struct Session;

/// A message that was sent, and what the plug-in answered.
struct SentMessage {
    std::string plugin;
    std::string caller;
    std::string selector;
    std::string detail; ///< Of a notification its type, of a menu message the item's name.
    SPErr result;
};

/// The way of every message to a plug-in. What a plug-in leaves open when it answers (contexts,
/// references) is a problem in the ledger, and is closed.
class Sender {
public:
    /// All outlive it. `settled` is called whenever the outermost message has been answered.
    Sender(Session& session, const Plugins& plugins, Contexts& contexts,
           std::function<void()> settled);

    /// Sends `message`, whose first member is its `SPMessageData`, and takes the globals back. May
    /// be nested: a plug-in's own call may make the host send to it or to another. `detail` is for
    /// the record only.
    template <typename Message>
    SPErr send(SPPluginRef plugin, const char* caller, const char* selector, Message& message,
               std::string_view detail = {}, AIUndoContextKind kind = kStandardUndoContext) {
        return sendData(plugin, caller, selector, message.d, detail, kind);
    }

    /// Opens a context that spans several messages, as a gesture does: one step for undo.
    [[nodiscard]] AIAppContextHandle begin(SPPluginRef plugin);
    void end(AIAppContextHandle context);

    /// The plug-in that is answering a message; null while none is.
    [[nodiscard]] SPPluginRef receiver() const noexcept { return receiver_; }

    [[nodiscard]] Session& session() const noexcept { return session_; }

    bool recordsAll = false; ///< Keeps every message; otherwise only those that failed.
    std::vector<SentMessage> sent;

private:
    SPErr sendData(SPPluginRef plugin, const char* caller, const char* selector,
                   SPMessageData& message, std::string_view detail, AIUndoContextKind kind);
    void closeWhatIsLeft(const std::string& name, AIAppContextHandle context, std::size_t depth);

    Session& session_;
    const Plugins& plugins_;
    Contexts& contexts_;
    std::function<void()> settled_;
    SPPluginRef receiver_ = nullptr;
};

} // namespace easel

#include "easel/runtime/Sender.h"

#include "easel/document/Session.h"
#include "host/MessageNames.h"
#include "host/suites/SPBasicSuite.h"

#include <cstring>
#include <utility>

namespace easel {
namespace {

constexpr ai::int32 kMessageCheck = fourCharacterCode("SPCk");

} // namespace

Sender::Sender(Session& session, const Plugins& plugins, Contexts& contexts,
               std::function<void()> settled)
    : session_(session), plugins_(plugins), contexts_(contexts), settled_(std::move(settled)) {}

SPErr Sender::sendData(SPPluginRef ref, const char* caller, const char* selector,
                       SPMessageData& message, std::string_view detail, AIUndoContextKind kind) {
    Plugin& plugin = plugins_.at(ref);
    const bool isUnload = std::strcmp(selector, kSelectorUnload) == 0;
    if (plugin.entry == nullptr || (plugin.broken && !isUnload)) return kNoErr;

    SentMessage record{plugin.name, caller, selector, std::string(detail), kNoErr};
    message.SPCheck = kMessageCheck;
    message.self = ref;
    message.globals = plugin.globals;
    message.basic =
        &session_.suites.table<SPBasicSuite>(kSPBasicSuite, kSPBasicSuiteVersion).functions();
    const SPPluginRef outer = std::exchange(receiver_, ref);
    const AIAppContextHandle context =
        contexts_.push(ref, kind, outer != nullptr ? Contexts::Nested::Yes : Contexts::Nested::No);
    const std::size_t depth = contexts_.depth();
    const std::uint64_t mark = session_.ledger.beginMessage();
    const SPErr result = record.result = plugin.entry(caller, selector, &message);
    plugin.globals = message.globals;

    const std::string name = std::string(caller) + '/' + selector;
    session_.ledger.endMessage(mark, name);
    closeWhatIsLeft(name, context, depth);
    receiver_ = outer;
    if (recordsAll || result != kNoErr) sent.push_back(std::move(record));
    if (contexts_.depth() == 0) settled_();
    return result;
}

void Sender::closeWhatIsLeft(const std::string& name, AIAppContextHandle context,
                             std::size_t depth) {
    if (contexts_.depth() != depth || contexts_.top() != context) {
        session_.ledger.report(name + ": contexts pushed and popped do not balance");
        while (contexts_.depth() > depth)
            contexts_.pop(contexts_.top());
    }
    if (contexts_.top() == context) contexts_.pop(context);
}

AIAppContextHandle Sender::begin(SPPluginRef plugin) { return contexts_.push(plugin); }

void Sender::end(AIAppContextHandle context) {
    contexts_.pop(context);
    settled_();
}

} // namespace easel

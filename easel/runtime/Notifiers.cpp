#include "easel/runtime/Notifiers.h"

#include "easel/document/Session.h"
#include "easel/runtime/Sender.h"
#include "host/MessageNames.h"

#include <algorithm>
#include <iterator>
#include <utility>

namespace easel {
namespace {

/// What is sent last, in this order: a receiver that looks at art finds the layers settled, and the
/// document as a whole comes at the end.
constexpr std::string_view kSentLast[] = {
    "AI Current Layer Notifier",   "AI Layer Set Notifier",      "AI Layer Deletion Notifier",
    "AI Layer Options Notifier",   kArtSelectionChangedNotifier, kArtPropertiesChangedNotifier,
    "AI Document Changed Notifier"};

std::ptrdiff_t rank(const std::string& type) {
    const auto* const found = std::find(std::begin(kSentLast), std::end(kSentLast), type);
    return found == std::end(kSentLast) ? -1 : found - std::begin(kSentLast);
}

} // namespace

void Notifiers::notify(std::string_view type, void* data) {
    const std::string name(type);
    for (const AINotifierHandle handle : handles()) {
        const Notifier* const notifier = find(handle); // one may remove another
        if (notifier == nullptr || !notifier->active || notifier->type != name) continue;
        AINotifierMessage message{};
        message.notifier = handle;
        message.type = notifier->type.c_str();
        message.notifyData = data;
        sender_.send(notifier->plugin, kCallerNotifier, kSelectorNotify, message, name,
                     kSilentUndoContext);
    }
}

void Notifiers::queue(std::string_view type) {
    if (std::find(waiting_.begin(), waiting_.end(), type) == waiting_.end())
        waiting_.emplace_back(type);
}

void Notifiers::sendQueued() {
    for (const std::string& type : std::exchange(late_, {}))
        notify(type);
    if (!sender_.session().switches.notificationsComeSoon) late_ = take();
    for (int round = 0; round < kRounds && !waiting_.empty(); ++round)
        for (const std::string& type : take())
            notify(type);
    if (waiting_.empty()) return;
    std::string endless = "notifications raise each other without end:";
    for (const std::string& type : take())
        endless += " \"" + type + '"';
    sender_.session().ledger.report(std::move(endless));
}

std::vector<std::string> Notifiers::take() {
    std::vector<std::string> taken;
    taken.swap(waiting_);
    std::stable_sort(taken.begin(), taken.end(),
                     [](const std::string& a, const std::string& b) { return rank(a) < rank(b); });
    return taken;
}

} // namespace easel

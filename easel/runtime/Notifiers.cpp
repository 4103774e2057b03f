#include "easel/runtime/Notifiers.h"

#include "host/MessageNames.h"

#include <algorithm>
#include <iterator>

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

void NotificationQueue::add(std::string_view type) {
    if (std::find(types_.begin(), types_.end(), type) == types_.end()) types_.emplace_back(type);
}

std::vector<std::string> NotificationQueue::take() {
    std::vector<std::string> taken;
    taken.swap(types_);
    std::stable_sort(taken.begin(), taken.end(),
                     [](const std::string& a, const std::string& b) { return rank(a) < rank(b); });
    return taken;
}

} // namespace easel

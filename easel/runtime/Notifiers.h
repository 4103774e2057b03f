#pragma once

#include "easel/core/Registry.h"
#include "host/Handles.h"

#include <string>
#include <string_view>
#include <vector>

namespace easel {

/// One registration: each gets a message of its own, also when a plug-in has several of one type.
struct Notifier {
    SPPluginRef plugin;
    std::string name;
    std::string type;
    bool active = true;
};

using Notifiers = Registry<AINotifierHandle, Notifier>;

/// Notifications that wait until the host is idle, each type once.
class NotificationQueue {
public:
    void add(std::string_view type);
    [[nodiscard]] bool empty() const noexcept { return types_.empty(); }
    /// Empties the queue. First what commands tell, then layers, then art; within that as added.
    [[nodiscard]] std::vector<std::string> take();

private:
    std::vector<std::string> types_;
};

} // namespace easel

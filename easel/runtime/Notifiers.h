#pragma once

#include "easel/core/Registry.h"
#include "host/Handles.h"

#include <string>
#include <string_view>
#include <vector>

namespace easel {

class Sender;

/// One registration: each gets a message of its own, also when a plug-in has several of one type.
struct Notifier {
    SPPluginRef plugin;
    std::string name;
    std::string type;
    bool active = true;
};

/// The notifications that plug-ins have asked for, and those that wait until the host is idle.
class Notifiers : public Registry<AINotifierHandle, Notifier> {
public:
    explicit Notifiers(Sender& sender) : sender_(sender) {}

    /// Sends a notification at once to every active registration of that type.
    void notify(std::string_view type, void* data = nullptr);
    /// Lets it wait, each type once.
    void queue(std::string_view type);
    /// Sends what waits: first what commands tell, then layers, then art; within that as queued.
    /// Notifications may raise others; after `kRounds` rounds that is taken for an endless loop: a
    /// problem, and the rest is dropped.
    void sendQueued();
    static constexpr int kRounds = 20;

private:
    [[nodiscard]] std::vector<std::string> take();

    Sender& sender_;
    std::vector<std::string> waiting_;
    std::vector<std::string> late_; ///< To be sent when the host is idle the next time.
};

} // namespace easel

#pragma once

/// A user at the stand-in host with the plug-in, and what each of the user's actions costs.
///
/// Time inside the plug-in is taken at its entry, time inside the host functions that it calls by
/// the host. The host's clock costs time itself, part of which falls to the plug-in: a call to a
/// host function that does nothing shows how much, and that is taken off for each call.

#include "easel/core/SuiteServer.h"
#include "easel/session/MirrorSession.h"
#include "easel/suites/Suites.h"
#include "platform/DialogDoor.h"

#include <cstdint>
#include <filesystem>
#include <functional>

namespace facetta::bench {

/// The host's functions, for calls that are not the plug-in's.
template <typename Suite>
[[nodiscard]] const Suite& hostSuite(const char* name, ai::int32 version) {
    return *static_cast<const Suite*>(easel::sessionWithSuites().suites.functions(name, version));
}

/// What one action of the user cost.
struct Cost {
    double seconds = 0;    ///< Of processor time, from the action until the host is idle again.
    double ownSeconds = 0; ///< Inside the plug-in, without the host functions that it called.
    std::uint64_t hostCalls = 0;
    std::uint64_t ownAllocations =
        0; ///< Of the plug-in, without the host functions that it called.
};

/// What an action is to tell. The host's clock and the count of allocations both cost time, so each
/// runs alone.
enum class Take : std::uint8_t { TotalTime, OwnTime, OwnAllocations };

class Sitting {
public:
    /// Starts the plug-in with `axes` axes as its setting.
    Sitting(int axes, easel::MirrorMode mode);
    /// Ends the program when the plug-in has done anything wrong: its times are worth nothing then.
    ~Sitting();
    Sitting(const Sitting&) = delete;
    Sitting& operator=(const Sitting&) = delete;

    /// Opens `drawing` and makes axes through `kOrigin` with the tool; in selection mode all art is
    /// selected before.
    easel::Document& open(std::unique_ptr<easel::Document> drawing);
    /// Opens a drawing that has nothing to do with axes.
    easel::Document& openWithoutAxes(std::unique_ptr<easel::Document> drawing) {
        return session_.host.open(std::move(drawing));
    }
    void activate(easel::Document& document) { session_.host.activate(document); }
    void close(easel::Document& document) { session_.host.close(document); }
    /// Applies the axes.
    Cost apply(Take take);
    /// Any action of the user that is one undo step without the plug-in.
    Cost edit(const std::function<void(easel::Document&)>& change, Take take);
    /// With the tool. A drag is one message of it.
    void press(AIRealPoint at) {
        session_.host.track({.at = at});
        session_.host.press({.at = at});
    }
    Cost drag(AIRealPoint to, Take take);
    void release(AIRealPoint at) { session_.host.release({.at = at}); }
    /// Draws what is over the document.
    Cost draw(Take take);
    /// The panel of the plug-in, in which the user acts.
    void showPanel();
    Cost usePanel(const std::function<void(door::Dialog&)>& act, Take take);
    void zoom(AIReal zoom) { easel::setZoom(session_.host.view(nullptr), zoom); }

private:
    Cost measure(const std::function<void()>& action, Take take);
    void measureClock();
    [[nodiscard]] static double ownSeconds(double clockCost);

    easel::MirrorSession session_;
    easel::MirrorMode mode_;
    bool clockMeasured_ = false;
};

} // namespace facetta::bench

#include "easel/document/Dump.h"
#include "easel/document/Layers.h"
#include "platform/Headless.h"
#include "symmetry/LiveLayers.h"
#include "tests/shell/Session.h"

#include <array>
#include <cstddef>

using namespace facetta;
using namespace facetta::tests;

namespace {

using easel::Art;
using Switch = bool easel::Switches::*;

/// A drawing with a live layer that has one path, in a host that is as `switches` say.
class LiveDrawing : public Session {
public:
    explicit LiveDrawing(const easel::Switches& switches = {}) {
        easel::session().switches = switches;
        host.start();
        openDocument();
        draw();
        edit([&](easel::Document&) {
            thePlugin->tool.axes = {.originX = 8191, .originY = 8191, .axisCount = 3};
            attachAxes(thePlugin->tool.axes, thePlugin->mirroring(), /*autoMirror*/ true);
        });
    }
    ~LiveDrawing() {
        easel::session().switches = {};
        platform::headless::surroundings() = {};
    }
    LiveDrawing(const LiveDrawing&) = delete;
    LiveDrawing& operator=(const LiveDrawing&) = delete;

    void edit(const std::function<void(easel::Document&)>& change) {
        host.edit("Edit", change);
        settle();
    }
    /// The user draws a triangle.
    void draw() {
        edit([](easel::Document& document) {
            Art& path = easel::createArt(document, kPathArt,
                                         easel::onTopOf(*document.state().currentLayer));
            for (const AIRealPoint at : {AIRealPoint{600, -300}, {650, -320}, {640, -250}})
                path.write().segments.write().push_back({at, at, at, true});
            path.write().closed = true;
        });
    }
    void undo() {
        CHECK(host.undo());
        settle();
    }
    void redo() {
        CHECK(host.redo());
        settle();
    }
    /// Late notifications have arrived and timers have fired.
    void settle() {
        for (int times = 0; times < 3; ++times) {
            host.clock.advance(1000);
            host.idle();
        }
    }
    [[nodiscard]] static std::string text() { return easel::dump(easel::session().document()); }
    [[nodiscard]] static std::ptrdiff_t paths() {
        const Art& layer = *easel::session().document().state().currentLayer;
        std::ptrdiff_t count = 0;
        for (const Art* art = layer.firstChild(); art != nullptr; art = art->next())
            ++count;
        return count;
    }
    void holdMouse(bool down) {
        platform::headless::surroundings().keys.down[1] = down; // the left button
    }
};

} // namespace

TEST_CASE("one undo takes back an edit of a live layer, one redo brings it again, in any host") {
    constexpr std::array<Switch, 5> kOpen{
        &easel::Switches::undoRestoresStamps, &easel::Switches::silentFollowsStep,
        &easel::Switches::stampsCoverDescendants, &easel::Switches::ownContextsNest,
        &easel::Switches::notificationsComeSoon};
    for (std::size_t combination = 0; combination < std::size_t{1} << kOpen.size(); ++combination) {
        INFO("host ", combination);
        easel::Switches switches;
        for (std::size_t i = 0; i < kOpen.size(); ++i)
            switches.*kOpen[i] = (combination >> i & 1) == 0;
        LiveDrawing drawing{switches};
        CHECK(LiveDrawing::paths() == 6);
        const std::string before = LiveDrawing::text();
        drawing.draw();
        CHECK(LiveDrawing::paths() == 12);
        const std::string after = LiveDrawing::text();
        for (int times = 0; times < 10; ++times) {
            drawing.undo();
            CHECK(LiveDrawing::text() == before);
            drawing.redo();
            CHECK(LiveDrawing::text() == after);
        }
        drawing.draw();
        drawing.undo();
        CHECK(LiveDrawing::text() == after);
        drawing.draw(); // nothing can be redone any more, and the layer is mirrored as ever
        CHECK(LiveDrawing::paths() == 18);
    }
}

TEST_CASE("nothing is regenerated while a mouse button is down; a timer makes up for it") {
    LiveDrawing drawing;
    const std::string before = LiveDrawing::text();
    drawing.holdMouse(true);
    drawing.draw();
    CHECK(LiveDrawing::paths() == 7);
    drawing.holdMouse(false);
    drawing.settle();
    CHECK(LiveDrawing::paths() == 12);
    drawing.undo();
    CHECK(LiveDrawing::text() == before);
    const auto running = [&] {
        for (const auto& [handle, timer] : drawing.host.timers)
            if (timer->active) return true;
        return false;
    };
    CHECK_FALSE(running()); // nothing waits, and nobody asks
}

#include "tests/shell/Session.h"

#include "host/MessageNames.h"

#include <algorithm>

using namespace facetta;
using namespace facetta::tests;

namespace {

/// How often the panel was told to look at the state again.
int refreshes = 0;

/// The host sends no more notifications of these types.
void silence(easel::Host& host, const std::vector<std::string>& types) {
    for (const AINotifierHandle handle : host.notifiers.handles()) {
        easel::Notifier& notifier = host.notifiers.at(handle);
        if (std::ranges::count(types, notifier.type) != 0) notifier.active = false;
    }
}

} // namespace

TEST_CASE("every notification, whoever it is for, reaches the document and the panel") {
    Session session;
    session.host.start();
    session.openDocument();
    thePlugin->updatePanel = [] { ++refreshes; };
    for (const AINotifierHandle handle : session.host.notifiers.handles()) {
        const std::string type = session.host.notifiers.at(handle).type;
        if (type == kApplicationShutdownNotifier) continue; // ends the toolkit
        INFO(type);
        AINotifierMessage message{};
        message.notifier = handle;
        message.type = type.c_str();
        refreshes = 0;
        CHECK(session.send(kCallerNotifier, kSelectorNotify, message) == kNoErr);
        CHECK(refreshes > 0);
    }
    CHECK(thePlugin->licenceChanged);
}

TEST_CASE("the current document is followed by whatever message tells of it first") {
    const std::string changed = "AI Document Changed Notifier";
    const std::string activeView = "AI Document View Style Active View Changed Notifier";
    const std::string closed = "AI Document Closed Notifier";
    struct Row {
        std::string what;
        std::vector<std::string> silenced;
        bool toolMessage;
    };
    const Row rows[] = {
        {"all notifications", {}, false},
        {"only that of the view", {changed}, false},
        {"only that of the contents", {activeView}, false},
        {"none, but a message of the tool", {changed, activeView, closed}, true},
    };
    for (const Row& row : rows) {
        INFO(row.what);
        Session session;
        session.host.start();
        silence(session.host, row.silenced);
        easel::Document& first = session.openDocument();
        easel::Document& second = session.openDocument();
        session.host.selectTool(thePlugin->toolHandle);
        const auto look = [&] {
            if (row.toolMessage) session.host.track({.at = {500, -400}});
        };
        const auto showAxesOfLayer = [&] {
            hold(thePlugin->tool, {Activity::ShowingLayerAxes, {.axisCount = 5}});
        };
        showAxesOfLayer();
        session.host.activate(first);
        look();
        CHECK_FALSE(thePlugin->tool.axes.onLayer);
        CHECK(thePlugin->view.handle == session.host.currentView());

        showAxesOfLayer();
        session.host.close(first);
        look();
        CHECK_FALSE(thePlugin->tool.axes.onLayer);
        CHECK(thePlugin->view.handle == session.host.currentView());
        session.host.close(second);
        if (!row.toolMessage) CHECK(thePlugin->view.handle == nullptr);
    }
}

TEST_CASE("what is kept of a document goes with it, closed behind another one") {
    Session session;
    session.host.start();
    easel::Document& first = session.openDocument();
    session.host.selectTool(thePlugin->toolHandle);
    hold(thePlugin->tool, {Activity::AxesPending, {.axisCount = 5}});
    const AIDocumentHandle handle = thePlugin->tool.place.document;
    session.openDocument();
    const auto isKept = [&] {
        return std::ranges::count(thePlugin->tool.memory.documents(), handle) != 0;
    };
    CHECK(isKept());
    session.host.close(first);
    CHECK_FALSE(isKept());
}

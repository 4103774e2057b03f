#include "tests/easel/runtime/TestPlugin.h"

#include "host/Error.h"
#include "host/MessageNames.h"

namespace facetta::tests {
namespace {

/// The plug-ins of the running test; the entry finds its own by `self`.
std::map<SPPluginRef, TestPlugin*>& living() {
    static std::map<SPPluginRef, TestPlugin*> all;
    return all;
}

std::string nameOf(const char* caller, const char* selector, const void* message) {
    if (std::string_view(caller) == kCallerNotifier)
        return static_cast<const AINotifierMessage*>(message)->type;
    return std::string(caller) + '/' + selector;
}

} // namespace

TestPlugin::TestPlugin(easel::Host& host, std::string name)
    : host_(host), self_(host.addPlugin(std::move(name), entry)) {
    living()[self_] = this;
}

TestPlugin::~TestPlugin() { living().erase(self_); }

SPErr TestPlugin::entry(const char* caller, const char* selector, void* message) {
    auto& data = *static_cast<SPMessageData*>(message);
    const auto plugin = living().find(data.self);
    if (plugin == living().end()) return kUnhandledMsgErr;
    const std::string name = nameOf(caller, selector, message);
    plugin->second->received.push_back(name);
    try {
        return plugin->second->answer(name, data);
    } catch (...) {
        return ai::currentErrorCode();
    }
}

SPErr TestPlugin::answer(const std::string& name, SPMessageData& data) {
    if (name == "SP Interface/Startup") acquireSuites(*data.basic);
    const auto handler = handlers_.find(name);
    const SPErr result = handler == handlers_.end() ? kNoErr : handler->second(data);
    if (name == "SP Interface/Shutdown") releaseSuites(*data.basic);
    return result;
}

void TestPlugin::acquireSuites(const SPBasicSuite& basic) {
    for (const ai::SuiteRow& row : ai::suiteTable()) {
        const void* functions = nullptr;
        ai::check(basic.AcquireSuite(row.name, row.version, &functions));
        row.store(functions);
    }
}

void TestPlugin::releaseSuites(const SPBasicSuite& basic) {
    for (const ai::SuiteRow& row : ai::suiteTable())
        ai::check(basic.ReleaseSuite(row.name, row.version));
}

SPErr TestPlugin::run(const std::function<void()>& work) {
    on("AI Filter/AI Go", [&work](SPMessageData&) {
        work();
        return kNoErr;
    });
    AIFilterMessage message{};
    return host_.send(self_, "AI Filter", kSelectorGo, message);
}

} // namespace facetta::tests

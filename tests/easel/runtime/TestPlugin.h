#pragma once

#include "easel/runtime/Host.h"
#include "host/SuiteTable.h"
#include "host/Suites.h"
#include "host/suites/SPBasicSuite.h"

#include <doctest/doctest.h>

#include <functional>
#include <map>
#include <string>
#include <string_view>
#include <vector>

namespace facetta::tests {

/// A plug-in that lives in the test: it keeps what it receives, and does for each message what the
/// test says. At start-up it acquires all suites, at shut-down it releases them, so that in
/// between `ai::suites` and the owners of `host/` work as in a real plug-in.
class TestPlugin {
public:
    using Handler = std::function<SPErr(SPMessageData&)>;

    explicit TestPlugin(easel::Host& host, std::string name = "Test");
    ~TestPlugin();
    TestPlugin(const TestPlugin&) = delete;
    TestPlugin& operator=(const TestPlugin&) = delete;

    /// What to do on "caller/selector", after the plug-in's own start-up and before its own
    /// shut-down.
    void on(const std::string& message, Handler handler) {
        handlers_[message] = std::move(handler);
    }
    /// Runs `work` inside a message, as a menu command would. Returns what the message answered.
    SPErr run(const std::function<void()>& work);

    [[nodiscard]] SPPluginRef self() const noexcept { return self_; }
    /// "caller/selector" of all messages so far; notifications with their type.
    std::vector<std::string> received;

private:
    static SPErr entry(const char* caller, const char* selector, void* message);
    SPErr answer(const std::string& name, SPMessageData& data);
    static void acquireSuites(const SPBasicSuite& basic);
    static void releaseSuites(const SPBasicSuite& basic);

    easel::Host& host_;
    SPPluginRef self_;
    std::map<std::string, Handler> handlers_;
};

/// The message behind its first member.
template <typename Message> Message& messageOf(SPMessageData& data) {
    return reinterpret_cast<Message&>(data);
}

} // namespace facetta::tests

/// Lists of names are shown when a check on them fails.
template <> struct doctest::StringMaker<std::vector<std::string>> {
    static String convert(const std::vector<std::string>& names) {
        std::string lines;
        for (const std::string& name : names)
            lines += "\n    " + name;
        return {lines.c_str()};
    }
};

#include "easel/core/Arguments.h"
#include "easel/core/Expose.h"
#include "easel/core/HostPath.h"
#include "easel/core/HostString.h"
#include "easel/suites/runtime/RunningHost.h"
#include "easel/suites/runtime/RuntimeSuites.h"
#include "host/suites/AIUserSuite.h"

#include <algorithm>
#include <array>
#include <charconv>

namespace easel {
namespace {

constexpr ai::int16 kMostDecimals = 4;

constexpr AIAnswer kYes = 1;

UserRecord& user() { return host().user; }

/// Rounded to `precision` decimals, without zeros at the end.
std::string textOf(AIReal value, ai::int16 precision) {
    std::array<char, 64> buffer{};
    const int decimals = std::clamp<ai::int16>(precision, 0, kMostDecimals);
    const auto written =
        std::to_chars(buffer.data(), buffer.data() + buffer.size(), static_cast<double>(value),
                      std::chars_format::fixed, decimals);
    std::string text(buffer.data(), written.ptr);
    if (text.find('.') != std::string::npos) {
        text.erase(text.find_last_not_of('0') + 1);
        if (text.back() == '.') text.pop_back();
    }
    return text == "-0" ? "0" : text;
}

void realToString(AIReal value, ai::int16 precision, ai::UnicodeString& text) {
    writeUtf8(session().ledger, text, textOf(value, precision));
}

void launchApp(const ai::FilePath& path, AIBoolean /*openDocument*/) {
    user().launched.push_back(readPath(session().ledger, path));
}

AIAnswer ask(const char* kind, const ai::UnicodeString& text) {
    const Alert alert{kind, readUtf8(session().ledger, text)};
    user().alerts.push_back(alert);
    if (user().showAlert) return user().showAlert(alert);
    if (user().answers.empty()) return kYes;
    const AIAnswer answer = user().answers.front();
    user().answers.pop_front();
    return answer;
}

void tell(const char* kind, const ai::UnicodeString& text) {
    const Alert alert{kind, readUtf8(session().ledger, text)};
    user().alerts.push_back(alert);
    if (user().showAlert) static_cast<void>(user().showAlert(alert));
}

void warningAlert(const ai::UnicodeString& text, const char* /*key*/) { tell("warning", text); }
AIAnswer questionAlert(const ai::UnicodeString& text) { return ask("question", text); }
AIAnswer yesNoAlert(const ai::UnicodeString& text) { return ask("yes-no", text); }
void errorAlert(const ai::UnicodeString& text) { tell("error", text); }
void messageAlert(const ai::UnicodeString& text) { tell("message", text); }

/// Opaque to plug-ins: seconds of the session's own clock, from 1, so that it is never nothing.
AIUserDateTime getDateAndTime() {
    constexpr AIUserDateTime kTicksInSecond = 60;
    return 1 + static_cast<AIUserDateTime>(host().clock.ticks()) / kTicksInSecond;
}

AIResourceManagerHandle createCursors(SPPluginRef plugin) {
    static_cast<void>(host().plugins.at(plugin));
    return user().cursorManagers.add(plugin);
}

void setCursor(ai::int32 cursor, AIResourceManagerHandle manager) {
    // The host's own cursors, the negative ones, belong to no manager.
    user().cursorOwner = cursor >= 0 ? user().cursorManagers.at(manager) : nullptr;
    user().cursor = cursor;
}

void disposeCursors(AIResourceManagerHandle manager) { user().cursorManagers.remove(manager); }

} // namespace

void installUserSuite(SuiteServer& server) {
    auto table = server.table<AIUserSuite>(kAIUserSuite, kAIUserSuiteVersion);
    // Easel's user has a period as the decimal separator: the same text in every locale.
    expose<&AIUserSuite::IUAIRealToString, realToString>(table);
    expose<&AIUserSuite::GetDateAndTime, getDateAndTime>(table);
    expose<&AIUserSuite::LaunchApp, launchApp>(table);
    expose<&AIUserSuite::WarningAlert, warningAlert>(table);
    expose<&AIUserSuite::QuestionAlert, questionAlert>(table);
    expose<&AIUserSuite::YesNoAlert, yesNoAlert>(table);
    expose<&AIUserSuite::ErrorAlert, errorAlert>(table);
    expose<&AIUserSuite::MessageAlert, messageAlert>(table);
    expose<&AIUserSuite::CreateCursorResourceMgr, createCursors>(table);
    expose<&AIUserSuite::SetCursor, setCursor>(table);
    exposeEnding<&AIUserSuite::DisposeCursorResourceMgr, disposeCursors>(table);
}

} // namespace easel

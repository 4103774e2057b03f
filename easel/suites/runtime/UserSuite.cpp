#include "easel/core/Expose.h"
#include "easel/core/HostObjects.h"
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

/// Nothing where nobody is shown it.
std::optional<AIAnswer> tell(const char* kind, const ai::UnicodeString& text) {
    user().alerts.push_back({kind, readUtf8(session().ledger, text)});
    return user().showAlert ? std::optional{user().showAlert(Alert{user().alerts.back()})}
                            : std::nullopt;
}

AIAnswer ask(const char* kind, const ai::UnicodeString& text) {
    if (const auto shown = tell(kind, text)) return *shown;
    if (user().answers.empty()) return kYes;
    const AIAnswer answer = user().answers.front();
    user().answers.pop_front();
    return answer;
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
    // Easel's user has a period as the decimal separator: the same text in every locale.
    expose<&AIUserSuite::IUAIRealToString, realToString>(server);
    expose<&AIUserSuite::GetDateAndTime, getDateAndTime>(server);
    expose<&AIUserSuite::LaunchApp, launchApp>(server);
    expose<&AIUserSuite::WarningAlert, warningAlert>(server);
    expose<&AIUserSuite::QuestionAlert, questionAlert>(server);
    expose<&AIUserSuite::YesNoAlert, yesNoAlert>(server);
    expose<&AIUserSuite::ErrorAlert, errorAlert>(server);
    expose<&AIUserSuite::MessageAlert, messageAlert>(server);
    expose<&AIUserSuite::CreateCursorResourceMgr, createCursors>(server);
    expose<&AIUserSuite::SetCursor, setCursor>(server);
    exposeEnding<&AIUserSuite::DisposeCursorResourceMgr, disposeCursors>(server);
}

} // namespace easel

#include "easel/core/Arguments.h"
#include "easel/core/Expose.h"
#include "easel/core/HostPath.h"
#include "easel/core/HostString.h"
#include "easel/runtime/Host.h"
#include "easel/suites/runtime/RuntimeSuites.h"
#include "host/suites/AIUserSuite.h"

#include <algorithm>
#include <array>
#include <charconv>
#include <limits>

namespace easel {
namespace {

/// What the host calls an unknown real.
constexpr AIReal kUnknownReal = std::numeric_limits<AIReal>::max();
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

AIReal realOf(const std::string& text) {
    const auto first = text.find_first_not_of(" \t+");
    if (first == std::string::npos) return kUnknownReal;
    AIReal value = 0;
    const char* const begin = text.data() + first;
    const auto read = std::from_chars(begin, text.data() + text.size(), value);
    return read.ec == std::errc{} ? value : kUnknownReal;
}

AIBoolean cancel() { return user().cancelRequested ? 1 : 0; }

void updateProgress(ai::int32 current, ai::int32 maximum) {
    user().progress = current;
    user().progressMaximum = maximum;
}

void setProgressText(const ai::UnicodeString& text) { user().progressText = readUtf8(text); }

void closeProgress() { updateProgress(0, 0); }

void realToString(AIReal value, ai::int16 precision, ai::UnicodeString& text) {
    writeUtf8(text, textOf(value, precision));
}

void stringToReal(const ai::UnicodeString& text, AIReal* value) {
    required(value) = realOf(readUtf8(text));
}

/// One row for each ruler unit, in the order of `AIRulerUnits`.
struct Unit {
    const char* shortName;
    const char* singular;
    const char* plural;
    AIReal points; ///< In one of them.
};
constexpr std::array<Unit, 8> kUnits = {{
    {"", "", "", 1},
    {"in", "inch", "inches", 72},
    {"cm", "centimeter", "centimeters", 28.346457F},
    {"pt", "point", "points", 1},
    {"p", "pica", "picas", 12},
    {"mm", "millimeter", "millimeters", 2.8346457F},
    {"px", "pixel", "pixels", 1},
    {"Q", "Q", "Q", 0.70866142F},
}};

const Unit& currentUnit() {
    const Document* const document = session().current;
    const std::size_t points = kPointsUnits;
    return kUnits.at(document == nullptr ? points : static_cast<std::size_t>(document->rulerUnits));
}

AIErr realToStringUnits(AIReal value, ai::int32 precision, ai::UnicodeString& text) {
    const Unit& unit = currentUnit();
    const auto decimals = static_cast<ai::int16>(precision < 0 ? kMostDecimals : precision);
    writeUtf8(text, textOf(value / unit.points, decimals) + ' ' + unit.shortName);
    return kNoErr;
}

void stringUnitsToReal(const ai::UnicodeString& string, AIReal* value) {
    const std::string text = readUtf8(string);
    const AIReal number = realOf(text);
    required(value) = number;
    if (number == kUnknownReal) return;
    const auto unitAt = text.find_first_not_of("0123456789+-.eE \t");
    const std::string name = unitAt == std::string::npos ? "" : text.substr(unitAt);
    const auto* const unit = std::find_if(kUnits.begin(), kUnits.end(), [&](const Unit& each) {
        return !name.empty() && name == each.shortName;
    });
    *value = number * (unit == kUnits.end() ? currentUnit() : *unit).points;
}

AIErr getUnitsString(ai::int16 format, ai::UnicodeString& text) {
    const Unit& unit = currentUnit();
    const std::array names = {unit.shortName, unit.singular, unit.plural};
    if (format < 0 || format >= std::ssize(names)) throw ai::Error{kBadParameterErr};
    writeUtf8(text, names[static_cast<std::size_t>(format)]);
    return kNoErr;
}

/// Messages of the host's own loop cannot be handled while a plug-in answers one.
AIErr appIdle() { return kNoErr; }

AIBoolean okToAllocateMemory() { return 1; }

AIErr launchApp(const ai::FilePath& path, AIBoolean /*openDocument*/) {
    user().launched.push_back(readPath(path));
    return kNoErr;
}

AIErr sameName(const ai::UnicodeString& first, const ai::UnicodeString& second, AIBoolean& same) {
    same = readString(first) == readString(second) ? 1 : 0;
    return kNoErr;
}

AIAnswer ask(const char* kind, const ai::UnicodeString& text) {
    user().alerts.push_back({kind, readUtf8(text)});
    if (user().answers.empty()) return kYes;
    const AIAnswer answer = user().answers.front();
    user().answers.pop_front();
    return answer;
}

void tell(const char* kind, const ai::UnicodeString& text) {
    user().alerts.push_back({kind, readUtf8(text)});
}

AIBoolean okCancelAlert(const ai::UnicodeString& text, AIBoolean /*okIsDefault*/,
                        const char* /*key*/) {
    return ask("ok-cancel", text) == kYes ? 1 : 0;
}
void warningAlert(const ai::UnicodeString& text, const char* /*key*/) { tell("warning", text); }
void messageAlertEx(const ai::UnicodeString& text, const char* /*key*/) { tell("message", text); }
AIAnswer questionAlert(const ai::UnicodeString& text) { return ask("question", text); }
AIAnswer yesNoAlert(const ai::UnicodeString& text) { return ask("yes-no", text); }
void errorAlert(const ai::UnicodeString& text) { tell("error", text); }
void messageAlert(const ai::UnicodeString& text) { tell("message", text); }

/// Opaque to plug-ins: seconds of the session's own clock, from 1, so that it is never nothing.
AIErr getDateAndTime(AIUserDateTime* now) {
    constexpr AIUserDateTime kTicksInSecond = 60;
    required(now) = 1 + static_cast<AIUserDateTime>(host().clock.ticks()) / kTicksInSecond;
    return kNoErr;
}

AIErr createCursors(SPPluginRef plugin, AIResourceManagerHandle* manager) {
    static_cast<void>(host().plugins.at(plugin));
    required(manager) = user().cursorManagers.add(plugin);
    return kNoErr;
}

AIErr setCursor(ai::int32 cursor, AIResourceManagerHandle manager) {
    // The host's own cursors, the negative ones, belong to no manager.
    if (cursor >= 0) static_cast<void>(user().cursorManagers.at(manager));
    user().cursor = cursor;
    return kNoErr;
}

AIErr disposeCursors(AIResourceManagerHandle manager) {
    user().cursorManagers.remove(manager);
    return kNoErr;
}

AIErr getLanguage(ai::UnicodeString& code) {
    writeUtf8(code, "en_US");
    return kNoErr;
}

AIReal getMaximumScale() { return 1; }

} // namespace

void installUserSuite(SuiteServer& server) {
    auto table = server.table<AIUserSuite>(kAIUserSuite, kAIUserSuiteVersion);
    expose<&AIUserSuite::Cancel, cancel>(table);
    expose<&AIUserSuite::UpdateProgress, updateProgress>(table);
    expose<&AIUserSuite::SetProgressText, setProgressText>(table);
    expose<&AIUserSuite::CloseProgress, closeProgress>(table);
    // Easel's user has a period as the decimal separator: the same text in every locale.
    expose<&AIUserSuite::AIRealToString, realToString>(table);
    expose<&AIUserSuite::StringToAIReal, stringToReal>(table);
    expose<&AIUserSuite::IUAIRealToString, realToString>(table);
    expose<&AIUserSuite::IUStringToAIReal, stringToReal>(table);
    expose<&AIUserSuite::IUAIRealToStringUnits, realToStringUnits>(table);
    expose<&AIUserSuite::IUStringUnitsToAIReal, stringUnitsToReal>(table);
    expose<&AIUserSuite::GetUnitsString, getUnitsString>(table);
    expose<&AIUserSuite::AppIdle, appIdle>(table);
    expose<&AIUserSuite::OKToAllocateMemory, okToAllocateMemory>(table);
    expose<&AIUserSuite::GetDateAndTime, getDateAndTime>(table);
    expose<&AIUserSuite::LaunchApp, launchApp>(table);
    expose<&AIUserSuite::SameName, sameName>(table);
    expose<&AIUserSuite::OKCancelAlert, okCancelAlert>(table);
    expose<&AIUserSuite::WarningAlert, warningAlert>(table);
    expose<&AIUserSuite::MessageAlertEx, messageAlertEx>(table);
    expose<&AIUserSuite::QuestionAlert, questionAlert>(table);
    expose<&AIUserSuite::YesNoAlert, yesNoAlert>(table);
    expose<&AIUserSuite::ErrorAlert, errorAlert>(table);
    expose<&AIUserSuite::MessageAlert, messageAlert>(table);
    expose<&AIUserSuite::CreateCursorResourceMgr, createCursors>(table);
    expose<&AIUserSuite::SetCursor, setCursor>(table);
    exposeEnding<&AIUserSuite::DisposeCursorResourceMgr, disposeCursors>(table);
    expose<&AIUserSuite::GetAILanguageCode, getLanguage>(table);
    expose<&AIUserSuite::GetMaximumScaleFactorOnSystem, getMaximumScale>(table);
}

} // namespace easel

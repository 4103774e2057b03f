#include "easel/core/Expose.h"
#include "easel/suites/runtime/RunningHost.h"
#include "easel/suites/runtime/RuntimeSuites.h"
#include "host/suites/AIPreferenceSuite.h"

#include <algorithm>
#include <cmath>
#include <limits>

namespace easel {
namespace {

/// Where a value is kept. A null prefix means the application's own values.
struct Name {
    const char* prefix;
    const char* suffix;
};

Name nameOf(const char* prefix, const char* suffix) {
    return {prefix == nullptr ? "" : prefix, &required(suffix)};
}

const Preferences::Value* find(const Name& name) {
    return host().preferences.find(name.prefix, name.suffix);
}

void put(const char* prefix, const char* suffix, Preferences::Value value) {
    const Name name = nameOf(prefix, suffix);
    host().preferences.put(name.prefix, name.suffix, std::move(value));
}

/// The answer of a getter. What cannot be read leaves the output as the plug-in preset it; a value
/// of another type is no failure, an absent one may be.
AIErr answer(const Name& name) {
    const bool absent = find(name) == nullptr;
    return absent && !session().switches.absentPreferenceSucceeds ? kBadParameterErr : kNoErr;
}

/// Numbers convert into each other; what does not fit becomes the nearest that does.
template <typename Number> Number convert(double value) {
    if constexpr (std::is_integral_v<Number>) {
        constexpr auto kLeast = static_cast<double>(std::numeric_limits<Number>::min());
        constexpr auto kMost = static_cast<double>(std::numeric_limits<Number>::max());
        if (std::isnan(value)) return 0;
        if (value >= kMost) return std::numeric_limits<Number>::max();
        return static_cast<Number>(std::max(value, kLeast));
    } else {
        return static_cast<Number>(value);
    }
}

template <typename Number> AIErr getNumber(const char* prefix, const char* suffix, Number* value) {
    const Name name = nameOf(prefix, suffix);
    Number& result = required(value);
    if (const auto number = host().preferences.number(name.prefix, name.suffix))
        result = convert<Number>(*number);
    return answer(name);
}

AIErr getBoolean(const char* prefix, const char* suffix, AIBoolean* value) {
    const Name name = nameOf(prefix, suffix);
    AIBoolean& result = required(value);
    if (const auto number = host().preferences.number(name.prefix, name.suffix))
        result = *number != 0 ? 1 : 0;
    return answer(name);
}

template <typename Number> void putNumber(const char* prefix, const char* suffix, Number value) {
    put(prefix, suffix, value);
}

void putBoolean(const char* prefix, const char* suffix, AIBoolean value) {
    put(prefix, suffix, value != 0);
}

/// The buffer has no length; the interface asks for 1024 bytes.
AIErr getString(const char* prefix, const char* suffix, char* value) {
    constexpr std::size_t kBufferSize = 1024;
    const Name name = nameOf(prefix, suffix);
    char& first = required(value);
    if (const auto text = host().preferences.text(name.prefix, name.suffix)) {
        const std::size_t length = text->copy(&first, kBufferSize - 1);
        value[length] = '\0';
    }
    return answer(name);
}

void putString(const char* prefix, const char* suffix, const char* value) {
    put(prefix, suffix, std::string(&required(value)));
}

} // namespace

void installPreferenceSuite(SuiteServer& server) {
    using Suite = AIPreferenceSuite;
    expose<&Suite::GetBooleanPreference, getBoolean, FailsWithPresets>(server);
    expose<&Suite::PutBooleanPreference, putBoolean>(server);
    expose<&Suite::GetIntegerPreference, getNumber<ai::int32>, FailsWithPresets>(server);
    expose<&Suite::PutIntegerPreference, putNumber<ai::int32>>(server);
    expose<&Suite::GetRealPreference, getNumber<double>, FailsWithPresets>(server);
    expose<&Suite::PutRealPreference, putNumber<double>>(server);
    expose<&Suite::GetStringPreference, getString, FailsWithPresets>(server);
    expose<&Suite::PutStringPreference, putString>(server);
}

} // namespace easel

#include "easel/core/Arguments.h"
#include "easel/core/Expose.h"
#include "easel/core/HostPath.h"
#include "easel/core/HostString.h"
#include "easel/runtime/Host.h"
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

AIErr put(const char* prefix, const char* suffix, Preferences::Value value) {
    const Name name = nameOf(prefix, suffix);
    host().preferences.put(name.prefix, name.suffix, std::move(value));
    return kNoErr;
}

/// The answer of a getter. What cannot be read leaves the output as the plug-in preset it; a value
/// of another type is no failure, an absent one may be.
AIErr answer(const Name& name) {
    const bool absent = find(name) == nullptr;
    return absent && !switches().absentPreferenceSucceeds ? kBadParameterErr : kNoErr;
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

template <typename Number> AIErr putNumber(const char* prefix, const char* suffix, Number value) {
    return put(prefix, suffix, value);
}

AIErr getBoolean(const char* prefix, const char* suffix, AIBoolean* value) {
    const Name name = nameOf(prefix, suffix);
    AIBoolean& result = required(value);
    if (const auto number = host().preferences.number(name.prefix, name.suffix))
        result = *number != 0 ? 1 : 0;
    return answer(name);
}

AIErr putBoolean(const char* prefix, const char* suffix, AIBoolean value) {
    return put(prefix, suffix, value != 0);
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

AIErr putString(const char* prefix, const char* suffix, const char* value) {
    return put(prefix, suffix, std::string(&required(value)));
}

AIErr getUnicode(const char* prefix, const char* suffix, ai::UnicodeString& value) {
    const Name name = nameOf(prefix, suffix);
    if (const auto text = host().preferences.text(name.prefix, name.suffix))
        writeUtf8(value, *text);
    return answer(name);
}

AIErr putUnicode(const char* prefix, const char* suffix, const ai::UnicodeString& value) {
    return put(prefix, suffix, readUtf8(value));
}

AIErr getPath(const char* prefix, const char* suffix, ai::FilePath& value) {
    const Name name = nameOf(prefix, suffix);
    if (const auto text = host().preferences.text(name.prefix, name.suffix))
        writePath(value, std::filesystem::path(std::u8string(text->begin(), text->end())));
    return answer(name);
}

AIErr putPath(const char* prefix, const char* suffix, const ai::FilePath& value) {
    const std::u8string text = readPath(value).u8string();
    return put(prefix, suffix, std::string(text.begin(), text.end()));
}

AIErr getBlock(const char* prefix, const char* suffix, void* block, ai::int32 size) {
    const Name name = nameOf(prefix, suffix);
    const auto* const value = find(name);
    const auto* const bytes = value == nullptr ? nullptr : std::get_if<Preferences::Bytes>(value);
    if (bytes != nullptr && size > 0)
        std::copy_n(bytes->begin(),
                    std::min<std::size_t>(bytes->size(), static_cast<std::size_t>(size)),
                    &required(static_cast<ai::uint8*>(block)));
    return answer(name);
}

AIErr putBlock(const char* prefix, const char* suffix, void* block, ai::int32 size) {
    if (size < 0) throw ai::Error{kBadParameterErr};
    const auto* const bytes = &required(static_cast<const ai::uint8*>(block));
    return put(prefix, suffix, Preferences::Bytes(bytes, bytes + size));
}

template <typename Record> AIErr getRecord(const char* prefix, const char* suffix, Record* value) {
    const Name name = nameOf(prefix, suffix);
    Record& result = required(value);
    const auto* const stored = find(name);
    if (const auto* const record = stored == nullptr ? nullptr : std::get_if<Record>(stored))
        result = *record;
    return answer(name);
}

template <typename Record> AIErr putRecord(const char* prefix, const char* suffix, Record* value) {
    return put(prefix, suffix, required(value));
}

AIErr removePreference(const char* prefix, const char* suffix) {
    const Name name = nameOf(&required(prefix), suffix); // never the application's own
    host().preferences.remove(name.prefix, name.suffix);
    return kNoErr;
}

} // namespace

void installPreferenceSuite(SuiteServer& server) {
    using Suite = AIPreferenceSuite;
    auto table = server.table<Suite>(kAIPreferenceSuite, kAIPreferenceSuiteVersion);
    expose<&Suite::GetBooleanPreference, getBoolean, FailsWithPresets>(table);
    expose<&Suite::PutBooleanPreference, putBoolean>(table);
    expose<&Suite::GetIntegerPreference, getNumber<ai::int32>, FailsWithPresets>(table);
    expose<&Suite::PutIntegerPreference, putNumber<ai::int32>>(table);
    expose<&Suite::GetRealPreference, getNumber<double>, FailsWithPresets>(table);
    expose<&Suite::PutRealPreference, putNumber<double>>(table);
    expose<&Suite::GetStringPreference, getString, FailsWithPresets>(table);
    expose<&Suite::PutStringPreference, putString>(table);
    expose<&Suite::GetUnicodeStringPreference, getUnicode, FailsWithPresets>(table);
    expose<&Suite::PutUnicodeStringPreference, putUnicode>(table);
    expose<&Suite::GetBlockPreference, getBlock, FailsWithPresets>(table);
    expose<&Suite::PutBlockPreference, putBlock>(table);
    expose<&Suite::GetFixedPreference, getNumber<AIFixed>, FailsWithPresets>(table);
    expose<&Suite::PutFixedPreference, putNumber<AIFixed>>(table);
    expose<&Suite::GetFractPreference, getNumber<AIFract>, FailsWithPresets>(table);
    expose<&Suite::PutFractPreference, putNumber<AIFract>>(table);
    expose<&Suite::GetPointPreference, getRecord<AIPoint>, FailsWithPresets>(table);
    expose<&Suite::PutPointPreference, putRecord<AIPoint>>(table);
    expose<&Suite::GetRectPreference, getRecord<AIRect>, FailsWithPresets>(table);
    expose<&Suite::PutRectPreference, putRecord<AIRect>>(table);
    expose<&Suite::GetFilePathSpecificationPreference, getPath, FailsWithPresets>(table);
    expose<&Suite::PutFilePathSpecificationPreference, putPath>(table);
    expose<&Suite::RemovePreference, removePreference>(table);
    expose<&Suite::GetLargeIntegerPreference, getNumber<ai::int64>, FailsWithPresets>(table);
    expose<&Suite::PutLargeIntegerPreference, putNumber<ai::int64>>(table);
}

} // namespace easel

#include "toolkit/SuiteTables.h"

#include "host/Codes.h"

#include <algorithm>
#include <string_view>

namespace NRDM {
namespace {

template <typename Suite>
constexpr SuiteTable row(const char* name, ai::int32 version, const Suite& functions) {
    return {name, version, &functions, sizeof(Suite) / sizeof(void*)};
}

constexpr SuiteTable kTables[] = {
    row(kADMBasicSuite, kADMBasicSuiteVersion, kBasicSuite),
    row(kADMDialogSuite, kADMDialogSuiteVersion, kDialogSuite),
    row(kADMDrawerSuite, kADMDrawerSuiteVersion, kDrawerSuite),
    row(kADMEntrySuite, kADMEntrySuiteVersion, kEntrySuite),
    row(kADMIconSuite, kADMIconSuiteVersion, kIconSuite),
    row(kADMImageSuite, kADMImageSuiteVersion, kImageSuite),
    row(kADMItemSuite, kADMItemSuiteVersion, kItemSuite),
    row(kADMListSuite, kADMListSuiteVersion, kListSuite),
    row(kADMNotifierSuite, kADMNotifierSuiteVersion, kNotifierSuite),
    row(kADMTrackerSuite, kADMTrackerSuiteVersion, kTrackerSuite),
    row(kADMWinHostSuite, kADMWinHostSuiteVersion, kWinHostSuite),
};

const SuiteTable* find(const char* name, ai::int32 version) {
    const auto* const found = std::ranges::find_if(kTables, [&](const SuiteTable& table) {
        return name != nullptr && table.version == version && std::string_view(table.name) == name;
    });
    return found != std::end(kTables) ? found : nullptr;
}

/// What the host's functions are called through: they take no word of whose suite it is. Both are
/// written by `offeringSuites`.
const SPBasicSuite* hostSuite = nullptr; // NOLINT(cppcoreguidelines-avoid-non-const-global*)
SPBasicSuite extendedSuite{};            // NOLINT(cppcoreguidelines-avoid-non-const-global*)

SPErr acquire(const char* name, ai::int32 version, const void** functions) {
    const SuiteTable* const own = find(name, version);
    if (own == nullptr) return hostSuite->AcquireSuite(name, version, functions);
    if (functions == nullptr) return kBadParameterErr;
    *functions = own->functions;
    return kNoErr;
}

SPErr release(const char* name, ai::int32 version) {
    return find(name, version) != nullptr ? kNoErr : hostSuite->ReleaseSuite(name, version);
}

} // namespace

std::span<const SuiteTable> suiteTables() { return kTables; }

const SPBasicSuite* offeringSuites(const SPBasicSuite* host) {
    if (host == nullptr) return nullptr;
    hostSuite = host;
    extendedSuite = *host;
    extendedSuite.AcquireSuite = acquire;
    extendedSuite.ReleaseSuite = release;
    return &extendedSuite;
}

} // namespace NRDM

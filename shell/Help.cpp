#include "shell/Help.h"

#include "Version.h"
#include "Web.h"

#include "host/Error.h"
#include "host/FilePath.h"
#include "host/Suites.h"
#include "host/UnicodeString.h"
#include "host/UserSuiteLayout.h"
#include "host/suites/AIFilePathSuite.h"
#include "host/suites/AIPreferenceSuite.h"
#include "host/suites/AIRuntimeSuite.h"
#include "host/suites/AIURLSuite.h"
#include "host/suites/AIUserSuite.h"
#include "platform/Platform.h"
#include "shell/Alert.h"

#include <array>
#include <charconv>
#include <string>

namespace facetta {
namespace {

constexpr std::string_view kManual = "Facetta User Manual.pdf";

constexpr std::string_view kPages = FACETTA_WEB_ENDPOINT "?platform=w&version=";
constexpr std::string_view kNoWebMessage =
    "The web cannot be reached. Please contact Norvane Graphics: " FACETTA_CONTACT_PAGE;

/// `path` becomes the file `name` in the folder of the plug-in's library. False when the library
/// cannot be told or the file is not there.
bool findBesideLibrary(std::string_view name, ai::FilePath& path) {
    const std::u16string library = platform::moduleFileName();
    if (library.empty()) return false;
    const auto& paths = *ai::suites.filePath;
    ai::FilePath file;
    constexpr AIBool8 kAsItIs = 0;
    constexpr AIBool8 kResolveLinks = 1;
    return paths.Set(ai::UnicodeString(library), kAsItIs, file) == kNoErr &&
           paths.GetParent(file, path) == kNoErr &&
           paths.AddComponent(ai::UnicodeString(name), path) == kNoErr &&
           paths.Exists(path, kResolveLinks, nullptr, nullptr) != 0;
}

bool webIsReachable() { return ai::suites.url->IsBrowserAvailable() != 0; }

std::u16string pageAddress(const Licensing& licence, std::string_view topic) {
    std::string address(kPages);
    address += FACETTA_VERSION;
    address += "&host=" + std::to_string(ai::suites.runtime->GetAppMajorVersion());
    address += licence.pageFragment();
    address += "&level=1";
    if (!topic.empty()) address.append("&source=").append(topic);
    return {address.begin(), address.end()}; // plain ASCII
}

using VersionNumbers = std::array<int, 3>;

/// "1.1.0" as three numbers to compare; what is missing or unreadable counts as 0.
VersionNumbers versionNumbers(std::string_view text) {
    VersionNumbers numbers{};
    const char* at = text.data();
    const char* const end = at + text.size();
    for (int& number : numbers) {
        at = std::from_chars(at, end, number).ptr;
        if (at == end || *at++ != '.') break;
    }
    return numbers;
}

// The licence's own corner of the preference store, apart from the user's settings.
constexpr char kLicencePrefix[] = "FacettaLicensing";
constexpr char kLastVersion[] = "LastVersion";

bool isFirstStartOfVersion() {
    std::array<char, 1024> last{}; // the host's calls give no length and fill up to this much
    ai::suites.preference->GetStringPreference(kLicencePrefix, kLastVersion, last.data());
    return versionNumbers(last.data()) < versionNumbers(FACETTA_VERSION);
}

} // namespace

void openManual() {
    if (ai::suites.filePath == nullptr) return;
    ai::FilePath manual;
    constexpr AIBoolean kWithoutDocument = 0;
    if (!findBesideLibrary(kManual, manual)) return;
    if (ai::liesAsDeclared(*ai::suites.user)) {
        ai::suites.user->LaunchApp(manual, kWithoutDocument);
        return;
    }
    ai::UnicodeString name;
    constexpr AIBool8 kAsTheSystemWritesIt = 0;
    ai::check(ai::suites.filePath->GetFullPath(manual, kAsTheSystemWritesIt, name));
    platform::open(name.utf16());
}

void openWebPage(const Licensing& licence, std::string_view topic) {
    if (webIsReachable())
        platform::open(pageAddress(licence, topic));
    else
        showAlert(kNoWebMessage);
}

void welcomeOnFirstStart(const Licensing& licence) {
    // Without a web nobody is bothered; the next start tries again.
    if (!isFirstStartOfVersion() || !webIsReachable()) return;
    openWebPage(licence, "welcome");
    ai::check(
        ai::suites.preference->PutStringPreference(kLicencePrefix, kLastVersion, FACETTA_VERSION));
}

} // namespace facetta

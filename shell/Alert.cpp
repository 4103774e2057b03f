#include "shell/Alert.h"

#include "host/Error.h"
#include "host/Lent.h"
#include "host/SuiteHolder.h"
#include "host/UnicodeString.h"
#include "host/UserSuiteLayout.h"
#include "host/suites/AIAppContextSuite.h"
#include "host/suites/AIUnicodeStringSuite.h"
#include "host/suites/AIUserSuite.h"
#include "platform/Platform.h"

#include <algorithm>

namespace facetta {
namespace {

void* hostWindow() {
    AIWindowRef window = nullptr;
    const bool given = ai::suites.appContext != nullptr &&
                       ai::isGiven(ai::suites.appContext->GetPlatformAppWindow(&window), window);
    return given ? window : nullptr;
}

/// Our own texts are ASCII; a code's four characters may be any bytes.
std::u16string widened(std::string_view text) {
    std::u16string wide(text.size(), u' ');
    std::ranges::transform(text, wide.begin(), [](char c) {
        return static_cast<char16_t>(static_cast<unsigned char>(c));
    });
    return wide;
}

} // namespace

void showAlert(std::string_view text) {
    const ai::BorrowedSuite<&ai::Suites::unicodeString> strings;
    const ai::BorrowedSuite<&ai::Suites::user> user;
    const ai::BorrowedSuite<&ai::Suites::appContext> context;
    if (strings && user && ai::liesAsDeclared(*ai::suites.user))
        ai::suites.user->WarningAlert(ai::UnicodeString(widened(text)), nullptr);
    else
        platform::showMessage(hostWindow(), widened(text));
}

} // namespace facetta

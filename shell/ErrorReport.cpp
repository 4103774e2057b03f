#include "shell/ErrorReport.h"

#include "host/Error.h"
#include "platform/Platform.h"
#include "shell/Alert.h"

#include <algorithm>
#include <array>

namespace facetta {
namespace {

constexpr AIErr kSilentCodes[] = {
    fourCharacterCode("FMT?"),
    fourCharacterCode("RFSE"),
    fourCharacterCode("AFTR"),
    fourCharacterCode("VALD"),
    fourCharacterCode("MOOT"),
    fourCharacterCode("TRSH"),
    fourCharacterCode("CHEK"),
    fourCharacterCode("CHIT"),
    fourCharacterCode("TLTK"),
    kSPPluginCachesFlushResponse,
    kSPSuiteNotFoundError,
    kSPCantAcquirePluginError,
    fourCharacterCode("dsRP"),
    fourCharacterCode("skpE"),
    fourCharacterCode("DONE"),
    kCanceledErr,
    361, // the host's own number; it has no name
};

struct Message {
    AIErr code;
    const char* text; ///< '%' stands for the code
};

/// The host does not publish its texts by code; these say what the user can do.
constexpr Message kMessages[] = {
    {kOutOfMemoryErr, "There is not enough memory. Close other documents and try again. (%)"},
    {kSPOutOfMemoryError, "There is not enough memory. Close other documents and try again. (%)"},
    {kNoDocumentErr, "Open a document first. (%)"},
    {kUntouchableArtObjectErr, "Some of the artwork is locked or hidden. Unlock it first. (%)"},
    {kUntouchableLayerErr, "The layer is locked or hidden. Unlock it first. (%)"},
    {kTooManySegmentsErr, "A path would get more points than a path can have. (%)"},
};
constexpr char kAnyOtherMessage[] = "Facetta could not finish the last action. Error: %.";

/// A longer text would be one that does not expect a code.
constexpr std::size_t kLongestTemplate = 120;

} // namespace

bool isSilent(AIErr code) {
    return std::ranges::find(kSilentCodes, code) != std::end(kSilentCodes);
}

std::string codeText(AIErr code) {
    constexpr AIErr kFirstFourCharacterCode = 16385;
    if (code < kFirstFourCharacterCode) return std::to_string(code);
    std::string text;
    for (const int shift : {24, 16, 8, 0})
        text.push_back(static_cast<char>(code >> shift & 0xFF));
    return text;
}

std::string errorText(AIErr code) {
    const auto* found = std::ranges::find(kMessages, code, &Message::code);
    std::string text = found != std::end(kMessages) ? found->text : kAnyOtherMessage;
    if (text.size() < kLongestTemplate) text.replace(text.find('%'), 1, codeText(code));
    return text;
}

void showError(AIErr code) noexcept {
    if (isSilent(code)) return;
    static_cast<void>(ai::codeOf([code] {
        showAlert(errorText(code));
        return kNoErr;
    }));
}

void ErrorReporter::report(AIErr code) noexcept {
    if (isSilent(code)) return;
    constexpr ai::uint64 kMillisecondsInSecond = 1000;
    const ai::uint64 now = platform::ticks() / kMillisecondsInSecond;
    if (suppressDuplicates_ && code == lastCode_ && now < lastTime_ + timeout_) return;
    lastCode_ = code;
    lastTime_ = now;
    showError(code);
}

} // namespace facetta

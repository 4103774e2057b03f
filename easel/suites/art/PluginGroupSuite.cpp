#include "host/suites/AIPluginGroupSuite.h"

#include "easel/core/Arguments.h"
#include "easel/core/Expose.h"
#include "easel/document/Attributes.h"
#include "easel/document/Session.h"
#include "easel/suites/art/ArtSuites.h"

#include <algorithm>
#include <cstring>

namespace easel {
namespace {

/// The host's limit of what a plug-in group may store.
constexpr std::size_t kMostData = 32768;
constexpr AIErr kTooMuchDataErr = fourCharacterCode("FULL");

Art& pluginGroupOf(AIArtHandle handle) {
    Art& art = artOf(handle);
    if (art.type() != kPluginArt) throw ai::Error{kBadParameterErr};
    return art;
}

AIErr getPluginArtEditArt(AIArtHandle art, AIArtHandle* group) {
    required(group) = nullptr;
    *group = editArt(pluginGroupOf(art))->handle();
    return kNoErr;
}

AIErr getPluginArtResultArt(AIArtHandle art, AIArtHandle* group) {
    required(group) = nullptr;
    *group = resultArt(pluginGroupOf(art))->handle();
    return kNoErr;
}

AIErr getDataCount(AIArtHandle art, std::size_t* count) {
    required(count) = pluginGroupOf(art).details().pluginData.size();
    return kNoErr;
}

AIErr setDataCount(AIArtHandle handle, std::size_t count) {
    Art& art = pluginGroupOf(handle);
    if (count > kMostData) return kTooMuchDataErr;
    checkEditable(art);
    art.write(Edit::Quiet).details.write().pluginData.resize(count);
    return kNoErr;
}

/// Both forms name a range as the first byte and how many.
void checkRange(const Art& art, std::size_t first, std::size_t count) {
    const std::size_t size = art.details().pluginData.size();
    if (first > size || count > size - first) throw ai::Error{kBadParameterErr};
}

AIErr getDataRange(AIArtHandle handle, void* data, std::size_t first, std::size_t count) {
    const Art& art = pluginGroupOf(handle);
    checkRange(art, first, count);
    if (count != 0)
        std::memcpy(&required(static_cast<char*>(data)), art.details().pluginData.data() + first,
                    count);
    return kNoErr;
}

AIErr setDataRange(AIArtHandle handle, void* data, std::size_t first, std::size_t count) {
    Art& art = pluginGroupOf(handle);
    checkRange(art, first, count);
    checkEditable(art);
    if (count != 0)
        std::memcpy(art.write(Edit::Quiet).details.write().pluginData.data() + first,
                    &required(static_cast<char*>(data)), count);
    return kNoErr;
}

/// No plug-in of Easel keeps result art up to date, so nothing is ever dirty.
AIErr markPluginArt(AIArtHandle art) {
    static_cast<void>(pluginGroupOf(art));
    return kNoErr;
}

AIErr countPluginGroups(ai::int32* count) {
    required(count) = 0;
    return kNoErr;
}

AIErr getPluginArtClipping(AIArtHandle art, AIBoolean* clipping) {
    required(clipping) = pluginGroupOf(art).has(kArtIsClipMask) ? 1 : 0;
    return kNoErr;
}

} // namespace

void installPluginGroupSuite(SuiteServer& server) {
    using S = AIPluginGroupSuite;
    auto table = server.table<S>(kAIPluginGroupSuite, kAIPluginGroupSuiteVersion);
    expose<&S::CountAIPluginGroups, countPluginGroups>(table);
    expose<&S::GetPluginArtEditArt, getPluginArtEditArt>(table);
    expose<&S::GetPluginArtResultArt, getPluginArtResultArt>(table);
    expose<&S::GetPluginArtDataCount, getDataCount>(table);
    expose<&S::SetPluginArtDataCount, setDataCount>(table);
    expose<&S::GetPluginArtDataRange, getDataRange>(table);
    expose<&S::SetPluginArtDataRange, setDataRange>(table);
    expose<&S::MarkPluginArtDirty, markPluginArt>(table);
    expose<&S::MarkPluginArtClean, markPluginArt>(table);
    expose<&S::MarkPluginArtSilent, markPluginArt>(table);
    expose<&S::GetPluginArtClipping, getPluginArtClipping>(table);
}

} // namespace easel

#include "easel/core/Expose.h"
#include "easel/core/HostPath.h"
#include "easel/core/HostString.h"
#include "easel/runtime/Host.h"
#include "easel/suites/runtime/RuntimeSuites.h"
#include "host/suites/AIFoldersSuite.h"

#include <algorithm>
#include <iterator>
#include <system_error>

namespace easel {
namespace {

struct Folder {
    AIFolderType type;
    const char* name; ///< Below the folder of the program; empty: that folder itself.
};

/// All that plug-ins ask for lies in one place: Easel installs nothing elsewhere.
constexpr Folder kFolders[] = {
    {0, ""},         {1, "Plug-ins"}, {4, "Preferences"}, {5, "User"},
    {7, "Plug-ins"}, {23, "Help"},    {24, ""},           {25, "Presets"},
};

const Folder& folderOf(AIFolderType type) {
    const auto* const found = std::find_if(std::begin(kFolders), std::end(kFolders),
                                           [&](const Folder& each) { return each.type == type; });
    if (found == std::end(kFolders)) throw ai::Error{kFolderNotFoundErr};
    return *found;
}

AIErr findFolder(AIFolderType type, AIBoolean create, ai::FilePath& path) {
    const std::filesystem::path folder = programFolder() / folderOf(type).name;
    std::error_code failed;
    if (create != 0) std::filesystem::create_directories(folder, failed);
    if (!std::filesystem::is_directory(folder, failed)) throw ai::Error{kFolderNotFoundErr};
    writePath(path, folder);
    return kNoErr;
}

AIErr getFolderName(AIFolderType type, ai::UnicodeString& name) {
    writeUtf8(name, folderOf(type).name);
    return kNoErr;
}

} // namespace

void installFoldersSuite(SuiteServer& server) {
    auto table = server.table<AIFoldersSuite>(kAIFoldersSuite, kAIFoldersSuiteVersion);
    expose<&AIFoldersSuite::FindFolder, findFolder>(table);
    expose<&AIFoldersSuite::GetFolderName, getFolderName>(table);
}

} // namespace easel

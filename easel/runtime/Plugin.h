#pragma once

#include "easel/core/Registry.h"
#include "easel/runtime/Library.h"

#include <memory>
#include <string>
#include <vector>

namespace easel {

/// One plug-in as the host knows it.
struct Plugin {
    std::string name;
    PluginDescription description;
    std::filesystem::path file;       ///< Empty for one that lives in this process.
    std::unique_ptr<Library> library; ///< Null while it is not loaded, or lives in this process.
    std::vector<std::unique_ptr<FormerPlace>> formerPlaces; ///< Of its library.
    SPPluginEntryFunc entry = nullptr;                      ///< Null while it is not loaded.
    void* globals = nullptr;        ///< Kept for the plug-in between messages.
    SPAccessRef access = nullptr;   ///< Null while it is not loaded.
    ai::int32 accessCount = 0;      ///< By other than the host itself.
    ai::uint32 lastAccessTicks = 0; ///< In 1/60 s.
    bool started = false;
    bool broken = false; ///< Its start-up failed: it gets no message but the unload.
    bool skipShutdown = false;
};

using Plugins = Registry<SPPluginRef, Plugin>;

} // namespace easel

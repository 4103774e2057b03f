#pragma once

#include "easel/core/Registry.h"
#include "easel/runtime/Library.h"

#include <memory>
#include <string>
#include <vector>

namespace easel {

class Sender;

/// One plug-in as the host knows it.
struct Plugin {
    std::string name;
    PluginDescription description;
    std::filesystem::path file;       ///< Empty for one that lives in this process.
    std::unique_ptr<Library> library; ///< Null while it is not loaded, or lives in this process.
    std::vector<std::unique_ptr<FormerPlace>> formerPlaces; ///< Of its library.
    SPPluginEntryFunc entry = nullptr;                      ///< Null while it is not loaded.
    void* globals = nullptr;      ///< Kept for the plug-in between messages.
    SPAccessRef access = nullptr; ///< Null while it is not loaded.
    ai::int32 accessCount = 0;    ///< By other than the host itself.
    bool started = false;
    bool broken = false; ///< Its start-up failed: it gets no message but the unload.
    bool skipShutdown = false;
};

/// The plug-ins, and how they come and go: loaded, started, shut down, unloaded.
class Plugins : public Registry<SPPluginRef, Plugin> {
public:
    /// Every plug-in that `file` holds. Throws `ai::Error` as `describePlugins`.
    void addLibrary(const std::filesystem::path& file);
    /// One whose entry is a function of this program.
    SPPluginRef addEntry(std::string name, SPPluginEntryFunc entry);

    /// Loads the library unless it is loaded. Throws `ai::Error` '!Acq'.
    void load(Sender& sender, SPPluginRef plugin, ai::int32 when);
    /// Unloads the library and loads it again at another address, as a host short of memory does.
    /// Throws '!Rel' while its access count is not zero, unless it is to be `evenIfHeld`.
    void reload(Sender& sender, SPPluginRef plugin, bool evenIfHeld);
    void start(Sender& sender, SPPluginRef plugin);
    void stop(Sender& sender, SPPluginRef plugin);

    /// Is a plug-in answering an "SP Access" message?
    [[nodiscard]] bool inAccessMessage() const noexcept { return inAccessMessage_; }

private:
    void unload(Sender& sender, SPPluginRef plugin, ai::int32 when);
    void sendAccess(Sender& sender, SPPluginRef plugin, const char* selector, ai::int32 when);

    bool inAccessMessage_ = false;
};

/// "'S!Fd'" for a code of four characters, else the number.
[[nodiscard]] std::string codeText(AIErr code);

} // namespace easel

#include "easel/runtime/Plugin.h"

#include "easel/document/Session.h"
#include "easel/runtime/Sender.h"
#include "host/MessageNames.h"

#include <utility>

namespace easel {

std::string codeText(AIErr code) {
    std::string text;
    for (int shift = 24; shift >= 0; shift -= 8) {
        const auto character = static_cast<unsigned char>(static_cast<ai::uint32>(code) >> shift);
        if (character < ' ' || character > '~') return std::to_string(code);
        text.push_back(static_cast<char>(character));
    }
    return '\'' + text + '\'';
}

void Plugins::addLibrary(const std::filesystem::path& file) {
    for (PluginDescription& description : describePlugins(file)) {
        Plugin plugin;
        plugin.name = description.name;
        plugin.skipShutdown = (description.messageFlags & kSkipShutdownMessage) != 0;
        plugin.description = std::move(description);
        plugin.file = file;
        add(std::move(plugin));
    }
}

SPPluginRef Plugins::addEntry(std::string name, SPPluginEntryFunc entry) {
    Plugin plugin;
    plugin.name = std::move(name);
    plugin.entry = entry;
    return add(std::move(plugin));
}

void Plugins::load(Sender& sender, SPPluginRef ref, ai::int32 when) {
    Plugin& plugin = at(ref);
    if (plugin.access != nullptr) return;
    if (!plugin.file.empty()) {
        plugin.library = std::make_unique<Library>(plugin.file);
        plugin.entry = plugin.library->entry(plugin.description.entry);
    }
    plugin.access = reinterpret_cast<SPAccessRef>(nextHandleValue());
    sendAccess(sender, ref, kSelectorReload, when);
}

void Plugins::unload(Sender& sender, SPPluginRef ref, ai::int32 when) {
    Plugin& plugin = at(ref);
    if (plugin.access == nullptr) return;
    sendAccess(sender, ref, kSelectorUnload, when);
    plugin.access = nullptr;
    if (plugin.file.empty()) return;
    plugin.entry = nullptr;
    plugin.library.reset();
}

void Plugins::reload(Sender& sender, SPPluginRef ref, bool evenIfHeld) {
    Plugin& plugin = at(ref);
    if (plugin.accessCount != 0 && !evenIfHeld) throw ai::Error{kSPCantReleasePluginError};
    std::unique_ptr<FormerPlace> place;
    if (plugin.library != nullptr) place = std::make_unique<FormerPlace>(*plugin.library);
    unload(sender, ref, kAccessAtRunTime);
    if (place != nullptr) {
        place->keep();
        plugin.formerPlaces.push_back(std::move(place));
    }
    load(sender, ref, kAccessAtRunTime);
}

void Plugins::sendAccess(Sender& sender, SPPluginRef plugin, const char* selector, ai::int32 when) {
    SPAccessMessage message{};
    message.when = when;
    const bool outer = std::exchange(inAccessMessage_, true);
    sender.send(plugin, kCallerAccess, selector, message);
    inAccessMessage_ = outer;
}

void Plugins::start(Sender& sender, SPPluginRef ref) {
    load(sender, ref, kAccessAtStartUp);
    Plugin& plugin = at(ref);
    SPInterfaceMessage message{};
    const SPErr result = sender.send(ref, kCallerInterface, kSelectorStartup, message);
    plugin.started = result == kNoErr;
    plugin.broken = !plugin.started;
    if (plugin.broken)
        sender.session().ledger.report(plugin.name + ": start-up failed with " + codeText(result));
}

void Plugins::stop(Sender& sender, SPPluginRef ref) {
    Plugin& plugin = at(ref);
    SPInterfaceMessage message{};
    if (plugin.started && !plugin.skipShutdown)
        sender.send(ref, kCallerInterface, kSelectorShutdown, message);
    plugin.started = false;
    unload(sender, ref, plugin.accessCount == 0 ? kAccessAtUnload : kAccessAtTerminal);
}

} // namespace easel

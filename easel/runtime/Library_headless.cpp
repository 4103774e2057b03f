#include "easel/runtime/Library.h"

#include "host/Error.h"

#include <dlfcn.h>

namespace easel {

std::vector<PluginDescription> describePlugins(const std::filesystem::path& file) {
    if (!std::filesystem::is_regular_file(file)) throw ai::Error{kSPPluginNotFoundError};
    return {{.name = file.stem().string(), .entry = "PluginMain"}};
}

Library::Library(const std::filesystem::path& file)
    : library_(static_cast<SPPlatformAccessRef>(
          dlopen(std::filesystem::absolute(file).c_str(), RTLD_NOW | RTLD_LOCAL))) {
    if (library_ == nullptr) throw ai::Error{kSPCantAcquirePluginError};
}

Library::~Library() { dlclose(library_); }

SPPluginEntryFunc Library::entry(const std::string& name) const {
    void* const found = dlsym(library_, name.c_str());
    if (found == nullptr) throw ai::Error{kSPCantAcquirePluginError};
    return reinterpret_cast<SPPluginEntryFunc>(found);
}

std::filesystem::path programFolder() {
    return std::filesystem::read_symlink("/proc/self/exe").parent_path();
}

std::filesystem::path pluginFileName() { return "facetta.so"; }

} // namespace easel

#include "easel/runtime/Library.h"

#include "host/Error.h"

#include <dlfcn.h>
#include <link.h>
#include <sys/mman.h>

#include <algorithm>
#include <span>

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

namespace {

struct Place {
    ElfW(Addr) base;
    std::size_t size;
};

/// Called for each library that is loaded; the one at `base` tells how far it reaches.
int measure(dl_phdr_info* info, std::size_t, void* context) {
    auto& place = *static_cast<Place*>(context);
    if (info->dlpi_addr != place.base) return 0;
    for (const ElfW(Phdr) & part : std::span(info->dlpi_phdr, info->dlpi_phnum))
        if (part.p_type == PT_LOAD)
            place.size = std::max<std::size_t>(place.size, part.p_vaddr + part.p_memsz);
    return 1;
}

} // namespace

FormerPlace::FormerPlace(const Library& library) {
    link_map* map = nullptr;
    if (dlinfo(library.native(), RTLD_DI_LINKMAP, &map) != 0)
        throw ai::Error{kSPCantAcquirePluginError};
    Place place{map->l_addr, 0};
    dl_iterate_phdr(measure, &place);
    start_ = reinterpret_cast<void*>(place.base);
    size_ = place.size;
}

void FormerPlace::keep() {
    constexpr int kWithoutFile = -1;
    void* const got = mmap(start_, size_, PROT_NONE,
                           MAP_PRIVATE | MAP_ANONYMOUS | MAP_FIXED_NOREPLACE, kWithoutFile, 0);
    if (got != start_) throw ai::Error{kSPCantReleasePluginError};
    kept_ = true;
}

FormerPlace::~FormerPlace() {
    if (kept_) munmap(start_, size_);
}

std::filesystem::path programFolder() {
    return std::filesystem::read_symlink("/proc/self/exe").parent_path();
}

std::filesystem::path pluginFileName() { return "facetta.so"; }

} // namespace easel

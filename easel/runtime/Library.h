#pragma once

#include "easel/runtime/PiPL.h"
#include "host/Handles.h"
#include "host/Messages.h"

#include <cstddef>
#include <filesystem>
#include <vector>

namespace easel {

/// The plug-ins that the library `file` says it holds, read without running any of its code. On
/// Windows from its PIPL resources; elsewhere a library is one plug-in with the entry `PluginMain`.
/// Throws `ai::Error`: 'P!Fd' when there is no such library, else as `parsePiPL`.
[[nodiscard]] std::vector<PluginDescription> describePlugins(const std::filesystem::path& file);

/// A plug-in's code, loaded for the life of the object.
class Library {
public:
    /// Throws `ai::Error` '!Acq' when the system cannot load it.
    explicit Library(const std::filesystem::path& file);
    ~Library();
    Library(const Library&) = delete;
    Library& operator=(const Library&) = delete;

    /// The exported function `name`. Throws '!Acq' when there is none.
    [[nodiscard]] SPPluginEntryFunc entry(const std::string& name) const;
    /// The system's own handle, by which the plug-in finds its resources.
    [[nodiscard]] SPPlatformAccessRef native() const noexcept { return library_; }

private:
    SPPlatformAccessRef library_;
};

/// The place in memory where a library lay, kept from being used again: the library's next place is
/// another one, and whoever still points into this one is stopped by the system.
class FormerPlace {
public:
    /// Where `library` lies as yet. Throws '!Acq' when the system cannot tell.
    explicit FormerPlace(const Library& library);
    ~FormerPlace();
    FormerPlace(const FormerPlace&) = delete;
    FormerPlace& operator=(const FormerPlace&) = delete;

    /// To be called once the library is gone. Throws '!Rel' when the system has kept it.
    void keep();

private:
    void* start_ = nullptr;
    std::size_t size_ = 0;
    bool kept_ = false;
};

/// The folder that holds the running program.
[[nodiscard]] std::filesystem::path programFolder();
/// "Facetta.aip" or "facetta.so": how plug-in libraries are called on this system.
[[nodiscard]] std::filesystem::path pluginFileName();

} // namespace easel

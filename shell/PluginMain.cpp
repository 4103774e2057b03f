#include "shell/Entry.h"
#include "shell/LicensedToAll.h"

/// The library's one export: the host calls it with every message.
extern "C" SPErr PluginMain(const char* caller, const char* selector, void* message) {
    static constexpr facetta::LicensedToAll kLicence;
    return facetta::handleMessage(kLicence, caller, selector, message);
}

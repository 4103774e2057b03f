#include "shell/Entry.h"

/// The library's one export: the host calls it with every message.
extern "C" SPErr PluginMain(const char* caller, const char* selector, void* message) {
    return facetta::handleMessage(facetta::Licensing{}, caller, selector, message);
}

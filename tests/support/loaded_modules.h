#pragma once

#include <dlfcn.h>
#include <link.h>

/// Keeps every library that is loaded now until the process ends. A driver that is unloaded has no
/// name any more by which its own leaks could be told from ours.
inline void keepModulesLoaded()
{
    const auto keep = [](dl_phdr_info* module, std::size_t, void*) {
        dlopen(module->dlpi_name, RTLD_LAZY | RTLD_NOLOAD | RTLD_NODELETE);
        return 0;
    };
    dl_iterate_phdr(keep, nullptr);
}

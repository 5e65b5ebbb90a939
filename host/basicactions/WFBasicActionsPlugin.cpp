// The host's own small package: what a build does between version-control steps.
#include "WFBasicActions.h"
#include "WFBasicActionsResources.h"

#include "WFLog.h"
#include "WFPluginLoader.h"

#include <cstring>

extern "C" __attribute__((visibility("default"))) void WFRegister(bool registerPages)
{
    RegisterBasicActions();
    if (!registerPages)
        return;
    // The pages live in a library of their own, so that a headless host never maps widgets.
    using TRegisterPages = void (*)();
    const auto registerPagesOf = reinterpret_cast<TRegisterPages>(WFCompanionLibraries()->Resolve(
        reinterpret_cast<const void*>(&WFRegister), "basicactions/WFBasicActionPages.so", "WFBasicActionsRegisterPages"));
    if (registerPagesOf)
        registerPagesOf();
    else
        WFWarning("the basic actions' property pages are unavailable");
}

/// What a host lists for the package beside its file.
extern "C" __attribute__((visibility("default"))) const char* WFPackageDescription()
{
    return "Wrenfield basic actions: log a message, set a variable, write a text file, run a program";
}

/// The actions' bitmaps by type ID, for a host's catalogue and dialogs.
extern "C" __attribute__((visibility("default"))) const unsigned char* WFPackageResource(const char* name, std::size_t* size)
{
    for (const TWFBasicActionsResource* entry = WFBasicActionsResourceTable; entry->name; ++entry)
        if (name && std::strcmp(name, entry->name) == 0) {
            if (size)
                *size = entry->size;
            return entry->data;
        }
    if (size)
        *size = 0;
    return nullptr;
}

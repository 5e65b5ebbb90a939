// The package's exported symbols: the host finds them by these plain names.
#include "shell/WFClearCaseRegistration.h"

#include "resources/WFClearCaseResources.h"

#include <string>

extern "C" __attribute__((visibility("default"))) void WFRegister(bool registerPages)
{
    ClearCaseRegister(registerPages);
}

/// What a host lists for the package beside its file.
extern "C" __attribute__((visibility("default"))) const char* WFPackageDescription()
{
    static const std::string description = WFClearCasePackageDescription();
    return description.c_str();
}

/// The package's bitmaps by name (action type IDs, CC_LOGO), for a host's catalogue and dialogs.
extern "C" __attribute__((visibility("default"))) const unsigned char* WFPackageResource(const char* name, std::size_t* size)
{
    const auto bytes = WFClearCaseFindResource(name ? name : "");
    if (size)
        *size = bytes.size();
    return bytes.empty() ? nullptr : bytes.data();
}

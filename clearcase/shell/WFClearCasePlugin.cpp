// The package's exported symbols: the host finds them by these plain names.
#include "shell/WFClearCaseRegistration.h"

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

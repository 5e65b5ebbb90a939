// The host's own small package: what a build does between version-control steps.
#include "WFBasicActions.h"

extern "C" __attribute__((visibility("default"))) void WFRegister(bool /*registerPages*/)
{
    RegisterBasicActions();
}

/// What a host lists for the package beside its file.
extern "C" __attribute__((visibility("default"))) const char* WFPackageDescription()
{
    return "Wrenfield basic actions: log a message, set a variable, write a text file, run a program";
}

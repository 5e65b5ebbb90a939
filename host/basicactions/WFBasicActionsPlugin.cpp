// The host's own small package: what a build does between version-control steps.
#include "WFBasicActions.h"

extern "C" __attribute__((visibility("default"))) void WFRegister(bool /*registerPages*/)
{
    RegisterBasicActions();
}

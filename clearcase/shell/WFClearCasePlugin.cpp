// The package's one exported symbol: the host finds WFRegister by this plain name.
#include "WFClearCaseOptions.h"

extern "C" __attribute__((visibility("default"))) void WFRegister(bool registerPages)
{
    (void)registerPages;
    RegisterOptions();
}

// The package's one exported symbol: the host finds WFRegister by this plain name.
#include "shell/WFClearCaseRegistration.h"

extern "C" __attribute__((visibility("default"))) void WFRegister(bool registerPages)
{
    ClearCaseRegister(registerPages);
}

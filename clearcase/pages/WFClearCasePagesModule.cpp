// The page library's one exported symbol: the package's registration finds it by this name.
#include "pages/WFClearCasePageTable.h"

extern "C" __attribute__((visibility("default"))) void WFClearCaseRegisterPages()
{
    ClearCaseRegisterPages();
}

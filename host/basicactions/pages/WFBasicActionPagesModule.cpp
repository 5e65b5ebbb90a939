// The page library's one exported symbol: the basic actions' registration finds it by this name.
#include "WFBasicActionPages.h"

extern "C" __attribute__((visibility("default"))) void WFBasicActionsRegisterPages()
{
    WFRegisterBasicActionPages();
}

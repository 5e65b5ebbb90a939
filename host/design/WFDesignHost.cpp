#include "WFDesignHost.h"

#include "WFBusyIndicator.h"
#include "WFDesignBrowse.h"

void WFInstallDesignHooks()
{
    WFInstallDialogBrowsers();
    WFInstallBusyIndicator();
}

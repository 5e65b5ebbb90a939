// The page library's one exported symbol: the package's registration finds it by this name.
#include "environment/WFClearCaseQuerySession.h"
#include "pages/WFClearCasePageTable.h"

extern "C" __attribute__((visibility("default"))) QWidget* WFClearCaseCreatePage(const char* className, QWidget* parent)
{
    // This library holds its own copy of the environment: its queries are design-time ones.
    SetClearCaseDesignTime(true);
    return ClearCaseCreatePage(className, parent);
}

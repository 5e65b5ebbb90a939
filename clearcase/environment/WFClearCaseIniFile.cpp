#include "environment/WFClearCaseIniFile.h"

#include "WFBrowse.h"
#include "environment/WFClearCaseOptions.h"
#include "WFIniFile.h"
#include "WFUtf8.h"

#include <string>

namespace {

constexpr const char* kSection = "ClearCase";
constexpr const char* kLastViewDirectory = "LastViewDirectory";
constexpr const char* kUsingCustomObjectSelector = "UsingCustomObjectSelector";

TWFIniFile userSettings()
{
    return TWFIniFile(GetWFUserIniFileName());
}

} // namespace

std::string CCGetLastViewDirectory()
{
    const std::string dir = userSettings().ReadString(kSection, kLastViewDirectory, "");
    if (dir.empty()) {
        if (IWFClearCaseOptions* options = ClearCaseOptions(); options && !options->GetDefaultViewPath().empty())
            return options->GetDefaultViewPath();
    }
    return dir;
}

bool CCSetLastViewDirectory(const std::string& dir)
{
    return userSettings().WriteString(kSection, kLastViewDirectory, dir);
}

std::string CCSelectViewPath(const std::string& current)
{
    const std::string start = current.empty() ? CCGetLastViewDirectory() : current;
    std::string chosen;
    if (!WFBrowseForDirectory(start, chosen, "Select View"))
        return current;
    CCSetLastViewDirectory(chosen);
    return chosen;
}

bool CCGetUsingCustomObjectSelector()
{
    // Written as 1 or 0, as INI Booleans usually are; a hand-edited "true" is honoured too.
    const std::string value = userSettings().ReadString(kSection, kUsingCustomObjectSelector, "0");
    if (WFCompareIgnoringCase(value, "true") == 0)
        return true;
    try {
        return std::stoi(value) != 0;
    } catch (...) {
        return false;
    }
}

bool CCSetUsingCustomObjectSelector(bool value)
{
    return userSettings().WriteString(kSection, kUsingCustomObjectSelector, value ? "1" : "0");
}

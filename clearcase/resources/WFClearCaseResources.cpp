#include "resources/WFClearCaseResources.h"

#include <algorithm>

std::span<const unsigned char> WFClearCaseFindResource(std::string_view name)
{
    for (const TWFClearCaseResource* entry = WFClearCaseResourceTable; entry->name; ++entry)
        if (name == entry->name)
            return {entry->data, entry->size};
    return {};
}

std::vector<std::string> WFClearCaseResourceNames()
{
    std::vector<std::string> names;
    for (const TWFClearCaseResource* entry = WFClearCaseResourceTable; entry->name; ++entry)
        names.emplace_back(entry->name);
    std::sort(names.begin(), names.end());
    return names;
}

// A stored list read back must be stable: reading, writing and reading again gives the same
// text, plain path names come before "@@" ones, and every entry ends in CR LF.
#include "actions/WFClearCaseCheckOutAction.h"
#include "actions/WFClearCaseMakeBaselineAction.h"

#include <cstdint>
#include <cstdlib>
#include <string>

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size)
{
    const std::string text(reinterpret_cast<const char*>(data), size);

    TClearCaseCheckoutAction checkout;
    checkout.SetPathNameStorageString(text);
    const std::string once = checkout.GetPathNameStorageString();
    checkout.SetPathNameStorageString(once);
    if (checkout.GetPathNameStorageString() != once)
        std::abort();
    if (!once.empty() && (once.size() < 2 || once.compare(once.size() - 2, 2, "\r\n") != 0))
        std::abort();
    bool seenExtended = false;
    for (const auto& path : checkout.GetPathNames()) {
        const bool extended = path.find("@@") != std::string::npos;
        if (seenExtended && !extended)
            std::abort();
        seenExtended = seenExtended || extended;
    }

    TClearCaseMakeBaselineAction baseline;
    baseline.SetActivitySelectorStorageString(text);
    const std::string activities = baseline.GetActivitySelectorStorageString();
    baseline.SetActivitySelectorStorageString(activities);
    if (baseline.GetActivitySelectorStorageString() != activities)
        std::abort();
    baseline.SetComponentSelectorStorageString(text);
    const std::string components = baseline.GetComponentSelectorStorageString();
    baseline.SetComponentSelectorStorageString(components);
    if (baseline.GetComponentSelectorStorageString() != components)
        std::abort();
    return 0;
}

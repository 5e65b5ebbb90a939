#include "pages/WFClearCasePageTable.h"

#include "pages/WFClearCaseCommentFrame.h"
#include "pages/WFClearCaseObjectSelectorFrame.h"
#include "pages/WFClearCaseOptionsFrame.h"
#include "WFPageFactory.h"

#include <cstring>

namespace {

// One row per page class, by name.
const TClearCasePageMaker kPages[] = {
    {"TClearCaseCommentFrame", WFMakePage<TClearCaseCommentFrame>},
    {"TClearCaseObjectSelectorFrame", WFMakePage<TClearCaseObjectSelectorFrame>},
    {"TClearCaseOptionsFrame", WFMakePage<TClearCaseOptionsFrame>},
};

} // namespace

std::span<const TClearCasePageMaker> ClearCasePageMakers()
{
    return kPages;
}

QWidget* ClearCaseCreatePage(const char* className, QWidget* parent)
{
    for (const auto& row : kPages)
        if (std::strcmp(row.className, className) == 0)
            return row.make(parent);
    return nullptr;
}

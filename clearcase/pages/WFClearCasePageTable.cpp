#include "pages/WFClearCasePageTable.h"

#include "pages/WFClearCaseActivitySelectorFrame.h"
#include "pages/WFClearCaseCommentFrame.h"
#include "pages/WFClearCaseMakeActivityFrame.h"
#include "pages/WFClearCaseMakeBaselineFrame.h"
#include "pages/WFClearCaseMakeBaselineFromLabelFrame.h"
#include "pages/WFClearCaseMakeBaseLineLabelFrame.h"
#include "WFPageFactory.h"

#include <cstring>

namespace {

// One row per page class, by name.
const TClearCasePageMaker kPages[] = {
    {"TClearCaseCommentFrame", WFMakePage<TClearCaseCommentFrame>},
    {"TClearCaseActivitySelectorFrame", WFMakePage<TClearCaseActivitySelectorFrame>},
    {"TClearCaseMakeActivityFrame", WFMakePage<TClearCaseMakeActivityFrame>},
    {"TClearCaseMakeBaselineFrame", WFMakePage<TClearCaseMakeBaselineFrame>},
    {"TClearCaseMakeBaseLineLabelFrame", WFMakePage<TClearCaseMakeBaseLineLabelFrame>},
    {"TClearCaseMakeBaselineFromLabelFrame", WFMakePage<TClearCaseMakeBaselineFromLabelFrame>},
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

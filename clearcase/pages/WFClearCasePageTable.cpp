#include "pages/WFClearCasePageTable.h"

#include "pages/WFClearCaseActivitySelectorFrame.h"
#include "pages/WFClearCaseApplyAttributeFrame.h"
#include "pages/WFClearCaseApplyAttributeObjectsFrame.h"
#include "pages/WFClearCaseApplyAttributePathNamesFrame.h"
#include "pages/WFClearCaseApplyLabelFrame.h"
#include "pages/WFClearCaseCheckInFrame.h"
#include "pages/WFClearCaseCheckOutFrame.h"
#include "pages/WFClearCaseCleartoolFrame.h"
#include "pages/WFClearCaseCommentFrame.h"
#include "pages/WFClearCaseExtendedPathNameFrame.h"
#include "pages/WFClearCaseFindCheckoutsFrame.h"
#include "pages/WFClearCaseGetConfigSpecFrame.h"
#include "pages/WFClearCaseLockFrame.h"
#include "pages/WFClearCaseMakeActivityFrame.h"
#include "pages/WFClearCaseMakeAttributeTypeFrame.h"
#include "pages/WFClearCaseMakeAttributeTypeOptionsFrame.h"
#include "pages/WFClearCaseMakeBaseLineLabelFrame.h"
#include "pages/WFClearCaseMakeBaselineFrame.h"
#include "pages/WFClearCaseMakeBaselineFromLabelFrame.h"
#include "pages/WFClearCaseMakeElementFrame.h"
#include "pages/WFClearCaseMkLbTypeFrame.h"
#include "pages/WFClearCaseObjectSelectorFrame.h"
#include "pages/WFClearCaseOptionsFrame.h"
#include "pages/WFClearCaseSetConfigSpecFrame.h"
#include "pages/WFClearCaseUnCheckOutActivityFrame.h"
#include "pages/WFClearCaseUnCheckOutFrame.h"
#include "pages/WFClearCaseUpdateFrame.h"
#include "pages/WFClearCaseViewPathNameFrame.h"
#include "WFPageFactory.h"

#include <cstring>

namespace {

// One row per page class, by name.
const TClearCasePageMaker kPages[] = {
    {"TClearCaseViewPathNameFrame", WFMakePage<TClearCaseViewPathNameFrame>},
    {"TClearCaseExtendedPathNameFrame", WFMakePage<TClearCaseExtendedPathNameFrame>},
    {"TClearCaseCommentFrame", WFMakePage<TClearCaseCommentFrame>},
    {"TClearCaseUpdateFrame", WFMakePage<TClearCaseUpdateFrame>},
    {"TClearCaseCheckInFrame", WFMakePage<TClearCaseCheckInFrame>},
    {"TClearCaseCheckOutFrame", WFMakePage<TClearCaseCheckOutFrame>},
    {"TClearCaseUnCheckOutFrame", WFMakePage<TClearCaseUnCheckOutFrame>},
    {"TClearCaseUnCheckOutActivityFrame", WFMakePage<TClearCaseUnCheckOutActivityFrame>},
    {"TClearCaseCleartoolFrame", WFMakePage<TClearCaseCleartoolFrame>},
    {"TClearCaseSetConfigSpecFrame", WFMakePage<TClearCaseSetConfigSpecFrame>},
    {"TClearCaseGetConfigSpecFrame", WFMakePage<TClearCaseGetConfigSpecFrame>},
    {"TClearCaseFindCheckoutsFrame", WFMakePage<TClearCaseFindCheckoutsFrame>},
    {"TClearCaseMakeAttributeTypeFrame", WFMakePage<TClearCaseMakeAttributeTypeFrame>},
    {"TClearCaseMakeAttributeTypeOptionsFrame", WFMakePage<TClearCaseMakeAttributeTypeOptionsFrame>},
    {"TClearCaseApplyAttributePathNamesFrame", WFMakePage<TClearCaseApplyAttributePathNamesFrame>},
    {"TClearCaseApplyAttributeFrame", WFMakePage<TClearCaseApplyAttributeFrame>},
    {"TClearCaseApplyAttributeObjectsFrame", WFMakePage<TClearCaseApplyAttributeObjectsFrame>},
    {"TClearCaseObjectSelectorFrame", WFMakePage<TClearCaseObjectSelectorFrame>},
    {"TClearCaseOptionsFrame", WFMakePage<TClearCaseOptionsFrame>},
    {"TClearCaseMakeElementFrame", WFMakePage<TClearCaseMakeElementFrame>},
    {"TClearCaseLockFrame", WFMakePage<TClearCaseLockFrame>},
    {"TClearCaseMkLbTypeFrame", WFMakePage<TClearCaseMkLbTypeFrame>},
    {"TClearCaseApplyLabelFrame", WFMakePage<TClearCaseApplyLabelFrame>},
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

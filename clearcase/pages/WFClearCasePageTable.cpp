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
#include "environment/WFClearCaseOptions.h"
#include "WFPageFactory.h"
#include "WFServices.h"

#include <cstring>
#include <set>
#include <string>

namespace {

template <typename T>
TClearCasePageMaker page()
{
    return {T::staticMetaObject.className(), WFMakePage<T>};
}

TWFPageClass pageClass(const TClearCasePageMaker& maker)
{
    return {maker.className, maker.make};
}

} // namespace

const std::vector<TClearCaseActionPagesRow>& ClearCaseActionPages()
{
    // The lists are uneven on purpose: not every action has every page.
    static const auto viewPaths = page<TClearCaseViewPathNameFrame>();
    static const auto extendedPaths = page<TClearCaseExtendedPathNameFrame>();
    static const auto objects = page<TClearCaseObjectSelectorFrame>();
    static const auto activity = page<TClearCaseActivitySelectorFrame>();
    static const auto comment = page<TClearCaseCommentFrame>();
    static const auto checkIn = page<TClearCaseCheckInFrame>();
    static const auto lock = page<TClearCaseLockFrame>();
    static const auto applyAttribute = page<TClearCaseApplyAttributeFrame>();
    static const std::vector<TClearCaseActionPagesRow> rows = {
        {"TClearCaseUpdateAction", {page<TClearCaseUpdateFrame>()}},
        {"TClearCaseCheckoutAction", {viewPaths, extendedPaths, page<TClearCaseCheckOutFrame>(), comment}},
        {"TClearCaseCheckInPathAction", {viewPaths, extendedPaths, checkIn, comment}},
        {"TClearCaseUnCheckOutAction", {viewPaths, extendedPaths, page<TClearCaseUnCheckOutFrame>()}},
        {"TClearCaseUnCheckOutActivityAction", {page<TClearCaseUnCheckOutActivityFrame>()}},
        {"TClearCaseCheckInActivityAction", {activity, checkIn, comment}},
        {"TClearCaseSetActivityAction", {activity, comment}},
        {"TClearCaseMkLbTypeAction", {page<TClearCaseMkLbTypeFrame>(), comment}},
        {"TClearCaseApplyLabelAction", {viewPaths, extendedPaths, page<TClearCaseApplyLabelFrame>(), comment}},
        {"TClearCaseLockPathNamesAction", {viewPaths, extendedPaths, lock, comment}},
        {"TClearCaseLockObjectsAction", {objects, lock, comment}},
        {"TClearCaseUnlockObjectsAction", {objects, comment}},
        {"TClearCaseUnlockPathNamesAction", {viewPaths, extendedPaths, comment}},
        {"TClearCaseMakeBaselineAction", {page<TClearCaseMakeBaselineFrame>(), page<TClearCaseMakeBaseLineLabelFrame>(), comment}},
        {"TClearCaseMakeBaselineFromLabelAction", {page<TClearCaseMakeBaselineFromLabelFrame>(), comment}},
        {"TClearCaseCleartoolAction", {page<TClearCaseCleartoolFrame>()}},
        {"TClearCaseMakeActivityAction", {page<TClearCaseMakeActivityFrame>(), comment}},
        {"TClearCaseMakeAttributeTypeAction",
         {page<TClearCaseMakeAttributeTypeFrame>(), page<TClearCaseMakeAttributeTypeOptionsFrame>(), comment}},
        {"TClearCaseApplyAttributePathNamesAction", {viewPaths, applyAttribute, page<TClearCaseApplyAttributePathNamesFrame>()}},
        {"TClearCaseApplyAttributeObjectsAction", {objects, applyAttribute, page<TClearCaseApplyAttributeObjectsFrame>()}},
        {"TClearCaseSetConfigSpecAction", {page<TClearCaseSetConfigSpecFrame>()}},
        {"TClearCaseGetConfigSpecAction", {page<TClearCaseGetConfigSpecFrame>()}},
        {"TClearCaseFindCheckoutsAction", {page<TClearCaseFindCheckoutsFrame>()}},
        {"TClearCaseMakeElementAction", {viewPaths, page<TClearCaseMakeElementFrame>(), comment}},
    };
    return rows;
}

const TClearCasePageMaker& ClearCaseOptionsPage()
{
    static const auto options = page<TClearCaseOptionsFrame>();
    return options;
}

std::vector<TClearCasePageMaker> ClearCasePageMakers()
{
    std::vector<TClearCasePageMaker> makers;
    std::set<std::string> seen;
    for (const auto& row : ClearCaseActionPages())
        for (const auto& maker : row.pages)
            if (seen.insert(maker.className).second)
                makers.push_back(maker);
    makers.push_back(ClearCaseOptionsPage());
    return makers;
}

QWidget* ClearCaseCreatePage(const char* className, QWidget* parent)
{
    for (const auto& maker : ClearCasePageMakers())
        if (std::strcmp(maker.className, className) == 0)
            return maker.make(parent);
    return nullptr;
}

void ClearCaseRegisterPages()
{
    WFOptionsServices().RegisterOptionsPages(ClearCaseOptionsClass(), {pageClass(ClearCaseOptionsPage())});
    // The host keys pages by class name alone.
    for (const auto& row : ClearCaseActionPages()) {
        std::vector<TWFPageClass> pages;
        for (const auto& maker : row.pages)
            pages.push_back(pageClass(maker));
        WFActionServices().RegisterActionPages(TWFActionClass{row.actionClassName, {}}, pages);
    }
}

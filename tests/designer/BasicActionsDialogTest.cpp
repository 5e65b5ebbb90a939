// The basic actions edited in the designer: their pages come from their own page library.
#include "ActionDialog.h"
#include "DesignerTestSupport.h"
#include "WFServices.h"

#include <QTabWidget>

#include <gtest/gtest.h>

namespace {

TEST(BasicActionsDialog, ShowsEachActionsOwnPageBeforeGeneral)
{
    designertest::loadPackages();
    for (const auto& [typeId, caption] : {std::pair{"WF_LOGMESSAGE", "Message"}, std::pair{"WF_SETVARIABLE", "Variable"},
                                          std::pair{"WF_WRITETEXTFILE", "File"}, std::pair{"WF_RUNPROGRAM", "Program"}}) {
        const auto* entry = WFActionServices().Find(typeId);
        ASSERT_TRUE(entry) << typeId;
        auto action = entry->actionClass.create();
        action->SetActionTypeID(typeId);
        TActionDialog dialog(*action);
        ASSERT_EQ(dialog.tabs()->count(), 2) << typeId;
        EXPECT_EQ(dialog.tabs()->tabText(0).toStdString(), caption) << typeId;
    }
}

} // namespace

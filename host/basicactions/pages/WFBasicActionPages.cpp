#include "WFBasicActionPages.h"
#include "ui_WFLogMessageFrame.h"
#include "ui_WFRunProgramFrame.h"
#include "ui_WFSetVariableFrame.h"
#include "ui_WFWriteTextFileFrame.h"

#include "WFBoundControls.h"
#include "WFServices.h"

namespace {

/// A page made from its layout alone: every control is bound to a property by name.
template <typename Layout>
QWidget* makePage(QWidget* parent)
{
    auto* page = new TWFBoundFrame(parent);
    Layout().setupUi(page);
    WFConnectBrowseButtons(page);
    return page;
}

template <typename Layout>
TWFBasicActionPageRow row(const char* actionClassName, const char* pageClassName)
{
    return {actionClassName, {pageClassName, makePage<Layout>}};
}

} // namespace

const std::vector<TWFBasicActionPageRow>& WFBasicActionPages()
{
    static const std::vector<TWFBasicActionPageRow> rows = {
        row<Ui::TWFLogMessageFrame>("TWFLogMessageAction", "TWFLogMessageFrame"),
        row<Ui::TWFSetVariableFrame>("TWFSetVariableAction", "TWFSetVariableFrame"),
        row<Ui::TWFWriteTextFileFrame>("TWFWriteTextFileAction", "TWFWriteTextFileFrame"),
        row<Ui::TWFRunProgramFrame>("TWFRunProgramAction", "TWFRunProgramFrame"),
    };
    return rows;
}

void WFRegisterBasicActionPages()
{
    for (const auto& row : WFBasicActionPages())
        WFActionServices().RegisterActionPages(TWFActionClass{row.actionClassName, {}}, {row.page});
}

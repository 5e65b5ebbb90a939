// The host's file dialog behind WFBrowseForFile: filters, proposed file and mode as a request
// asks for them.
#include "PageHarness.h"
#include "RowName.h"
#include "WFBrowse.h"
#include "WFDesignBrowse.h"
#include "WFTestSupport.h"

#include <QFileDialog>

#include <gtest/gtest.h>

namespace {

struct DialogCase {
    const char* name;
    TWFBrowseFileRequest request;
    QStringList filters;
    const char* selectedEnd; ///< how the proposed file's full path ends; nullptr: none proposed
    bool save;
};

WF_ROW_PRINTER(DialogCase)

class FileDialog : public ::testing::TestWithParam<DialogCase> {
protected:
    void SetUp() override { WFInstallDialogBrowsers(); }
    void TearDown() override
    {
        SetWFBrowseForDirectoryHook(nullptr);
        SetWFBrowseForFileHook(nullptr);
    }
};

TEST_P(FileDialog, ShowsWhatTheRequestAsks)
{
    const DialogCase& c = GetParam();
    QStringList filters;
    QString selected;
    QString title;
    QString folder;
    bool save = false;
    wfpage::answerModal([&](QWidget* widget) {
        auto* dialog = qobject_cast<QFileDialog*>(widget);
        ASSERT_TRUE(dialog);
        filters = dialog->nameFilters();
        selected = dialog->selectedFiles().value(0);
        title = dialog->windowTitle();
        folder = dialog->directory().absolutePath();
        save = dialog->acceptMode() == QFileDialog::AcceptSave;
        dialog->reject();
    });
    std::string chosen = "untouched";
    EXPECT_FALSE(WFBrowseForFile(c.request, chosen));
    EXPECT_EQ(chosen, "untouched");
    EXPECT_EQ(filters, c.filters);
    if (c.selectedEnd) {
        EXPECT_TRUE(selected.endsWith(c.selectedEnd)) << selected.toStdString();
    } else {
        EXPECT_TRUE(selected.isEmpty()) << selected.toStdString();
    }
    if (!c.request.initialDir.empty()) {
        EXPECT_EQ(folder.toStdString(), c.request.initialDir);
    }
    EXPECT_EQ(title.toStdString(), c.request.title);
    EXPECT_EQ(save, c.save);
}

// Requests: title, filter, folder, default extension, must exist, save, proposed file.
const DialogCase kDialogCases[] = {
    {"PairsWithPatternsInTheirDescription",
     {"Save Config Spec As", "Text Files (*.txt)|*.TXT|All Files (*.*)|*.*", "", "", false, true, "config_spec.txt"},
     {"Text Files (*.txt)", "All Files (*)"}, "/config_spec.txt", true},
    {"DescriptionsGetTheirPatterns", {"Open", "Specs|*.cs;*.spec|Everything|*", "/tmp", "", true, false, ""},
     {"Specs (*.cs *.spec)", "Everything (*)"}, nullptr, false},
    {"AnyNameIsEveryFileOffWindows", {"Select Config Spec File", "*.*", "/tmp", "", true, false, "/tmp/rel.cs"}, {"*"}, "/tmp/rel.cs", false},
};
INSTANTIATE_TEST_SUITE_P(Cases, FileDialog, ::testing::ValuesIn(kDialogCases), wftest::byName);

} // namespace

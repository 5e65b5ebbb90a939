// The two path-name list pages and their editors, driven through clicks, keys and the modal
// editors, and checked by what they write back to the action.
#include "PageCase.h"
#include "RowName.h"

#include "actions/WFClearCaseCheckOutAction.h"
#include "environment/WFClearCaseIniFile.h"
#include "FakeCleartool.h"
#include "pages/WFClearCaseEditViewPathForm.h"

#include <QComboBox>
#include <QListWidget>
#include <QMenu>
#include <QPushButton>
#include <QTest>
#include <QToolButton>

#include <gtest/gtest.h>

#include <optional>

using namespace wfpage;

namespace {

constexpr const char* kViewPage = "TClearCaseViewPathNameFrame";
constexpr const char* kExtendedPage = "TClearCaseExtendedPathNameFrame";
constexpr const char* kList = "pathsListBox";

QListWidget* listOf(const OpenPage& page)
{
    return page.control<QListWidget>(kList);
}

/// The items of a list or combo box, as the action stores text.
std::vector<std::string> texts(QWidget* list)
{
    std::vector<std::string> result;
    for (const QString& item : items(list))
        result.push_back(item.toStdString());
    return result;
}

QPoint rowCentre(QListWidget* list, int row)
{
    return list->visualItemRect(list->item(row)).center();
}

/// The view path editor showing `shown`; `typed` and OK, or Cancel for nullptr.
Step viewEditor(const char* shown, const char* typed)
{
    return answerEditor("TClearCaseEditViewPathForm", "Edit View/Component Path", {{"txtExternalPath", shown, typed}},
                        typed != nullptr);
}

/// The extended path editor: element and selector shown, typed and OK, or Cancel for no element.
Step extendedEditor(const char* shown, const char* typed, const char* shownSelector = nullptr, const char* typedSelector = "")
{
    return answerEditor("TClearCaseEditExtendedPathNameForm", "Extended Path Name",
                        {{"txtElement", shown, typed}, {"txtSelector", shownSelector, typed ? typedSelector : nullptr}},
                        typed != nullptr);
}

const Step kAdd = clickOn("addButton");
const Step kEdit = clickOn("editButton");
const Step kRemove = clickOn("remButton");
const Step kDirectory = chooseMenuItem("PopupMenu1", "menuDir");
const Step kFile = chooseMenuItem("PopupMenu1", "menuFile");
Step pick(int row) { return pickRow(kList, row); }
Step key(int code) { return pressKey(kList, code); }

/// Edit and Remove enabled, and the list's lines, after the steps.
std::vector<Shown> listShown(bool editAndRemoveEnabled, const char* lines = nullptr)
{
    return {{"editButton", {}, editAndRemoveEnabled}, {"remButton", {}, editAndRemoveEnabled}, {kList, {}, {}, nullptr, lines}};
}

Properties paths(const char* storage)
{
    return {{"PathNameStorageString", storage}};
}

Browsed directoryBrowse() { return {"/views/last", "Select Directory"}; }
Browsed fileBrowse() { return {"/views/last", "Select File"}; }

std::function<void(const OpenPage&)> lastViewDirectory(const char* folder)
{
    return [folder](const OpenPage&) { EXPECT_EQ(CCGetLastViewDirectory(), folder); };
}

/// Rows on the check-out action, whose path lists are remembered from "/views/last".
class ViewPathPage : public ::testing::TestWithParam<PageCase> {};

TEST_P(ViewPathPage, RoundTrip)
{
    PageCase c = GetParam();
    c.setUp = [](wftest::FakeCleartool&) { CCSetLastViewDirectory("/views/last"); };
    if (!c.check)
        c.check = lastViewDirectory("/views/last");
    const auto action = c.makeAction ? c.makeAction() : catalogueAction("CC_CHECKOUT");
    runPageCase(kViewPage, *action, "Pathnames", c);
}

const PageCase kViewPathCases[] = {
    {.name = "AddDirectoryAppendsAndIsRemembered", .given = paths("src/a.c\r\n"), .steps = {kAdd, kDirectory},
     .shown = listShown(false), .stored = paths("src/a.c\r\n/views/new\r\n"), .answers = {"/views/new"},
     .browsed = {directoryBrowse()}, .check = lastViewDirectory("/views/new")},
    {.name = "AddFileRemembersItsFolder", .given = paths("src/a.c\r\n"), .steps = {kAdd, kFile},
     .shown = listShown(false), .stored = paths("src/a.c\r\n/views/v/src/main.c\r\n"),
     .answers = {"/views/v/src/main.c"}, .browsed = {fileBrowse()}, .check = lastViewDirectory("/views/v/src")},
    {.name = "FileAtTheRootRemembersTheRoot", .given = paths(""), .steps = {kAdd, kFile}, .shown = listShown(false),
     .stored = paths("/main.c\r\n"), .answers = {"/main.c"}, .browsed = {fileBrowse()},
     .check = lastViewDirectory("/")},
    {.name = "CancelledBrowsesAddNothing", .given = paths("src/a.c\r\n"), .steps = {kAdd, kDirectory, kAdd, kFile},
     .shown = listShown(false, "src/a.c"), .stored = paths("src/a.c\r\n"), .answers = {std::nullopt, std::nullopt},
     .browsed = {directoryBrowse(), fileBrowse()}},
    {.name = "SamePathMayBeAddedTwice", .given = paths("/views/a\r\n"), .steps = {kAdd, kDirectory},
     .shown = listShown(false, "/views/a|/views/a"), .stored = paths("/views/a\r\n/views/a\r\n"),
     .answers = {"/views/a"}, .browsed = {directoryBrowse()}, .check = lastViewDirectory("/views/a")},
    {.name = "EditReplacesTheSelectedPath", .given = paths("/views/a\r\n/views/b\r\n"),
     .steps = {pick(1), viewEditor("/views/b", "/views/c"), kEdit}, .shown = listShown(true),
     .stored = paths("/views/a\r\n/views/c\r\n")},
    {.name = "CancelledEditKeepsThePath", .given = paths("/views/a\r\n/views/b\r\n"),
     .steps = {pick(0), viewEditor("/views/a", nullptr), kEdit}, .shown = listShown(true),
     .stored = paths("/views/a\r\n/views/b\r\n")},
    {.name = "DoubleClickEditsTheLine", .given = paths("/views/a\r\n/views/b\r\n"),
     .steps = {viewEditor("/views/a", "/views/z"), doubleClickRow(kList, 0)}, .shown = listShown(true),
     .stored = paths("/views/z\r\n/views/b\r\n")},
    {.name = "RemovingTheOnlyLineLeavesButtonsUntilNextClick", .given = paths("/views/a\r\n"),
     .steps = {pick(0), kRemove}, .shown = listShown(true), .stored = paths("")},
    {.name = "NextClickAfterRemovingDisablesButtons", .given = paths("/views/a\r\n"),
     .steps = {pick(0), kRemove, clickBlankOf(kList)}, .shown = listShown(false), .stored = paths("")},
    {.name = "RemoveWithNothingSelectedRemovesNothing", .given = paths("/views/a\r\n/views/b\r\n"),
     .steps = {pick(0), kRemove, kRemove}, .shown = listShown(true), .stored = paths("/views/b\r\n")},
    {.name = "DeleteKeyRemovesAndRefreshesAtOnce", .given = paths("/views/a\r\n/views/b\r\n"),
     .steps = {pick(0), key(Qt::Key_Delete)}, .shown = listShown(false), .stored = paths("/views/b\r\n")},
    {.name = "BackspaceRemovesToo", .given = paths("/views/a\r\n"), .steps = {pick(0), key(Qt::Key_Backspace)},
     .shown = listShown(false), .stored = paths("")},
    {.name = "OtherKeysRemoveNothing", .given = paths("/views/a\r\n"), .steps = {pick(0), key(Qt::Key_A)},
     .shown = listShown(true), .stored = paths("/views/a\r\n")},
    {.name = "KeptAlignedAfterRemovingThenEditing", .given = paths("/views/a\r\n/views/b\r\n/views/c\r\n"),
     .steps = {pick(0), kRemove, pick(1), viewEditor("/views/c", "/views/d"), kEdit}, .shown = listShown(true),
     .stored = paths("/views/b\r\n/views/d\r\n")},
    {.name = "ExtendedNamesAreNotOnThisPage", .given = paths("b.c@@/main/1\r\n/views/a\r\n"),
     .steps = {pick(0), kRemove}, .shown = listShown(true, ""), .stored = paths("b.c@@/main/1\r\n")},
    // The heading names the action the page is on.
    {.name = "HeadingOnCheckOut", .shown = {{"txtHeading", {}, {}, "View-Extended Pathnames to check out"}}},
    {.name = "HeadingOnLock", .shown = {{"txtHeading", {}, {}, "View-Extended Pathnames to lock (paths)"}},
     .makeAction = [] { return catalogueAction("CC_LOCK"); }},
    {.name = "HeadingUnderLT", .shown = {{"txtHeading", {}, {}, "View-Extended Pathnames to apply label"}},
     .edition = ccLT, .makeAction = [] { return catalogueAction("CC_LABEL"); }},
};
INSTANTIATE_TEST_SUITE_P(Cases, ViewPathPage, ::testing::ValuesIn(kViewPathCases), pageCaseName);

/// Every control greyed out, as under ClearCase LT.
void expectAllGreyed(const OpenPage& page)
{
    for (const QWidget* control : page.widget()->findChildren<QWidget*>())
        if (!control->objectName().startsWith("qt_")) {
            EXPECT_FALSE(control->isEnabled()) << control->objectName().toStdString();
        }
}

Properties extended(const char* storage, const char* useDefaultView, const char* viewPath = "")
{
    return {{"PathNameStorageString", storage}, {"UseDefaultViewContext", useDefaultView}, {"ViewContextPath", viewPath}};
}

class ExtendedPage : public ::testing::TestWithParam<PageCase> {};

TEST_P(ExtendedPage, RoundTrip)
{
    const PageCase& c = GetParam();
    const auto action = c.makeAction ? c.makeAction() : catalogueAction("CC_CHECKOUT");
    runPageCase(kExtendedPage, *action, "Extended Pathnames", c);
}

const std::vector<Shown> kCustomViewOffered = {{"btnCustomView", {}, true}};

const PageCase kExtendedCases[] = {
    {.name = "AddJoinsElementAndSelector", .given = extended("a.c\r\n", "True"),
     .steps = {extendedEditor(nullptr, "foo.c", nullptr, "/main/3"), kAdd}, .shown = listShown(false, "foo.c@@/main/3"),
     .stored = extended("a.c\r\nfoo.c@@/main/3\r\n", "True")},
    {.name = "AddWithoutSelectorGivesTheElement", .given = extended("", "True"),
     .steps = {extendedEditor(nullptr, "foo.c"), kAdd}, .shown = kCustomViewOffered,
     .stored = extended("foo.c\r\n", "True")},
    {.name = "CancelledAddAddsNothing", .given = extended("x.c@@/main/1\r\n", "True"),
     .steps = {extendedEditor(nullptr, nullptr), kAdd}, .shown = listShown(false, "x.c@@/main/1"),
     .stored = extended("x.c@@/main/1\r\n", "True")},
    {.name = "EditShowsTheTwoPartsAndClearingTheSelectorLeavesTheElement",
     .given = extended("foo.c@@/main/3\r\n", "False", "/views/v"),
     .steps = {pick(0), extendedEditor("foo.c", "foo.c", "/main/3", ""), kEdit}, .shown = listShown(true),
     .stored = extended("foo.c\r\n", "False", "/views/v")},
    {.name = "EditSplitsAtTheFirstMark", .given = extended("a@@b@@c\r\n", "True"),
     .steps = {pick(0), extendedEditor("a", "a", "b@@c", "b@@d"), kEdit}, .shown = listShown(true),
     .stored = extended("a@@b@@d\r\n", "True")},
    {.name = "CancelledEditKeepsTheLine", .given = extended("x.c@@/main/1\r\n", "True"),
     .steps = {pick(0), extendedEditor("x.c", nullptr, "/main/1"), kEdit}, .shown = listShown(true),
     .stored = extended("x.c@@/main/1\r\n", "True")},
    {.name = "DeleteKeyRemovesTheLine", .given = extended("x.c@@/main/1\r\ny.c@@/main/2\r\n", "True"),
     .steps = {pick(1), key(Qt::Key_Delete)}, .shown = listShown(false),
     .stored = extended("x.c@@/main/1\r\n", "True")},
    {.name = "RemoveButtonRemovesTheLine", .given = extended("x.c@@/main/1\r\ny.c@@/main/2\r\n", "True"),
     .steps = {pick(0), kRemove, clickBlankOf(kList)}, .shown = listShown(false),
     .stored = extended("y.c@@/main/2\r\n", "True")},
    {.name = "BlankCustomViewIsStoredAsDefault", .given = extended("x.c@@/main/1\r\n", "False"),
     .shown = kCustomViewOffered, .stored = extended("x.c@@/main/1\r\n", "True")},
    {.name = "ClearCaseLtWritesEverythingBackUnchanged", .given = extended("a.c\r\nx.c@@/main/1\r\n", "False"),
     .shown = listShown(false, ""), .stored = extended("a.c\r\nx.c@@/main/1\r\n", "False"), .edition = ccLT,
     .check = expectAllGreyed},
    {.name = "ClearCaseLtKeepsACustomView", .given = extended("x.c@@/main/1\r\n", "False", "/views/v"),
     .shown = {{"txtHeading", {}, {}, "Extended Pathnames (not available in ClearCase LT)"}},
     .stored = extended("x.c@@/main/1\r\n", "False", "/views/v"), .edition = ccLT, .check = expectAllGreyed},
    {.name = "HeadingNamesTheAction", .shown = {{"txtHeading", {}, {}, "Extended Pathnames to apply label"}},
     .makeAction = [] { return catalogueAction("CC_LABEL"); }},
};
INSTANTIATE_TEST_SUITE_P(Cases, ExtendedPage, ::testing::ValuesIn(kExtendedCases), pageCaseName);

/// A fake ClearCase, its own user.ini and answered browsers for the tests that drive the
/// page's parts directly.
class PathPages {
protected:
    wftest::FakeCleartool cleartool;
    BrowseAnswers browse;
    std::unique_ptr<TCustomWFAction> owned = catalogueAction("CC_CHECKOUT");
    TClearCaseCheckoutAction& action = dynamic_cast<TClearCaseCheckoutAction&>(*owned);
};

class ViewPathMenu : public PathPages, public ::testing::Test {};

TEST_F(ViewPathMenu, AddOpensTheMenuUnderTheButton)
{
    OpenPage page(kViewPage, action);
    auto* addButton = page.control<QPushButton>("addButton");
    click(addButton);
    auto* menu = page.control<QMenu>("PopupMenu1");
    ASSERT_TRUE(menu->isVisible());
    EXPECT_EQ(menu->pos(), addButton->mapToGlobal(QPoint(0, addButton->height())));
    ASSERT_EQ(menu->actions().size(), 2);
    EXPECT_EQ(menu->actions()[0]->objectName(), "menuDir");
    EXPECT_EQ(menu->actions()[0]->text(), "Directory... (View or Component)");
    EXPECT_EQ(menu->actions()[1]->objectName(), "menuFile");
    EXPECT_EQ(menu->actions()[1]->text(), "File...");
    menu->hide();
}

// ---------------------------------------------------------------------------------------------

struct LongPathCase {
    const char* name;
    const char* path;
    const char* shownPrefix; // nullptr: shown in full
    const char* fileName;
};

WF_ROW_PRINTER(LongPathCase)

class LongPath : public PathPages, public ::testing::TestWithParam<LongPathCase> {};

TEST_P(LongPath, ShownShortenedWithFullPathAsHintAndStoredInFull)
{
    const LongPathCase& c = GetParam();
    setProperty(action, "PathNameStorageString", std::string(c.path) + "\r\n");
    OpenPage page(kViewPage, action);
    QListWidget* list = listOf(page);
    ASSERT_EQ(list->count(), 1);
    const QString shown = list->item(0)->text();
    if (!c.shownPrefix) {
        EXPECT_EQ(shown.toStdString(), c.path);
    } else {
        EXPECT_NE(shown.toStdString(), c.path);
        EXPECT_TRUE(shown.startsWith(c.shownPrefix)) << shown.toStdString();
        EXPECT_TRUE(shown.endsWith(c.fileName)) << shown.toStdString();
        EXPECT_LE(QFontMetrics(list->font()).horizontalAdvance(shown), list->width() - 12) << shown.toStdString();
    }
    QTest::mouseMove(list->viewport(), rowCentre(list, 0));
    EXPECT_EQ(list->toolTip().toStdString(), c.path);
    QTest::mouseMove(list->viewport(), QPoint(10, list->viewport()->height() - 4));
    EXPECT_EQ(list->toolTip().toStdString(), "");
    page.accept();
    EXPECT_EQ(property(action, "PathNameStorageString"), std::string(c.path) + "\r\n");
}

const LongPathCase kLongPathCases[] = {
    {"ShortPathShownInFull", "/views/a/main.c", nullptr, "main.c"},
    {"UnixPathLosesLeadingFolders",
     "/views/build_main/vobs/product/components/network/transport/protocols/reliable/sessions/handshake_state.c", "/...",
     "/handshake_state.c"},
    {"WindowsPathKeepsItsDrive",
     "C:\\views\\build_main\\vobs\\product\\components\\network\\transport\\protocols\\reliable\\sessions\\state.c",
     "C:\\...", "\\state.c"},
    {"RelativePathStartsWithEllipsis",
     "vobs/product/components/network/transport/protocols/reliable/sessions/handshake/negotiation/offer.h", "...",
     "/offer.h"},
};
INSTANTIATE_TEST_SUITE_P(Cases, LongPath, ::testing::ValuesIn(kLongPathCases), wftest::byName);

// ---------------------------------------------------------------------------------------------

struct EditViewPathCase {
    const char* name;
    const char* kind; // "dir", "file" or "missing"
    std::optional<std::string> answer;
    bool browseShown;
    std::vector<std::string> browsed; // "caption|filter", the start is the path itself
    const char* result;               // nullptr: the path itself
};

WF_ROW_PRINTER(EditViewPathCase)

class EditViewPath : public PathPages, public ::testing::TestWithParam<EditViewPathCase> {};

TEST_P(EditViewPath, BrowsesAsThePathWas)
{
    const EditViewPathCase& c = GetParam();
    const std::string kind = c.kind;
    const std::string path = kind == "dir"    ? cleartool.temp().path()
                             : kind == "file" ? cleartool.temp().write("view/main.c", "int main;\n")
                                              : cleartool.temp().file("gone/main.c");
    TClearCaseEditViewPathForm form;
    form.SetPathName(path);
    form.show();
    auto* button = form.findChild<QToolButton*>("txtExternalPathButton");
    EXPECT_EQ(button->isVisible(), c.browseShown);
    if (c.browseShown) {
        browse.next(c.answer);
        click(button);
    }
    std::vector<std::string> browsed;
    for (const auto& request : browse.requests()) {
        EXPECT_EQ(request.initialDir, path);
        browsed.push_back(request.caption + "|" + request.file.filter);
    }
    EXPECT_EQ(browsed, c.browsed);
    EXPECT_EQ(form.GetPathName(), c.result ? c.result : path);
}

const EditViewPathCase kEditViewPathCases[] = {
    {"FolderBrowsesForFolders", "dir", "/views/other", true, {"Select View or Component|"}, "/views/other"},
    {"CancelledFolderBrowseDoesNotFallBackToFiles", "dir", std::nullopt, true, {"Select View or Component|"}, nullptr},
    {"FileBrowsesForFiles", "file", "/views/v/other.c", true, {"Select File|*.*"}, "/views/v/other.c"},
    {"CancelledFileBrowseKeepsThePath", "file", std::nullopt, true, {"Select File|*.*"}, nullptr},
    {"MissingPathOffersNoBrowse", "missing", std::nullopt, false, {}, nullptr},
};
INSTANTIATE_TEST_SUITE_P(Cases, EditViewPath, ::testing::ValuesIn(kEditViewPathCases), wftest::byName);

// ---------------------------------------------------------------------------------------------

/// One drop-down in the extended editor: of the element or the selector list, after typing
/// `element` into the element field.
struct Drop {
    bool selector;
    const char* element;
};

struct DropDownCase {
    const char* name;
    bool useDefaultView;
    std::vector<Drop> drops;
    std::vector<std::string> items; // of the last list dropped down
    std::vector<std::string> calls; // "<default>" and "<custom>" stand for the two view folders
};

WF_ROW_PRINTER(DropDownCase)

class ExtendedDropDown : public PathPages, public ::testing::TestWithParam<DropDownCase> {};

TEST_P(ExtendedDropDown, ListsComeFromTheViewContextFolder)
{
    const DropDownCase& c = GetParam();
    const std::string defaultView = cleartool.temp().path() + "/default";
    const std::string customView = cleartool.temp().path() + "/custom";
    cleartool.temp().write("default/.keep", "");
    cleartool.temp().write("custom/.keep", "");
    cleartool.options().SetClearCaseType(ccFull);
    cleartool.options().SetDefaultViewPath(defaultView);
    cleartool.respond("ls -recurse -short", "foo.c\nbar.c@@/main/CHECKEDOUT\nsub/x.h@@/main/2@@odd\n");
    cleartool.respond("lshistory -short foo.c",
                      "foo.c@@/main/1\nfoo.c@@/main/rel2/4\nxbranch\nfoo.c@@\nfoo.c@@/main/1\n");
    action.SetUseDefaultViewContext(c.useDefaultView);
    action.SetViewContextPath(customView);
    OpenPage page(kExtendedPage, action);

    std::vector<std::string> listed;
    answerModal([&](QWidget* dialog) {
        for (const Drop& drop : c.drops) {
            auto* element = dialog->findChild<QComboBox*>("txtElement");
            auto* list = dialog->findChild<QComboBox*>(drop.selector ? "txtSelector" : "txtElement");
            type(element, drop.element);
            dropDown(list);
            listed = texts(list);
            EXPECT_EQ(element->currentText().toStdString(), drop.element) << "the typed text is kept";
        }
        pressButton(dialog, "Cancel");
    });
    click(page.control<QPushButton>("addButton"));

    EXPECT_EQ(listed, c.items);
    std::vector<std::string> expectedCalls;
    for (std::string call : c.calls) {
        for (const auto& [token, folder] : {std::pair{"<default>", defaultView}, std::pair{"<custom>", customView}})
            if (call.rfind(token, 0) == 0)
                call = folder + call.substr(std::string(token).size());
        expectedCalls.push_back(call);
    }
    EXPECT_EQ(cleartool.calls(), expectedCalls);
}

const DropDownCase kDropDownCases[] = {
    {"ElementsOfTheDefaultViewWithoutVersions", true, {{false, ""}}, {"foo.c", "bar.c", "sub/x.h"},
     {"<default>|ls -recurse -short"}},
    {"ElementsOfTheCustomView", false, {{false, "f"}}, {"foo.c", "bar.c", "sub/x.h"}, {"<custom>|ls -recurse -short"}},
    {"SelectorsFromTheHistory", false, {{true, "foo.c"}}, {"/main/1", "/main/rel2/4", "branch"},
     {"<custom>|lshistory -short foo.c"}},
    {"EmptyElementQueriesNothingAndKeepsTheList", true, {{true, "foo.c"}, {true, ""}},
     {"/main/1", "/main/rel2/4", "branch"}, {"<default>|lshistory -short foo.c"}},
    {"EmptyElementOnAFreshEditorListsNothing", true, {{true, ""}}, {}, {}},
};
INSTANTIATE_TEST_SUITE_P(Cases, ExtendedDropDown, ::testing::ValuesIn(kDropDownCases), wftest::byName);

} // namespace

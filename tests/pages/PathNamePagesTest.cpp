// The two path-name list pages and their editors, driven through clicks, keys and the modal
// editors, and checked by what they write back to the action.
#include "PageCase.h"

#include "actions/WFClearCaseCheckOutAction.h"
#include "environment/WFClearCaseIniFile.h"

#include <QMenu>
#include <QPushButton>
#include <QTest>

using namespace wfpage;

namespace {

constexpr const char* kViewPage = "TClearCaseViewPathNameFrame";
constexpr const char* kExtendedPage = "TClearCaseExtendedPathNameFrame";
constexpr const char* kList = "pathsListBox";

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
    c.setUp = [rowSetUp = c.setUp](wftest::FakeCleartool& cleartool) {
        CCSetLastViewDirectory("/views/last");
        if (rowSetUp)
            rowSetUp(cleartool);
    };
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
    {.name = "CancelledBrowsesAddNothing", .kept = paths("src/a.c\r\n"), .steps = {kAdd, kDirectory, kAdd, kFile},
     .shown = listShown(false, "src/a.c"), .answers = {std::nullopt, std::nullopt},
     .browsed = {directoryBrowse(), fileBrowse()}},
    {.name = "CancelledEditKeepsThePath", .kept = paths("/views/a\r\n/views/b\r\n"),
     .steps = {pick(0), viewEditor("/views/a", nullptr), kEdit}, .shown = listShown(true)},
    {.name = "DoubleClickEditsTheLine", .given = paths("/views/a\r\n/views/b\r\n"),
     .steps = {viewEditor("/views/a", "/views/z"), doubleClickRow(kList, 0)}, .shown = listShown(true),
     .stored = paths("/views/z\r\n/views/b\r\n")},
    {.name = "RemoveWithNothingSelectedRemovesNothing", .given = paths("/views/a\r\n/views/b\r\n"),
     .steps = {pick(0), kRemove, kRemove}, .shown = listShown(true), .stored = paths("/views/b\r\n")},
    {.name = "DeleteAndBackspaceRemoveAndRefreshAtOnce", .given = paths("/views/a\r\n/views/b\r\n/views/c\r\n"),
     .steps = {pick(0), key(Qt::Key_Delete), pick(1), key(Qt::Key_Backspace)}, .shown = listShown(false),
     .stored = paths("/views/b\r\n")},
    {.name = "OtherKeysRemoveNothing", .kept = paths("/views/a\r\n"), .steps = {pick(0), key(Qt::Key_A)},
     .shown = listShown(true)},
    {.name = "KeptAlignedAfterRemovingThenEditing", .given = paths("/views/a\r\n/views/b\r\n/views/c\r\n"),
     .steps = {pick(0), kRemove, pick(1), viewEditor("/views/c", "/views/d"), kEdit}, .shown = listShown(true),
     .stored = paths("/views/b\r\n/views/d\r\n")},
    {.name = "ExtendedNamesAreNotOnThisPage", .given = paths("b.c@@/main/1\r\n/views/a\r\n"),
     .steps = {pick(0), kRemove}, .shown = listShown(true, ""), .stored = paths("b.c@@/main/1\r\n")},
    {.name = "HeadingNamesTheActionAndAddOpensItsMenu", .steps = {kAdd},
     .shown = {{.control = "PopupMenu1", .visible = true}, {"txtHeading", {}, {}, "View-Extended Pathnames to check out"}},
     .check = [](const OpenPage& page) {
         auto* add = page.control<QPushButton>("addButton");
         auto* menu = page.control<QMenu>("PopupMenu1");
         EXPECT_EQ(menu->pos(), add->mapToGlobal(QPoint(0, add->height())));
         QStringList captions;
         for (const QAction* item : menu->actions())
             captions << item->objectName() + "=" + item->text();
         EXPECT_EQ(captions, QStringList({"menuDir=Directory... (View or Component)", "menuFile=File..."}));
         menu->hide();
     }},
};
INSTANTIATE_TEST_SUITE_P(Cases, ViewPathPage, ::testing::ValuesIn(kViewPathCases), wftest::byName);

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

const PageCase kExtendedCases[] = {
    {.name = "AddJoinsElementAndSelector", .given = extended("a.c\r\n", "True"),
     .steps = {extendedEditor(nullptr, "foo.c", nullptr, "/main/3"), kAdd}, .shown = listShown(false, "foo.c@@/main/3"),
     .stored = extended("a.c\r\nfoo.c@@/main/3\r\n", "True")},
    {.name = "CancelledAddAddsNothing", .kept = extended("x.c@@/main/1\r\n", "True"),
     .steps = {extendedEditor(nullptr, nullptr), kAdd}, .shown = listShown(false, "x.c@@/main/1")},
    {.name = "EditShowsTheTwoPartsAndClearingTheSelectorLeavesTheElement",
     .given = extended("foo.c@@/main/3\r\n", "False", "/views/v"),
     .steps = {pick(0), extendedEditor("foo.c", "foo.c", "/main/3", ""), kEdit}, .shown = listShown(true),
     .stored = extended("foo.c\r\n", "False", "/views/v")},
    {.name = "CancelledEditKeepsTheLine", .kept = extended("x.c@@/main/1\r\n", "True"),
     .steps = {pick(0), extendedEditor("x.c", nullptr, "/main/1"), kEdit}, .shown = listShown(true)},
    {.name = "RemoveButtonRemovesTheLine", .given = extended("x.c@@/main/1\r\ny.c@@/main/2\r\n", "True"),
     .steps = {pick(0), kRemove, clickBlankOf(kList)}, .shown = listShown(false),
     .stored = extended("y.c@@/main/2\r\n", "True")},
    {.name = "BlankCustomViewIsStoredAsDefault", .given = extended("x.c@@/main/1\r\n", "False"),
     .shown = {{"btnCustomView", {}, true}}, .stored = extended("x.c@@/main/1\r\n", "True")},
    {.name = "ClearCaseLtGreysEverythingAndWritesItBackUnchanged",
     .kept = extended("a.c\r\nx.c@@/main/1\r\n", "False", "/views/v"),
     .shown = {{"txtHeading", {}, {}, "Extended Pathnames (not available in ClearCase LT)"}, {kList, {}, {}, nullptr, ""}},
     .edition = ccLT, .check = expectAllGreyed},
    {.name = "HeadingNamesTheAction", .shown = {{"txtHeading", {}, {}, "Extended Pathnames to apply label"}},
     .makeAction = [] { return catalogueAction("CC_LABEL"); }},
};
WF_PAGE_TABLE(ExtendedPage, TClearCaseCheckoutAction, kExtendedPage, "Extended Pathnames", kExtendedCases);

// ---- Long paths, and the view path editor's browser ----------------------------------------

/// A path longer than the list is shown shortened (`prefix`...`fileName`), with the full path as
/// the row's hint, and stored in full.
PageCase longPathRow(const char* name, const char* path, const char* prefix, const char* fileName)
{
    const std::string storage = std::string(path) + "\r\n";
    return {.name = name, .given = paths(storage.c_str()), .stored = {{"PathNameStorageString", storage}},
            .check = [path, prefix, fileName](const OpenPage& page) {
                auto* list = page.control<QListWidget>(kList);
                const QString shown = list->item(0)->text();
                EXPECT_TRUE(shown.startsWith(prefix) && shown.endsWith(fileName)) << shown.toStdString();
                EXPECT_LE(QFontMetrics(list->font()).horizontalAdvance(shown), list->width() - 12) << shown.toStdString();
                QTest::mouseMove(list->viewport(), rowCentre(list, 0));
                EXPECT_EQ(list->toolTip().toStdString(), path);
                QTest::mouseMove(list->viewport(), QPoint(10, list->viewport()->height() - 4));
                EXPECT_EQ(list->toolTip().toStdString(), "");
            }};
}

/// The view path editor on `shown`: its browse button offered and clicked, then OK; or not
/// offered, then Cancel.
Step browsingEditor(const char* shown, bool offered)
{
    return answerEditor("TClearCaseEditViewPathForm", "Edit View/Component Path", {{"txtExternalPath", shown}}, offered,
                        offered ? std::vector<Step>{clickOn("txtExternalPathButton")} : std::vector<Step>{},
                        {{.control = "txtExternalPathButton", .visible = offered}});
}

const auto kViewFile = [](wftest::FakeCleartool& cleartool) { cleartool.temp().write("view/main.c", "int main;\n"); };

const PageCase kPathCases[] = {
    longPathRow("UnixPathLosesLeadingFolders",
                "/views/build_main/vobs/product/components/network/transport/protocols/reliable/sessions/handshake_state.c",
                "/...", "/handshake_state.c"),
    longPathRow("WindowsPathKeepsItsDrive",
                "C:\\views\\build_main\\vobs\\product\\components\\network\\transport\\protocols\\reliable\\sessions\\state.c",
                "C:\\...", "\\state.c"),
    longPathRow("RelativePathStartsWithEllipsis",
                "vobs/product/components/network/transport/protocols/reliable/sessions/handshake/negotiation/offer.h",
                "...", "/offer.h"),
    {.name = "FolderBrowsesForFolders", .given = paths("$T\r\n"), .steps = {pick(0), browsingEditor("$T", true), kEdit},
     .stored = paths("/views/other\r\n"), .answers = {"/views/other"}, .browsed = {{"$T", "Select View or Component"}}},
    {.name = "CancelledFolderBrowseDoesNotFallBackToFiles", .kept = paths("$T\r\n"),
     .steps = {pick(0), browsingEditor("$T", true), kEdit}, .answers = {std::nullopt},
     .browsed = {{"$T", "Select View or Component"}}},
    {.name = "FileBrowsesForFiles", .given = paths("$T/view/main.c\r\n"),
     .steps = {pick(0), browsingEditor("$T/view/main.c", true), kEdit}, .stored = paths("/views/v/other.c\r\n"),
     .answers = {"/views/v/other.c"}, .browsed = {{"$T/view/main.c", "Select File", "", "*.*"}}, .setUp = kViewFile},
    {.name = "CancelledFileBrowseKeepsThePath", .kept = paths("$T/view/main.c\r\n"),
     .steps = {pick(0), browsingEditor("$T/view/main.c", true), kEdit},
     .answers = {std::nullopt}, .browsed = {{"$T/view/main.c", "Select File", "", "*.*"}}, .setUp = kViewFile},
    {.name = "MissingPathOffersNoBrowse", .kept = paths("$T/gone/main.c\r\n"),
     .steps = {pick(0), browsingEditor("$T/gone/main.c", false), kEdit}},
};
INSTANTIATE_TEST_SUITE_P(Paths, ViewPathPage, ::testing::ValuesIn(kPathCases), wftest::byName);

// ---- The extended path editor's lists -------------------------------------------------------

/// A default view and a custom one, "$T/default" and "$T/custom", that list the same elements.
void twoViews(wftest::FakeCleartool& cleartool)
{
    cleartool.temp().write("default/.keep", "");
    cleartool.temp().write("custom/.keep", "");
    cleartool.options().SetDefaultViewPath(cleartool.temp().path() + "/default");
}

const std::vector<Response> kListings = {
    {"ls -recurse -short", "foo.c\nbar.c@@/main/CHECKEDOUT\nsub/x.h@@/main/2@@odd\n"},
    {"lshistory -short foo.c", "foo.c@@/main/1\nfoo.c@@/main/rel2/4\nxbranch\nfoo.c@@\nfoo.c@@/main/1\n"}};

/// In the extended path editor (then cancelled): `inside`, after which `list` shows `listed` and
/// the element field keeps `element`; cleartool asked `calls`.
PageCase dropDownRow(const char* name, const char* useDefaultView, std::vector<Step> inside, const char* list,
                     const char* listed, const char* element, std::vector<std::string> calls)
{
    return {.name = name, .given = extended("", useDefaultView, "$T/custom"),
            .steps = {answerEditor("TClearCaseEditExtendedPathNameForm", "Extended Path Name", {}, false, std::move(inside),
                                   {{.control = list, .items = listed}, {.control = "txtElement", .text = element}}),
                      kAdd},
            .responses = kListings, .calls = std::move(calls), .setUp = twoViews};
}

const char* const kSelectors = "/main/1|/main/rel2/4|branch";

const PageCase kDropDownCases[] = {
    dropDownRow("ElementsOfTheDefaultViewWithoutVersions", "True", {dropDownOf("txtElement")}, "txtElement",
                "foo.c|bar.c|sub/x.h", "", {"$T/default|ls -recurse -short"}),
    dropDownRow("SelectorsFromTheHistory", "False", {typeInto("txtElement", "foo.c"), dropDownOf("txtSelector")},
                "txtSelector", kSelectors, "foo.c", {"$T/custom|lshistory -short foo.c"}),
    dropDownRow("EmptyElementQueriesNothingAndKeepsTheList", "True",
                {typeInto("txtElement", "foo.c"), dropDownOf("txtSelector"), typeInto("txtElement", ""), dropDownOf("txtSelector")},
                "txtSelector", kSelectors, "", {"$T/default|lshistory -short foo.c"}),
};
WF_PAGE_TABLE(ExtendedPageLists, TClearCaseCheckoutAction, kExtendedPage, "Extended Pathnames", kDropDownCases);

} // namespace

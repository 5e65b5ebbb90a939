// The two path-name list pages and their editors, driven through clicks, keys and the modal
// editors, and checked by what they write back to the action.
#include "PageHarness.h"

#include "actions/WFClearCaseCheckOutAction.h"
#include "environment/WFClearCaseIniFile.h"
#include "FakeCleartool.h"
#include "pages/WFClearCaseEditViewPathForm.h"

#include <QComboBox>
#include <QLabel>
#include <QLineEdit>
#include <QListWidget>
#include <QMenu>
#include <QPushButton>
#include <QRadioButton>
#include <QTest>
#include <QToolButton>

#include <gtest/gtest.h>

#include <optional>

using namespace wfpage;

namespace {

const TClearCaseActionIdentity kCheckOut{"CC_CHECKOUT", "TClearCaseCheckoutAction", "ClearCase Check Out", 4460};
const TClearCaseActionIdentity kLockPaths{"CC_LOCK", "TClearCaseLockPathNamesAction", "ClearCase Lock (Paths)", 4560};
const TClearCaseActionIdentity kApplyLabel{"CC_LABEL", "TClearCaseApplyLabelAction", "ClearCase Apply Label", 4520};

constexpr const char* kViewPage = "TClearCaseViewPathNameFrame";
constexpr const char* kExtendedPage = "TClearCaseExtendedPathNameFrame";
constexpr const char* kLtHeading = "Extended Pathnames (not available in ClearCase LT)";

/// One thing a user does on a path list page. `text`/`selector` are what the user types into
/// the editor that the step opens (nullptr: the editor is cancelled) or what a browser answers
/// (nullptr: cancelled); `shown`/`shownSelector` what the editor must show when it opens.
enum class Op { Add, ChooseDirectory, ChooseFile, Select, Edit, DoubleClick, Remove, Key, ClickBlank };
struct Step {
    Op op;
    int row = -1;
    const char* text = nullptr;
    const char* selector = nullptr;
    const char* shown = nullptr;
    const char* shownSelector = nullptr;
    int key = 0;
};

Step add(const char* element = nullptr, const char* selector = nullptr)
{
    return {Op::Add, -1, element, selector};
}
Step chooseDirectory(const char* answer) { return {Op::ChooseDirectory, -1, answer}; }
Step chooseFile(const char* answer) { return {Op::ChooseFile, -1, answer}; }
Step select(int row) { return {Op::Select, row}; }
Step edit(const char* shown, const char* typed, const char* shownSelector = nullptr, const char* typedSelector = nullptr)
{
    return {Op::Edit, -1, typed, typedSelector, shown, shownSelector};
}
Step doubleClick(int row, const char* shown, const char* typed) { return {Op::DoubleClick, row, typed, nullptr, shown}; }
Step remove() { return {Op::Remove}; }
Step key(int code) { return {Op::Key, -1, nullptr, nullptr, nullptr, nullptr, code}; }
Step clickBlank() { return {Op::ClickBlank}; }

QListWidget* listOf(const OpenPage& page)
{
    return page.control<QListWidget>("pathsListBox");
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

/// Fills whichever editor opened from the step and presses OK, or Cancel for no text.
void answerEditor(const Step& step)
{
    answerModal([step](QWidget* dialog) {
        if (auto* path = dialog->findChild<QLineEdit*>("txtExternalPath")) {
            EXPECT_EQ(dialog->objectName(), "TClearCaseEditViewPathForm");
            EXPECT_EQ(dialog->windowTitle(), "Edit View/Component Path");
            if (step.shown) {
                EXPECT_EQ(path->text().toStdString(), step.shown);
            }
            if (step.text)
                type(path, step.text);
        } else {
            EXPECT_EQ(dialog->objectName(), "TClearCaseEditExtendedPathNameForm");
            EXPECT_EQ(dialog->windowTitle(), "Extended Path Name");
            auto* element = dialog->findChild<QComboBox*>("txtElement");
            auto* selector = dialog->findChild<QComboBox*>("txtSelector");
            if (step.shown) {
                EXPECT_EQ(element->currentText().toStdString(), step.shown);
            }
            if (step.shownSelector) {
                EXPECT_EQ(selector->currentText().toStdString(), step.shownSelector);
            }
            if (step.text) {
                type(element, step.text);
                type(selector, step.selector ? step.selector : "");
            }
        }
        pressButton(dialog, step.text ? "OK" : "Cancel");
    });
}

/// Clicks the item of the open popup menu as a user does.
void chooseMenuItem(const OpenPage& page, const char* actionName)
{
    auto* menu = page.control<QMenu>("PopupMenu1");
    ASSERT_TRUE(menu->isVisible()) << "the Add menu is not open";
    auto* action = page.control<QAction>(actionName);
    QTest::mouseClick(menu, Qt::LeftButton, Qt::NoModifier, menu->actionGeometry(action).center());
}

void run(const OpenPage& page, BrowseAnswers& browse, const Step& step)
{
    QListWidget* list = listOf(page);
    switch (step.op) {
    case Op::Add:
        if (page.widget()->objectName() == kExtendedPage)
            answerEditor(step);
        click(page.control<QPushButton>("addButton"));
        break;
    case Op::ChooseDirectory:
    case Op::ChooseFile:
        browse.next(step.text ? std::optional<std::string>(step.text) : std::nullopt);
        chooseMenuItem(page, step.op == Op::ChooseDirectory ? "menuDir" : "menuFile");
        break;
    case Op::Select:
        QTest::mouseClick(list->viewport(), Qt::LeftButton, Qt::NoModifier, rowCentre(list, step.row));
        break;
    case Op::Edit:
        answerEditor(step);
        click(page.control<QPushButton>("editButton"));
        break;
    case Op::DoubleClick:
        answerEditor(step);
        // A double click's first click selects; the test library sends only the second.
        QTest::mouseClick(list->viewport(), Qt::LeftButton, Qt::NoModifier, rowCentre(list, step.row));
        QTest::mouseDClick(list->viewport(), Qt::LeftButton, Qt::NoModifier, rowCentre(list, step.row));
        break;
    case Op::Remove:
        click(page.control<QPushButton>("remButton"));
        break;
    case Op::Key:
        QTest::keyClick(list, static_cast<Qt::Key>(step.key));
        break;
    case Op::ClickBlank:
        QTest::mouseClick(list->viewport(), Qt::LeftButton, Qt::NoModifier, QPoint(10, list->viewport()->height() - 4));
        break;
    }
}

/// A fake ClearCase, its own user.ini and answered browsers for every test here.
class PathPages {
protected:
    wftest::FakeCleartool cleartool;
    wftest::ScopedEnv config{"WF_CONFIG_DIR", cleartool.temp().path()};
    BrowseAnswers browse;
    TClearCaseCheckoutAction action;

    PathPages() { action.SetIdentity(kCheckOut); }
    std::vector<std::string> browsed() const
    {
        std::vector<std::string> result;
        for (const auto& request : browse.requests())
            result.push_back(request.caption + "|" + request.initialDir + "|" + request.file.filter);
        return result;
    }
};

// ---------------------------------------------------------------------------------------------

struct ViewPathCase {
    const char* name;
    const char* stored;
    std::vector<std::string> listed; // the lines right after opening
    std::vector<Step> steps;
    const char* written;
    std::vector<std::string> browsed; // "caption|start|filter"
    const char* lastViewDirectory;    // it is "/views/last" before
    bool editAndRemoveEnabled;        // after the steps
};

void PrintTo(const ViewPathCase& c, std::ostream* os)
{
    *os << c.name;
}

class ViewPathPage : public PathPages, public ::testing::TestWithParam<ViewPathCase> {};

TEST_P(ViewPathPage, RoundTrip)
{
    const ViewPathCase& c = GetParam();
    CCSetLastViewDirectory("/views/last");
    setProperty(action, "PathNameStorageString", c.stored);
    OpenPage page(kViewPage, action);
    EXPECT_EQ(page.page().PageName(), "Pathnames");
    EXPECT_EQ(texts(listOf(page)), c.listed);
    EXPECT_FALSE(page.control<QPushButton>("editButton")->isEnabled());
    EXPECT_FALSE(page.control<QPushButton>("remButton")->isEnabled());
    for (const Step& step : c.steps)
        run(page, browse, step);
    EXPECT_EQ(page.control<QPushButton>("editButton")->isEnabled(), c.editAndRemoveEnabled);
    EXPECT_EQ(page.control<QPushButton>("remButton")->isEnabled(), c.editAndRemoveEnabled);
    EXPECT_EQ(browsed(), c.browsed);
    EXPECT_EQ(CCGetLastViewDirectory(), c.lastViewDirectory);
    page.accept();
    EXPECT_EQ(property(action, "PathNameStorageString"), c.written);
}

const ViewPathCase kViewPathCases[] = {
    {"AddDirectoryAppendsAndIsRemembered", "src/a.c\r\n", {"src/a.c"}, {add(), chooseDirectory("/views/new")},
     "src/a.c\r\n/views/new\r\n", {"Select Directory|/views/last|"}, "/views/new", false},
    {"AddFileRemembersItsFolder", "src/a.c\r\n", {"src/a.c"}, {add(), chooseFile("/views/v/src/main.c")},
     "src/a.c\r\n/views/v/src/main.c\r\n", {"Select File|/views/last|"}, "/views/v/src", false},
    {"FileAtTheRootRemembersTheRoot", "", {}, {add(), chooseFile("/main.c")}, "/main.c\r\n",
     {"Select File|/views/last|"}, "/", false},
    {"CancelledBrowsesAddNothing", "src/a.c\r\n", {"src/a.c"},
     {add(), chooseDirectory(nullptr), add(), chooseFile(nullptr)}, "src/a.c\r\n",
     {"Select Directory|/views/last|", "Select File|/views/last|"}, "/views/last", false},
    {"SamePathMayBeAddedTwice", "/views/a\r\n", {"/views/a"}, {add(), chooseDirectory("/views/a")},
     "/views/a\r\n/views/a\r\n", {"Select Directory|/views/last|"}, "/views/a", false},
    {"EditReplacesTheSelectedPath", "/views/a\r\n/views/b\r\n", {"/views/a", "/views/b"},
     {select(1), edit("/views/b", "/views/c")}, "/views/a\r\n/views/c\r\n", {}, "/views/last", true},
    {"CancelledEditKeepsThePath", "/views/a\r\n/views/b\r\n", {"/views/a", "/views/b"},
     {select(0), edit("/views/a", nullptr)}, "/views/a\r\n/views/b\r\n", {}, "/views/last", true},
    {"DoubleClickEditsTheLine", "/views/a\r\n/views/b\r\n", {"/views/a", "/views/b"},
     {doubleClick(0, "/views/a", "/views/z")}, "/views/z\r\n/views/b\r\n", {}, "/views/last", true},
    {"RemovingTheOnlyLineLeavesButtonsUntilNextClick", "/views/a\r\n", {"/views/a"}, {select(0), remove()}, "", {},
     "/views/last", true},
    {"NextClickAfterRemovingDisablesButtons", "/views/a\r\n", {"/views/a"}, {select(0), remove(), clickBlank()}, "",
     {}, "/views/last", false},
    {"RemoveWithNothingSelectedRemovesNothing", "/views/a\r\n/views/b\r\n", {"/views/a", "/views/b"},
     {select(0), remove(), remove()}, "/views/b\r\n", {}, "/views/last", true},
    {"DeleteKeyRemovesAndRefreshesAtOnce", "/views/a\r\n/views/b\r\n", {"/views/a", "/views/b"},
     {select(0), key(Qt::Key_Delete)}, "/views/b\r\n", {}, "/views/last", false},
    {"BackspaceRemovesToo", "/views/a\r\n", {"/views/a"}, {select(0), key(Qt::Key_Backspace)}, "", {}, "/views/last",
     false},
    {"OtherKeysRemoveNothing", "/views/a\r\n", {"/views/a"}, {select(0), key(Qt::Key_A)}, "/views/a\r\n", {},
     "/views/last", true},
    {"KeptAlignedAfterRemovingThenEditing", "/views/a\r\n/views/b\r\n/views/c\r\n", {"/views/a", "/views/b", "/views/c"},
     {select(0), remove(), select(1), edit("/views/c", "/views/d")}, "/views/b\r\n/views/d\r\n", {}, "/views/last", true},
    {"ExtendedNamesAreNotOnThisPage", "b.c@@/main/1\r\n/views/a\r\n", {"/views/a"}, {select(0), remove()},
     "b.c@@/main/1\r\n", {}, "/views/last", true},
};
INSTANTIATE_TEST_SUITE_P(Cases, ViewPathPage, ::testing::ValuesIn(kViewPathCases),
                         [](const auto& info) { return std::string(info.param.name); });

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

void PrintTo(const LongPathCase& c, std::ostream* os)
{
    *os << c.name;
}

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
INSTANTIATE_TEST_SUITE_P(Cases, LongPath, ::testing::ValuesIn(kLongPathCases),
                         [](const auto& info) { return std::string(info.param.name); });

// ---------------------------------------------------------------------------------------------

struct HeadingCase {
    const char* name;
    const char* pageClass;
    const TClearCaseActionIdentity* identity;
    bool clearCaseLT;
    const char* heading;
};

void PrintTo(const HeadingCase& c, std::ostream* os)
{
    *os << c.name;
}

class Heading : public PathPages, public ::testing::TestWithParam<HeadingCase> {};

TEST_P(Heading, CompletedWithTheActionNameAndBevelEndsAtTheRightEdge)
{
    const HeadingCase& c = GetParam();
    cleartool.options().SetClearCaseType(c.clearCaseLT ? ccLT : ccFull);
    action.SetIdentity(*c.identity);
    OpenPage page(c.pageClass, action);
    auto* label = page.control<QLabel>("txtHeading");
    auto* bevel = page.control<QWidget>("Bevel1");
    EXPECT_EQ(label->text().toStdString(), c.heading);
    EXPECT_EQ(bevel->x(), label->x() + label->width() + 8);
    EXPECT_EQ(bevel->geometry().right() + 1, 497);
}

const HeadingCase kHeadingCases[] = {
    {"ViewPathsCheckOut", kViewPage, &kCheckOut, false, "View-Extended Pathnames to check out"},
    {"ViewPathsLock", kViewPage, &kLockPaths, false, "View-Extended Pathnames to lock (paths)"},
    {"ViewPathsUnderLT", kViewPage, &kApplyLabel, true, "View-Extended Pathnames to apply label"},
    {"ExtendedApplyLabel", kExtendedPage, &kApplyLabel, false, "Extended Pathnames to apply label"},
    {"ExtendedUnderLT", kExtendedPage, &kCheckOut, true, kLtHeading},
};
INSTANTIATE_TEST_SUITE_P(Cases, Heading, ::testing::ValuesIn(kHeadingCases),
                         [](const auto& info) { return std::string(info.param.name); });

// ---------------------------------------------------------------------------------------------

struct ExtendedCase {
    const char* name;
    bool clearCaseLT;
    const char* stored;
    const char* useDefaultView;
    const char* viewPath;
    std::vector<std::string> listed; // the lines right after opening
    std::vector<Step> steps;
    const char* written;
    const char* writtenUseDefaultView;
    bool editAndRemoveEnabled; // after the steps
};

void PrintTo(const ExtendedCase& c, std::ostream* os)
{
    *os << c.name;
}

class ExtendedPage : public PathPages, public ::testing::TestWithParam<ExtendedCase> {};

TEST_P(ExtendedPage, RoundTrip)
{
    const ExtendedCase& c = GetParam();
    cleartool.options().SetClearCaseType(c.clearCaseLT ? ccLT : ccFull);
    setProperty(action, "PathNameStorageString", c.stored);
    setProperty(action, "UseDefaultViewContext", c.useDefaultView);
    setProperty(action, "ViewContextPath", c.viewPath);
    OpenPage page(kExtendedPage, action);
    EXPECT_EQ(page.page().PageName(), "Extended Pathnames");
    EXPECT_EQ(texts(listOf(page)), c.listed);
    std::vector<std::string> enabled;
    for (const QWidget* control : page.widget()->findChildren<QWidget*>())
        if (control->isEnabled() && !control->objectName().startsWith("qt_"))
            enabled.push_back(control->objectName().toStdString());
    if (c.clearCaseLT)
        EXPECT_EQ(enabled, std::vector<std::string>{}) << "every control is greyed out under ClearCase LT";
    else
        EXPECT_NE(std::find(enabled.begin(), enabled.end(), "btnCustomView"), enabled.end());
    for (const Step& step : c.steps)
        run(page, browse, step);
    EXPECT_EQ(page.control<QPushButton>("editButton")->isEnabled(), c.editAndRemoveEnabled);
    EXPECT_EQ(page.control<QPushButton>("remButton")->isEnabled(), c.editAndRemoveEnabled);
    page.accept();
    EXPECT_EQ(property(action, "PathNameStorageString"), c.written);
    EXPECT_EQ(property(action, "UseDefaultViewContext"), c.writtenUseDefaultView);
    EXPECT_EQ(property(action, "ViewContextPath"), c.viewPath);
    EXPECT_TRUE(cleartool.calls().empty());
}

const ExtendedCase kExtendedCases[] = {
    {"AddJoinsElementAndSelector", false, "a.c\r\n", "True", "", {}, {add("foo.c", "/main/3")},
     "a.c\r\nfoo.c@@/main/3\r\n", "True", false},
    {"AddWithoutSelectorGivesTheElement", false, "", "True", "", {}, {add("foo.c", "")}, "foo.c\r\n", "True", false},
    {"CancelledAddAddsNothing", false, "x.c@@/main/1\r\n", "True", "", {"x.c@@/main/1"}, {add()},
     "x.c@@/main/1\r\n", "True", false},
    {"EditShowsTheTwoPartsAndClearingTheSelectorLeavesTheElement", false, "foo.c@@/main/3\r\n", "False", "/views/v",
     {"foo.c@@/main/3"}, {select(0), edit("foo.c", "foo.c", "/main/3", "")}, "foo.c\r\n", "False", true},
    {"EditSplitsAtTheFirstMark", false, "a@@b@@c\r\n", "True", "", {"a@@b@@c"},
     {select(0), edit("a", "a", "b@@c", "b@@d")}, "a@@b@@d\r\n", "True", true},
    {"CancelledEditKeepsTheLine", false, "x.c@@/main/1\r\n", "True", "", {"x.c@@/main/1"},
     {select(0), edit("x.c", nullptr, "/main/1")}, "x.c@@/main/1\r\n", "True", true},
    {"DeleteKeyRemovesTheLine", false, "x.c@@/main/1\r\ny.c@@/main/2\r\n", "True", "", {"x.c@@/main/1", "y.c@@/main/2"},
     {select(1), key(Qt::Key_Delete)}, "x.c@@/main/1\r\n", "True", false},
    {"RemoveButtonRemovesTheLine", false, "x.c@@/main/1\r\ny.c@@/main/2\r\n", "True", "",
     {"x.c@@/main/1", "y.c@@/main/2"}, {select(0), remove(), clickBlank()}, "y.c@@/main/2\r\n", "True", false},
    {"BlankCustomViewIsStoredAsDefault", false, "x.c@@/main/1\r\n", "False", "", {"x.c@@/main/1"}, {},
     "x.c@@/main/1\r\n", "True", false},
    {"ClearCaseLtWritesEverythingBackUnchanged", true, "a.c\r\nx.c@@/main/1\r\n", "False", "", {}, {},
     "a.c\r\nx.c@@/main/1\r\n", "False", false},
    {"ClearCaseLtKeepsACustomView", true, "x.c@@/main/1\r\n", "False", "/views/v", {}, {}, "x.c@@/main/1\r\n", "False",
     false},
};
INSTANTIATE_TEST_SUITE_P(Cases, ExtendedPage, ::testing::ValuesIn(kExtendedCases),
                         [](const auto& info) { return std::string(info.param.name); });

// ---------------------------------------------------------------------------------------------

struct EditViewPathCase {
    const char* name;
    const char* kind; // "dir", "file" or "missing"
    std::optional<std::string> answer;
    bool browseShown;
    std::vector<std::string> browsed; // "caption|filter", the start is the path itself
    const char* result;               // nullptr: the path itself
};

void PrintTo(const EditViewPathCase& c, std::ostream* os)
{
    *os << c.name;
}

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
INSTANTIATE_TEST_SUITE_P(Cases, EditViewPath, ::testing::ValuesIn(kEditViewPathCases),
                         [](const auto& info) { return std::string(info.param.name); });

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

void PrintTo(const DropDownCase& c, std::ostream* os)
{
    *os << c.name;
}

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
INSTANTIATE_TEST_SUITE_P(Cases, ExtendedDropDown, ::testing::ValuesIn(kDropDownCases),
                         [](const auto& info) { return std::string(info.param.name); });

} // namespace

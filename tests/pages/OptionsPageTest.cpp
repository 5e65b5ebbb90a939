// The package's page in the host's options dialog, read from and written to the live options.
#include "PageHarness.h"
#include "RowName.h"

#include "environment/WFClearCaseIniFile.h"
#include "FakeCleartool.h"
#include "pages/WFClearCasePageTable.h"
#include "WFFrame.h"

#include <QCheckBox>
#include <QLineEdit>
#include <QRadioButton>
#include <QToolButton>

#include <gtest/gtest.h>

#include <map>
#include <memory>
#include <optional>
#include <ostream>
#include <string>
#include <vector>

using namespace wfpage;

namespace {

/// What the options write into the host's store.
class StoreWriter : public IWFOptionsWriter {
public:
    void WriteString(const std::string& name, const std::string& value) override { values[name] = value; }
    std::map<std::string, std::string> values;
};

/// The options page made by the package's factory, read from the live options as the host's
/// options dialog does.
class OptionsPage : public ::testing::Test {
protected:
    wftest::FakeCleartool cleartool;
    BrowseAnswers browse;
    std::unique_ptr<QWidget> widget{ClearCaseCreatePage("TClearCaseOptionsFrame", nullptr)};
    IWFOptionsPage* page = WFOptionsPageOf(widget.get());

    TWFClearCaseOptions& options() { return *cleartool.options().GetImplementation(); }
    void open()
    {
        ASSERT_NE(page, nullptr);
        ASSERT_EQ(WFActionPageOf(widget.get()), nullptr);
        widget->show();
        page->InitPage(nullptr);
        page->OnPageActivate();
        page->ReadOptions(options());
    }
    std::map<std::string, std::string> accept()
    {
        page->WriteOptions(options());
        StoreWriter store;
        options().SaveOptions(store);
        return store.values;
    }
    template <typename T>
    T* control(const char* name)
    {
        T* found = widget->findChild<T*>(name);
        if (!found)
            throw std::runtime_error(std::string("no control ") + name);
        return found;
    }
    /// "$T" is the temporary folder, "$BIN" the fake's folder, "$FAKE" the fake itself.
    std::string expand(std::string text) const
    {
        for (const auto& [marker, value] : {std::pair<std::string, std::string>{"$FAKE", cleartool.program()},
                                            {"$BIN", cleartool.folder()}, {"$T", cleartool.temp().path()}})
            if (const auto at = text.find(marker); at != std::string::npos)
                text.replace(at, marker.size(), value);
        return text;
    }
};

TEST_F(OptionsPage, TitleAndTypedPathsStoredAsTyped)
{
    open();
    EXPECT_EQ(page->GetPageName(), "ClearCase Options");
    type(control<QLineEdit>("editCleartoolPath"), "/opt/cc/bin");
    type(control<QLineEdit>("editDefaultView"), "/views/nightly");
    const auto store = accept();
    EXPECT_EQ(store.at("CleartoolPath"), "/opt/cc/bin");
    EXPECT_EQ(store.at("DefaultView"), "/views/nightly");
}

struct PathCase {
    const char* name;
    const char* file; // created below the temporary folder first; nullptr: none
    const char* stored;
    const char* shown;
};

WF_ROW_PRINTER(PathCase)

class CleartoolPathShown : public OptionsPage, public ::testing::WithParamInterface<PathCase> {};

TEST_P(CleartoolPathShown, AndStoredBackAsShown)
{
    const PathCase& c = GetParam();
    if (c.file)
        cleartool.temp().write(c.file, "");
    options().SetClearToolPath(expand(c.stored));
    options().SetDefaultViewPath("/views/main");
    open();
    EXPECT_EQ(control<QLineEdit>("editCleartoolPath")->text().toStdString(), expand(c.shown));
    EXPECT_EQ(control<QLineEdit>("editDefaultView")->text(), "/views/main");
    const auto store = accept();
    EXPECT_EQ(store.at("CleartoolPath"), expand(c.shown));
    EXPECT_EQ(store.at("DefaultView"), "/views/main");
}

const PathCase kPathCases[] = {
    {"ExecutableShownAsItsFolder", nullptr, "$FAKE", "$BIN"},
    {"FolderOfExecutableShownAsFolder", nullptr, "$BIN", "$BIN"},
    {"OtherCaseShownInFull", "tools/CLEARTOOL", "$T/tools/CLEARTOOL", "$T/tools/CLEARTOOL"},
    {"OtherNameShownInFull", "tools/cleartool.sh", "$T/tools/cleartool.sh", "$T/tools/cleartool.sh"},
    {"MissingShownAsStored", nullptr, "$T/missing/cleartool", "$T/missing/cleartool"},
    {"FolderWithoutExecutableShownWithItsName", "tools/readme", "$T/tools", "$T/tools/cleartool"},
};
INSTANTIATE_TEST_SUITE_P(Cases, CleartoolPathShown, ::testing::ValuesIn(kPathCases), wftest::byName);

struct EditionCase {
    const char* name;
    TClearCaseType stored;
    bool detect;
    const char* version;              // cleartool -version answers this; nullptr: no answer
    std::vector<const char*> clicks;  // "box", "full", "lt"
    std::optional<TClearCaseType> changedElsewhere; // set on the options before the page is accepted
    bool fullChecked;
    bool ltChecked;
    bool buttonsEnabled;
    bool detected; // cleartool was asked for its version
    const char* installationType; // as stored; nullptr: not written
};

WF_ROW_PRINTER(EditionCase)

class Edition : public OptionsPage, public ::testing::WithParamInterface<EditionCase> {};

TEST_P(Edition, ChosenOrDetected)
{
    const EditionCase& c = GetParam();
    if (c.version)
        cleartool.respond("-version", c.version);
    options().SetClearCaseType(c.stored);
    options().SetTestForClearCaseType(c.detect);
    open();
    auto* full = control<QRadioButton>("btnClearCase");
    auto* lt = control<QRadioButton>("btnClearCaseLT");
    auto* box = control<QCheckBox>("boxCheckClearCaseType");
    EXPECT_EQ(box->isChecked(), c.detect);
    for (const std::string which : c.clicks)
        click(which == "box" ? static_cast<QAbstractButton*>(box) : which == "full" ? full : lt);
    EXPECT_EQ(full->isChecked(), c.fullChecked);
    EXPECT_EQ(lt->isChecked(), c.ltChecked);
    EXPECT_EQ(full->isEnabled(), c.buttonsEnabled);
    EXPECT_EQ(lt->isEnabled(), c.buttonsEnabled);
    const std::vector<std::string> asked = c.detected ? std::vector<std::string>{cleartool.folder() + "|-version"}
                                                      : std::vector<std::string>{};
    EXPECT_EQ(cleartool.calls(), asked);
    if (c.changedElsewhere)
        options().SetClearCaseType(*c.changedElsewhere);
    const auto store = accept();
    const auto written = store.find("InstallationType");
    EXPECT_EQ(written == store.end() ? std::string("(not written)") : written->second,
              c.installationType ? c.installationType : "(not written)");
}

constexpr const char* kLTVersion = "ClearCase version 7.0.1 (Rational ClearCase LT)\n";
constexpr const char* kFullVersion = "ClearCase version 7.0.1 (Rational ClearCase)\n";

const EditionCase kEditionCases[] = {
    {"LTShown", ccLT, false, nullptr, {}, {}, false, true, true, false, "ClearCaseLT"},
    {"FullShown", ccFull, false, nullptr, {}, {}, true, false, true, false, "ClearCase"},
    {"UnknownShowsNeither", ccUnknown, false, nullptr, {}, {}, false, false, true, false, nullptr},
    {"UnknownLeavesStoredEdition", ccUnknown, false, nullptr, {}, ccLT, false, false, true, false, "ClearCaseLT"},
    {"ChoosingLTStoresIt", ccFull, false, nullptr, {"lt"}, {}, false, true, true, false, "ClearCaseLT"},
    {"OpenTickedDisablesWithoutDetecting", ccLT, true, kFullVersion, {}, {}, false, true, false, false, "Auto"},
    {"TickingDetectsLT", ccFull, false, kLTVersion, {"box"}, {}, false, true, false, true, "Auto"},
    {"TickingDetectsFull", ccLT, false, kFullVersion, {"box"}, {}, true, false, false, true, "Auto"},
    {"TickingUndetectedKeepsChoice", ccLT, false, "cleartool: unknown\n", {"box"}, {}, false, true, false, true, "Auto"},
    {"UntickingEnablesWithoutDetecting", ccFull, true, kLTVersion, {"box"}, {}, true, false, true, false, "ClearCase"},
    {"TickAndUntickThenChoose", ccUnknown, false, kFullVersion, {"box", "box", "lt"}, {}, false, true, true, true,
     "ClearCaseLT"},
};
INSTANTIATE_TEST_SUITE_P(Cases, Edition, ::testing::ValuesIn(kEditionCases), wftest::byName);

struct BrowseCase {
    const char* name;
    const char* button;
    const char* viewShown;  // the default view on the page; "$T" exists
    const char* lastView;   // remembered before; nullptr: nothing
    std::optional<std::string> answer;
    const char* askedTitle;
    const char* askedStart;
    const char* cleartoolShown;
    const char* viewShownAfter;
    const char* lastViewAfter;
};

WF_ROW_PRINTER(BrowseCase)

class OptionsBrowse : public OptionsPage, public ::testing::WithParamInterface<BrowseCase> {};

TEST_P(OptionsBrowse, AnswerReachesTheEdit)
{
    const BrowseCase& c = GetParam();
    options().SetDefaultViewPath(expand(c.viewShown));
    if (c.lastView)
        CCSetLastViewDirectory(c.lastView);
    open();
    browse.next(c.answer);
    click(control<QToolButton>(c.button));
    ASSERT_EQ(browse.requests().size(), 1u);
    const auto& asked = browse.requests().front();
    EXPECT_EQ(asked.caption, c.askedTitle);
    EXPECT_EQ(asked.initialDir, expand(c.askedStart));
    EXPECT_EQ(asked.file.filter, std::string(c.button) == "editCleartoolPathButton" ? cleartoolExecutableName() : "");
    EXPECT_EQ(control<QLineEdit>("editCleartoolPath")->text().toStdString(), expand(c.cleartoolShown));
    EXPECT_EQ(control<QLineEdit>("editDefaultView")->text().toStdString(), expand(c.viewShownAfter));
    EXPECT_EQ(CCGetLastViewDirectory(), expand(c.lastViewAfter));
}

const BrowseCase kBrowseCases[] = {
    {"CleartoolFileGivesItsFolder", "editCleartoolPathButton", "", "/views/last", "/opt/cc/bin/cleartool", "Select File",
     "", "/opt/cc/bin", "", "/views/last"},
    {"CleartoolCancelledKeepsPath", "editCleartoolPathButton", "", nullptr, std::nullopt, "Select File", "", "$BIN", "",
     ""},
    {"ViewStartsAtExistingFolderShown", "editDefaultViewButton", "$T", "/views/last", "/views/new", "Select Directory",
     "$T", "$BIN", "/views/new", "/views/new"},
    {"ViewStartsAtLastWhenShownIsMissing", "editDefaultViewButton", "/no/such/view", "/views/last", "/views/new",
     "Select Directory", "/views/last", "$BIN", "/views/new", "/views/new"},
    {"ViewStartsAtLastWhenNoneShown", "editDefaultViewButton", "", "/views/last", "/views/new", "Select Directory",
     "/views/last", "$BIN", "/views/new", "/views/new"},
    {"ViewCancelledRemembersNothing", "editDefaultViewButton", "/no/such/view", "/views/last", std::nullopt,
     "Select Directory", "/views/last", "$BIN", "/no/such/view", "/views/last"},
};
INSTANTIATE_TEST_SUITE_P(Cases, OptionsBrowse, ::testing::ValuesIn(kBrowseCases), wftest::byName);

} // namespace

// The package's page in the host's options dialog, read from and written to the live options.
// "$T/bin/cleartool" is the fake cleartool.
#include "PageCase.h"

#include "environment/WFClearCaseIniFile.h"
#include "environment/WFClearCaseOptions.h"

using namespace wfpage;

namespace {

class OptionsPage : public ::testing::TestWithParam<PageCase> {};

TEST_P(OptionsPage, RoundTrip)
{
    runOptionsCase(GetParam());
}

/// The cleartool path stored (after making `file` below the temporary folder) is shown as
/// `shown`, and stored back as shown.
PageCase pathRow(const char* name, const char* stored, const char* shown, const char* file = nullptr)
{
    return {.name = name,
            .given = {{"CleartoolPath", stored}, {"DefaultView", "/views/main"}, {"InstallationType", "ClearCase"}},
            .shown = {{.control = "editCleartoolPath", .text = shown}, {.control = "editDefaultView", .text = "/views/main"}},
            .stored = {{"CleartoolPath", shown}, {"DefaultView", "/views/main"}},
            .setUp = [file](wftest::FakeCleartool& cleartool) {
                if (file)
                    cleartool.temp().write(file, "");
            }};
}

const PageCase kPathCases[] = {
    {.name = "TypedPathsStoredAsTyped",
     .steps = {typeInto("editCleartoolPath", "/opt/cc/bin"), typeInto("editDefaultView", "/views/nightly")},
     .stored = {{"CleartoolPath", "/opt/cc/bin"}, {"DefaultView", "/views/nightly"}}},
    pathRow("ExecutableShownAsItsFolder", "$T/bin/cleartool", "$T/bin"),
    pathRow("OtherNameShownInFull", "$T/tools/cleartool.sh", "$T/tools/cleartool.sh", "tools/cleartool.sh"),
    pathRow("MissingShownAsStored", "$T/missing/cleartool", "$T/missing/cleartool"),
};
INSTANTIATE_TEST_SUITE_P(Paths, OptionsPage, ::testing::ValuesIn(kPathCases), wftest::byName);

constexpr const char* kLTVersion = "ClearCase version 7.0.1 (Rational ClearCase LT)\n";
constexpr const char* kFullVersion = "ClearCase version 7.0.1 (Rational ClearCase)\n";

/// The edition stored (detected when `detect`), after `steps` shown by the two buttons (enabled
/// or not) and stored as `installation`; `version` is cleartool's answer, asked when `asked`.
PageCase editionRow(const char* name, TClearCaseType edition, bool detect, const char* version, std::vector<Step> steps,
                    bool full, bool lt, bool enabled, bool asked, const char* installation)
{
    PageCase row = {.name = name,
                    .steps = std::move(steps),
                    .shown = {{"btnClearCase", full, enabled}, {"btnClearCaseLT", lt, enabled}},
                    .stored = {{"InstallationType", installation}},
                    .edition = edition};
    if (version)
        row.responses = {{"-version", version}};
    if (asked)
        row.calls = {"-version"};
    if (detect)
        row.setUp = [](wftest::FakeCleartool& cleartool) { cleartool.options().SetTestForClearCaseType(true); };
    return row;
}

const Step kBox = clickOn("boxCheckClearCaseType");

const PageCase kEditionCases[] = {
    editionRow("FullShown", ccFull, false, nullptr, {}, true, false, true, false, "ClearCase"),
    editionRow("OpenTickedDisablesWithoutDetecting", ccLT, true, kFullVersion, {}, false, true, false, false, "Auto"),
    editionRow("TickingDetectsLT", ccFull, false, kLTVersion, {kBox}, false, true, false, true, "Auto"),
    editionRow("TickingUndetectedKeepsChoice", ccLT, false, "cleartool: unknown\n", {kBox}, false, true, false, true, "Auto"),
    editionRow("UntickingEnablesWithoutDetecting", ccFull, true, kLTVersion, {kBox}, true, false, true, false, "ClearCase"),
    editionRow("TickAndUntickThenChoose", ccUnknown, false, kFullVersion, {kBox, kBox, clickOn("btnClearCaseLT")}, false, true,
               true, true, "ClearCaseLT"),
    // With neither button chosen the page leaves the edition as it finds it on accepting.
    {.name = "UnknownLeavesStoredEdition", .shown = {{"btnClearCase", false}, {"btnClearCaseLT", false}},
     .stored = {{"InstallationType", "ClearCaseLT"}}, .edition = ccUnknown,
     .check = [](const OpenPage&) { ClearCaseOptions()->SetClearCaseType(ccLT); }},
};
INSTANTIATE_TEST_SUITE_P(Editions, OptionsPage, ::testing::ValuesIn(kEditionCases), wftest::byName);

/// The default view `view` on the page, `lastView` remembered (nullptr: none); `button` clicked
/// and the browser answered `answer`. It was asked for `caption` from `start`; the edits show
/// `cleartoolAfter` and `viewAfter`, and `lastViewAfter` is remembered.
PageCase browseRow(const char* name, const char* button, const char* view, const char* lastView,
                   std::optional<std::string> answer, const char* caption, const char* start, const char* cleartoolAfter,
                   const char* viewAfter, const char* lastViewAfter)
{
    const bool forCleartool = std::string(button) == "editCleartoolPathButton";
    return {.name = name,
            .given = {{"CleartoolPath", "$T/bin/cleartool"}, {"DefaultView", view}, {"InstallationType", "ClearCase"}},
            .steps = {clickOn(button)},
            .shown = {{.control = "editCleartoolPath", .text = cleartoolAfter}, {.control = "editDefaultView", .text = viewAfter}},
            .answers = {std::move(answer)},
            .browsed = {{start, caption, "", forCleartool ? cleartoolExecutableName() : ""}},
            .setUp = [lastView](wftest::FakeCleartool&) {
                if (lastView)
                    CCSetLastViewDirectory(lastView);
            },
            .check = [lastViewAfter](const OpenPage&) { EXPECT_EQ(CCGetLastViewDirectory(), lastViewAfter); }};
}

const PageCase kBrowseCases[] = {
    browseRow("CleartoolFileGivesItsFolder", "editCleartoolPathButton", "", "/views/last", "/opt/cc/bin/cleartool",
              "Select File", "", "/opt/cc/bin", "", "/views/last"),
    browseRow("CleartoolCancelledKeepsPath", "editCleartoolPathButton", "", nullptr, std::nullopt, "Select File", "",
              "$T/bin", "", ""),
    browseRow("ViewStartsAtExistingFolderShown", "editDefaultViewButton", "$T", "/views/last", "/views/new",
              "Select Directory", "$T", "$T/bin", "/views/new", "/views/new"),
    browseRow("ViewStartsAtLastWhenNoneShown", "editDefaultViewButton", "", "/views/last", "/views/new", "Select Directory",
              "/views/last", "$T/bin", "/views/new", "/views/new"),
    browseRow("ViewCancelledRemembersNothing", "editDefaultViewButton", "/no/such/view", "/views/last", std::nullopt,
              "Select Directory", "/views/last", "$T/bin", "/no/such/view", "/views/last"),
};
INSTANTIATE_TEST_SUITE_P(Browsers, OptionsPage, ::testing::ValuesIn(kBrowseCases), wftest::byName);

} // namespace

// The built package as a design-time host meets it: loaded with pages (after a load without
// them), every action type and the options get exactly their pages, in tab order, and each page
// opens on a new action and writes it back.
#include "GoldenCatalogue.h"
#include "WFAction.h"
#include "WFFrame.h"
#include "WFHeading.h"
#include "WFPageFactory.h"
#include "WFPluginLoader.h"
#include "WFServices.h"

#include <QApplication>
#include <QFile>
#include <QFrame>
#include <QLabel>

#include <gtest/gtest.h>

#include <dlfcn.h>

#include <filesystem>

#include <map>
#include <memory>
#include <string>
#include <utility>
#include <vector>

namespace {

using PageList = std::vector<std::string>;

const std::string kViewPaths = "TClearCaseViewPathNameFrame";
const std::string kExtendedPaths = "TClearCaseExtendedPathNameFrame";
const std::string kComment = "TClearCaseCommentFrame";
const std::string kObjects = "TClearCaseObjectSelectorFrame";
const std::string kActivity = "TClearCaseActivitySelectorFrame";
const std::string kCheckIn = "TClearCaseCheckInFrame";

/// Written out by hand: the pages a build engineer sees on each action, tab by tab. Each page's
/// title is its own table's concern.
const std::map<std::string, PageList>& goldenPages()
{
    static const std::map<std::string, PageList> pages = {
        {"TClearCaseUpdateAction", {"TClearCaseUpdateFrame"}},
        {"TClearCaseCheckoutAction", {kViewPaths, kExtendedPaths, "TClearCaseCheckOutFrame", kComment}},
        {"TClearCaseCheckInPathAction", {kViewPaths, kExtendedPaths, kCheckIn, kComment}},
        {"TClearCaseUnCheckOutAction", {kViewPaths, kExtendedPaths, "TClearCaseUnCheckOutFrame"}},
        {"TClearCaseUnCheckOutActivityAction", {"TClearCaseUnCheckOutActivityFrame"}},
        {"TClearCaseCheckInActivityAction", {kActivity, kCheckIn, kComment}},
        {"TClearCaseSetActivityAction", {kActivity, kComment}},
        {"TClearCaseMkLbTypeAction", {"TClearCaseMkLbTypeFrame", kComment}},
        {"TClearCaseApplyLabelAction", {kViewPaths, kExtendedPaths, "TClearCaseApplyLabelFrame", kComment}},
        {"TClearCaseLockPathNamesAction", {kViewPaths, kExtendedPaths, "TClearCaseLockFrame", kComment}},
        {"TClearCaseLockObjectsAction", {kObjects, "TClearCaseLockFrame", kComment}},
        {"TClearCaseUnlockObjectsAction", {kObjects, kComment}},
        {"TClearCaseUnlockPathNamesAction", {kViewPaths, kExtendedPaths, kComment}},
        {"TClearCaseMakeBaselineAction", {"TClearCaseMakeBaselineFrame", "TClearCaseMakeBaseLineLabelFrame", kComment}},
        {"TClearCaseMakeBaselineFromLabelAction", {"TClearCaseMakeBaselineFromLabelFrame", kComment}},
        {"TClearCaseCleartoolAction", {"TClearCaseCleartoolFrame"}},
        {"TClearCaseMakeActivityAction", {"TClearCaseMakeActivityFrame", kComment}},
        {"TClearCaseMakeAttributeTypeAction",
         {"TClearCaseMakeAttributeTypeFrame", "TClearCaseMakeAttributeTypeOptionsFrame", kComment}},
        {"TClearCaseApplyAttributePathNamesAction",
         {kViewPaths, "TClearCaseApplyAttributeFrame", "TClearCaseApplyAttributePathNamesFrame"}},
        {"TClearCaseApplyAttributeObjectsAction",
         {kObjects, "TClearCaseApplyAttributeFrame", "TClearCaseApplyAttributeObjectsFrame"}},
        {"TClearCaseSetConfigSpecAction", {"TClearCaseSetConfigSpecFrame"}},
        {"TClearCaseGetConfigSpecAction", {"TClearCaseGetConfigSpecFrame"}},
        {"TClearCaseFindCheckoutsAction", {"TClearCaseFindCheckoutsFrame"}},
        {"TClearCaseMakeElementAction", {kViewPaths, "TClearCaseMakeElementFrame", kComment}},
    };
    return pages;
}

/// The pages that embed the view context: its instance name and the heading it shows there.
const std::map<std::string, std::pair<std::string, std::string>>& goldenViewContexts()
{
    static const std::string instance = "ClearCaseViewContextSubFrame1";
    static const std::map<std::string, std::pair<std::string, std::string>> contexts = {
        {"TClearCaseUpdateFrame", {instance, "Snapshot View to update"}},
        {"TClearCaseCleartoolFrame", {"ViewContext", "View Context (Starting Directory)"}},
        {"TClearCaseExtendedPathNameFrame", {instance, "View Context"}},
        {"TClearCaseActivitySelectorFrame", {instance, "View Context"}},
        {"TClearCaseUnCheckOutActivityFrame", {instance, "View Context"}},
        {"TClearCaseMakeActivityFrame", {instance, "View Context"}},
        {"TClearCaseMakeBaselineFrame", {instance, "View Context"}},
        {"TClearCaseMakeBaselineFromLabelFrame", {instance, "View Context"}},
        {"TClearCaseSetConfigSpecFrame", {instance, "View Context"}},
        {"TClearCaseGetConfigSpecFrame", {instance, "View Context"}},
        {"TClearCaseFindCheckoutsFrame", {instance, "View Context"}},
    };
    return contexts;
}

/// The look every page shares: its sections have the host's headings, whose lines end at the
/// page's right edge at its layout width and carry the headings' help context; the view context,
/// where there is one, has its name and heading.
void expectLaidOutAsAPage(QWidget* page)
{
    const QList<TWFHeading*> headings = page->findChildren<TWFHeading*>();
    EXPECT_FALSE(headings.isEmpty());
    for (const TWFHeading* heading : headings) {
        const std::string name = heading->text().toStdString();
        const QFrame* line = heading->line();
        EXPECT_EQ(line->mapTo(page, QPoint(line->width(), 0)).x(), kWFPageRightEdge) << name;
        EXPECT_EQ(line->property("helpContext").toInt(), 2400) << name;
    }
    const auto context = goldenViewContexts().find(page->objectName().toStdString());
    if (context != goldenViewContexts().end()) {
        QWidget* frame = page->findChild<QWidget*>(QString::fromStdString(context->second.first));
        ASSERT_NE(frame, nullptr) << "no view context " << context->second.first;
        EXPECT_EQ(frame->findChild<QLabel*>("Label5")->text().toStdString(), context->second.second);
    }
}

class PackagePages : public ::testing::Test {
protected:
    static void SetUpTestSuite()
    {
        // Suites share the process: the package is loaded once, by the first of them.
        static bool loaded = false;
        if (loaded)
            return;
        loaded = true;
        std::string error;
        // A host that first needed no pages, then does.
        ASSERT_TRUE(WFLoadPlugin(WF_CC_PLUGIN_PATH, false, error)) << error;
        ASSERT_TRUE(WFActionServices().PagesOf("TClearCaseCheckoutAction").empty());
        ASSERT_TRUE(WFLoadPlugin(WF_CC_PLUGIN_PATH, true, error)) << error;
    }
};

TEST_F(PackagePages, PlugInAndPageLibraryReachOneQuerySessionAndOneOptionsObject)
{
    void* plugin = dlopen(WF_CC_PLUGIN_PATH, RTLD_NOW | RTLD_NOLOAD);
    void* pages = dlopen(WF_CC_PAGE_LIBRARY_PATH, RTLD_NOW | RTLD_NOLOAD);
    ASSERT_NE(plugin, nullptr);
    ASSERT_NE(pages, nullptr);
    // ClearCaseQuerySession(), ClearCaseOptions() and GetClearCaseDesignTime(): each file finds the
    // one definition in the core, so both reach the same session, options and design-time flag.
    for (const char* symbol : {"_Z21ClearCaseQuerySessionv", "_Z16ClearCaseOptionsv", "_Z22GetClearCaseDesignTimev"}) {
        void* fromPlugin = dlsym(plugin, symbol);
        ASSERT_NE(fromPlugin, nullptr) << symbol;
        EXPECT_EQ(dlsym(pages, symbol), fromPlugin) << symbol;
        Dl_info where{};
        ASSERT_NE(dladdr(fromPlugin, &where), 0);
        EXPECT_EQ(std::filesystem::path(where.dli_fname).filename().string(), "libWF30ClearCaseCore.so") << symbol;
    }
    EXPECT_TRUE(reinterpret_cast<bool (*)()>(dlsym(pages, "_Z22GetClearCaseDesignTimev"))());
    dlclose(plugin);
    dlclose(pages);
}

TEST_F(PackagePages, PageLibraryIsLoadedOnlyWhenPagesAreAsked)
{
    QFile maps("/proc/self/maps");
    ASSERT_TRUE(maps.open(QIODevice::ReadOnly));
    EXPECT_TRUE(maps.readAll().contains("WF30ClearCasePages.so"));
}

class ActionPages : public PackagePages, public ::testing::WithParamInterface<wftest::GoldenAction> {};

TEST_P(ActionPages, AreTheActionsPagesInTabOrderAndOpenOnANewAction)
{
    const wftest::GoldenAction& golden = GetParam();
    const std::vector<TWFPageClass> classes = WFActionServices().PagesOf(golden.className);
    std::vector<std::string> names;
    for (const auto& pageClass : classes)
        names.push_back(pageClass.className);
    ASSERT_EQ(names, goldenPages().at(golden.className));

    auto action = WFActionServices().CreateAction(golden.typeId);
    ASSERT_NE(action, nullptr);
    for (std::size_t i = 0; i < classes.size(); ++i) {
        SCOPED_TRACE(classes[i].className);
        QWidget host;
        std::string error;
        QWidget* widget = WFCreatePage(classes[i], &host, error).release();
        ASSERT_NE(widget, nullptr) << error;
        IWFActionPage* page = WFActionPageOf(widget);
        ASSERT_NE(page, nullptr);
        host.show();
        page->InitFrame(&host);
        page->InitPage(*action);
        page->ReadActionData(*action);
        page->OnPageActivate();
        page->OnPageDeActivate();
        page->WriteActionData(*action);
        expectLaidOutAsAPage(widget);
    }
}

INSTANTIATE_TEST_SUITE_P(Catalogue, ActionPages, ::testing::ValuesIn(wftest::goldenCatalogue()),
                         [](const auto& info) { return info.param.typeId; });

TEST_F(PackagePages, OptionsHaveTheOptionsPage)
{
    TWFOptionsObject* options = WFOptionsServices().FindOptions("Version Control Systems", "ClearCase");
    ASSERT_NE(options, nullptr);
    const auto classes = WFOptionsServices().PagesOf("TWFClearCaseOptions");
    ASSERT_EQ(classes.size(), 1u);
    EXPECT_EQ(classes[0].className, "TClearCaseOptionsFrame");
    std::string error;
    std::unique_ptr<QWidget> widget = WFCreatePage(classes[0], nullptr, error);
    ASSERT_NE(widget, nullptr) << error;
    IWFOptionsPage* page = WFOptionsPageOf(widget.get());
    ASSERT_NE(page, nullptr);
    EXPECT_EQ(page->GetPageName(), "ClearCase Options");
    widget->show();
    page->InitPage(nullptr);
    page->OnPageActivate();
    page->ReadOptions(*options);
    page->WriteOptions(*options);
    expectLaidOutAsAPage(widget.get());
}

} // namespace

#include "PageGallery.h"

#include "actions/WFClearCaseCleartoolAction.h"
#include "actions/WFClearCaseMakeAttributeTypeAction.h"
#include "actions/WFClearCaseMakeBaselineAction.h"
#include "actions/WFClearCaseMakeBaselineFromLabelAction.h"
#include "ClearCaseWorld.h"
#include "environment/WFClearCaseOptions.h"
#include "pages/WFClearCaseDateButtonEdit.h"
#include "pages/WFClearCaseEditExtendedPathNameForm.h"
#include "pages/WFClearCaseEditViewPathForm.h"
#include "pages/WFClearCaseObjectSelectorEditForm.h"
#include "pages/WFClearCaseViewContextSubFrame.h"
#include "WFBasicActionPages.h"
#include "WFBasicActions.h"
#include "WFFrame.h"
#include "WFGenericPage.h"
#include "WFPageFactory.h"
#include "WFServices.h"

#include <memory>

namespace wfgallery {

namespace {

/// A host page bound to a sample action that lives as long as the program.
template <typename Action>
QWidget* hostPage(const TWFPageClass& pageClass, std::vector<std::pair<std::string, std::string>> sample)
{
    static Action action;
    for (const auto& [name, value] : sample)
        action.SetPropertyText(name, value);
    std::string error;
    auto page = WFCreatePage(pageClass, nullptr, error);
    IWFActionPage* bound = WFActionPageOf(page.get());
    bound->InitFrame(page.get());
    bound->InitPage(action);
    bound->ReadActionData(action);
    page->resize(kWFPageWidth, page->sizeHint().height());
    return page.release();
}

TWFPageClass basicPage(const char* className)
{
    for (const auto& row : WFBasicActionPages())
        if (row.page.className == className)
            return row.page;
    return {};
}

} // namespace

const std::vector<Editor>& editors()
{
    // One row per editor class.
    static const std::vector<Editor> list = {
        {"TClearCaseViewContextSubFrame", [] { return new TClearCaseViewContextSubFrame; }},
        {"TClearCaseEditViewPathForm",
         [] {
             auto* form = new TClearCaseEditViewPathForm;
             form->SetPathName("/views/build_main/vobs/product/src/main.c");
             return form;
         }},
        {"TClearCaseEditExtendedPathNameForm",
         [] {
             auto* form = new TClearCaseEditExtendedPathNameForm;
             form->SetPathName("src/main.c@@/main/rel2/4");
             return form;
         }},
        {"TClearCaseDateButtonEdit",
         [] {
             auto* edit = new TClearCaseDateButtonEdit;
             edit->SetDateString("15-Nov-06.14:30:00");
             return edit;
         }},
        {"TClearCaseObjectSelectorEditForm",
         [] {
             auto* editor = new TClearCaseObjectSelectorEditForm;
             editor->SetObjectSelector("lbtype:REL2@/vobs/product");
             return editor;
         }},
        // The host's own pages: the basic actions' and the generic one.
        {"TWFLogMessageFrame",
         [] { return hostPage<TWFLogMessageAction>(basicPage("TWFLogMessageFrame"), {{"Text", "Build %BUILD_NUMBER% started\non %COMPUTERNAME%"}}); }},
        {"TWFSetVariableFrame",
         [] { return hostPage<TWFSetVariableAction>(basicPage("TWFSetVariableFrame"), {{"VariableName", "RELEASE"}, {"Value", "rel_%BUILD_NUMBER%"}}); }},
        {"TWFWriteTextFileFrame",
         [] {
             return hostPage<TWFWriteTextFileAction>(basicPage("TWFWriteTextFileFrame"),
                                                     {{"FileName", "out/version.txt"}, {"Text", "%BUILD_NUMBER%\n"}});
         }},
        {"TWFRunProgramFrame",
         [] {
             return hostPage<TWFRunProgramAction>(basicPage("TWFRunProgramFrame"),
                                                  {{"Program", "make"}, {"Arguments", "-j2 all"}, {"WorkingDirectory", "src"}});
         }},
        {"TWFGenericPropertyPage",
         [] {
             return hostPage<TWFWriteTextFileAction>(WFPagesFor("TNoPagesAction").front(),
                                                     {{"FileName", "out/version.txt"}, {"Text", "%BUILD_NUMBER%\n"}, {"Append", "True"}});
         }},
    };
    return list;
}

void prepareSampleWorld()
{
    // A fresh simulator store with a UCM view, made once: the pages that list the view's
    // components and activities show them, not "cannot be found".
    static const e2e::ClearCaseWorld world;
    world.enter();
    RegisterOptions();
    if (IWFClearCaseOptions* options = ClearCaseOptions()) {
        options->SetDefaultViewPath(world.view());
        options->SetClearToolPath(e2e::cleartoolPath());
    }
}

void fillSample(TClearCaseBaseAction& action)
{
    action.SetViewContextPath("/views/build_main/vobs/product");
    action.SetUseDefaultViewContext(false);
    action.SetComment("Nightly build %BUILD_NUMBER%");
    action.SetNoComment(false);
    action.SetViewPathNames({"/views/build_main/vobs/product/src/main.c", "/views/build_main/vobs/product/include"});
    action.SetExtendedPathNames({"src/main.c@@/main/rel2/4"});
    action.SetObjectSelectors({"lbtype:REL2@/vobs/product", "brtype:rel2@/vobs/product"});
    action.SetLabelTypeName("REL2");
    action.SetVOBSelector("/vobs/product");
    if (auto* generic = dynamic_cast<TClearCaseCleartoolAction*>(&action)) {
        generic->SetCommand("lsview");
        generic->SetArguments("-short -cview");
    }
    if (auto* attribute = dynamic_cast<TClearCaseBaseAttributeAction*>(&action)) {
        attribute->SetAttributeName("BuildNo");
        attribute->SetAttributeValue("42");
    }
    // The baseline pages ask the view for its components and activities: theirs is the
    // default view, the sample world's, and they name its component.
    auto* baseline = dynamic_cast<TClearCaseMakeBaselineAction*>(&action);
    auto* fromLabel = dynamic_cast<TClearCaseMakeBaselineFromLabelAction*>(&action);
    if (baseline || fromLabel) {
        action.SetUseDefaultViewContext(true);
        static_cast<TClearCaseUCMAction&>(action).SetComponentSelectorStorageString("main_comp@/vobs/pvob");
    }
    if (baseline)
        baseline->SetSelectionType(slComponents);
    if (fromLabel)
        fromLabel->SetSpecifyComponents(true);
    if (auto* attributeType = dynamic_cast<TClearCaseMakeAttributeTypeAction*>(&action)) {
        attributeType->SetNewAttributeType(atDate);
        attributeType->SetUseDefaultValue(true);
        attributeType->SetDefaultValue("today");
    }
}

void readSampleOptions(IWFOptionsPage& page)
{
    // The options page shows an ordinary installation, not the sample world's folders. It
    // takes the cleartool path from the live options, so they hold that one while it reads.
    IWFClearCaseOptions* live = ClearCaseOptions();
    if (!live)
        return;
    const std::string worldCleartool = live->GetCleartoolPath();
    const std::string worldView = live->GetDefaultViewPath();
    live->SetClearToolPath("/opt/rational/clearcase/bin/cleartool");
    live->SetDefaultViewPath("/views/build_main");
    page.ReadOptions(*live->GetImplementation());
    live->SetClearToolPath(worldCleartool);
    live->SetDefaultViewPath(worldView);
}

} // namespace wfgallery

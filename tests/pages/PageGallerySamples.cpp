#include "PageGallery.h"

#include "actions/WFClearCaseCleartoolAction.h"
#include "actions/WFClearCaseMakeAttributeTypeAction.h"
#include "environment/WFClearCaseOptions.h"
#include "pages/WFClearCaseDateButtonEdit.h"
#include "pages/WFClearCaseEditExtendedPathNameForm.h"
#include "pages/WFClearCaseEditViewPathForm.h"
#include "pages/WFClearCaseObjectSelectorEditForm.h"
#include "pages/WFClearCaseViewContextSubFrame.h"
#include "WFServices.h"

namespace wfgallery {

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
    };
    return list;
}

void prepareSampleWorld()
{
    RegisterOptions();
    if (IWFClearCaseOptions* options = ClearCaseOptions()) {
        options->SetDefaultViewPath("/views/build_main");
        options->SetClearToolPath("/opt/rational/clearcase/bin/cleartool");
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
    if (auto* attributeType = dynamic_cast<TClearCaseMakeAttributeTypeAction*>(&action)) {
        attributeType->SetNewAttributeType(atDate);
        attributeType->SetUseDefaultValue(true);
        attributeType->SetDefaultValue("today");
    }
}

void readSampleOptions(IWFOptionsPage& page)
{
    if (IWFClearCaseOptions* options = ClearCaseOptions())
        page.ReadOptions(*options->GetImplementation());
}

} // namespace wfgallery

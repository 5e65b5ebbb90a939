#pragma once

#include <functional>
#include <vector>

class QWidget;
class TClearCaseBaseAction;
class IWFOptionsPage;

namespace wfgallery {

/// An editor (a dialog or a part of a page) shown on its own in the gallery.
struct Editor {
    const char* className;
    std::function<QWidget*()> make;
};
/// Every editor the gallery shows beside the pages.
const std::vector<Editor>& editors();

/// Options pointing at a simulated ClearCase that the pages' lists and drop-downs can ask.
void prepareSampleWorld();
/// Gives a sample action the values a build engineer would have typed.
void fillSample(TClearCaseBaseAction& action);
/// Reads the sample options into an options page.
void readSampleOptions(IWFOptionsPage& page);

} // namespace wfgallery

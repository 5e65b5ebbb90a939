#pragma once

#include "WFFrame.h"

#include <string>

class QPlainTextEdit;
class QWidget;
class TCustomWFAction;

/// Controls of a page bound to an action's properties by name: a control carries the dynamic
/// property "wfProperty" naming the action property it edits. Line edits, memos, check boxes
/// and drop-downs (an enumeration's members, or with "wfVariables" set, the project's variables
/// offered for a name the user may also type) read and write the property's persisted text.
inline constexpr const char* kWFBoundProperty = "wfProperty";
inline constexpr const char* kWFOffersVariables = "wfVariables";
/// On an edit: "file", "saveFile" or "folder"; the button named after the edit plus "Button"
/// opens the host's browser of that kind on the edit's text.
inline constexpr const char* kWFBrowseKind = "wfBrowse";

void WFReadBoundControls(QWidget* page, const TCustomWFAction& action);
void WFWriteBoundControls(QWidget* page, TCustomWFAction& action);
/// Connects the browse buttons of the page's edits that name a browse kind.
void WFConnectBrowseButtons(QWidget* page);

/// Shows a stored text in a memo, which holds lines broken by LF.
void WFShowInMemo(QPlainTextEdit* memo, const std::string& stored);
/// The memo's text with its lines joined by `lineBreak`; the stored text, byte for byte, while
/// the memo shows what WFShowInMemo put there.
std::string WFMemoValue(const QPlainTextEdit* memo, const char* lineBreak);

/// A page whose controls are all bound by name; its tab caption is its window title, so that a
/// layout alone makes the whole page.
class TWFBoundFrame : public TFrame {
    Q_OBJECT
public:
    using TFrame::TFrame;

    void ReadActionData(TCustomWFAction& action) override;
    void WriteActionData(TCustomWFAction& action) override;
    std::string PageName() const override;
};

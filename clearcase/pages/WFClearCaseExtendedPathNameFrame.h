#pragma once

#include "pages/WFClearCasePathListFrame.h"

#include <optional>
#include <string>
#include <vector>
#include <memory>

namespace Ui {
class TClearCaseExtendedPathNameFrame;
}

/// The action's extended ("@@") path names, shown in full, and the view their drop-downs ask.
/// Under ClearCase LT, which has no extended names, the page is greyed out and keeps what the
/// action holds.
class TClearCaseExtendedPathNameFrame : public TClearCasePathListFrame {
    Q_OBJECT
public:
    explicit TClearCaseExtendedPathNameFrame(QWidget* parent = nullptr);
    ~TClearCaseExtendedPathNameFrame() override;

    void InitPage(TCustomWFAction& action) override;
    void ReadActionData(TCustomWFAction& action) override;
    /// Under ClearCase LT writes back, unchanged, the list and view context it read.
    void WriteActionData(TCustomWFAction& action) override;
    std::string PageName() const override;

protected:
    void addButtonClick() override;
    void editButtonClick() override;
    void remButtonClick() override;

private:
    std::unique_ptr<Ui::TClearCaseExtendedPathNameFrame> ui;

    /// What the action held when the page could not show it.
    struct TKept {
        std::vector<std::string> extendedPathNames;
        std::string viewContextPath;
        bool useDefaultViewContext = false;
    };
    std::optional<TKept> m_kept;
};

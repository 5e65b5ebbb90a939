#pragma once

#include "WFActionPage.h"

#include <QFrame>
#include <memory>

namespace Ui {
class TClearCaseOptionsFrame;
}

/// The package's page in the host's options dialog: where cleartool is, the default view and
/// the installed edition.
class TClearCaseOptionsFrame : public QFrame, public IWFOptionsPage {
    Q_OBJECT
public:
    explicit TClearCaseOptionsFrame(QWidget* parent = nullptr);
    ~TClearCaseOptionsFrame() override;

    std::string GetPageName() const override;
    void InitPage(IWFOptionPageOwner* owner) override;
    void OnPageActivate() override;
    /// Shows where cleartool is as the folder that holds it when the path names the executable.
    /// Reads the edition as stored: nothing is detected while the page opens.
    void ReadOptions(TWFOptionsObject& options) override;
    /// An edition neither button names leaves the stored one as it is.
    void WriteOptions(TWFOptionsObject& options) override;

private:
    std::unique_ptr<Ui::TClearCaseOptionsFrame> ui;

    /// Enables the edition buttons when detection is off; detects the edition when the user
    /// (the sender) has just turned detection on.
    void boxCheckClearCaseTypeClick(QObject* sender);
    void editCleartoolPathButtonClick();
    void editDefaultViewButtonClick();
};

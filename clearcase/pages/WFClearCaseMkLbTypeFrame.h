#pragma once

#include "WFFrame.h"

#include <memory>

class QValidator;

namespace Ui {
class TClearCaseMkLbTypeFrame;
}

/// The new label type: its name and VOB, ordinary or global, usage constraint and creation
/// switches.
class TClearCaseMkLbTypeFrame : public TFrame {
    Q_OBJECT
public:
    explicit TClearCaseMkLbTypeFrame(QWidget* parent = nullptr);
    ~TClearCaseMkLbTypeFrame() override;

    /// A stored name with lower-case letters switches the name edit to normal case first, so
    /// that the name is shown as it was typed.
    void ReadActionData(TCustomWFAction& action) override;
    /// The acquire tick is written also when the box is greyed.
    void WriteActionData(TCustomWFAction& action) override;
    std::string PageName() const override;

private:
    std::unique_ptr<Ui::TClearCaseMkLbTypeFrame> ui;

    void btnGlobalClick();
    void btnOrdinaryClick();
    void boxUpperCaseClick();
    void txtVOBSelectorDropDown();
    void setUpperCaseEntry(bool upperCase);

    QValidator* m_upperCase = nullptr;
};

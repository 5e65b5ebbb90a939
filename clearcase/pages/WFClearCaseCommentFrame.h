#pragma once

#include "ui_WFClearCaseCommentFrame.h"
#include "WFFrame.h"

/// The comment an action records, or none.
class TClearCaseCommentFrame : public TFrame {
    Q_OBJECT
public:
    explicit TClearCaseCommentFrame(QWidget* parent = nullptr);

    void ReadActionData(TCustomWFAction& action) override;
    /// The comment text is kept even when "No comment" is chosen.
    void WriteActionData(TCustomWFAction& action) override;
    std::string PageName() const override;

    Ui::TClearCaseCommentFrame ui;

protected:
    bool eventFilter(QObject* watched, QEvent* event) override;

private:
    void txtCommentChange();
};

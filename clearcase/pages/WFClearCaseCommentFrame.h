#pragma once

#include "WFFrame.h"

#include <memory>

namespace Ui {
class TClearCaseCommentFrame;
}

/// The comment an action records, or none.
class TClearCaseCommentFrame : public TFrame {
    Q_OBJECT
public:
    explicit TClearCaseCommentFrame(QWidget* parent = nullptr);
    ~TClearCaseCommentFrame() override;

    void ReadActionData(TCustomWFAction& action) override;
    /// The comment text is kept even when "No comment" is chosen.
    void WriteActionData(TCustomWFAction& action) override;
    std::string PageName() const override;

protected:
    bool eventFilter(QObject* watched, QEvent* event) override;

private:
    std::unique_ptr<Ui::TClearCaseCommentFrame> ui;

    void txtCommentChange();
};

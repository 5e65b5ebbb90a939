#pragma once

#include "WFFrame.h"

#include <memory>

namespace Ui {
class TClearCaseMakeAttributeTypeOptionsFrame;
}

/// The creation switches of a new attribute type: replace and shared, ordinary or global scope
/// with acquire, and the instance constraint. The acquire box stays enabled and is written back
/// whatever the scope.
class TClearCaseMakeAttributeTypeOptionsFrame : public TFrame {
    Q_OBJECT
public:
    explicit TClearCaseMakeAttributeTypeOptionsFrame(QWidget* parent = nullptr);
    ~TClearCaseMakeAttributeTypeOptionsFrame() override;

    void ReadActionData(TCustomWFAction& action) override;
    /// The constraint stays as stored when no constraint button is checked.
    void WriteActionData(TCustomWFAction& action) override;
    std::string PageName() const override;


private:
    std::unique_ptr<Ui::TClearCaseMakeAttributeTypeOptionsFrame> ui;
};

#pragma once

#include "WFFrame.h"

#include <QStringList>

#include <memory>
#include <string>

namespace Ui {
class TClearCaseMakeBaselineFrame;
}

/// A new baseline: its view, its name (template or root name) and what it is made of (every
/// modified component, chosen components or chosen activities), the choices in check lists
/// filled from ClearCase.
class TClearCaseMakeBaselineFrame : public TFrame {
    Q_OBJECT
public:
    explicit TClearCaseMakeBaselineFrame(QWidget* parent = nullptr);
    ~TClearCaseMakeBaselineFrame() override;

    /// Asks for every component of every VOB, and for the view's activities.
    void ReadActionData(TCustomWFAction& action) override;
    /// Only checked items are stored: a selection no list shows is dropped here.
    void WriteActionData(TCustomWFAction& action) override;
    std::string PageName() const override;

private:
    std::unique_ptr<Ui::TClearCaseMakeBaselineFrame> ui;

    /// Refills the activities when the view folder is not the one they were asked for.
    void UpdateListBoxes();
    /// Brings the selected activities in line with the check marks shown; selected activities
    /// that the list does not show stay selected.
    void boxActivitiesClickCheck();
    void boxComponentsDblClick();
    void boxActivitiesDblClick();
    void btnAllClick();
    void btnComponentsClick();
    void btnActivitiesClick();
    void btnUseRootNameClick();
    void btnUseBaselineNameTemplateClick();
    void txtBaselineRootNameChange();
    void viewChanged();

    QStringList m_selectedComponents;
    QStringList m_selectedActivities;
    std::string m_activitiesFolder;
    bool m_readingViewContext = false;
};

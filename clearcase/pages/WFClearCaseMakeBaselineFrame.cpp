#include "pages/WFClearCaseMakeBaselineFrame.h"
#include "ui_WFClearCaseMakeBaselineFrame.h"

#include "actions/WFClearCaseMakeBaselineAction.h"
#include "environment/WFClearCaseUtils.h"
#include "pages/WFClearCasePageLook.h"

namespace {

QStringList toList(const std::vector<std::string>& values)
{
    QStringList list;
    for (const auto& value : values)
        list << QString::fromStdString(value);
    return list;
}

std::vector<std::string> toVector(const QStringList& list)
{
    std::vector<std::string> values;
    for (const auto& value : list)
        values.push_back(value.toStdString());
    return values;
}

qsizetype indexOfIgnoringCase(const QStringList& list, const QString& text)
{
    for (qsizetype i = 0; i < list.size(); ++i)
        if (list[i].compare(text, Qt::CaseInsensitive) == 0)
            return i;
    return -1;
}

/// Replaces the items, each checked when it is selected.
void fillCheckList(QListWidget* box, const QStringList& lines, const QStringList& selected)
{
    const QSignalBlocker quiet(box);
    box->clear();
    for (const auto& line : lines) {
        auto* item = new QListWidgetItem(line, box);
        item->setFlags(Qt::ItemIsEnabled | Qt::ItemIsSelectable | Qt::ItemIsUserCheckable);
        item->setCheckState(indexOfIgnoringCase(selected, line) >= 0 ? Qt::Checked : Qt::Unchecked);
    }
}

void toggleCurrent(QListWidget* box)
{
    if (QListWidgetItem* item = box->currentItem())
        item->setCheckState(item->checkState() == Qt::Checked ? Qt::Unchecked : Qt::Checked);
}

} // namespace

TClearCaseMakeBaselineFrame::TClearCaseMakeBaselineFrame(QWidget* parent)
    : TFrame(parent), ui(std::make_unique<Ui::TClearCaseMakeBaselineFrame>())
{
    ui->setupUi(this);
    ClearCaseDecoratePage(this, ui->Image2);
    connect(ui->btnAll, &QRadioButton::clicked, this, &TClearCaseMakeBaselineFrame::btnAllClick);
    connect(ui->btnComponents, &QRadioButton::clicked, this, &TClearCaseMakeBaselineFrame::btnComponentsClick);
    connect(ui->btnActivities, &QRadioButton::clicked, this, &TClearCaseMakeBaselineFrame::btnActivitiesClick);
    connect(ui->btnUseRootName, &QRadioButton::clicked, this, &TClearCaseMakeBaselineFrame::btnUseRootNameClick);
    connect(ui->btnUseBaselineNameTemplate, &QRadioButton::clicked, this,
            &TClearCaseMakeBaselineFrame::btnUseBaselineNameTemplateClick);
    connect(ui->txtBaselineRootName, &QLineEdit::textChanged, this, &TClearCaseMakeBaselineFrame::txtBaselineRootNameChange);
    connect(ui->boxActivities, &QListWidget::itemChanged, this, &TClearCaseMakeBaselineFrame::boxActivitiesClickCheck);
    connect(ui->boxComponents, &QListWidget::itemDoubleClicked, this, &TClearCaseMakeBaselineFrame::boxComponentsDblClick);
    connect(ui->boxActivities, &QListWidget::itemDoubleClicked, this, &TClearCaseMakeBaselineFrame::boxActivitiesDblClick);
    connect(ui->ClearCaseViewContextSubFrame1, &TClearCaseViewContextSubFrame::contextChanged, this,
            &TClearCaseMakeBaselineFrame::viewChanged);
}

TClearCaseMakeBaselineFrame::~TClearCaseMakeBaselineFrame() = default;

std::string TClearCaseMakeBaselineFrame::PageName() const
{
    return "New Baseline";
}

void TClearCaseMakeBaselineFrame::ReadActionData(TCustomWFAction& action)
{
    auto& baseline = narrow<TClearCaseMakeBaselineAction>(action);
    m_selectedComponents = toList(baseline.GetComponents());
    fillCheckList(ui->boxComponents, TClearCaseLookUp(ui->boxComponents).lines(CCGetAllUCMComponents()), m_selectedComponents);
    m_selectedActivities = toList(baseline.GetActivities());
    UpdateListBoxes();
    ui->txtBaselineRootName->setText(QString::fromStdString(baseline.GetBaselineRootName()));
    {
        // The path arrives before the radio buttons that say whether it is the view: ask for
        // the activities once the view context is complete.
        m_readingViewContext = true;
        ui->ClearCaseViewContextSubFrame1->ReadActionData(baseline);
        m_readingViewContext = false;
        UpdateListBoxes();
    }
    const TSelectionType selection = baseline.GetSelectionType();
    ClearCaseSetChecked(ui->btnAll, selection == slAll);
    ClearCaseSetChecked(ui->btnComponents, selection == slComponents);
    ClearCaseSetChecked(ui->btnActivities, selection == slActivities);
    ui->boxComponents->setEnabled(ui->btnComponents->isChecked());
    ui->boxActivities->setEnabled(ui->btnActivities->isChecked());
    // An action without a root name always opens on the template.
    ClearCaseSetChecked(ui->btnUseBaselineNameTemplate,
                        baseline.GetUseBaselineNameTemplate() || ui->txtBaselineRootName->text().isEmpty());
    ClearCaseSetChecked(ui->btnUseRootName, !ui->btnUseBaselineNameTemplate->isChecked());
}

void TClearCaseMakeBaselineFrame::WriteActionData(TCustomWFAction& action)
{
    auto& baseline = narrow<TClearCaseMakeBaselineAction>(action);
    baseline.SetBaselineRootName(ui->txtBaselineRootName->text().toStdString());
    ui->ClearCaseViewContextSubFrame1->WriteActionData(baseline);
    if (ui->btnAll->isChecked())
        baseline.SetSelectionType(slAll);
    if (ui->btnComponents->isChecked())
        baseline.SetSelectionType(slComponents);
    if (ui->btnActivities->isChecked())
        baseline.SetSelectionType(slActivities);
    baseline.SetUseBaselineNameTemplate(ui->btnUseBaselineNameTemplate->isChecked());
    m_selectedComponents.clear();
    for (int i = 0; i < ui->boxComponents->count(); ++i)
        if (ui->boxComponents->item(i)->checkState() == Qt::Checked)
            m_selectedComponents << ui->boxComponents->item(i)->text();
    baseline.SetComponents(toVector(m_selectedComponents));
    m_selectedActivities.clear();
    boxActivitiesClickCheck();
    baseline.SetActivities(toVector(m_selectedActivities));
}

void TClearCaseMakeBaselineFrame::UpdateListBoxes()
{
    const std::string folder = ui->ClearCaseViewContextSubFrame1->GetContextPath();
    if (folder == m_activitiesFolder)
        return;
    TClearCaseLookUp lookUp(ui->boxActivities);
    fillCheckList(ui->boxActivities, lookUp.lines(CCGetUCMActivities(lookUp.expand(QString::fromStdString(folder)))),
                  m_selectedActivities);
    m_activitiesFolder = folder;
}

void TClearCaseMakeBaselineFrame::viewChanged()
{
    if (!m_readingViewContext)
        UpdateListBoxes();
}

void TClearCaseMakeBaselineFrame::boxActivitiesClickCheck()
{
    for (int i = 0; i < ui->boxActivities->count(); ++i) {
        const QListWidgetItem* item = ui->boxActivities->item(i);
        const qsizetype selected = indexOfIgnoringCase(m_selectedActivities, item->text());
        if (item->checkState() == Qt::Checked && selected < 0)
            m_selectedActivities << item->text();
        else if (item->checkState() != Qt::Checked && selected >= 0)
            m_selectedActivities.removeAt(selected);
    }
}

void TClearCaseMakeBaselineFrame::boxComponentsDblClick()
{
    toggleCurrent(ui->boxComponents);
}

void TClearCaseMakeBaselineFrame::boxActivitiesDblClick()
{
    toggleCurrent(ui->boxActivities);
    boxActivitiesClickCheck();
}

void TClearCaseMakeBaselineFrame::btnAllClick()
{
    ui->boxComponents->setEnabled(false);
    ui->boxActivities->setEnabled(false);
}

void TClearCaseMakeBaselineFrame::btnComponentsClick()
{
    ui->boxComponents->setEnabled(true);
    ui->boxActivities->setEnabled(false);
}

void TClearCaseMakeBaselineFrame::btnActivitiesClick()
{
    ui->boxComponents->setEnabled(false);
    ui->boxActivities->setEnabled(true);
}

void TClearCaseMakeBaselineFrame::btnUseRootNameClick()
{
    ui->txtBaselineRootName->setEnabled(true);
}

void TClearCaseMakeBaselineFrame::btnUseBaselineNameTemplateClick()
{
    ui->txtBaselineRootName->setEnabled(false);
}

void TClearCaseMakeBaselineFrame::txtBaselineRootNameChange()
{
    if (!ui->txtBaselineRootName->text().isEmpty())
        ui->btnUseRootName->setChecked(true);
}

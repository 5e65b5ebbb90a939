#include "pages/WFClearCaseObjectSelectorEditForm.h"
#include "ui_WFClearCaseObjectSelectorEditForm.h"

#include "environment/WFClearCaseIniFile.h"
#include "environment/WFClearCaseUtils.h"
#include "pages/WFClearCasePageLook.h"

#include <QEvent>
#include <QLineEdit>
#include <QShowEvent>

#include <algorithm>

namespace {

constexpr const char* kVOBTag = "vob:";
constexpr const char* kObjectIDTag = "oid:";

} // namespace

TClearCaseObjectSelectorEditForm::TClearCaseObjectSelectorEditForm(QWidget* parent)
    : QDialog(parent), ui(std::make_unique<Ui::TClearCaseObjectSelectorEditForm>())
{
    ui->setupUi(this);
    // Completion would rewrite what the user types behind the composing of the string.
    ui->txtObjectName->setCompleter(nullptr);
    ui->txtVOB->setCompleter(nullptr);
    connect(ui->btnOK, &QPushButton::clicked, this, &QDialog::accept);
    connect(ui->btnCancel, &QPushButton::clicked, this, &QDialog::reject);
    // The parts compose the string only when the user changes them; the string fills the parts
    // on every change, also one made while composing.
    connect(ui->cmbObjectTypeName, &QComboBox::activated, this, &TClearCaseObjectSelectorEditForm::cmbObjectTypeNameChange);
    connect(ui->txtObjectName->lineEdit(), &QLineEdit::textEdited, this, &TClearCaseObjectSelectorEditForm::txtObjectNameChange);
    connect(ui->txtObjectName, &QComboBox::activated, this, &TClearCaseObjectSelectorEditForm::txtObjectNameChange);
    connect(ui->txtVOB->lineEdit(), &QLineEdit::textEdited, this, &TClearCaseObjectSelectorEditForm::txtVOBChange);
    connect(ui->txtVOB, &QComboBox::activated, this, &TClearCaseObjectSelectorEditForm::txtVOBChange);
    connect(ui->txtObjectSelector, &QLineEdit::textChanged, this, &TClearCaseObjectSelectorEditForm::txtObjectSelectorChange);
    connect(ui->txtObjectName, &TWFComboBox::dropDown, this, &TClearCaseObjectSelectorEditForm::txtObjectNameDropDown);
    connect(ui->txtVOB, &TWFComboBox::dropDown, this, &TClearCaseObjectSelectorEditForm::txtVOBDropDown);
    for (QWidget* field : {static_cast<QWidget*>(ui->txtObjectSelector), static_cast<QWidget*>(ui->txtObjectName),
                           static_cast<QWidget*>(ui->txtObjectName->lineEdit()), static_cast<QWidget*>(ui->txtVOB),
                           static_cast<QWidget*>(ui->txtVOB->lineEdit()), static_cast<QWidget*>(ui->cmbObjectTypeName)})
        field->installEventFilter(this);
}

TClearCaseObjectSelectorEditForm::~TClearCaseObjectSelectorEditForm() = default;

void TClearCaseObjectSelectorEditForm::SetObjectSelector(const std::string& text)
{
    ui->txtObjectSelector->setText(QString::fromStdString(text));
    UpdateObjectSelector();
}

std::string TClearCaseObjectSelectorEditForm::GetObjectSelector() const
{
    return ui->txtObjectSelector->text().toStdString();
}

void TClearCaseObjectSelectorEditForm::showEvent(QShowEvent* event)
{
    QDialog::showEvent(event);
    if (event->spontaneous())
        return;
    if (CCGetUsingCustomObjectSelector()) {
        ui->txtObjectSelector->setFocus();
        m_usingCustomObjectSelector = true;
    }
}

void TClearCaseObjectSelectorEditForm::done(int result)
{
    CCSetUsingCustomObjectSelector(m_usingCustomObjectSelector);
    QDialog::done(result);
}

bool TClearCaseObjectSelectorEditForm::eventFilter(QObject* watched, QEvent* event)
{
    if (event->type() == QEvent::FocusIn)
        m_usingCustomObjectSelector = watched == ui->txtObjectSelector;
    return QDialog::eventFilter(watched, event);
}

void TClearCaseObjectSelectorEditForm::cmbObjectTypeNameChange()
{
    const int row = ui->cmbObjectTypeName->currentIndex();
    ui->cmbObjectTypeTag->setCurrentIndex(row);
    const QString tag = ui->cmbObjectTypeTag->currentText();
    if (row <= 0)
        ui->lblObjName->setText("Selector Object Name:");
    else if (tag == kObjectIDTag)
        ui->lblObjName->setText("Object ID:");
    else
        ui->lblObjName->setText(ui->cmbObjectTypeName->currentText() + " Name:");
    // A VOB selector names the VOB itself.
    ui->txtObjectName->setEditText(tag == kVOBTag ? ui->txtVOB->currentText() : QString());
    UpdateObjectSelector();
}

void TClearCaseObjectSelectorEditForm::txtObjectNameChange()
{
    UpdateObjectSelector();
}

void TClearCaseObjectSelectorEditForm::txtVOBChange()
{
    UpdateObjectSelector();
}

void TClearCaseObjectSelectorEditForm::UpdateObjectSelector()
{
    QString prefix;
    if (ui->cmbObjectTypeName->currentIndex() > 0) {
        prefix = ui->cmbObjectTypeTag->currentText();
    } else {
        // Without a chosen type the string keeps its own prefix, but not its colon: a prefix the
        // list does not know runs into the name.
        const QString current = ui->txtObjectSelector->text();
        if (const qsizetype colon = current.indexOf(':'); colon >= 0)
            prefix = current.left(colon);
    }
    const QString body = prefix + ui->txtObjectName->currentText();
    ui->txtVOB->setEnabled(ui->cmbObjectTypeTag->currentText() != kVOBTag);
    const QString vob = ui->txtVOB->currentText();
    ui->txtObjectSelector->setText(!vob.isEmpty() && ui->txtVOB->isEnabled() ? body + "@" + vob : body);
}

void TClearCaseObjectSelectorEditForm::txtObjectSelectorChange()
{
    const QString text = ui->txtObjectSelector->text();
    const qsizetype colon = text.indexOf(':');
    const QString prefix = colon >= 0 ? text.left(colon + 1) : QString();
    for (int row = 0; row < ui->cmbObjectTypeTag->count(); ++row)
        if (ui->cmbObjectTypeTag->itemText(row) == prefix) {
            ui->cmbObjectTypeName->setCurrentIndex(row);
            ui->cmbObjectTypeTag->setCurrentIndex(row);
            break;
        }
    const qsizetype at = text.indexOf('@');
    const qsizetype nameEnd = at >= 0 ? at : text.size();
    ui->txtVOB->setEditText(at >= 0 ? text.mid(at + 1) : QString());
    // A colon after the "@" leaves no room for a name.
    ui->txtObjectName->setEditText(text.mid(prefix.size(), std::max<qsizetype>(0, nameEnd - prefix.size())));
}

void TClearCaseObjectSelectorEditForm::txtObjectNameDropDown()
{
    const QString tag = ui->cmbObjectTypeTag->currentText();
    const std::string kind = tag.left(std::max<qsizetype>(0, tag.size() - 1)).toStdString();
    TClearCaseLookUp lookUp(ui->txtObjectName);
    ui->txtObjectName->setItemsKeepingText(lookUp.lines(CCGetTypeNames(kind, lookUp.expand(ui->txtVOB->currentText()))));
}

void TClearCaseObjectSelectorEditForm::txtVOBDropDown()
{
    // The VOBs do not change while the editor is open: they are asked for once.
    if (ui->txtVOB->count() == 0)
        ui->txtVOB->setItemsKeepingText(TClearCaseLookUp(ui->txtVOB).lines(CCGetVOBNames()));
}

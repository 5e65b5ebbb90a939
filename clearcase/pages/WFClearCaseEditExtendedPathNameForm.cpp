#include "pages/WFClearCaseEditExtendedPathNameForm.h"
#include "ui_WFClearCaseEditExtendedPathNameForm.h"

#include "environment/WFClearCaseUtils.h"
#include "pages/WFClearCasePageLook.h"

namespace {

const QString kExtendedMark = QStringLiteral("@@");

} // namespace

TClearCaseEditExtendedPathNameForm::TClearCaseEditExtendedPathNameForm(QWidget* parent)
    : QDialog(parent), ui(std::make_unique<Ui::TClearCaseEditExtendedPathNameForm>())
{
    ui->setupUi(this);
    // Element names are picked from the view's listing, not completed from earlier entries.
    ui->txtElement->setCompleter(nullptr);
    connect(ui->btnOK, &QPushButton::clicked, this, &QDialog::accept);
    connect(ui->btnCancel, &QPushButton::clicked, this, &QDialog::reject);
    connect(ui->txtElement, &TWFComboBox::dropDown, this, &TClearCaseEditExtendedPathNameForm::txtElementDropDown);
    connect(ui->txtSelector, &TWFComboBox::dropDown, this, &TClearCaseEditExtendedPathNameForm::txtSelectorDropDown);
}

TClearCaseEditExtendedPathNameForm::~TClearCaseEditExtendedPathNameForm() = default;

void TClearCaseEditExtendedPathNameForm::SetViewContext(const std::string& folder)
{
    m_viewContext = folder;
}

void TClearCaseEditExtendedPathNameForm::SetPathName(const std::string& path)
{
    const QString text = QString::fromStdString(path);
    const qsizetype mark = text.indexOf(kExtendedMark);
    ui->txtElement->setEditText(mark < 0 ? text : text.left(mark));
    ui->txtSelector->setEditText(mark < 0 ? QString() : text.mid(mark + kExtendedMark.size()));
}

std::string TClearCaseEditExtendedPathNameForm::GetPathName() const
{
    const QString element = ui->txtElement->currentText();
    const QString selector = ui->txtSelector->currentText();
    return (selector.isEmpty() ? element : element + kExtendedMark + selector).toStdString();
}

void TClearCaseEditExtendedPathNameForm::txtElementDropDown()
{
    // Versions and checked-out copies are listed as "name@@version": offer the element name.
    TClearCaseLookUp lookUp(ui->txtElement);
    QStringList names = lookUp.lines(CCGetLS(lookUp.expand(QString::fromStdString(m_viewContext))));
    for (QString& name : names) {
        const qsizetype mark = name.indexOf(kExtendedMark);
        if (mark >= 0)
            name.truncate(mark);
    }
    ui->txtElement->setItemsKeepingText(names);
}

void TClearCaseEditExtendedPathNameForm::txtSelectorDropDown()
{
    const QString element = ui->txtElement->currentText();
    if (element.isEmpty())
        return;
    TClearCaseLookUp lookUp(ui->txtSelector);
    const std::string expanded = lookUp.expand(element);
    QStringList selectors = lookUp.lines(CCGetHistory(expanded, lookUp.expand(QString::fromStdString(m_viewContext))));
    // A line without "@@" loses its first character; that is how the list has always read.
    for (QString& selector : selectors)
        selector = selector.mid(selector.indexOf(kExtendedMark) + kExtendedMark.size());
    selectors.removeAll(QString());
    ui->txtSelector->setItemsKeepingText(selectors);
}

#include "ActionDialog.h"

#include "DesignerDocument.h"
#include "DesignerIcons.h"
#include "DialogPages.h"
#include "HelpViewer.h"
#include "UnavailablePage.h"

#include "BuildRunner.h"

#include "WFAction.h"
#include "WFFrame.h"
#include "WFGenericPage.h"
#include "WFPageFactory.h"
#include "WFServices.h"

#include <QCheckBox>
#include <QDialogButtonBox>
#include <QFormLayout>
#include <QIcon>
#include <QKeyEvent>
#include <QLabel>
#include <QLineEdit>
#include <QMessageBox>
#include <QPushButton>
#include <QTabWidget>
#include <QVBoxLayout>

TActionDialog::TActionDialog(const TCustomWFAction& action, QWidget* parent, TWFActionHost* validationHost)
    : QDialog(parent), m_action(cloneAction(action)), m_validationHost(validationHost), m_tabs(new QTabWidget(this)), m_description(new QLineEdit),
      m_enabled(new QCheckBox(tr("Enabled: the action runs with the project"))),
      m_continueOnFailure(new QCheckBox(tr("Continue the build when this action fails")))
{
    setObjectName("actionDialog");
    const auto* entry = WFActionServices().Find(action.GetActionTypeID());
    const QString name = QString::fromStdString(entry ? entry->displayName : action.GetActionName());
    setWindowTitle(tr("%1 Properties").arg(name));
    setWindowIcon(packageIcon(action.GetActionTypeID()));

    auto* layout = new QVBoxLayout(this);
    auto* heading = new QLabel(QStringLiteral("<b>%1</b>").arg(name.toHtmlEscaped()));
    auto* headingRow = new QHBoxLayout;
    auto* icon = new QLabel;
    icon->setPixmap(packageIcon(action.GetActionTypeID()).pixmap(16, 16));
    headingRow->addWidget(icon);
    headingRow->addWidget(heading, 1);
    layout->addLayout(headingRow);
    layout->addWidget(m_tabs, 1);

    const std::string className = entry ? entry->actionClass.className : std::string();
    for (const auto& pageClass : WFPagesFor(className)) {
        std::string error;
        std::unique_ptr<QWidget> widget = WFCreatePage(pageClass, nullptr, error);
        IWFActionPage* page = widget ? WFActionPageOf(widget.get()) : nullptr;
        if (!page) {
            m_tabs->addTab(unavailablePage(error.empty() ? pageClass.className + " is no action page" : error,
                                           tr("The other tabs still edit the action.")),
                           QString::fromStdString(pageClass.className));
            m_pages.push_back(nullptr);
            continue;
        }
        page->InitFrame(this);
        page->InitPage(*m_action);
        page->ReadActionData(*m_action);
        m_tabs->addTab(new TPageArea(widget.release()), QString::fromStdString(page->PageName()));
        m_pages.push_back(page);
    }

    auto* general = new QWidget;
    general->setObjectName("generalPage");
    auto* form = new QFormLayout(general);
    m_description->setObjectName("txtDescription");
    m_description->setText(QString::fromStdString(m_action->GetDescription()));
    m_enabled->setObjectName("boxEnabled");
    m_enabled->setChecked(m_action->GetEnabled());
    auto* type = new QLabel(QStringLiteral("%1 (%2)").arg(name, QString::fromStdString(action.GetActionTypeID())));
    type->setTextInteractionFlags(Qt::TextSelectableByMouse);
    form->addRow(tr("Action:"), type);
    form->addRow(tr("Description:"), m_description);
    form->addRow(QString(), m_enabled);
    m_continueOnFailure->setObjectName("boxContinueOnFailure");
    m_continueOnFailure->setChecked(m_action->GetContinueOnFailure());
    m_continueOnFailure->setToolTip(tr("Its failure is logged and reported, and the build goes on as if it had succeeded"));
    form->addRow(QString(), m_continueOnFailure);
    m_tabs->addTab(general, tr("General"));

    connect(m_tabs, &QTabWidget::currentChanged, this, [this](int index) {
        if (m_activePage >= 0 && m_activePage < static_cast<int>(m_pages.size()) && m_pages[m_activePage])
            m_pages[m_activePage]->OnPageDeActivate();
        m_activePage = index;
        if (index >= 0 && index < static_cast<int>(m_pages.size()) && m_pages[index])
            m_pages[index]->OnPageActivate();
    });
    m_activePage = 0;
    if (!m_pages.empty() && m_pages.front())
        m_pages.front()->OnPageActivate();

    auto* buttons = new QDialogButtonBox(QDialogButtonBox::Ok | QDialogButtonBox::Cancel | QDialogButtonBox::Help);
    connect(buttons, &QDialogButtonBox::accepted, this, &TActionDialog::accept);
    connect(buttons, &QDialogButtonBox::rejected, this, &TActionDialog::reject);
    connect(buttons, &QDialogButtonBox::helpRequested, this, &TActionDialog::showHelp);
    // The style's stock help glyph reads as a failure mark beside OK and Cancel.
    buttons->button(QDialogButtonBox::Help)->setIcon(QIcon());
    layout->addWidget(buttons);
    resize(TDialogSize::fitted(*this, {760, 480}));
}

TActionDialog::~TActionDialog() = default;

bool TActionDialog::showPage(const QString& caption)
{
    for (int i = 0; i < m_tabs->count(); ++i)
        if (m_tabs->tabText(i) == caption) {
            m_tabs->setCurrentIndex(i);
            return true;
        }
    return false;
}

void TActionDialog::accept()
{
    auto edited = cloneAction(*m_action);
    for (IWFActionPage* page : m_pages)
        if (page)
            page->WriteActionData(*edited);
    edited->SetDescription(m_description->text().toStdString());
    edited->SetEnabled(m_enabled->isChecked());
    edited->SetContinueOnFailure(m_continueOnFailure->isChecked());

    TWFActionHost bareHost;
    bareHost.functions = WFScriptingServices().Resolver();
    edited->SetHost(m_validationHost ? m_validationHost : &bareHost);
    bool ok = false;
    const auto errors = validateActionErrors(*edited, ok);
    edited->SetHost(nullptr);
    if (!ok) {
        QStringList lines;
        for (const auto& error : errors)
            lines << QString::fromStdString(error.ToString()).toHtmlEscaped();
        QMessageBox box(QMessageBox::Warning, tr("The action is not valid"),
                        tr("The action would not run as it is:<ul><li>%1</li></ul>").arg(lines.join("</li><li>")),
                        QMessageBox::NoButton, this);
        box.setObjectName("validationMessage");
        QPushButton* back = box.addButton(tr("Go Back"), QMessageBox::RejectRole);
        back->setObjectName("btnGoBack");
        QPushButton* keep = box.addButton(tr("Keep As It Is"), QMessageBox::AcceptRole);
        keep->setObjectName("btnKeep");
        box.setDefaultButton(back);
        box.exec();
        if (box.clickedButton() != keep) {
            if (!errors.empty())
                showPage(QString::fromStdString(errors.front().location));
            return;
        }
    }
    m_result = std::move(edited);
    QDialog::accept();
}

void TActionDialog::keyPressEvent(QKeyEvent* event)
{
    if (event->key() == Qt::Key_F1) {
        showHelp();
        return;
    }
    QDialog::keyPressEvent(event);
}

void TActionDialog::showHelp()
{
    showActionHelp(*m_action, this);
}

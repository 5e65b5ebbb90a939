#include "ActionDialog.h"

#include "DesignerDocument.h"
#include "DesignerIcons.h"
#include "DialogPages.h"
#include "HelpViewer.h"
#include "QuietTeardown.h"
#include "UnavailablePage.h"

#include "BuildRunner.h"

#include "WFAction.h"
#include "WFFrame.h"
#include "WFGenericPage.h"
#include "WFPageFactory.h"
#include "WFServices.h"

#include <QAbstractItemView>
#include <QApplication>
#include <QCheckBox>
#include <QComboBox>
#include <QDateTimeEdit>
#include <QFontDatabase>
#include <QPlainTextEdit>
#include <QTextEdit>
#include <QTimer>
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

#include <algorithm>

TActionDialog::TActionDialog(const TCustomWFAction& action, QWidget* parent, TWFActionHost* validationHost)
    : QDialog(parent), m_action(cloneAction(action)), m_validationHost(validationHost), m_tabs(new QTabWidget(this)), m_description(new QLineEdit),
      m_enabled(new QCheckBox(tr("Enabled: the action runs with the project"))),
      m_continueOnFailure(new QCheckBox(tr("Continue the build when this action fails"))), m_preview(new QPlainTextEdit),
      m_previewTimer(new QTimer(this))
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
        if (!m_filled)
            return;
        if (m_activePage >= 0 && m_activePage < static_cast<int>(m_pages.size()) && m_pages[m_activePage])
            m_pages[m_activePage]->OnPageDeActivate();
        m_activePage = index;
        if (index >= 0 && index < static_cast<int>(m_pages.size()) && m_pages[index])
            m_pages[index]->OnPageActivate();
    });

    // What the action would run, as the user edits it: beside the buttons, so that the pages
    // keep their room on small screens.
    m_preview->setObjectName("commandPreview");
    m_preview->setReadOnly(true);
    m_preview->setLineWrapMode(QPlainTextEdit::WidgetWidth);
    m_preview->setFont(QFontDatabase::systemFont(QFontDatabase::FixedFont));
    m_preview->setFixedHeight(m_preview->fontMetrics().lineSpacing() * 2 + 2 * m_preview->frameWidth()
                              + static_cast<int>(2 * m_preview->document()->documentMargin()));
    m_preview->setFocusPolicy(Qt::ClickFocus);
    m_preview->setToolTip(tr("What a run would start for this action, as it is edited: the folder and the command line"));
    m_previewTimer->setSingleShot(true);
    m_previewTimer->setInterval(200);
    connect(m_previewTimer, &QTimer::timeout, this, &TActionDialog::updatePreview);
    connect(m_description, &QLineEdit::textChanged, m_previewTimer, qOverload<>(&QTimer::start));

    auto* buttons = new QDialogButtonBox(QDialogButtonBox::Ok | QDialogButtonBox::Cancel | QDialogButtonBox::Help);
    connect(buttons, &QDialogButtonBox::accepted, this, &TActionDialog::accept);
    connect(buttons, &QDialogButtonBox::rejected, this, &TActionDialog::reject);
    connect(buttons, &QDialogButtonBox::helpRequested, this, &TActionDialog::showHelp);
    // The style's stock help glyph reads as a failure mark beside OK and Cancel.
    buttons->button(QDialogButtonBox::Help)->setIcon(QIcon());
    auto* bottom = new QHBoxLayout;
    bottom->addWidget(m_preview, 1);
    bottom->addWidget(buttons);
    layout->addLayout(bottom);
    resize(TDialogSize::fitted(*this, {760, 480}));
}

TActionDialog::~TActionDialog()
{
    // Page lists reset their models and edits report their text as the pages go.
    disconnectChildrenFrom(*this);
}

void TActionDialog::showEvent(QShowEvent* event)
{
    QDialog::showEvent(event);
    // Pages that ask ClearCase as they read the action do it over the open dialog, not before it.
    if (!m_filled)
        QTimer::singleShot(0, this, &TActionDialog::fillPages);
}

void TActionDialog::fillPages()
{
    if (m_filled)
        return;
    m_filled = true;
    for (IWFActionPage* page : m_pages)
        if (page) {
            page->InitPage(*m_action);
            page->ReadActionData(*m_action);
        }
    m_activePage = m_tabs->currentIndex();
    if (m_activePage >= 0 && m_activePage < static_cast<int>(m_pages.size()) && m_pages[m_activePage])
        m_pages[m_activePage]->OnPageActivate();
    watchEdits(m_tabs);
    updatePreview();
    // What the pages read can show controls they hid: the dialog grows to keep them unclipped.
    layout()->activate();
    resize(TDialogSize::fitted(*this, size()));
}

void TActionDialog::watchEdits(QWidget* root)
{
    // Pages are any widgets: every kind of control that can change what a page writes restarts the preview.
    const auto restart = [this] { m_previewTimer->start(); };
    for (auto* edit : root->findChildren<QLineEdit*>())
        connect(edit, &QLineEdit::textChanged, this, restart);
    for (auto* edit : root->findChildren<QPlainTextEdit*>())
        connect(edit, &QPlainTextEdit::textChanged, this, restart);
    for (auto* edit : root->findChildren<QTextEdit*>())
        connect(edit, &QTextEdit::textChanged, this, restart);
    for (auto* button : root->findChildren<QAbstractButton*>())
        connect(button, &QAbstractButton::toggled, this, restart);
    for (auto* box : root->findChildren<QComboBox*>())
        connect(box, &QComboBox::currentTextChanged, this, restart);
    for (auto* edit : root->findChildren<QDateTimeEdit*>())
        connect(edit, &QDateTimeEdit::dateTimeChanged, this, restart);
    for (auto* view : root->findChildren<QAbstractItemView*>())
        if (QAbstractItemModel* model = view->model()) {
            connect(model, &QAbstractItemModel::rowsInserted, this, restart);
            connect(model, &QAbstractItemModel::rowsRemoved, this, restart);
            connect(model, &QAbstractItemModel::dataChanged, this, restart);
            connect(model, &QAbstractItemModel::modelReset, this, restart);
        }
}

std::unique_ptr<TCustomWFAction> TActionDialog::editedAction()
{
    fillPages();
    auto edited = cloneAction(*m_action);
    for (IWFActionPage* page : m_pages)
        if (page)
            page->WriteActionData(*edited);
    edited->SetDescription(m_description->text().toStdString());
    edited->SetEnabled(m_enabled->isChecked());
    edited->SetContinueOnFailure(m_continueOnFailure->isChecked());
    return edited;
}

TWFActionHost TActionDialog::host() const
{
    if (m_validationHost)
        return *m_validationHost;
    TWFActionHost bare;
    bare.functions = WFScriptingServices().Resolver();
    return bare;
}

void TActionDialog::updatePreview()
{
    m_previewTimer->stop();
    auto edited = editedAction();
    const TActionPreview preview = previewAction(*edited, host());
    // The command line first, as it is what the user reads; each line once (the folder is
    // looked up, and logged, more than once).
    QStringList lines;
    for (const auto& line : preview.lines)
        if (const QString text = QString::fromStdString(line); !lines.contains(text))
            lines << text;
    std::stable_partition(lines.begin(), lines.end(), [](const QString& line) { return line.startsWith("Command Line: "); });
    if (preview.ok && !preview.runsProgram)
        lines << tr("This action starts no program.");
    const QString text = lines.join('\n');
    if (m_preview->toPlainText() != text)
        m_preview->setPlainText(text);
    QPalette palette = m_preview->palette();
    palette.setColor(QPalette::Text, preview.ok ? QApplication::palette().color(QPalette::Text) : QColor(190, 30, 30));
    m_preview->setPalette(palette);
}

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
    auto edited = editedAction();
    TWFActionHost validation = host();
    edited->SetHost(&validation);
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

#include "OptionsDialog.h"

#include "DesignerIcons.h"
#include "DialogPages.h"
#include "UnavailablePage.h"

#include "WFActionPage.h"
#include "WFFrame.h"
#include "WFIniFile.h"
#include "WFPageFactory.h"
#include "WFServices.h"

#include <QDialogButtonBox>
#include <QLabel>
#include <QMessageBox>
#include <QTabWidget>
#include <QVBoxLayout>

namespace {

class TOptionsOwner final : public IWFOptionPageOwner {};

TOptionsOwner& optionsOwner()
{
    static TOptionsOwner owner;
    return owner;
}

} // namespace

TOptionsDialog::TOptionsDialog(QWidget* parent) : QDialog(parent), m_tabs(new QTabWidget(this))
{
    setObjectName("optionsDialog");
    setWindowTitle(tr("Options"));
    auto* layout = new QVBoxLayout(this);
    layout->addWidget(m_tabs, 1);
    for (TWFOptionsObject* options : WFOptionsServices().AllOptions()) {
        const QIcon icon = packageIcon(WFOptionsServices().IconOf(*options));
        for (const auto& pageClass : WFOptionsServices().PagesFor(*options)) {
            std::string error;
            std::unique_ptr<QWidget> widget = WFCreatePage(pageClass, nullptr, error);
            IWFOptionsPage* page = widget ? WFOptionsPageOf(widget.get()) : nullptr;
            if (!page) {
                m_tabs->addTab(unavailablePage(error.empty() ? pageClass.className + " is no options page" : error,
                                               tr("The other pages still edit their options.")),
                               icon, QString::fromStdString(pageClass.className));
                continue;
            }
            page->InitPage(&optionsOwner());
            page->ReadOptions(*options);
            m_tabs->addTab(new TPageArea(widget.release()), icon, QString::fromStdString(page->GetPageName()));
            m_pages.emplace_back(page, options);
        }
    }
    if (m_tabs->count() == 0) {
        auto* label = new QLabel(tr("No loaded package has options pages."));
        label->setAlignment(Qt::AlignCenter);
        m_tabs->addTab(label, tr("Options"));
    }
    connect(m_tabs, &QTabWidget::currentChanged, this, [this](int index) {
        for (auto& [page, options] : m_pages)
            if (m_tabs->widget(index) && m_tabs->widget(index)->isAncestorOf(dynamic_cast<QWidget*>(page)))
                page->OnPageActivate();
    });
    if (!m_pages.empty())
        m_pages.front().first->OnPageActivate();

    auto* buttons = new QDialogButtonBox(QDialogButtonBox::Ok | QDialogButtonBox::Cancel);
    connect(buttons, &QDialogButtonBox::accepted, this, &TOptionsDialog::accept);
    connect(buttons, &QDialogButtonBox::rejected, this, &TOptionsDialog::reject);
    layout->addWidget(buttons);
    resize(TDialogSize::fitted(*this, {620, 460}));
}

TOptionsDialog::~TOptionsDialog() = default;

void TOptionsDialog::accept()
{
    for (auto& [page, options] : m_pages)
        page->WriteOptions(*options);
    std::string error;
    if (!WFOptionsServices().Save(GetWFOptionsFileName(), error)) {
        QMessageBox::critical(this, tr("Options not saved"),
                              tr("The options could not be saved: %1").arg(QString::fromStdString(error)));
        return;
    }
    QDialog::accept();
}

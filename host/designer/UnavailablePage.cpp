#include "UnavailablePage.h"

#include <QLabel>
#include <QObject>
#include <QVBoxLayout>

QWidget* unavailablePage(const std::string& reason, const QString& consequence)
{
    auto* page = new QWidget;
    page->setObjectName("pageNotAvailable");
    auto* layout = new QVBoxLayout(page);
    auto* label = new QLabel(QObject::tr("<b>Page not available</b><p>%1.</p><p>The package registered this page, but the "
                                         "installed package cannot show it. %2</p>")
                                 .arg(QString::fromStdString(reason).toHtmlEscaped(), consequence));
    label->setWordWrap(true);
    label->setAlignment(Qt::AlignCenter);
    layout->addWidget(label);
    return page;
}

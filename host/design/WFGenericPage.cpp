#include "WFGenericPage.h"

#include "WFAction.h"
#include "WFPageFactory.h"
#include "WFServices.h"

#include <QCheckBox>
#include <QComboBox>
#include <QFormLayout>
#include <QLineEdit>
#include <QPlainTextEdit>

namespace {

/// "WorkingDirectory" reads "Working Directory:".
QString caption(const std::string& name)
{
    QString spaced;
    for (qsizetype i = 0; i < static_cast<qsizetype>(name.size()); ++i) {
        const QChar c = QChar::fromLatin1(name[i]);
        if (i > 0 && c.isUpper() && QChar::fromLatin1(name[i - 1]).isLower())
            spaced += ' ';
        spaced += c;
    }
    return spaced + ':';
}

QWidget* controlFor(const TWFPropertyInfo& property)
{
    const QString name = QString::fromStdString(property.name);
    QWidget* control = nullptr;
    switch (property.type) {
    case TWFPropertyType::Boolean:
        control = new QCheckBox(caption(property.name).chopped(1));
        control->setObjectName("box" + name);
        break;
    case TWFPropertyType::Enumeration:
        control = new QComboBox;
        control->setObjectName("cmb" + name);
        break;
    case TWFPropertyType::String:
    case TWFPropertyType::Integer:
        if (property.multiLine) {
            auto* memo = new QPlainTextEdit;
            memo->setTabChangesFocus(true);
            control = memo;
        } else {
            control = new QLineEdit;
        }
        control->setObjectName("txt" + name);
        break;
    }
    control->setProperty(kWFBoundProperty, name);
    return control;
}

} // namespace

TWFGenericPropertyPage::TWFGenericPropertyPage(QWidget* parent) : TWFBoundFrame(parent), m_form(new QFormLayout(this))
{
    setObjectName("TWFGenericPropertyPage");
    setWindowTitle("Properties");
    m_form->setFieldGrowthPolicy(QFormLayout::ExpandingFieldsGrow);
}

void TWFGenericPropertyPage::InitPage(TCustomWFAction& action)
{
    while (m_form->rowCount() > 0)
        m_form->removeRow(0);
    for (const TWFPropertyInfo& property : action.Properties()) {
        QWidget* control = controlFor(property);
        if (property.type == TWFPropertyType::Boolean)
            m_form->addRow(QString(), control);
        else
            m_form->addRow(caption(property.name), control);
        // Rows added to a page already on screen would otherwise wait for the event loop.
        control->show();
    }
}

std::vector<TWFPageClass> WFPagesFor(const std::string& actionClassName)
{
    auto pages = WFActionServices().PagesOf(actionClassName);
    if (pages.empty())
        pages.push_back({"TWFGenericPropertyPage", WFMakePage<TWFGenericPropertyPage>});
    return pages;
}

#include "WFBoundControls.h"

#include "WFAction.h"
#include "WFBrowse.h"
#include "WFServices.h"

#include <QAbstractButton>
#include <QCheckBox>
#include <QComboBox>
#include <QFileInfo>
#include <QLineEdit>
#include <QPlainTextEdit>

namespace {

constexpr const char* kStoredText = "wfStoredText";
constexpr const char* kShownText = "wfShownText";

std::string boundName(const QWidget* control)
{
    return control->property(kWFBoundProperty).toString().toStdString();
}

QString text(const std::string& value)
{
    return QString::fromStdString(value);
}

void readCombo(QComboBox* combo, const TCustomWFAction& action, const std::string& name)
{
    const TWFPropertyInfo* property = action.FindProperty(name);
    const QString value = text(action.GetPropertyText(name));
    combo->clear();
    if (property && property->type == TWFPropertyType::Enumeration) {
        for (const auto& member : property->enumMembers)
            combo->addItem(text(member));
        combo->setCurrentIndex(combo->findText(value));
        return;
    }
    if (combo->property(kWFOffersVariables).toBool())
        for (const auto& variable : WFDesignApplicationServices().GetVariableNames())
            combo->addItem(text(variable));
    combo->setCurrentIndex(combo->findText(value));
    if (combo->isEditable())
        combo->setEditText(value);
}

void browse(QLineEdit* edit, const QString& kind)
{
    const std::string current = edit->text().toStdString();
    std::string chosen;
    bool ok = false;
    if (kind == "folder") {
        ok = WFBrowseForDirectory(current, chosen, "Select Folder");
    } else {
        TWFBrowseFileRequest request;
        request.title = kind == "saveFile" ? "Save As" : "Select File";
        request.filter = "All Files|*";
        request.save = kind == "saveFile";
        request.mustExist = !request.save;
        if (!current.empty()) {
            request.initialDir = QFileInfo(edit->text()).absolutePath().toStdString();
            request.fileName = current;
        }
        ok = WFBrowseForFile(request, chosen);
    }
    if (ok)
        edit->setText(text(chosen));
}

} // namespace

void WFReadBoundControls(QWidget* page, const TCustomWFAction& action)
{
    for (QWidget* control : page->findChildren<QWidget*>()) {
        const std::string name = boundName(control);
        if (name.empty() || !action.FindProperty(name))
            continue;
        const std::string value = action.GetPropertyText(name);
        if (auto* edit = qobject_cast<QLineEdit*>(control))
            edit->setText(text(value));
        else if (auto* memo = qobject_cast<QPlainTextEdit*>(control))
            WFShowInMemo(memo, value);
        else if (auto* box = qobject_cast<QCheckBox*>(control))
            box->setChecked(value == "True");
        else if (auto* combo = qobject_cast<QComboBox*>(control))
            readCombo(combo, action, name);
    }
}

void WFWriteBoundControls(QWidget* page, TCustomWFAction& action)
{
    for (QWidget* control : page->findChildren<QWidget*>()) {
        const std::string name = boundName(control);
        if (name.empty() || !action.FindProperty(name))
            continue;
        std::string value;
        if (const auto* edit = qobject_cast<QLineEdit*>(control))
            value = edit->text().toStdString();
        else if (const auto* memo = qobject_cast<QPlainTextEdit*>(control))
            value = WFMemoValue(memo, "\n");
        else if (const auto* box = qobject_cast<QCheckBox*>(control))
            value = box->isChecked() ? "True" : "False";
        else if (const auto* combo = qobject_cast<QComboBox*>(control))
            value = combo->currentText().toStdString();
        else
            continue;
        // A value the property cannot take (a bad number) leaves it as it was.
        action.SetPropertyText(name, value);
    }
}

void WFConnectBrowseButtons(QWidget* page)
{
    for (QLineEdit* edit : page->findChildren<QLineEdit*>()) {
        const QString kind = edit->property(kWFBrowseKind).toString();
        auto* button = page->findChild<QAbstractButton*>(edit->objectName() + "Button");
        if (kind.isEmpty() || !button)
            continue;
        QObject::connect(button, &QAbstractButton::clicked, edit, [edit, kind] { browse(edit, kind); });
    }
}

void WFShowInMemo(QPlainTextEdit* memo, const std::string& stored)
{
    memo->setPlainText(text(stored).replace("\r\n", "\n"));
    memo->setProperty(kStoredText, text(stored));
    memo->setProperty(kShownText, memo->toPlainText());
}

std::string WFMemoValue(const QPlainTextEdit* memo, const char* lineBreak)
{
    const QString shown = memo->toPlainText();
    if (memo->property(kShownText).isValid() && shown == memo->property(kShownText).toString())
        return memo->property(kStoredText).toString().toStdString();
    return QString(shown).replace('\n', QString::fromLatin1(lineBreak)).toStdString();
}

void TWFBoundFrame::ReadActionData(TCustomWFAction& action)
{
    WFReadBoundControls(this, action);
}

void TWFBoundFrame::WriteActionData(TCustomWFAction& action)
{
    WFWriteBoundControls(this, action);
}

std::string TWFBoundFrame::PageName() const
{
    return windowTitle().toStdString();
}

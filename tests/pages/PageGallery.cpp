// wf_page_gallery: renders every property page, bound to a sample action, and every editor to
// a PNG, for the documentation and for looking at pages as a user sees them. Run under Xvfb (or
// the offscreen platform):  wf_page_gallery OUTPUT_DIR [CLASS...]
#include "pages/WFClearCasePageTable.h"
#include "PageGallery.h"
#include "shell/WFClearCaseRegistration.h"
#include "WFFrame.h"
#include "WFPageFactory.h"

#include <QAbstractButton>
#include <QApplication>
#include <QDir>
#include <QLabel>
#include <QPixmap>
#include <QTabBar>
#include <QTabWidget>

#include <algorithm>
#include <cstdio>
#include <memory>
#include <set>
#include <string>
#include <tuple>

namespace {

/// The first action of the catalogue that shows the page, made as the host makes it.
std::unique_ptr<TClearCaseBaseAction> sampleActionFor(const std::string& pageClass)
{
    for (const auto& row : ClearCaseActionPages())
        for (const auto& page : row.pages)
            if (page.className == pageClass)
                if (const auto* catalogueRow = ClearCaseFindClass(row.actionClassName)) {
                    auto action = ClearCaseCreateAction(*catalogueRow);
                    wfgallery::fillSample(*action);
                    return action;
                }
    return nullptr;
}

/// Binds the page to sample data; its tab caption, or empty with a reason.
QString bindSample(const TClearCasePageMaker& maker, QWidget* page, std::unique_ptr<TClearCaseBaseAction>& action,
                   std::string& error)
{
    if (IWFActionPage* actionPage = WFActionPageOf(page)) {
        action = sampleActionFor(maker.className);
        if (!action) {
            error = std::string("no action shows ") + maker.className;
            return {};
        }
        actionPage->InitFrame(page);
        actionPage->InitPage(*action);
        actionPage->ReadActionData(*action);
        return QString::fromStdString(actionPage->PageName());
    }
    if (IWFOptionsPage* optionsPage = WFOptionsPageOf(page)) {
        optionsPage->InitPage(nullptr);
        wfgallery::readSampleOptions(*optionsPage);
        return QString::fromStdString(optionsPage->GetPageName());
    }
    error = std::string(maker.className) + " is no page";
    return {};
}

/// The page in a host's tab, bound to sample data; nullptr with a reason.
std::unique_ptr<QTabWidget> pageInTab(const TClearCasePageMaker& maker, std::unique_ptr<TClearCaseBaseAction>& action,
                                      std::string& error)
{
    auto tabs = std::make_unique<QTabWidget>();
    std::unique_ptr<QWidget> page(WFCreatePage({maker.className, maker.make}, nullptr, error));
    if (!page)
        return nullptr;
    const QString caption = bindSample(maker, page.get(), action, error);
    if (caption.isEmpty())
        return nullptr;
    tabs->addTab(page.release(), caption);
    return tabs;
}

/// Shows the window at `wanted`, or larger where its contents need more room.
void showAt(QWidget& window, QSize wanted)
{
    // Sized before it is shown as well: under Xvfb the first enlarged window was sometimes
    // grabbed at its old size when it was only resized after show().
    window.resize(wanted.expandedTo(window.minimumSizeHint()));
    window.show();
    window.resize(wanted.expandedTo(window.minimumSizeHint()));
    QApplication::processEvents();
}

/// A page's size in a dialog of the default size: its layout width, as high as it asks.
QSize layoutSize(const QWidget& window)
{
    const int width = kWFPageWidth + 8;
    return {width, window.hasHeightForWidth() ? window.heightForWidth(width) : window.sizeHint().height()};
}

/// The smallest size a dialog gives the page before it scrolls: its minimum width, and as high
/// as wrapped texts need at that width.
QSize smallestSize(const QWidget& window)
{
    const QSize minimum = window.minimumSizeHint();
    return {minimum.width(), window.hasHeightForWidth() ? std::max(minimum.height(), window.heightForWidth(minimum.width()))
                                                        : minimum.height()};
}

/// The captioned controls of `root` that are narrower (or lower) than their text needs, or that
/// stick out of it, as readable lines.
QStringList clippedControls(const QWidget& root, const QString& where)
{
    QStringList found;
    for (const QWidget* control : root.findChildren<QWidget*>()) {
        const auto* button = qobject_cast<const QAbstractButton*>(control);
        const auto* label = qobject_cast<const QLabel*>(control);
        if (!control->isVisibleTo(&root) || !((button && !button->text().isEmpty()) || (label && !label->text().isEmpty())))
            continue;
        const QString name = control->objectName().isEmpty() ? control->metaObject()->className() : control->objectName();
        const QSize size = control->size();
        const QSize hint = control->sizeHint();
        if (control->hasHeightForWidth()) {
            if (size.width() < control->minimumSizeHint().width() || size.height() < control->heightForWidth(size.width()))
                found << QString("%1: %2 is %3x%4, its text needs %5 at that width")
                             .arg(where, name).arg(size.width()).arg(size.height()).arg(control->heightForWidth(size.width()));
        } else if (size.width() < hint.width() || size.height() < hint.height()) {
            found << QString("%1: %2 is %3x%4, its size hint %5x%6")
                         .arg(where, name).arg(size.width()).arg(size.height()).arg(hint.width()).arg(hint.height());
        }
        const QRect inRoot(control->mapTo(&root, QPoint(0, 0)), size);
        if (!root.rect().contains(inRoot))
            found << QString("%1: %2 sticks out of the window").arg(where, name);
    }
    return found;
}

/// The application font scaled by `scale` while it lives.
class ScaledFont {
public:
    explicit ScaledFont(double scale)
    {
        QFont font = m_normal;
        font.setPointSizeF(m_normal.pointSizeF() * scale);
        QApplication::setFont(font);
    }
    ~ScaledFont() { QApplication::setFont(m_normal); }

private:
    const QFont m_normal = QApplication::font();
};

/// Every page at its layout width and at its smallest, and every editor as it opens, at the
/// application font scaled by `scale`: what is clipped.
QStringList checkLayouts(double scale)
{
    const ScaledFont font(scale);
    const QString at = QString("at %1x font").arg(scale);
    QStringList found;
    for (const auto& maker : ClearCasePageMakers()) {
        std::string error;
        std::unique_ptr<TClearCaseBaseAction> action;
        auto tabs = pageInTab(maker, action, error);
        if (!tabs) {
            found << QString("%1: %2").arg(maker.className, QString::fromStdString(error));
            continue;
        }
        showAt(*tabs, layoutSize(*tabs));
        found << clippedControls(*tabs, QString("%1 %2").arg(maker.className, at));
        showAt(*tabs, smallestSize(*tabs));
        found << clippedControls(*tabs, QString("%1 at its smallest %2").arg(maker.className, at));
    }
    for (const auto& editor : wfgallery::editors()) {
        std::unique_ptr<QWidget> widget(editor.make());
        showAt(*widget, widget->size());
        found << clippedControls(*widget, QString("%1 %2").arg(editor.className, at));
    }
    return found;
}

/// Renders the page at `scale` times the application font into `file`, in a dialog of `wanted`
/// size (an invalid size: the layout size).
bool renderPage(const TClearCasePageMaker& maker, const QString& file, double scale, QSize wanted, std::string& error)
{
    const ScaledFont font(scale);
    std::unique_ptr<TClearCaseBaseAction> action;
    auto tabs = pageInTab(maker, action, error);
    if (!tabs)
        return false;
    showAt(*tabs, wanted.isValid() ? wanted : layoutSize(*tabs));
    return tabs->grab().save(file);
}

/// The pages also shown with a larger font and in an enlarged dialog.
const char* const kVariantPages[] = {"TClearCaseCheckOutFrame", "TClearCaseViewPathNameFrame", "TClearCaseExtendedPathNameFrame",
                                     "TClearCaseMakeBaselineFrame", "TClearCaseCleartoolFrame"};

} // namespace

int main(int argc, char** argv)
{
    QApplication application(argc, argv);
    const QStringList arguments = application.arguments();
    if (arguments.size() < 2 || arguments[1] == "--help") {
        std::printf("usage: wf_page_gallery OUTPUT_DIR [CLASS...]\n"
                    "       wf_page_gallery --check-layout\n"
                    "Writes CLASS.png of every property page and editor (or of those named) into OUTPUT_DIR, and of a\n"
                    "few pages CLASS-font125.png (1.25x font) and CLASS-enlarged.png (a larger dialog).\n"
                    "--check-layout lists every control narrower than its text at 1, 1.25 and 1.5x font; exit 1 if any.\n");
        return arguments.size() < 2 ? 2 : 0;
    }
    wfgallery::prepareSampleWorld();
    if (arguments[1] == "--check-layout") {
        QStringList found;
        for (double scale : {1.0, 1.25, 1.5})
            found << checkLayouts(scale);
        for (const QString& line : found)
            std::fprintf(stderr, "wf_page_gallery: %s\n", qPrintable(line));
        std::printf("wf_page_gallery: %lld clipped controls\n", static_cast<long long>(found.size()));
        return found.isEmpty() ? 0 : 1;
    }
    const QDir out(arguments[1]);
    if (!QDir().mkpath(out.path())) {
        std::fprintf(stderr, "wf_page_gallery: cannot create %s\n", qPrintable(out.path()));
        return 1;
    }
    const std::set<QString> only(arguments.begin() + 2, arguments.end());
    const auto wanted = [&](const char* name) { return only.empty() || only.count(QString(name)); };
    int failures = 0;
    int written = 0;
    for (const auto& maker : ClearCasePageMakers()) {
        if (!wanted(maker.className))
            continue;
        std::string error;
        const QString name = out.filePath(maker.className);
        const bool variants = std::find(std::begin(kVariantPages), std::end(kVariantPages), std::string(maker.className)) != std::end(kVariantPages);
        for (const auto& [suffix, scale, size] : {std::tuple{".png", 1.0, QSize()}, std::tuple{"-font125.png", 1.25, QSize()},
                                                  std::tuple{"-enlarged.png", 1.0, QSize(860, 560)}}) {
            if ((scale != 1.0 || size.isValid()) && !variants)
                continue;
            if (!renderPage(maker, name + suffix, scale, size, error)) {
                std::fprintf(stderr, "wf_page_gallery: %s: %s\n", maker.className, error.empty() ? "cannot write the image" : error.c_str());
                ++failures;
            } else {
                ++written;
            }
        }
    }
    for (const auto& editor : wfgallery::editors()) {
        if (!wanted(editor.className))
            continue;
        std::unique_ptr<QWidget> widget(editor.make());
        showAt(*widget, widget->size());
        if (!widget->grab().save(out.filePath(QString(editor.className) + ".png"))) {
            std::fprintf(stderr, "wf_page_gallery: %s: cannot write the image\n", editor.className);
            ++failures;
        } else {
            ++written;
        }
    }
    std::printf("wf_page_gallery: %d images written to %s\n", written, qPrintable(out.path()));
    return failures ? 1 : 0;
}

#include "DesignerIcons.h"

#include "WFPluginLoader.h"

#include <QBitmap>
#include <QHash>
#include <QImage>
#include <QObject>
#include <QPainter>
#include <QPixmap>
#include <QPolygonF>

namespace {

QPixmap placeholder()
{
    QPixmap pixmap(16, 16);
    pixmap.fill(Qt::transparent);
    // A generic action: a step with an arrow, for a package that carries no bitmap of its own.
    QPainter painter(&pixmap);
    painter.setRenderHint(QPainter::Antialiasing);
    painter.setPen(QPen(QColor(70, 90, 120), 1));
    painter.setBrush(QColor(200, 215, 235));
    painter.drawRoundedRect(QRectF(1.5, 1.5, 13, 13), 2.5, 2.5);
    painter.setPen(QPen(QColor(40, 70, 130), 2, Qt::SolidLine, Qt::RoundCap, Qt::RoundJoin));
    painter.drawPolyline(QPolygonF({QPointF(5, 4.5), QPointF(10, 8), QPointF(5, 11.5)}));
    return pixmap;
}

QIcon dot(const QColor& fill, bool hollow = false)
{
    QPixmap pixmap(16, 16);
    pixmap.fill(Qt::transparent);
    QPainter painter(&pixmap);
    painter.setRenderHint(QPainter::Antialiasing);
    painter.setPen(QPen(fill.darker(140), 1.2));
    painter.setBrush(hollow ? Qt::NoBrush : QBrush(fill));
    painter.drawEllipse(QRectF(2.5, 2.5, 11, 11));
    return QIcon(pixmap);
}

} // namespace

QIcon packageIcon(const std::string& resourceName)
{
    static QHash<QString, QIcon> cache;
    const QString key = QString::fromStdString(resourceName);
    if (const auto found = cache.constFind(key); found != cache.constEnd())
        return *found;
    QPixmap pixmap;
    const std::string bytes = WFFindPackageResource(resourceName);
    QImage image;
    if (bytes.empty() || !image.loadFromData(reinterpret_cast<const uchar*>(bytes.data()), static_cast<int>(bytes.size()), "BMP")) {
        pixmap = placeholder();
    } else {
        // Package bitmaps have no alpha channel: the bottom-left pixel's colour is the transparent one.
        pixmap = QPixmap::fromImage(image);
        pixmap.setMask(pixmap.createMaskFromColor(image.pixelColor(0, image.height() - 1), Qt::MaskInColor));
    }
    // Loaded packages stay loaded: an icon once found stays right.
    const QIcon icon(pixmap);
    if (!bytes.empty())
        cache.insert(key, icon);
    return icon;
}

QIcon statusIcon(TRunStatus status)
{
    switch (status) {
    case TRunStatus::None:
        return {};
    case TRunStatus::Waiting:
        return dot(QColor(170, 170, 170), true);
    case TRunStatus::Running:
        return dot(QColor(60, 130, 220));
    case TRunStatus::Succeeded:
        return dot(QColor(40, 170, 70));
    case TRunStatus::Failed:
        return dot(QColor(210, 50, 40));
    case TRunStatus::Stopped:
        return dot(QColor(230, 150, 30));
    case TRunStatus::Skipped:
        return dot(QColor(200, 200, 200));
    }
    return {};
}

QString statusText(TRunStatus status)
{
    switch (status) {
    case TRunStatus::None:
        return {};
    case TRunStatus::Waiting:
        return QObject::tr("Waiting");
    case TRunStatus::Running:
        return QObject::tr("Running");
    case TRunStatus::Succeeded:
        return QObject::tr("Succeeded");
    case TRunStatus::Failed:
        return QObject::tr("Failed");
    case TRunStatus::Stopped:
        return QObject::tr("Stopped");
    case TRunStatus::Skipped:
        return QObject::tr("Skipped");
    }
    return {};
}

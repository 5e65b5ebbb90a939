#pragma once

#include <QWidget>

class QFrame;
class QLabel;
class QPixmap;

/// A section heading of a page: a small icon, a bold caption and a line from 8 pixels right of
/// the caption to the right margin, so that at a page's layout width the line ends at x = 497.
/// Its parts are children that a page names (labelName, lineName, iconName), so that they are
/// found by the names a page's description gives them. The line follows the caption by itself.
class TWFHeading : public QWidget {
    Q_OBJECT
    Q_PROPERTY(QString text READ text WRITE setText)
    Q_PROPERTY(QString labelName READ labelName WRITE setLabelName)
    Q_PROPERTY(QString lineName READ lineName WRITE setLineName)
    Q_PROPERTY(QString iconName READ iconName WRITE setIconName)
public:
    explicit TWFHeading(QWidget* parent = nullptr);

    QString text() const;
    void setText(const QString& text);
    void setIcon(const QPixmap& icon);

    QString labelName() const;
    void setLabelName(const QString& name);
    QString lineName() const;
    void setLineName(const QString& name);
    QString iconName() const;
    void setIconName(const QString& name);

    QLabel* label() const { return m_label; }
    QFrame* line() const { return m_line; }
    QLabel* icon() const { return m_icon; }

    QSize sizeHint() const override;
    QSize minimumSizeHint() const override;

protected:
    void resizeEvent(QResizeEvent* event) override;
    void changeEvent(QEvent* event) override;

private:
    void place();

    QLabel* m_icon;
    QLabel* m_label;
    QFrame* m_line;
};

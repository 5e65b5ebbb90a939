#pragma once

#include <QRadioButton>

/// A radio button whose caption wraps onto further lines when it is wider than the button;
/// the whole button takes the click.
class TClearCaseWrappingRadioButton : public QRadioButton {
    Q_OBJECT
public:
    explicit TClearCaseWrappingRadioButton(QWidget* parent = nullptr);

protected:
    void paintEvent(QPaintEvent* event) override;
    bool hitButton(const QPoint& pos) const override;
};

#pragma once

#include <QtWidgets/QDoubleSpinBox>
#include <QtWidgets/QSpinBox>

// The spin boxes' widgets. A typed number may stand outside the range while
// it is typed and is brought into it on Return or focus loss (the toolkit's
// own boxes refuse the keystroke); the decimal box reads "12.5" and "12,5"
// alike, whatever separator its locale shows.
class CKyUISpinBoxFrontend : public QSpinBox
{
public:
    explicit CKyUISpinBoxFrontend(QWidget* parent = nullptr);

protected:
    QValidator::State validate(QString& input, int& position) const override;
    void fixup(QString& input) const override;
    int valueFromText(const QString& text) const override;
};

class CKyUIDoubleSpinBoxFrontend : public QDoubleSpinBox
{
public:
    explicit CKyUIDoubleSpinBoxFrontend(QWidget* parent = nullptr);

protected:
    QValidator::State validate(QString& input, int& position) const override;
    void fixup(QString& input) const override;
    double valueFromText(const QString& text) const override;
};

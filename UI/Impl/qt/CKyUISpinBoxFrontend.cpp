#include "UI/Impl/qt/CKyUISpinBoxFrontend.h"

#include <QtCore/QLocale>

namespace
{
// A number as typed: the text between the unit texts, with the value it
// stands for once it has a digit.
struct TypedNumber
{
    QValidator::State state = QValidator::Invalid;
    bool hasValue = false;
    double value = 0;
};

QString Bare(QString text, const QString& prefix, const QString& suffix)
{
    if (!prefix.isEmpty() && text.startsWith(prefix))
        text.remove(0, prefix.size());
    if (!suffix.isEmpty() && text.endsWith(suffix))
        text.chop(suffix.size());
    return text.trimmed();
}

// Digits with an optional sign and, given decimals, one separator: a point,
// a comma or the locale's own. Out of range is only "not yet": the text is
// brought into the range when the user is done.
TypedNumber Read(const QString& bare, int decimals, double minimum, double maximum, const QLocale& locale)
{
    TypedNumber typed;
    QString plain;
    int digits = 0;
    int fraction = -1;
    // A character in Qt 5, a string in Qt 6.
    const QString localePoint = QString(locale.decimalPoint());
    for (int i = 0; i < bare.size(); ++i) {
        const QChar c = bare.at(i);
        if (c.isDigit() && c.unicode() < 128) {
            plain += c;
            ++digits;
            if (fraction >= 0 && ++fraction > decimals)
                return typed;
        } else if ((c == QLatin1Char('-') || c == QLatin1Char('+')) && i == 0) {
            plain += c;
        } else if ((c == QLatin1Char('.') || c == QLatin1Char(',') || QString(c) == localePoint) &&
                   fraction < 0 && decimals > 0) {
            plain += QLatin1Char('.');
            fraction = 0;
        } else {
            return typed;
        }
    }
    if (digits == 0) {
        typed.state = QValidator::Intermediate;
        return typed;
    }
    typed.value = QLocale::c().toDouble(plain.endsWith(QLatin1Char('.')) ? plain + QLatin1Char('0') : plain,
                                        &typed.hasValue);
    typed.state = typed.hasValue && typed.value >= minimum && typed.value <= maximum
                      ? QValidator::Acceptable
                      : QValidator::Intermediate;
    return typed;
}

double Clamped(double value, double minimum, double maximum)
{
    return value < minimum ? minimum : (value > maximum ? maximum : value);
}
} // namespace

CKyUISpinBoxFrontend::CKyUISpinBoxFrontend(QWidget* parent)
    : QSpinBox(parent)
{}

QValidator::State CKyUISpinBoxFrontend::validate(QString& input, int&) const
{
    return Read(Bare(input, prefix(), suffix()), 0, minimum(), maximum(), locale()).state;
}

void CKyUISpinBoxFrontend::fixup(QString& input) const
{
    const TypedNumber typed = Read(Bare(input, prefix(), suffix()), 0, minimum(), maximum(), locale());
    if (typed.hasValue)
        input =
            prefix() + textFromValue(static_cast<int>(Clamped(typed.value, minimum(), maximum()))) + suffix();
}

int CKyUISpinBoxFrontend::valueFromText(const QString& text) const
{
    const TypedNumber typed = Read(Bare(text, prefix(), suffix()), 0, minimum(), maximum(), locale());
    return typed.hasValue ? static_cast<int>(Clamped(typed.value, minimum(), maximum())) : value();
}

CKyUIDoubleSpinBoxFrontend::CKyUIDoubleSpinBoxFrontend(QWidget* parent)
    : QDoubleSpinBox(parent)
{}

QValidator::State CKyUIDoubleSpinBoxFrontend::validate(QString& input, int&) const
{
    return Read(Bare(input, prefix(), suffix()), decimals(), minimum(), maximum(), locale()).state;
}

void CKyUIDoubleSpinBoxFrontend::fixup(QString& input) const
{
    const TypedNumber typed =
        Read(Bare(input, prefix(), suffix()), decimals(), minimum(), maximum(), locale());
    if (typed.hasValue)
        input = prefix() + textFromValue(Clamped(typed.value, minimum(), maximum())) + suffix();
}

double CKyUIDoubleSpinBoxFrontend::valueFromText(const QString& text) const
{
    const TypedNumber typed =
        Read(Bare(text, prefix(), suffix()), decimals(), minimum(), maximum(), locale());
    return typed.hasValue ? Clamped(typed.value, minimum(), maximum()) : value();
}

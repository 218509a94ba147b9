#include <gtest/gtest.h>

#include <QtCore/QDirIterator>
#include <QtCore/QFile>
#include <QtCore/QMap>
#include <QtCore/QRegularExpression>
#include <QtGui/QColor>

#include <cmath>

// Text against the background it sits on, for every rule of the variants'
// sheets and of the controls' own sheets (every .qss under resources/variants
// and resources/controls): at least 4.5:1, the contrast that normal text needs
// (WCAG AA). A rule without one of the two colours takes it from the rule of
// its selector without states, then from the variant's dialog.

namespace
{
const QString kResources = QStringLiteral(COMMONUI_TESTS_DIR "/../resources/");
using Declarations = QMap<QString, QString>;

QString Read(const QString& path)
{
    QFile file(path);
    return file.open(QIODevice::ReadOnly) ? QString::fromUtf8(file.readAll()) : QString();
}

// Selector -> its declarations, in order of the rules (later ones win).
QList<QPair<QString, Declarations>> Rules(QString text)
{
    text.remove(QRegularExpression(QStringLiteral("/\\*.*?\\*/"), QRegularExpression::DotMatchesEverythingOption));
    QList<QPair<QString, Declarations>> rules;
    for (const QString& block : text.split(QLatin1Char('}'))) {
        const int brace = block.indexOf(QLatin1Char('{'));
        if (brace < 0)
            continue;
        Declarations declarations;
        for (const QString& declaration : block.mid(brace + 1).split(QLatin1Char(';'))) {
            const int colon = declaration.indexOf(QLatin1Char(':'));
            if (colon > 0)
                declarations[declaration.left(colon).trimmed()] = declaration.mid(colon + 1).trimmed();
        }
        for (const QString& selector : block.left(brace).split(QLatin1Char(',')))
            rules.append({selector.simplified(), declarations});
    }
    return rules;
}

QColor Colour(const Declarations& rule, const QStringList& names)
{
    for (const QString& name : names) {
        const QRegularExpressionMatch hex = QRegularExpression(QStringLiteral("#[0-9A-Fa-f]{3,6}\\b")).match(rule.value(name));
        const QColor colour(hex.hasMatch() ? hex.captured() : rule.value(name));
        if (colour.isValid() && colour.alpha() == 255)
            return colour;
    }
    return QColor();
}

double Luminance(const QColor& colour)
{
    const auto linear = [](double c) { return c <= 0.03928 ? c / 12.92 : std::pow((c + 0.055) / 1.055, 2.4); };
    return 0.2126 * linear(colour.redF()) + 0.7152 * linear(colour.greenF()) + 0.0722 * linear(colour.blueF());
}

double Contrast(const QColor& a, const QColor& b)
{
    const double la = Luminance(a), lb = Luminance(b);
    return (std::max(la, lb) + 0.05) / (std::min(la, lb) + 0.05);
}
} // namespace

TEST(ThemeContrastTest, EveryTextColourOnItsBackgroundReachesFourAndAHalfToOne)
{
    const QStringList text = {"color"}, background = {"background-color", "background"};
    QMap<QString, int> pairsPerFile;
    QDirIterator files(kResources, {"*.qss"}, QDir::Files, QDirIterator::Subdirectories);
    while (files.hasNext()) {
        const QString path = files.next();
        if (!path.contains("/variants/") && !path.contains("/controls/"))
            continue;
        const bool light = path.contains("/light");
        const auto dialog = Rules(Read(kResources + (light ? "variants/light.qss" : "variants/dark.qss")));
        QMap<QString, Declarations> bySelector;
        for (const auto& rule : dialog + Rules(Read(path)))
            bySelector[rule.first].insert(rule.second);
        const Declarations window = bySelector.value("QDialog");
        for (const auto& rule : Rules(Read(path))) {
            const QString base = QString(rule.first).remove(QRegularExpression("(?<!:):(?!:)[\\w-]+"));
            const bool subcontrol = base.contains("::");
            const auto pick = [&](const QStringList& names, bool fromWindow) {
                QColor colour = Colour(rule.second, names);
                if (!colour.isValid())
                    colour = Colour(bySelector.value(base), names);
                if (!colour.isValid() && fromWindow)
                    colour = Colour(bySelector.value(base.section("::", 0, 0)), names);
                return colour.isValid() || !fromWindow ? colour : Colour(window, names);
            };
            const QList<QPair<QColor, QColor>> pairs = {
                {pick(text, !subcontrol), pick(background, true)},
                {Colour(rule.second, {"selection-color"}), Colour(rule.second, {"selection-background-color"})}};
            for (const auto& pair : pairs) {
                if (!pair.first.isValid() || !pair.second.isValid())
                    continue;
                ++pairsPerFile[path];
                EXPECT_GE(Contrast(pair.first, pair.second), 4.5)
                    << path.toStdString() << ": " << rule.first.toStdString() << ", "
                    << pair.first.name().toStdString() << " on " << pair.second.name().toStdString();
            }
        }
    }
    // Not vacuous: both variants were read, and are what the library carries.
    for (const QString variant : {"dark", "light"}) {
        EXPECT_GT(pairsPerFile.value(kResources + "variants/" + variant + ".qss"), 30) << variant.toStdString();
        EXPECT_EQ(Read(":/commonui/variants/" + variant + ".qss"), Read(kResources + "variants/" + variant + ".qss"));
    }
}

#include "UI/Impl/qt/KyThemeVariant.h"

#include <gtest/gtest.h>

#include <QtCore/QDirIterator>
#include <QtCore/QFile>
#include <QtCore/QRegularExpression>
#include <QtGui/QColor>

// Text against the background it sits on, for every rule of the variants'
// sheets and of the controls' own sheets (every .qss under resources/variants
// and resources/controls): at least 4.5:1, what normal text needs (WCAG AA).
// A colour a rule leaves out comes from the rule of its selector without
// states, then from its widget's rule, then from the variant's dialog.

namespace
{
const QString kResources = QStringLiteral(COMMONUI_TESTS_DIR "/../resources/");
using Declarations = QMap<QString, QString>;
using Rule = QPair<QString, Declarations>;

QList<Rule> Rules(const QString& path)
{
    QFile file(path);
    const QString text = file.open(QIODevice::ReadOnly) ? QString::fromUtf8(file.readAll()) : QString();
    QList<Rule> rules;
    auto blocks = QRegularExpression("([^{}]+)\\{([^}]*)\\}")
                      .globalMatch(QString(text).remove(
                          QRegularExpression("/\\*.*?\\*/", QRegularExpression::DotMatchesEverythingOption)));
    while (blocks.hasNext()) {
        const QRegularExpressionMatch block = blocks.next();
        Declarations declarations;
        for (const QString& declaration : block.captured(2).split(';'))
            declarations[declaration.section(':', 0, 0).trimmed()] = declaration.section(':', 1).trimmed();
        for (const QString& selector : block.captured(1).split(','))
            rules.append({selector.simplified(), declarations});
    }
    return rules;
}

QColor Colour(const Declarations& rule, const QStringList& names)
{
    for (const QString& name : names) {
        const QColor colour(rule.value(name).section(' ', 0, 0));
        if (colour.isValid() && colour.alpha() == 255)
            return colour;
    }
    return QColor();
}
} // namespace

TEST(ThemeContrastTest, EveryTextOnItsBackgroundReachesFourAndAHalfToOne)
{
    const QStringList text = {"color"}, background = {"background-color", "background"};
    QMap<QString, int> pairs;
    QDirIterator files(kResources, {"*.qss"}, QDir::Files, QDirIterator::Subdirectories);
    while (files.hasNext()) {
        const QString path = files.next();
        if (!path.contains("/variants/") && !path.contains("/controls/"))
            continue;
        QMap<QString, Declarations> known;
        const QString variant =
            kResources + (path.contains("/light") ? "variants/light.qss" : "variants/dark.qss");
        for (const Rule& rule : Rules(variant) + Rules(path))
            known[rule.first].insert(rule.second);
        for (const Rule& rule : Rules(path)) {
            const QString base = QString(rule.first).remove(QRegularExpression("(?<!:):(?!:)[\\w-]+"));
            // Text in a subcontrol (a groove, a handle) only where a rule puts it there.
            const auto pick = [&](const QStringList& names, bool inherit) {
                QColor colour = Colour(rule.second, names);
                for (const QString& from : {base, base.section("::", 0, 0), QStringLiteral("QDialog")}) {
                    if (!colour.isValid() && (inherit || from == base))
                        colour = Colour(known.value(from), names);
                }
                return colour;
            };
            for (const auto& pair : {qMakePair(pick(text, !base.contains("::")), pick(background, true)),
                                     qMakePair(Colour(rule.second, {"selection-color"}),
                                               Colour(rule.second, {"selection-background-color"}))}) {
                if (!pair.first.isValid() || !pair.second.isValid())
                    continue;
                ++pairs[path];
                const double a = KyThemeVariant::Luminance(pair.first),
                             b = KyThemeVariant::Luminance(pair.second);
                EXPECT_GE((std::max(a, b) + 0.05) / (std::min(a, b) + 0.05), 4.5)
                    << path.toStdString() << ": " << rule.first.toStdString() << ", "
                    << pair.first.name().toStdString() << " on " << pair.second.name().toStdString();
            }
        }
    }
    EXPECT_GT(pairs.value(kResources + "variants/dark.qss"), 30);
    EXPECT_GT(pairs.value(kResources + "variants/light.qss"), 30);
}

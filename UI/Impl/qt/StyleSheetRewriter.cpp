#include "UI/Impl/qt/StyleSheetRewriter.h"

#include <QtWidgets/QWidget>

namespace StyleSheetRewriter
{
QList<QRegExp> Patterns(std::initializer_list<const char*> patterns)
{
    QList<QRegExp> compiled;
    for (const char* pattern : patterns)
        compiled.append(QRegExp(QString::fromLatin1(pattern)));
    return compiled;
}

QString Rewrite(QString sheet, const QList<QRegExp>& removals, const QString& declaration,
                Insertion insertion)
{
    for (const QRegExp& removal : removals)
#if QT_VERSION >= QT_VERSION_CHECK(6, 0, 0)
        sheet = removal.replaceIn(sheet, QString());
#else
        sheet.replace(removal, QString());
#endif
    const int brace = sheet.lastIndexOf(QLatin1Char('}'));
    const bool insideLastRule =
        insertion == Insertion::BeforeLastBrace ? brace >= 0 : brace > 0;
    if (insideLastRule)
        sheet.insert(brace, declaration);
    else
        sheet.append(declaration);
    return sheet;
}

void Apply(QWidget* widget, const QList<QRegExp>& removals, const QString& declaration,
           Insertion insertion)
{
    if (!widget)
        return;
    widget->setStyleSheet(Rewrite(widget->styleSheet(), removals, declaration, insertion));
}
} // namespace StyleSheetRewriter

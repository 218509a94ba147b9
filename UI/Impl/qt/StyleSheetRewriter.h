#pragma once

#include <QtCore/QList>
#include <QtCore/QString>
#include <QtCore/QtGlobal>
// The rules match with QRegExp's own syntax and semantics; Qt 6 keeps the
// class in its compatibility module.
#if QT_VERSION >= QT_VERSION_CHECK(6, 0, 0)
#include <QtCore5Compat/QRegExp>
#else
#include <QtCore/QRegExp>
#endif

#include <initializer_list>

class QWidget;

// Edits a widget's own style sheet in place: deletes every match of a fixed
// list of expressions, then inserts one declaration in front of the last "}".
// The expressions are deliberately narrow (no 0, no '#', no '-' in their value
// classes): what they miss stays in the sheet ahead of the new declaration,
// which, standing later, wins in the cascade.
namespace StyleSheetRewriter
{
enum class Insertion {
    // In front of the last "}", or at the end when there is none.
    BeforeLastBrace,
    // As BeforeLastBrace, but a "}" at position 0 counts as none.
    BeforeLastBraceAfterStart,
};

// Compiles the expressions once, for a rule's function-local static list.
QList<QRegExp> Patterns(std::initializer_list<const char*> patterns);

QString Rewrite(QString sheet, const QList<QRegExp>& removals, const QString& declaration,
                Insertion insertion);

// Rewrites the widget's sheet and sets it back; does nothing without a widget.
void Apply(QWidget* widget, const QList<QRegExp>& removals, const QString& declaration,
           Insertion insertion);
} // namespace StyleSheetRewriter

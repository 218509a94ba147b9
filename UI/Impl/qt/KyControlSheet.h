#pragma once

#include <QtCore/QString>

class QWidget;

// The theme of the controls that the compiled-in sheet has no rules for. Each
// such control carries a sheet of its own, read from
// ":/commonui/controls/<variant>/<name>.qss"; the name is kept on the widget
// so that a change of variant can reach every control that has one.
namespace KyControlSheet
{
// Gives the widget the named sheet of the current variant; a sheet that is
// not compiled in leaves the widget as it is.
void Apply(QWidget* widget, const QString& name);
// Applies again, to the widget and every child that was given a sheet, where
// the variant changed since.
void ReapplyAll(QWidget* root);
// The folder of the variant whose sheets are applied: "light" under the light
// variant (chosen, or picked from the host's palette), "dark" otherwise.
QString VariantFolder();
} // namespace KyControlSheet

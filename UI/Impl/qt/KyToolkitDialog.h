#pragma once

#include <QtCore/QString>

class CKyUIBaseView;
class QDialog;
class QWidget;

// What the toolkit's own dialogs (message box, file dialog, colour chooser)
// share: the look of the library's dialogs, a place over a view's window, and
// a modal run that survives the deletion of whoever started it.
namespace KyToolkitDialog
{
// The theme's sheet on the dialog, as the library's dialogs get it; the item
// views, spin boxes and tool buttons inside, which that sheet has no rules
// for, get the named control sheet (none when the name is empty).
void ApplyTheme(QDialog* dialog, const QString& innerSheet = QString());
// The window the view's widget stands in; null without one.
QWidget* WindowOf(CKyUIBaseView* view);
// Centres the dialog over the window; null leaves it where the toolkit puts it.
void PlaceOver(QDialog* dialog, QWidget* window);
// Runs the dialog modally; false when it was rejected or deleted meanwhile.
bool RunModal(QDialog* dialog);
// Ends a run still under way and deletes the dialog once the run is over.
void Release(QDialog* dialog);
} // namespace KyToolkitDialog

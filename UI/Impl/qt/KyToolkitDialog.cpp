#include "UI/Impl/qt/KyToolkitDialog.h"

#include "UI/CKyUIBaseView.h"
#include "UI/CKyUIStyle.h"
#include "UI/Impl/qt/KyControlSheet.h"

#include <QtCore/QPointer>
#include <QtWidgets/QAbstractItemView>
#include <QtWidgets/QAbstractSpinBox>
#include <QtWidgets/QDialog>
#include <QtWidgets/QToolButton>

void KyToolkitDialog::ApplyTheme(QDialog* dialog, const QString& innerSheet)
{
    if (!dialog)
        return;
    if (const std::shared_ptr<CKyUIStyle> style = GetStyle())
        dialog->setStyleSheet(style->styleSheet);
    if (innerSheet.isEmpty())
        return;
    const QList<QWidget*> inner = dialog->findChildren<QWidget*>();
    for (QWidget* widget : inner) {
        if (qobject_cast<QAbstractItemView*>(widget) || qobject_cast<QAbstractSpinBox*>(widget) ||
            qobject_cast<QToolButton*>(widget))
            KyControlSheet::Apply(widget, innerSheet);
    }
}

QWidget* KyToolkitDialog::WindowOf(CKyUIBaseView* view)
{
    auto* widget = view ? qobject_cast<QWidget*>(view->getHandle()) : nullptr;
    return widget ? widget->window() : nullptr;
}

void KyToolkitDialog::PlaceOver(QDialog* dialog, QWidget* window)
{
    if (!dialog || !window || !window->isVisible())
        return;
    dialog->adjustSize();
    dialog->move(window->frameGeometry().center() - dialog->rect().center());
}

bool KyToolkitDialog::RunModal(QDialog* dialog)
{
    if (!dialog)
        return false;
    const QPointer<QDialog> guard(dialog);
    const int result = dialog->exec();
    return guard && result == QDialog::Accepted;
}

void KyToolkitDialog::Release(QDialog* dialog)
{
    if (!dialog)
        return;
    // Hiding ends a modal run; the run's exec() returns before the deferred
    // deletion comes up.
    dialog->hide();
    dialog->deleteLater();
}

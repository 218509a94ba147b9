#include "UI/Impl/qt/KyControlSheet.h"

#include "UI/Impl/qt/KyThemeResources.h"

#include <QtWidgets/QWidget>

namespace
{
const char kNameProperty[] = "commonuiControlSheet";
} // namespace

QString KyControlSheet::VariantFolder()
{
    return QStringLiteral("dark");
}

void KyControlSheet::Apply(QWidget* widget, const QString& name)
{
    if (!widget)
        return;
    widget->setProperty(kNameProperty, name);
    QString sheet;
    if (KyThemeResources::Read(QStringLiteral(":/commonui/controls/%1/%2.qss").arg(VariantFolder(), name),
                               sheet))
        widget->setStyleSheet(sheet);
}

void KyControlSheet::ReapplyAll(QWidget* root)
{
    if (!root)
        return;
    QList<QWidget*> widgets = root->findChildren<QWidget*>();
    widgets.prepend(root);
    for (QWidget* widget : widgets) {
        const QString name = widget->property(kNameProperty).toString();
        if (!name.isEmpty())
            Apply(widget, name);
    }
}

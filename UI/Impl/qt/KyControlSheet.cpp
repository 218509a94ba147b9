#include "UI/Impl/qt/KyControlSheet.h"

#include "UI/Impl/qt/KyThemeResources.h"
#include "UI/Impl/qt/KyThemeVariant.h"

#include <QtWidgets/QWidget>

namespace
{
const char kNameProperty[] = "commonuiControlSheet";
// The folder the widget's sheet came from: applying again only when the
// variant changed keeps what the client layered over the sheet since.
const char kFolderProperty[] = "commonuiControlSheetFolder";
} // namespace

QString KyControlSheet::VariantFolder()
{
    // The compiled-in theme is dark, and so is every variant but one.
    return KyThemeVariant::Current() == CKyUIStyle::Variant::Light ? QStringLiteral("light")
                                                                   : QStringLiteral("dark");
}

void KyControlSheet::Apply(QWidget* widget, const QString& name)
{
    if (!widget)
        return;
    const QString folder = VariantFolder();
    widget->setProperty(kNameProperty, name);
    widget->setProperty(kFolderProperty, folder);
    QString sheet;
    if (KyThemeResources::Read(QStringLiteral(":/commonui/controls/%1/%2.qss").arg(folder, name), sheet))
        widget->setStyleSheet(sheet);
}

void KyControlSheet::ReapplyAll(QWidget* root)
{
    if (!root)
        return;
    const QString folder = VariantFolder();
    QList<QWidget*> widgets = root->findChildren<QWidget*>();
    widgets.prepend(root);
    for (QWidget* widget : widgets) {
        const QString name = widget->property(kNameProperty).toString();
        if (!name.isEmpty() && widget->property(kFolderProperty).toString() != folder)
            Apply(widget, name);
    }
}

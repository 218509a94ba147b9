#include "UI/Impl/qt/KyControlSheet.h"

#include "UI/Impl/qt/KyThemeResources.h"
#include "UI/Impl/qt/KyThemeVariant.h"

#include <QtCore/QHash>
#include <QtWidgets/QWidget>

namespace
{
const char kNameProperty[] = "commonuiControlSheet";
// The folder the widget's sheet came from: applying again only when the
// variant changed keeps what the client layered over the sheet since.
const char kFolderProperty[] = "commonuiControlSheetFolder";

// The folders sheets were applied from so far. While there is one, and it is
// the current one, no widget can need its sheet again: a dialog run need not
// walk its widgets (the compiled-in theme never changes folder).
QString g_onlyFolder;
bool g_foldersMixed = false;

// Each sheet is read from the resources once; every control of its kind
// shares the text.
const QString& SheetText(const QString& folder, const QString& name)
{
    static QHash<QString, QString> sheets;
    const QString path = QStringLiteral(":/commonui/controls/%1/%2.qss").arg(folder, name);
    auto it = sheets.find(path);
    if (it == sheets.end()) {
        QString sheet;
        KyThemeResources::Read(path, sheet);
        it = sheets.insert(path, sheet);
    }
    return it.value();
}
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
    if (g_onlyFolder.isEmpty())
        g_onlyFolder = folder;
    else if (folder != g_onlyFolder)
        g_foldersMixed = true;
    widget->setProperty(kNameProperty, name);
    widget->setProperty(kFolderProperty, folder);
    const QString& sheet = SheetText(folder, name);
    if (!sheet.isEmpty())
        widget->setStyleSheet(sheet);
}

void KyControlSheet::ReapplyAll(QWidget* root)
{
    if (!root)
        return;
    const QString folder = VariantFolder();
    if (!g_foldersMixed && (g_onlyFolder.isEmpty() || g_onlyFolder == folder))
        return;
    QList<QWidget*> widgets = root->findChildren<QWidget*>();
    widgets.prepend(root);
    for (QWidget* widget : widgets) {
        const QString name = widget->property(kNameProperty).toString();
        if (!name.isEmpty() && widget->property(kFolderProperty).toString() != folder)
            Apply(widget, name);
    }
}

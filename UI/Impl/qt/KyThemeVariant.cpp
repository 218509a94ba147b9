#include "UI/Impl/qt/KyThemeVariant.h"

#include "UI/Impl/qt/KyControlSheet.h"
#include "UI/Impl/qt/KyThemeResources.h"

#include <QtCore/QEvent>
#include <QtCore/QList>
#include <QtCore/QPointer>
#include <QtGui/QColor>
#include <QtGui/QPalette>
#include <QtWidgets/QApplication>
#include <QtWidgets/QDialog>

#include <cmath>

namespace
{
using Variant = CKyUIStyle::Variant;

Variant g_chosen = Variant::Default;

// The dialog remembers what it was given, so that a palette change that
// does not flip the host between light and dark leaves it alone.
const char kAppliedProperty[] = "commonuiThemeVariant";

double Linear(double channel)
{
    return channel <= 0.03928 ? channel / 12.92 : std::pow((channel + 0.055) / 1.055, 2.4);
}

// Light when dark text on the colour would contrast more than light text:
// a relative luminance above 0.179.
bool IsLight(const QColor& colour)
{
    return KyThemeVariant::Luminance(colour) > 0.179;
}

// Restyles the dialogs that follow the host when the host changes its
// palette. Qt 5 reports the change to every widget, Qt 6 to the application
// and to child widgets only, so the watcher sits on the application, where
// both pass by; it is installed the first time a dialog follows the host.
class HostPaletteWatcher : public QObject
{
public:
    using QObject::QObject;

    static void Follow(QDialog* dialog, bool follow)
    {
        static QPointer<HostPaletteWatcher> watcher;
        if (!watcher && follow && QCoreApplication::instance()) {
            watcher = new HostPaletteWatcher(QCoreApplication::instance());
            QCoreApplication::instance()->installEventFilter(watcher);
        }
        if (!watcher)
            return;
        watcher->m_dialogs.removeAll(QPointer<QDialog>());
        watcher->m_dialogs.removeAll(dialog);
        if (follow)
            watcher->m_dialogs.append(dialog);
    }

    bool eventFilter(QObject*, QEvent* event) override
    {
        if (event->type() != QEvent::ApplicationPaletteChange || g_chosen != Variant::FollowHost)
            return false;
        // Reported once per widget: a dialog is restyled when its variant changes only.
        const int current = static_cast<int>(KyThemeVariant::Current());
        const QList<QPointer<QDialog>> dialogs = m_dialogs;
        for (const QPointer<QDialog>& dialog : dialogs) {
            if (dialog && dialog->property(kAppliedProperty).toInt() != current)
                KyThemeVariant::ApplyTo(dialog);
        }
        return false;
    }

private:
    QList<QPointer<QDialog>> m_dialogs;
};
} // namespace

void KyThemeVariant::Choose(Variant variant)
{
    g_chosen = variant;
}

Variant KyThemeVariant::Chosen()
{
    return g_chosen;
}

double KyThemeVariant::Luminance(const QColor& colour)
{
    return 0.2126 * Linear(colour.redF()) + 0.7152 * Linear(colour.greenF()) +
           0.0722 * Linear(colour.blueF());
}

Variant KyThemeVariant::Current()
{
    if (g_chosen != Variant::FollowHost)
        return g_chosen;
    return IsLight(QApplication::palette().color(QPalette::Window)) ? Variant::Light : Variant::Dark;
}

QString KyThemeVariant::Sheet(Variant variant)
{
    static QString dark, light;
    QString& sheet = variant == Variant::Light ? light : dark;
    if (sheet.isEmpty() && (variant == Variant::Dark || variant == Variant::Light))
        KyThemeResources::Read(variant == Variant::Light ? QStringLiteral(":/commonui/variants/light.qss")
                                                         : QStringLiteral(":/commonui/variants/dark.qss"),
                               sheet);
    return variant == Variant::Dark || variant == Variant::Light ? sheet : QString();
}

void KyThemeVariant::ApplyTo(QDialog* dialog)
{
    if (!dialog)
        return;
    const Variant current = Current();
    if (current == Variant::Default) {
        if (const std::shared_ptr<CKyUIStyle> style = GetStyle())
            dialog->setStyleSheet(style->styleSheet);
    } else {
        dialog->setStyleSheet(Sheet(current));
        dialog->setProperty(kAppliedProperty, static_cast<int>(current));
    }
    HostPaletteWatcher::Follow(dialog, g_chosen == Variant::FollowHost);
    KyControlSheet::ReapplyAll(dialog);
}

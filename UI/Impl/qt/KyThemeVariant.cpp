#include "UI/Impl/qt/KyThemeVariant.h"

#include "UI/Impl/qt/KyControlSheet.h"
#include "UI/Impl/qt/KyThemeResources.h"

#include <QtCore/QEvent>
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

// Restyles the dialogs that follow the host when the host changes its palette
// while they exist. One per application; dialogs that stop following are
// taken off it.
class HostPaletteWatcher : public QObject
{
public:
    using QObject::QObject;

    static HostPaletteWatcher* Get(bool create)
    {
        static QPointer<HostPaletteWatcher> watcher;
        if (!watcher && create && QCoreApplication::instance())
            watcher = new HostPaletteWatcher(QCoreApplication::instance());
        return watcher;
    }

    bool eventFilter(QObject* watched, QEvent* event) override
    {
        if (event->type() == QEvent::ApplicationPaletteChange && g_chosen == Variant::FollowHost) {
            auto* dialog = qobject_cast<QDialog*>(watched);
            if (dialog &&
                dialog->property(kAppliedProperty).toInt() != static_cast<int>(KyThemeVariant::Current()))
                KyThemeVariant::ApplyTo(dialog);
        }
        return false;
    }
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
    if (HostPaletteWatcher* watcher = HostPaletteWatcher::Get(g_chosen == Variant::FollowHost)) {
        if (g_chosen == Variant::FollowHost)
            dialog->installEventFilter(watcher);
        else
            dialog->removeEventFilter(watcher);
    }
    KyControlSheet::ReapplyAll(dialog);
}

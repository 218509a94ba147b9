#pragma once

#include "UI/CKyUIStyle.h"

#include <QtCore/QCoreApplication>
#include <QtCore/QEvent>
#include <QtWidgets/QDialog>
#include <QtWidgets/QVBoxLayout>

#include <memory>

// What the UI benchmarks share: a hidden dialog wearing the library's theme,
// in which both sides build their widgets, and the flush of the events a
// running loop would deliver, among them the deletions a view schedules with
// deleteLater (part of the library's cost, so inside the timing on both
// sides).
namespace BenchHost
{

inline const QString& ThemeSheet()
{
    static const QString sheet = GetStyle() ? GetStyle()->styleSheet : QString();
    return sheet;
}

// The theme and a column. Unpolished, it is a dialog as SetupUI() finds it,
// before exec() shows it; polished, a dialog that is running.
class ThemedDialog
{
public:
    explicit ThemedDialog(bool polished)
        : m_dialog(new QDialog)
        , m_layout(new QVBoxLayout(m_dialog.get()))
    {
        m_dialog->setStyleSheet(ThemeSheet());
        m_layout->setContentsMargins(0, 0, 0, 0);
        if (polished)
            m_dialog->adjustSize();
    }

    QDialog* dialog() const { return m_dialog.get(); }
    QVBoxLayout* layout() const { return m_layout; }

private:
    std::unique_ptr<QDialog> m_dialog;
    QVBoxLayout* m_layout;
};

// Delivers what a running event loop would deliver next (layout requests and
// the like), then the deletions; without it the queue of posted events grows
// from round to round and every QObject destructor has to search it.
inline void FlushPostedEvents()
{
    QCoreApplication::sendPostedEvents();
    QCoreApplication::sendPostedEvents(nullptr, QEvent::DeferredDelete);
}

} // namespace BenchHost

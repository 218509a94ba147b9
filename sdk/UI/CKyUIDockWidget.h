#pragma once

#include "UI/CKyUIBaseView.h"

/// Holds one view for a host to place in a dock area, without a widget of its
/// own (see \ref behaviours_containers "behaviours"). It creates no toolkit
/// widget of its own: it remembers its view and title and passes show and hide
/// events on to the view. The view is not owned and must outlive those events.
///
/// **Interactive** (setInteractive()): the dock widget makes a toolkit dock
/// (a QDockWidget, its handle) that holds the view's widget under the title,
/// for a host to place in area(). The view becomes interactive too. The dock
/// stays when the switch goes off again, without following later changes.
/// When the dock widget goes, the view's widget leaves the dock, hidden and
/// without a parent, and stays its view's.
///
/// \image html containers.png "A dock widget's view among the containers"
class COMMONUI_EXPORT CKyUIDockWidget : public CKyUIBaseView
{
public:
    /// The area is handed to the toolkit step, which ignores it; it is kept for
    /// area().
    explicit CKyUIDockWidget(int area);
    ~CKyUIDockWidget() override;

    /// Remembers the view, without taking ownership. When the dock widget is
    /// interactive, the view's widget moves into the toolkit dock.
    void setWidget(CKyUIBaseView* view);
    /// The remembered view, or null.
    CKyUIBaseView* widget();
    /// The remembered view, or null.
    const CKyUIBaseView* widget() const;

    /// Remembers the title; it is shown nowhere, unless the dock widget is
    /// interactive: then on the toolkit dock.
    void setTitle(const QString& title);
    /// The dock area given at construction (a Qt::DockWidgetArea value), where
    /// a host places the toolkit dock.
    int area() const;

    /// Raises the toolkit dock widget, if a host ever attached one as handle.
    void raise();

    /// Passes the same event on to the remembered view, if any.
    void showEvent(CKyUIShowEvent* event) override;
    /// Passes the same event on to the remembered view, if any.
    void hideEvent(CKyUIHideEvent* event) override;
};

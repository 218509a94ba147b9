#pragma once

#include "UI/CKyUIBaseView.h"

/// Holds one view for a host to place in a dock area, without a widget of its
/// own (see \ref behaviours_containers "behaviours"). It creates no toolkit
/// widget of its own: it remembers its view and title and passes show and hide
/// events on to the view. The view is not owned and must outlive those events.
///
/// \image html containers.png "A dock widget's view among the containers"
class COMMONUI_EXPORT CKyUIDockWidget : public CKyUIBaseView
{
public:
    /// The area is handed to the toolkit step, which ignores it; it is not kept.
    explicit CKyUIDockWidget(int area);
    ~CKyUIDockWidget() override;

    /// Remembers the view, without taking ownership.
    void setWidget(CKyUIBaseView* view);
    /// The remembered view, or null.
    CKyUIBaseView* widget();
    /// The remembered view, or null.
    const CKyUIBaseView* widget() const;

    /// Remembers the title; it is shown nowhere.
    void setTitle(const QString& title);

    /// Raises the toolkit dock widget, if a host ever attached one as handle.
    void raise();

    /// Passes the same event on to the remembered view, if any.
    void showEvent(CKyUIShowEvent* event) override;
    /// Passes the same event on to the remembered view, if any.
    void hideEvent(CKyUIHideEvent* event) override;
};

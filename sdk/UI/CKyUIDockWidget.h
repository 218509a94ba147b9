#pragma once

#include "UI/CKyUIBaseView.h"

// Holds one view for a host to place in a dock area. It creates no toolkit
// widget of its own: it remembers its view and title and passes show and hide
// events on to the view. The view is not owned and must outlive those events.
class COMMONUI_EXPORT CKyUIDockWidget : public CKyUIBaseView
{
public:
    // The area is handed to the toolkit step, which ignores it; it is not kept.
    explicit CKyUIDockWidget(int area);
    ~CKyUIDockWidget() override;

    void setWidget(CKyUIBaseView* view);
    CKyUIBaseView* widget();
    const CKyUIBaseView* widget() const;

    void setTitle(const QString& title);

    // Raises the toolkit dock widget, if a host ever attached one as handle.
    void raise();

    void showEvent(CKyUIShowEvent* event) override;
    void hideEvent(CKyUIHideEvent* event) override;
};

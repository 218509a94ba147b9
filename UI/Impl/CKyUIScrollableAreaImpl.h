#pragma once

#include "UI/Impl/CKyUIBaseViewImpl.h"

// A scroll area holding one child view's widget.
class CKyUIScrollableAreaImpl : public CKyUIBaseViewImpl
{
public:
    explicit CKyUIScrollableAreaImpl(CKyUIObject* owner);
    ~CKyUIScrollableAreaImpl() override;

    QString GetFrontendClassName() override;
    void CreateFrontendControl() override;
    void AddViewImpl(CKyUIBaseView* view, float stretch) override;
    void RemoveViewImpl(CKyUIBaseView* view) override;
    // Switched on, the stored flags choose the scroll bars; switched off, the
    // toolkit's own policy is back.
    void SetInteractiveImpl(bool interactive) override;

    void SetHorizontalScrollingEnabled(bool enabled);
    bool HorizontalScrollingEnabled() const { return m_horizontalScrollingEnabled; }
    void SetVerticalScrollingEnabled(bool enabled);
    bool VerticalScrollingEnabled() const { return m_verticalScrollingEnabled; }

    // Only under the switch: otherwise the scroll bars keep the toolkit's own
    // policy, deliberately.
    void SetHorizontalScrollingEnabledImpl(bool enabled);
    void SetVerticalScrollingEnabledImpl(bool enabled);
    void ScrollToImpl(CKyUIBaseView* view);

private:
    bool m_horizontalScrollingEnabled = false;
    bool m_verticalScrollingEnabled = false;
};

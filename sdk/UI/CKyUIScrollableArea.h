#pragma once

#include "UI/CKyUIBaseView.h"

// Shows one child view, added with addView, inside a scrolling area that
// resizes the child with itself. A later addView replaces the shown child.
class COMMONUI_EXPORT CKyUIScrollableArea : public CKyUIBaseView
{
public:
    CKyUIScrollableArea();
    ~CKyUIScrollableArea() override;

    // Lets pending layout work finish, then scrolls the view into sight.
    void scrollTo(CKyUIBaseView* view);

    // The flags are only kept: the scroll bars keep the toolkit's own policy.
    void setHorizontalScrollingEnabled(bool enabled);
    bool horizontalScrollingEnabled() const;
    void setVerticalScrollingEnabled(bool enabled);
    bool verticalScrollingEnabled() const;
};

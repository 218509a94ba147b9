#pragma once

#include "UI/CKyUIBaseView.h"
#include "UI/CKyUISignal.h"

// A titled frame laying its child views out in one row or one column, with a
// thin black outline. Collapsing is bookkeeping only: it is stored and
// announced, and nothing is hidden.
class COMMONUI_EXPORT CKyUIGroupBox : public CKyUIBaseView
{
public:
    // Only Vertical (1) gives a column; every other value gives a row.
    enum Orientation : int {
        Horizontal = 0,
        Vertical = 1,
    };

    CKyUIGroupBox(Orientation orientation, bool useMargin);
    ~CKyUIGroupBox() override;

    void setTitle(const QString& title);
    // Contents margins of 5 on every side, or none.
    void UseMargin(bool use);
    void setContentsMargins(int left, int top, int right, int bottom);
    void setSpacing(int spacing);

    void setCollapsed(bool collapsed);
    bool isCollapsed() const;

    CKyUISignal<void(bool)>& onCollapsedStateChanged();
};

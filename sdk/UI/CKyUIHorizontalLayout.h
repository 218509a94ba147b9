#pragma once

#include "UI/CKyUIBaseView.h"

// Arranges child views in a row. Removing a view drops only the public link:
// its widget stays in the row.
class COMMONUI_EXPORT CKyUIHorizontalLayout : public CKyUIBaseView
{
public:
    CKyUIHorizontalLayout();
    ~CKyUIHorizontalLayout() override;

    void setTitle(const QString& title);
    // Contents margins of 5 on every side, or none.
    void UseMargin(bool use);
    void setContentsMargins(int left, int top, int right, int bottom);
    void setSpacing(int spacing);
};

#pragma once

#include "UI/CKyUIBaseView.h"

#include <QtWidgets/QLayout>

// Arranges child views in a column.
class COMMONUI_EXPORT CKyUIVerticalLayout : public CKyUIBaseView
{
public:
    CKyUIVerticalLayout();
    ~CKyUIVerticalLayout() override;

    void setTitle(const QString& title);
    // Contents margins of 5 on every side, or none.
    void UseMargin(bool use);
    void setContentsMargins(int left, int top, int right, int bottom);
    void setSpacing(int spacing);
    // Accepted and ignored.
    void setSizeConstraint(QLayout::SizeConstraint constraint);
};

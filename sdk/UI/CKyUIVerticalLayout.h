#pragma once

#include "UI/CKyUIBaseView.h"

#include <QtWidgets/QLayout>

/// Arranges child views in a column, ignoring setSizeConstraint() (see
/// \ref behaviours_containers "behaviours"). The dialog's root layout is one.
///
/// Add children with addView() and insertView(); the stretch is truncated
/// toward zero (2.7 gives 2), and each child gets a minimum vertical size
/// policy. Removing a view takes its widget out of the column too. A new
/// layout has no margins.
///
/// \image html containers.png "Box layouts among the containers"
class COMMONUI_EXPORT CKyUIVerticalLayout : public CKyUIBaseView
{
public:
    /// An empty column without margins.
    CKyUIVerticalLayout();
    ~CKyUIVerticalLayout() override;

    /// Kept, shown nowhere.
    void setTitle(const QString& title);
    /// Contents margins of 5 on every side, or none.
    void UseMargin(bool use);
    /// Sets the layout's contents margins.
    void setContentsMargins(int left, int top, int right, int bottom);
    /// Sets the spacing between children.
    void setSpacing(int spacing);
    /// Accepted and ignored.
    void setSizeConstraint(QLayout::SizeConstraint constraint);
};

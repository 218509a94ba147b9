#pragma once

#include "UI/CKyUIBaseView.h"

/// Arranges child views in a row, where a removed view's widget stays (see
/// \ref behaviours_containers "behaviours"). Removing a view drops only the
/// public link, unless the layout is interactive (see setInteractive()); then
/// the widget leaves the row as in a column.
///
/// Add children with addView() and insertView(); the stretch is truncated
/// toward zero (2.7 gives 2). A new layout has no margins.
///
/// \image html containers.png "Box layouts among the containers"
class COMMONUI_EXPORT CKyUIHorizontalLayout : public CKyUIBaseView
{
public:
    /// An empty row without margins.
    CKyUIHorizontalLayout();
    ~CKyUIHorizontalLayout() override;

    /// Kept, shown nowhere.
    void setTitle(const QString& title);
    /// Contents margins of 5 on every side, or none.
    void UseMargin(bool use);
    /// Sets the layout's contents margins.
    void setContentsMargins(int left, int top, int right, int bottom);
    /// Sets the spacing between children.
    void setSpacing(int spacing);
};

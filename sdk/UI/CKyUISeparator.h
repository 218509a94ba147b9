#pragma once

#include "UI/CKyUIBaseView.h"

/// A thin line that divides the rows of a column (horizontal) or the items
/// of a row (vertical). It takes no input.
///
/// \image html numbers-and-layout.png "Separators, among the other controls of the page"
class COMMONUI_EXPORT CKyUISeparator : public CKyUIBaseView
{
public:
    /// A line of one pixel, across (Qt::Horizontal, as between the rows of a
    /// column) or upright (Qt::Vertical).
    explicit CKyUISeparator(Qt::Orientation orientation = Qt::Horizontal);
    ~CKyUISeparator() override;

    /// The direction the line runs in.
    Qt::Orientation orientation() const;
};

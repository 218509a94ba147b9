#pragma once

#include "UI/CKyUIBaseView.h"

/// Views placed in the cells of a grid of rows and columns; a view may span
/// several cells and sit aligned in its cell.
///
/// Rows and columns count from 0; a grid has as many as its views reach
/// (up to 1000 of each; a cell further out is taken as the last one).
/// Columns share extra width by their stretch (setColumnStretch()), rows
/// extra height by theirs. The layout has no border, margins of 0 and the
/// toolkit's spacing, like the box layouts.
///
/// The plain addView() of every view puts the view in a new row below the
/// others, across all columns, with the stretch as that row's stretch;
/// insertView() does the same, since a grid has no order of views.
///
/// \code
/// auto* grid = new CKyUIGridLayout;
/// grid->addView(widthLabel, 0, 0);
/// grid->addView(widthField, 0, 1);
/// grid->addView(heightLabel, 1, 0);
/// grid->addView(heightField, 1, 1);
/// grid->addView(preview, 0, 2, 2, 1); // two rows high
/// grid->setColumnStretch(1, 1);
/// \endcode
///
/// \image html numbers-and-layout.png "A grid and a form, among the other controls of the page"
class COMMONUI_EXPORT CKyUIGridLayout : public CKyUIBaseView
{
public:
    /// An empty grid.
    CKyUIGridLayout();
    ~CKyUIGridLayout() override;

    using CKyUIBaseView::addView;
    /// Makes @p view a child of this grid and places it at @p row and
    /// @p column, over @p rowSpan rows and @p columnSpan columns (at least
    /// one each), aligned in its cells as @p alignment says (the default
    /// fills them). As with addView(), a view that already has a parent is
    /// ignored. Two views may share a cell; they overlap.
    void addView(CKyUIBaseView* view, int row, int column, int rowSpan = 1, int columnSpan = 1,
                 Qt::Alignment alignment = Qt::Alignment());

    /// How much of the extra width @p column takes, relative to the other
    /// columns; 0 (none) unless set.
    void setColumnStretch(int column, int stretch);
    /// The stretch of @p column.
    int columnStretch(int column) const;
    /// How much of the extra height @p row takes; 0 unless set.
    void setRowStretch(int row, int stretch);
    /// The stretch of @p row.
    int rowStretch(int row) const;

    /// The number of rows the views reach.
    int rowCount() const;
    /// The number of columns the views reach.
    int columnCount() const;

    /// Room between neighbouring cells, across and down alike, in pixels.
    void setSpacing(int spacing);
    /// Room between columns.
    void setHorizontalSpacing(int spacing);
    /// Room between rows.
    void setVerticalSpacing(int spacing);
    /// Room between the grid's edge and its cells.
    void setContentsMargins(int left, int top, int right, int bottom);
};

#include "UI/CKyUIGridLayout.h"

#include "UI/Impl/CKyUIGridLayoutImpl.h"

CKyUIGridLayout::CKyUIGridLayout()
{
    createImpl<CKyUIGridLayoutImpl>(this);
}

CKyUIGridLayout::~CKyUIGridLayout() = default;

void CKyUIGridLayout::addView(CKyUIBaseView* view, int row, int column, int rowSpan, int columnSpan,
                              Qt::Alignment alignment)
{
    // The common path keeps the tree, the checks and the interactive switch;
    // the cell tells it where the view goes.
    auto* impl = implAs<CKyUIGridLayoutImpl>();
    impl->SetNextCell({row, column, rowSpan, columnSpan, alignment});
    CKyUIBaseView::addView(view);
    impl->ClearNextCell();
}

void CKyUIGridLayout::setColumnStretch(int column, int stretch)
{
    implAs<CKyUIGridLayoutImpl>()->SetColumnStretch(column, stretch);
}

int CKyUIGridLayout::columnStretch(int column) const
{
    return implAs<CKyUIGridLayoutImpl>()->ColumnStretch(column);
}

void CKyUIGridLayout::setRowStretch(int row, int stretch)
{
    implAs<CKyUIGridLayoutImpl>()->SetRowStretch(row, stretch);
}

int CKyUIGridLayout::rowStretch(int row) const
{
    return implAs<CKyUIGridLayoutImpl>()->RowStretch(row);
}

int CKyUIGridLayout::rowCount() const
{
    return implAs<CKyUIGridLayoutImpl>()->RowCount();
}

int CKyUIGridLayout::columnCount() const
{
    return implAs<CKyUIGridLayoutImpl>()->ColumnCount();
}

void CKyUIGridLayout::setSpacing(int spacing)
{
    setHorizontalSpacing(spacing);
    setVerticalSpacing(spacing);
}

void CKyUIGridLayout::setHorizontalSpacing(int spacing)
{
    implAs<CKyUIGridLayoutImpl>()->SetHorizontalSpacingImpl(spacing);
}

void CKyUIGridLayout::setVerticalSpacing(int spacing)
{
    implAs<CKyUIGridLayoutImpl>()->SetVerticalSpacingImpl(spacing);
}

void CKyUIGridLayout::setContentsMargins(int left, int top, int right, int bottom)
{
    implAs<CKyUIGridLayoutImpl>()->SetContentsMarginsImpl(left, top, right, bottom);
}

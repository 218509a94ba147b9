#include "UI/Impl/CKyUIGridLayoutImpl.h"

namespace
{
int InGrid(int index)
{
    return index < 0
               ? 0
               : (index >= CKyUIGridLayoutImpl::kMostCells ? CKyUIGridLayoutImpl::kMostCells - 1 : index);
}

int SpanFrom(int start, int span)
{
    const int most = CKyUIGridLayoutImpl::kMostCells - start;
    return span < 1 ? 1 : (span > most ? most : span);
}
} // namespace

CKyUIGridLayoutImpl::CKyUIGridLayoutImpl(CKyUIObject* owner)
    : CKyUIBaseViewImpl(owner)
{}

QString CKyUIGridLayoutImpl::GetFrontendClassName()
{
    return QStringLiteral("QGridLayout");
}

void CKyUIGridLayoutImpl::SetNextCell(const Cell& cell)
{
    m_nextCell = cell;
    m_nextCell.row = InGrid(cell.row);
    m_nextCell.column = InGrid(cell.column);
    m_nextCell.rowSpan = SpanFrom(m_nextCell.row, cell.rowSpan);
    m_nextCell.columnSpan = SpanFrom(m_nextCell.column, cell.columnSpan);
    m_hasNextCell = true;
}

void CKyUIGridLayoutImpl::AddViewImpl(CKyUIBaseView* view, float stretch)
{
    Cell cell = m_nextCell;
    if (!m_hasNextCell) {
        cell = Cell();
        cell.row = InGrid(m_rows);
        cell.columnSpan = m_columns > 0 ? m_columns : 1;
        SetRowStretch(cell.row, static_cast<int>(stretch));
    }
    m_rows = qMax(m_rows, cell.row + cell.rowSpan);
    m_columns = qMax(m_columns, cell.column + cell.columnSpan);
    PlaceImpl(view, cell);
}

void CKyUIGridLayoutImpl::InsertViewImpl(CKyUIBaseView* view, int, float stretch)
{
    AddViewImpl(view, stretch);
}

void CKyUIGridLayoutImpl::SetColumnStretch(int column, int stretch)
{
    if (column < 0 || column >= kMostCells)
        return;
    m_columnStretch[column] = stretch;
    SetColumnStretchImpl(column, stretch);
}

void CKyUIGridLayoutImpl::SetRowStretch(int row, int stretch)
{
    if (row < 0 || row >= kMostCells)
        return;
    m_rowStretch[row] = stretch;
    SetRowStretchImpl(row, stretch);
}

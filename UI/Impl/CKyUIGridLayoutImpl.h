#pragma once

#include "UI/Impl/CKyUIBaseViewImpl.h"

#include <QtCore/QMap>

class QGridLayout;

// A borderless group box carrying a grid layout. Remembers how far its views
// reach and the stretches it was given.
class CKyUIGridLayoutImpl : public CKyUIBaseViewImpl
{
public:
    struct Cell
    {
        int row = 0;
        int column = 0;
        int rowSpan = 1;
        int columnSpan = 1;
        Qt::Alignment alignment;
    };

    explicit CKyUIGridLayoutImpl(CKyUIObject* owner);

    QString GetFrontendClassName() override;
    void CreateFrontendControl() override;
    // Without a cell given first, a view goes in a new row across the
    // columns, and the stretch is that row's.
    void AddViewImpl(CKyUIBaseView* view, float stretch) override;
    void InsertViewImpl(CKyUIBaseView* view, int index, float stretch) override;
    void RemoveViewImpl(CKyUIBaseView* view) override;

    // Where the next view added goes; cleared after the add.
    void SetNextCell(const Cell& cell);
    void ClearNextCell() { m_hasNextCell = false; }

    void SetColumnStretch(int column, int stretch);
    int ColumnStretch(int column) const { return m_columnStretch.value(column, 0); }
    void SetRowStretch(int row, int stretch);
    int RowStretch(int row) const { return m_rowStretch.value(row, 0); }
    int RowCount() const { return m_rows; }
    int ColumnCount() const { return m_columns; }

    void PlaceImpl(CKyUIBaseView* view, const Cell& cell);
    void SetColumnStretchImpl(int column, int stretch);
    void SetRowStretchImpl(int row, int stretch);
    void SetHorizontalSpacingImpl(int spacing);
    void SetVerticalSpacingImpl(int spacing);
    void SetContentsMarginsImpl(int left, int top, int right, int bottom);

    // Rows and columns beyond stay unused: the toolkit keeps an entry for
    // every row and column up to the last one used.
    static constexpr int kMostCells = 1000;

private:
    QGridLayout* GetGridLayout() const;

    Cell m_nextCell;
    bool m_hasNextCell = false;
    int m_rows = 0;
    int m_columns = 0;
    QMap<int, int> m_columnStretch;
    QMap<int, int> m_rowStretch;
};

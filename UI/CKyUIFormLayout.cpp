#include "UI/CKyUIFormLayout.h"

#include "UI/CKyUILabel.h"

CKyUIFormLayout::CKyUIFormLayout()
{
    setColumnStretch(1, 1);
}

CKyUIFormLayout::~CKyUIFormLayout() = default;

CKyUILabel* CKyUIFormLayout::addRow(const QString& label, CKyUIBaseView* field)
{
    auto* caption = new CKyUILabel;
    caption->setText(label);
    addRow(caption, field);
    return caption;
}

void CKyUIFormLayout::addRow(CKyUIBaseView* label, CKyUIBaseView* field)
{
    const int row = rowCount();
    addView(label, row, 0, 1, 1, Qt::AlignLeft | Qt::AlignVCenter);
    addView(field, row, 1);
}

void CKyUIFormLayout::addRow(CKyUIBaseView* view)
{
    addView(view, rowCount(), 0, 1, 2);
}

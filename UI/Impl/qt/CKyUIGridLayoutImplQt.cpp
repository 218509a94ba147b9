#include "UI/Impl/CKyUIGridLayoutImpl.h"

#include "UI/CKyUIBaseView.h"

#include <QtWidgets/QGridLayout>
#include <QtWidgets/QGroupBox>

void CKyUIGridLayoutImpl::CreateFrontendControl()
{
    auto* box = new QGroupBox;
    box->setStyleSheet(QStringLiteral("QGroupBox { border: none; padding: 0px; }"));
    owner()->setHandle(box);
    auto* grid = new QGridLayout(box);
    grid->setContentsMargins(0, 0, 0, 0);
}

QGridLayout* CKyUIGridLayoutImpl::GetGridLayout() const
{
    auto* box = qobject_cast<QGroupBox*>(owner()->getHandle());
    return box ? qobject_cast<QGridLayout*>(box->layout()) : nullptr;
}

void CKyUIGridLayoutImpl::PlaceImpl(CKyUIBaseView* view, const Cell& cell)
{
    // Radio groups have no widget and take no cell.
    QGridLayout* grid = GetGridLayout();
    QWidget* widget = WidgetOf(view);
    if (grid && widget && widget != owner()->getHandle())
        grid->addWidget(widget, cell.row, cell.column, cell.rowSpan, cell.columnSpan, cell.alignment);
}

void CKyUIGridLayoutImpl::RemoveViewImpl(CKyUIBaseView* view)
{
    // A null widget would match every spacer and nested layout.
    QGridLayout* grid = GetGridLayout();
    QWidget* widget = WidgetOf(view);
    if (grid && widget)
        grid->removeWidget(widget);
}

void CKyUIGridLayoutImpl::SetColumnStretchImpl(int column, int stretch)
{
    if (QGridLayout* grid = GetGridLayout())
        grid->setColumnStretch(column, stretch);
}

void CKyUIGridLayoutImpl::SetRowStretchImpl(int row, int stretch)
{
    if (QGridLayout* grid = GetGridLayout())
        grid->setRowStretch(row, stretch);
}

void CKyUIGridLayoutImpl::SetHorizontalSpacingImpl(int spacing)
{
    if (QGridLayout* grid = GetGridLayout())
        grid->setHorizontalSpacing(spacing);
}

void CKyUIGridLayoutImpl::SetVerticalSpacingImpl(int spacing)
{
    if (QGridLayout* grid = GetGridLayout())
        grid->setVerticalSpacing(spacing);
}

void CKyUIGridLayoutImpl::SetContentsMarginsImpl(int left, int top, int right, int bottom)
{
    if (QGridLayout* grid = GetGridLayout())
        grid->setContentsMargins(left, top, right, bottom);
}

#include "UI/Impl/CKyUIListBoxImpl.h"

#include "UI/CKyUIObject.h"

#include <QtCore/QItemSelectionModel>
#include <QtWidgets/QListWidget>

namespace
{
// The list's widget while the list follows its user, else null.
QListWidget* ShownList(const CKyUIObject* owner)
{
    return owner->isInteractive() ? qobject_cast<QListWidget*>(owner->getHandle()) : nullptr;
}

QList<int> RowsOf(const QItemSelection& selection)
{
    QList<int> rows;
    for (const QModelIndex& index : selection.indexes())
        rows << index.row();
    return rows;
}
} // namespace

void CKyUIListBoxImpl::CreateFrontendControl()
{
    auto* list = new QListWidget(nullptr);
    list->setStyleSheet(QStringLiteral("QListWidget { }"));
    owner()->setHandle(list);
}

void CKyUIListBoxImpl::AddItemImpl(const QString& text)
{
    // The widget shows the model only while the list follows its user.
    if (QListWidget* list = ShownList(owner()))
        list->addItem(text);
}

void CKyUIListBoxImpl::ClearImpl()
{
    if (QListWidget* list = ShownList(owner()))
        list->clear();
}

void CKyUIListBoxImpl::SetItemSelectedImpl(int row, bool selected)
{
    QListWidget* list = ShownList(owner());
    if (QListWidgetItem* item = list ? list->item(row) : nullptr)
        item->setSelected(selected);
}

void CKyUIListBoxImpl::ClearSelectionImpl()
{
    if (QListWidget* list = ShownList(owner()))
        list->clearSelection();
}

void CKyUIListBoxImpl::SetItemTextImpl(int row, const QString& text)
{
    QListWidget* list = ShownList(owner());
    if (QListWidgetItem* item = list ? list->item(row) : nullptr)
        item->setText(text);
}

void CKyUIListBoxImpl::SetInteractiveImpl(bool interactive)
{
    CKyUIBaseViewImpl::SetInteractiveImpl(interactive);
    QListWidget* list = ShownList(owner());
    if (!interactive || !list)
        return;
    // The model may hold several selected items; so may the widget then.
    list->setSelectionMode(QAbstractItemView::ExtendedSelection);
    bool same = list->count() == m_items.size();
    for (int row = 0; same && row < m_items.size(); ++row)
        same = list->item(row)->text() == m_items.at(row);
    if (!same) {
        list->clear();
        list->addItems(m_items);
    }
    for (int row = 0; row < m_itemDefs.size(); ++row) {
        if (list->item(row)->isSelected() != m_itemDefs.at(row).selected)
            list->item(row)->setSelected(m_itemDefs.at(row).selected);
    }
    if (IsRow(m_currentRow))
        list->setCurrentRow(m_currentRow, QItemSelectionModel::NoUpdate);
    else
        m_currentRow = -1;
    // The current row is set before the selection is reported.
    LinkUserInput(
        QObject::connect(list->selectionModel(), &QItemSelectionModel::selectionChanged, list,
                         [this, list](const QItemSelection& selected, const QItemSelection& deselected) {
                             OnSelectionShown(RowsOf(selected), RowsOf(deselected), list->currentRow());
                         }));
    LinkUserInput(QObject::connect(list, &QListWidget::currentRowChanged, list,
                                   [this](int row) { OnCurrentRowShown(row); }));
}

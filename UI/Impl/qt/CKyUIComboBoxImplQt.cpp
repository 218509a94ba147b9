#include "UI/Impl/CKyUIComboBoxImpl.h"

#include "UI/CKyUIObject.h"

#include <QtCore/QAbstractItemModel>
#include <QtGui/QValidator>
#include <QtWidgets/QComboBox>
#include <QtWidgets/QLineEdit>
#include <QtWidgets/QListView>

namespace
{
QComboBox* ComboBoxOf(const CKyUIObject* owner)
{
    return qobject_cast<QComboBox*>(owner->getHandle());
}
} // namespace

void CKyUIComboBoxImpl::CreateFrontendControl()
{
    auto* comboBox = new QComboBox;
    comboBox->setStyleSheet(QStringLiteral("QComboBox { }"));
    // A fixed 100 by 25 box; the theme draws the arrow.
    comboBox->setMinimumWidth(100);
    comboBox->setMaximumWidth(100);
    comboBox->setMinimumHeight(25);
    comboBox->setMaximumHeight(25);
    owner()->setHandle(comboBox);
}

void CKyUIComboBoxImpl::ClearImpl()
{
    if (QComboBox* comboBox = ComboBoxOf(owner()))
        comboBox->clear();
}

void CKyUIComboBoxImpl::AddItemImpl(const QIcon& icon, const QString& text)
{
    if (QComboBox* comboBox = ComboBoxOf(owner()))
        comboBox->insertItem(comboBox->count(), icon, text, QVariant());
}

void CKyUIComboBoxImpl::InsertItemImpl(int index, const QString& text)
{
    if (QComboBox* comboBox = ComboBoxOf(owner()))
        comboBox->insertItem(index, QIcon(), text, QVariant());
}

void CKyUIComboBoxImpl::InsertItemImpl(int index, const QIcon& icon, const QString& text)
{
    if (QComboBox* comboBox = ComboBoxOf(owner()))
        comboBox->insertItem(index, icon, text, QVariant());
}

void CKyUIComboBoxImpl::RemoveItemImpl(int index)
{
    if (QComboBox* comboBox = ComboBoxOf(owner()))
        comboBox->removeItem(index);
}

void CKyUIComboBoxImpl::SetEditableImpl(bool editable)
{
    if (QComboBox* comboBox = ComboBoxOf(owner()))
        comboBox->setEditable(editable);
    if (!owner()->isInteractive())
        return;
    // A new edit field each time the box becomes editable.
    LinkEditFieldImpl();
    if (m_validator)
        SetValidatorImpl(m_validator);
}

void CKyUIComboBoxImpl::SetEditTextImpl(const QString& text)
{
    // Shown only while the box is editable.
    if (QComboBox* comboBox = ComboBoxOf(owner()))
        comboBox->setEditText(text);
}

void CKyUIComboBoxImpl::SetCurrentIndexImpl(int index)
{
    if (QComboBox* comboBox = ComboBoxOf(owner()))
        comboBox->setCurrentIndex(index);
}

void CKyUIComboBoxImpl::SetItemTextImpl(int index, const QString& text)
{
    if (QComboBox* comboBox = ComboBoxOf(owner()))
        comboBox->setItemText(index, text);
}

void CKyUIComboBoxImpl::ClearEditTextImpl()
{
    if (QComboBox* comboBox = ComboBoxOf(owner()))
        comboBox->clearEditText();
}

void CKyUIComboBoxImpl::AddItemImpl(const QString& text)
{
    // Without an icon the item reaches the widget only while the box follows
    // its user; otherwise the model alone has it.
    if (owner()->isInteractive())
        AddItemImpl(QIcon(), text);
}

void CKyUIComboBoxImpl::SetHideEmptyTextImpl(bool)
{
    if (owner()->isInteractive())
        HideEmptyRowsImpl();
}

void CKyUIComboBoxImpl::SetIconSizeImpl(QSize size)
{
    QComboBox* comboBox = ComboBoxOf(owner());
    if (comboBox && owner()->isInteractive() && size.isValid())
        comboBox->setIconSize(size);
}

void CKyUIComboBoxImpl::SetMaxVisibleItemsImpl(int count)
{
    QComboBox* comboBox = ComboBoxOf(owner());
    if (comboBox && owner()->isInteractive() && count >= 0)
        comboBox->setMaxVisibleItems(count);
}

void CKyUIComboBoxImpl::SetInsertPolicyImpl(int policy)
{
    // The enumerators are the toolkit's own, in its order.
    QComboBox* comboBox = ComboBoxOf(owner());
    if (comboBox && owner()->isInteractive() && policy >= QComboBox::NoInsert &&
        policy <= QComboBox::InsertAlphabetically)
        comboBox->setInsertPolicy(static_cast<QComboBox::InsertPolicy>(policy));
}

void CKyUIComboBoxImpl::SetValidatorImpl(const QValidator* validator)
{
    // Reaches only an edit field that exists; becoming editable applies it again.
    QComboBox* comboBox = ComboBoxOf(owner());
    if (comboBox && owner()->isInteractive())
        comboBox->setValidator(validator);
}

void CKyUIComboBoxImpl::HideEmptyRowsImpl()
{
    QComboBox* comboBox = ComboBoxOf(owner());
    auto* view = qobject_cast<QListView*>(comboBox ? comboBox->view() : nullptr);
    if (!view)
        return;
    for (int row = 0; row < comboBox->count(); ++row)
        view->setRowHidden(row, m_hideEmptyText && comboBox->itemText(row).isEmpty());
}

void CKyUIComboBoxImpl::MirrorModelImpl()
{
    QComboBox* comboBox = ComboBoxOf(owner());
    bool same = comboBox->count() == m_items.size();
    for (int i = 0; same && i < m_items.size(); ++i)
        same = comboBox->itemText(i) == std::get<1>(m_items.at(i));
    if (!same) {
        comboBox->clear();
        for (const Item& item : m_items)
            comboBox->insertItem(comboBox->count(), std::get<0>(item), std::get<1>(item), QVariant());
    }
    // The program's choice wins; without one, the model takes what is shown.
    if (InRange(m_currentIndex)) {
        comboBox->setCurrentIndex(m_currentIndex);
    } else {
        m_currentIndex = comboBox->currentIndex();
        if (m_currentIndex >= 0)
            m_currentText = ItemText(m_currentIndex);
    }
}

void CKyUIComboBoxImpl::AdoptWidgetRowsImpl()
{
    QComboBox* comboBox = ComboBoxOf(owner());
    if (m_widgetRowsFirst < 0 || !comboBox)
        return;
    QStringList texts;
    for (int row = m_widgetRowsFirst; row <= m_widgetRowsLast; ++row)
        texts << comboBox->itemText(row);
    OnRowsAdded(m_widgetRowsFirst, texts);
    m_widgetRowsFirst = m_widgetRowsLast = -1;
}

void CKyUIComboBoxImpl::LinkEditFieldImpl()
{
    QComboBox* comboBox = ComboBoxOf(owner());
    QLineEdit* field = comboBox ? comboBox->lineEdit() : nullptr;
    if (!field || field == m_linkedEditField)
        return;
    m_linkedEditField = field;
    // Typing only: the program's own edits report through its setters.
    LinkUserInput(QObject::connect(field, &QLineEdit::textEdited, field,
                                   [this](const QString& text) { OnEditTextChanged(text); }));
    LinkUserInput(
        QObject::connect(field, &QLineEdit::editingFinished, field, [this] { OnEditingFinished(); }));
}

void CKyUIComboBoxImpl::SetInteractiveImpl(bool interactive)
{
    CKyUIBaseViewImpl::SetInteractiveImpl(interactive);
    m_linkedEditField = nullptr;
    m_widgetRowsFirst = m_widgetRowsLast = -1;
    QComboBox* comboBox = ComboBoxOf(owner());
    if (!interactive || !comboBox)
        return;
    MirrorModelImpl();
    SetIconSizeImpl(m_iconSize);
    SetMaxVisibleItemsImpl(m_maxVisibleItems);
    SetInsertPolicyImpl(m_insertPolicy);
    if (m_hideEmptyText)
        HideEmptyRowsImpl();
    LinkEditFieldImpl();
    if (m_validator)
        SetValidatorImpl(m_validator);

    QAbstractItemModel* model = comboBox->model();
    // Rows the widget inserts by itself come while both hold as many rows;
    // the program's own come after the model has grown.
    LinkUserInput(QObject::connect(model, &QAbstractItemModel::rowsAboutToBeInserted, comboBox,
                                   [this, comboBox](const QModelIndex&, int first, int last) {
                                       if (comboBox->count() == m_items.size()) {
                                           m_widgetRowsFirst = first;
                                           m_widgetRowsLast = last;
                                       }
                                   }));
    LinkUserInput(QObject::connect(model, &QAbstractItemModel::rowsInserted, comboBox, [this] {
        AdoptWidgetRowsImpl();
        if (m_hideEmptyText)
            HideEmptyRowsImpl();
    }));
    LinkUserInput(
        QObject::connect(model, &QAbstractItemModel::dataChanged, comboBox,
                         [this, comboBox](const QModelIndex& topLeft, const QModelIndex& bottomRight) {
                             for (int row = topLeft.row(); row <= bottomRight.row(); ++row)
                                 OnRowRenamed(row, comboBox->itemText(row));
                             if (m_hideEmptyText)
                                 HideEmptyRowsImpl();
                         }));
    // The widget reports a new index before the rows that caused it, so the
    // model takes them in first.
    LinkUserInput(QObject::connect(comboBox, QOverload<int>::of(&QComboBox::currentIndexChanged), comboBox,
                                   [this](int index) {
                                       AdoptWidgetRowsImpl();
                                       OnIndexShown(index);
                                   }));
    LinkUserInput(QObject::connect(comboBox, QOverload<int>::of(&QComboBox::activated), comboBox,
                                   [this](int index) { OnActivated(index); }));
}

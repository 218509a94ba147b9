#include "UI/Impl/CKyUIComboBoxImpl.h"

#include <QtWidgets/QComboBox>

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

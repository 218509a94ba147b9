#include "UI/CKyUIComboBox.h"

#include "UI/Impl/CKyUIComboBoxImpl.h"

CKyUIComboBox::CKyUIComboBox()
{
    createImpl<CKyUIComboBoxImpl>(this);
    setEditable(false);
}

CKyUIComboBox::~CKyUIComboBox() = default;

void CKyUIComboBox::setEditable(bool editable)
{
    implAs<CKyUIComboBoxImpl>()->SetEditable(editable);
}

bool CKyUIComboBox::isEditable() const
{
    return implAs<CKyUIComboBoxImpl>()->IsEditable();
}

void CKyUIComboBox::addItem(const QString& text, const QVariant& data)
{
    implAs<CKyUIComboBoxImpl>()->AddItem(text, data);
}

void CKyUIComboBox::addItem(const QIcon& icon, const QString& text, const QVariant& data)
{
    implAs<CKyUIComboBoxImpl>()->AddItem(icon, text, data);
}

void CKyUIComboBox::insertItem(int index, const QString& text, const QVariant& data)
{
    implAs<CKyUIComboBoxImpl>()->InsertItem(index, text, data);
}

void CKyUIComboBox::insertItem(int index, const QIcon& icon, const QString& text, const QVariant& data)
{
    implAs<CKyUIComboBoxImpl>()->InsertItem(index, icon, text, data);
}

void CKyUIComboBox::insertItems(int index, const QStringList& texts)
{
    implAs<CKyUIComboBoxImpl>()->InsertItems(index, texts);
}

void CKyUIComboBox::removeItem(int index)
{
    implAs<CKyUIComboBoxImpl>()->RemoveItem(index);
}

void CKyUIComboBox::clear()
{
    implAs<CKyUIComboBoxImpl>()->Clear();
}

int CKyUIComboBox::count() const
{
    return implAs<CKyUIComboBoxImpl>()->Count();
}

QString CKyUIComboBox::itemText(int index) const
{
    return implAs<CKyUIComboBoxImpl>()->ItemText(index);
}

QVariant CKyUIComboBox::itemData(int index, int) const
{
    return implAs<CKyUIComboBoxImpl>()->ItemData(index, Qt::UserRole);
}

void CKyUIComboBox::setItemData(int index, const QVariant& value, int role)
{
    implAs<CKyUIComboBoxImpl>()->SetItemData(index, value, role);
}

void CKyUIComboBox::setItemText(int index, const QString& text)
{
    implAs<CKyUIComboBoxImpl>()->SetItemText(index, text);
}

int CKyUIComboBox::findText(const QString& text, Qt::MatchFlags) const
{
    return implAs<CKyUIComboBoxImpl>()->FindText(text, Qt::MatchCaseSensitive);
}

int CKyUIComboBox::findData(const QVariant& value, int role, Qt::MatchFlags flags) const
{
    return implAs<CKyUIComboBoxImpl>()->FindData(value, role, flags);
}

void CKyUIComboBox::setCurrentIndex(int index)
{
    implAs<CKyUIComboBoxImpl>()->SetCurrentIndex(index);
}

int CKyUIComboBox::currentIndex() const
{
    return implAs<CKyUIComboBoxImpl>()->CurrentIndex();
}

void CKyUIComboBox::setCurrentText(const QString& text)
{
    implAs<CKyUIComboBoxImpl>()->SetCurrentText(text);
}

QString CKyUIComboBox::currentText() const
{
    return implAs<CKyUIComboBoxImpl>()->CurrentText();
}

void CKyUIComboBox::setEditText(const QString& text)
{
    implAs<CKyUIComboBoxImpl>()->SetEditText(text);
}

void CKyUIComboBox::clearEditText()
{
    implAs<CKyUIComboBoxImpl>()->ClearEditText();
}

void CKyUIComboBox::setHideEmptyText(bool hide)
{
    implAs<CKyUIComboBoxImpl>()->SetHideEmptyText(hide);
}

void CKyUIComboBox::setIconSize(QSize size)
{
    implAs<CKyUIComboBoxImpl>()->SetIconSize(size);
}

void CKyUIComboBox::setMaxVisibleItems(int count)
{
    implAs<CKyUIComboBoxImpl>()->SetMaxVisibleItems(count);
}

void CKyUIComboBox::setInsertPolicy(InsertPolicy policy)
{
    implAs<CKyUIComboBoxImpl>()->SetInsertPolicy(policy);
}

void CKyUIComboBox::setValidator(const QValidator* validator)
{
    implAs<CKyUIComboBoxImpl>()->SetValidator(validator);
}

CKyUISignal<void(int)>& CKyUIComboBox::activated()
{
    return implAs<CKyUIComboBoxImpl>()->activated;
}

CKyUISignal<void(int)>& CKyUIComboBox::currentIndexChanged()
{
    return implAs<CKyUIComboBoxImpl>()->currentIndexChanged;
}

CKyUISignal<void(const QString&)>& CKyUIComboBox::currentStringChanged()
{
    return implAs<CKyUIComboBoxImpl>()->currentStringChanged;
}

CKyUISignal<void(const QString&)>& CKyUIComboBox::currentTextChanged()
{
    return implAs<CKyUIComboBoxImpl>()->currentStringChanged;
}

CKyUISignal<void(const QString&)>& CKyUIComboBox::editTextChanged()
{
    return implAs<CKyUIComboBoxImpl>()->editTextChanged;
}

CKyUISignal<void()>& CKyUIComboBox::editingFinished()
{
    return implAs<CKyUIComboBoxImpl>()->editingFinished;
}

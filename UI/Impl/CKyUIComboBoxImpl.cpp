#include "UI/Impl/CKyUIComboBoxImpl.h"

#include "UI/CKyUIObject.h"
#include "UI/Impl/KySettingsStore.h"

#include <QtGui/QValidator>

#include <algorithm>

CKyUIComboBoxImpl::CKyUIComboBoxImpl(CKyUIObject* owner)
    : CKyUIBaseViewImpl(owner)
    , activated(owner)
    , currentIndexChanged(owner)
    , currentStringChanged(owner)
    , editTextChanged(owner)
    , editingFinished(owner)
{}

CKyUIComboBoxImpl::~CKyUIComboBoxImpl() = default;

QString CKyUIComboBoxImpl::GetFrontendClassName()
{
    return QStringLiteral("QComboBox");
}

void CKyUIComboBoxImpl::SetEditable(bool editable)
{
    m_editable = editable;
    SetEditableImpl(editable);
}

void CKyUIComboBoxImpl::AddItem(const QString& text, const QVariant& data)
{
    m_items.append(Item(QIcon(), text, data));
    // Reaches nothing: from here on the model and the widget's list differ.
    AddItemImpl(text);
}

void CKyUIComboBoxImpl::AddItem(const QIcon& icon, const QString& text, const QVariant& data)
{
    m_items.append(Item(icon, text, data));
    AddItemImpl(icon, text);
}

void CKyUIComboBoxImpl::InsertItem(int index, const QString& text, const QVariant& data)
{
    m_items.insert(InsertPosition(index), Item(QIcon(), text, data));
    InsertItemImpl(index, text);
}

void CKyUIComboBoxImpl::InsertItem(int index, const QIcon& icon, const QString& text, const QVariant& data)
{
    m_items.insert(InsertPosition(index), Item(icon, text, data));
    InsertItemImpl(index, icon, text);
}

void CKyUIComboBoxImpl::InsertItems(int index, const QStringList& texts)
{
    // Where the first one goes anyway; counting on from a position far past
    // the end could overflow.
    index = InsertPosition(index);
    for (const QString& text : texts)
        InsertItem(index++, text, QVariant());
}

void CKyUIComboBoxImpl::RemoveItem(int index)
{
    if (!InRange(index))
        return;
    m_items.remove(index);
    RemoveItemImpl(index);
}

void CKyUIComboBoxImpl::Clear()
{
    // The current index and text stay as they were.
    m_items.clear();
    ClearImpl();
}

QString CKyUIComboBoxImpl::ItemText(int index) const
{
    return InRange(index) ? std::get<1>(m_items.at(index)) : QString();
}

QVariant CKyUIComboBoxImpl::ItemData(int index, int) const
{
    return InRange(index) ? std::get<2>(m_items.at(index)) : QVariant();
}

void CKyUIComboBoxImpl::SetItemData(int index, const QVariant& value, int)
{
    if (InRange(index))
        std::get<2>(m_items[index]) = value;
}

int CKyUIComboBoxImpl::FindText(const QString& text, Qt::MatchFlags) const
{
    for (int i = 0; i < m_items.size(); ++i) {
        if (QString::compare(std::get<1>(m_items.at(i)), text, Qt::CaseSensitive) == 0)
            return i;
    }
    return -1;
}

int CKyUIComboBoxImpl::FindData(const QVariant& value, int, Qt::MatchFlags) const
{
    for (int i = 0; i < m_items.size(); ++i) {
        if (std::get<2>(m_items.at(i)) == value)
            return i;
    }
    return -1;
}

void CKyUIComboBoxImpl::setItemText(int index, const QString& text)
{
    SetItemTextImpl(index, text);
}

void CKyUIComboBoxImpl::SetCurrentIndex(int index)
{
    if (!InRange(index))
        return;
    if (index != m_currentIndex) {
        m_currentIndex = index;
        m_currentText = std::get<1>(m_items.at(index));
        const QString text = m_currentText;
        if (!EmitInOrder([&] { currentIndexChanged.Emit(index); }, [&] { currentStringChanged.Emit(text); }))
            return;
    }
    // Also when unchanged: the user may have picked another entry on screen.
    SetCurrentIndexImpl(m_currentIndex);
}

void CKyUIComboBoxImpl::SetCurrentText(const QString& text)
{
    if (m_currentText == text)
        return;
    m_currentText = text;
    SetEditTextImpl(m_currentText);
    currentStringChanged.Emit(text);
}

void CKyUIComboBoxImpl::SetEditText(const QString& text)
{
    m_currentText = text;
    SetEditTextImpl(m_currentText);
}

void CKyUIComboBoxImpl::ClearEditText()
{
    // The model's text only; the widget keeps what it shows.
    m_currentText.clear();
}

void CKyUIComboBoxImpl::SetIconSize(QSize size)
{
    m_iconSize = size;
    SetIconSizeImpl(size);
}

void CKyUIComboBoxImpl::SetMaxVisibleItems(int count)
{
    m_maxVisibleItems = count;
    SetMaxVisibleItemsImpl(count);
}

void CKyUIComboBoxImpl::SetItemText(int index, const QString& text)
{
    // Ignored unless the box follows its user.
    if (!owner()->isInteractive() || !InRange(index))
        return;
    std::get<1>(m_items[index]) = text;
    SetItemTextImpl(index, text);
    if (index != m_currentIndex || m_currentText == text)
        return;
    m_currentText = text;
    currentStringChanged.Emit(text);
}

void CKyUIComboBoxImpl::SetHideEmptyText(bool hide)
{
    m_hideEmptyText = hide;
    SetHideEmptyTextImpl(hide);
}

void CKyUIComboBoxImpl::SetInsertPolicy(int policy)
{
    m_insertPolicy = policy;
    SetInsertPolicyImpl(policy);
}

void CKyUIComboBoxImpl::SetValidator(const QValidator* validator)
{
    // The widget takes it as const; the pointer only follows its life.
    m_validator = const_cast<QValidator*>(validator);
    SetValidatorImpl(validator);
}

void CKyUIComboBoxImpl::OnCurrentIndexChanged(int index)
{
    if (index == m_currentIndex)
        return;
    m_currentIndex = index;
    m_currentText = ItemText(index);
    const QString text = m_currentText;
    EmitInOrder([&] { activated.Emit(index); }, [&] { currentIndexChanged.Emit(index); },
                [&] { currentStringChanged.Emit(text); });
}

void CKyUIComboBoxImpl::OnEditTextChanged(const QString& text)
{
    m_currentText = text;
    editTextChanged.Emit(text);
}

void CKyUIComboBoxImpl::OnEditingFinished()
{
    editingFinished.Emit();
}

void CKyUIComboBoxImpl::OnIndexShown(int index)
{
    if (index == m_currentIndex)
        return;
    m_currentIndex = index;
    m_currentText = ItemText(index);
    const QString text = m_currentText;
    EmitInOrder([&] { currentIndexChanged.Emit(index); }, [&] { currentStringChanged.Emit(text); });
}

void CKyUIComboBoxImpl::OnActivated(int index)
{
    activated.Emit(index);
}

void CKyUIComboBoxImpl::OnRowsAdded(int first, const QStringList& texts)
{
    first = InsertPosition(first);
    for (const QString& text : texts)
        m_items.insert(first++, Item(QIcon(), text, QVariant()));
}

void CKyUIComboBoxImpl::OnRowRenamed(int index, const QString& text)
{
    if (InRange(index))
        std::get<1>(m_items[index]) = text;
}

int CKyUIComboBoxImpl::InsertPosition(int index) const
{
    return std::max(0, std::min(index, int(m_items.size())));
}

QVariant CKyUIComboBoxImpl::RememberedValue() const
{
    // The text first: the items of the next run may come in another order.
    if (!InRange(m_currentIndex))
        return QVariant();
    return QStringList{m_currentText, QString::number(m_currentIndex)};
}

bool CKyUIComboBoxImpl::RestoreRememberedValue(const QVariant& value)
{
    QStringList stored;
    if (!KySettingsStore::ReadStringList(value, &stored) || stored.size() != 2)
        return false;
    int index = FindText(stored.at(0), Qt::MatchExactly | Qt::MatchCaseSensitive);
    if (index < 0 && !KySettingsStore::ReadInt(stored.at(1), &index, 0, m_items.size() - 1))
        return false;
    SetCurrentIndex(index);
    return true;
}

#pragma once

#include "UI/CKyUISignal.h"
#include "UI/Impl/CKyUIBaseViewImpl.h"

#include <QtCore/QPointer>
#include <QtCore/QSize>
#include <QtCore/QStringList>
#include <QtCore/QVector>
#include <QtGui/QIcon>

#include <tuple>

class QLineEdit;
class QValidator;

class CKyUIComboBoxImpl : public CKyUIBaseViewImpl
{
public:
    // Icon (null when added without one), text, user data. The user data
    // lives here only; the widget's items carry none.
    using Item = std::tuple<QIcon, QString, QVariant>;

    explicit CKyUIComboBoxImpl(CKyUIObject* owner);
    ~CKyUIComboBoxImpl() override;

    QString GetFrontendClassName() override;
    void CreateFrontendControl() override;

    void SetEditable(bool editable);
    bool IsEditable() const { return m_editable; }

    void AddItem(const QString& text, const QVariant& data);
    void AddItem(const QIcon& icon, const QString& text, const QVariant& data);
    void InsertItem(int index, const QString& text, const QVariant& data);
    void InsertItem(int index, const QIcon& icon, const QString& text, const QVariant& data);
    void InsertItems(int index, const QStringList& texts);
    void RemoveItem(int index);
    void Clear();

    int Count() const { return m_items.size(); }
    QString ItemText(int index) const;
    QVariant ItemData(int index, int role) const;
    void SetItemData(int index, const QVariant& value, int role);
    int FindText(const QString& text, Qt::MatchFlags flags) const;
    int FindData(const QVariant& value, int role, Qt::MatchFlags flags) const;
    // Reaches the widget, but the public class does not offer it.
    void setItemText(int index, const QString& text);

    void SetCurrentIndex(int index);
    int CurrentIndex() const { return m_currentIndex; }
    void SetCurrentText(const QString& text);
    const QString& CurrentText() const { return m_currentText; }
    void SetEditText(const QString& text);
    void ClearEditText();
    void SetIconSize(QSize size);
    void SetMaxVisibleItems(int count);
    // Kept always; they reach the widget only while the box follows its user.
    void SetItemText(int index, const QString& text);
    void SetHideEmptyText(bool hide);
    void SetInsertPolicy(int policy);
    void SetValidator(const QValidator* validator);

    QVariant RememberedValue() const override;
    bool RestoreRememberedValue(const QVariant& value) override;
    void SetInteractiveImpl(bool interactive) override;

    // What a change in the widget would mean to the model. Deliberately left
    // unconnected: the user's choice moves neither the model nor a signal.
    void OnCurrentIndexChanged(int index);
    void OnEditTextChanged(const QString& text);
    void OnEditingFinished();
    // The user's choice while the box follows its user, in the toolkit's
    // order: the index shown changes, then the choice is reported.
    void OnIndexShown(int index);
    void OnActivated(int index);
    // Rows the widget made by itself (the user's Return in an editable box)
    // or renamed, taken into the model.
    void OnRowsAdded(int first, const QStringList& texts);
    void OnRowRenamed(int index, const QString& text);

    void ClearImpl();
    void AddItemImpl(const QString& text);
    void AddItemImpl(const QIcon& icon, const QString& text);
    void InsertItemImpl(int index, const QString& text);
    void InsertItemImpl(int index, const QIcon& icon, const QString& text);
    void RemoveItemImpl(int index);
    void SetEditableImpl(bool editable);
    void SetEditTextImpl(const QString& text);
    void SetCurrentIndexImpl(int index);
    void SetItemTextImpl(int index, const QString& text);
    void ClearEditTextImpl();
    void SetHideEmptyTextImpl(bool hide);
    void SetIconSizeImpl(QSize size);
    void SetMaxVisibleItemsImpl(int count);
    void SetInsertPolicyImpl(int policy);
    void SetValidatorImpl(const QValidator* validator);

    CKyUISignal<void(int)> activated;
    CKyUISignal<void(int)> currentIndexChanged;
    CKyUISignal<void(const QString&)> currentStringChanged;
    CKyUISignal<void(const QString&)> editTextChanged;
    CKyUISignal<void()> editingFinished;

private:
    bool InRange(int index) const { return index >= 0 && index < m_items.size(); }
    // Insertion positions outside the model are taken as its nearest end, as
    // the widget does, so the two stay in step.
    int InsertPosition(int index) const;

    // While interactive: the edit field's signals and the rows the widget
    // inserts, taken into the model.
    void LinkEditFieldImpl();
    void MirrorModelImpl();
    void AdoptWidgetRowsImpl();
    void HideEmptyRowsImpl();

    bool m_editable = false;
    int m_currentIndex = -1;
    QString m_currentText;
    QVector<Item> m_items;
    // Options kept for when the box follows its user; unset at first.
    QSize m_iconSize;
    int m_maxVisibleItems = -1;
    int m_insertPolicy = -1;
    bool m_hideEmptyText = false;
    QPointer<QValidator> m_validator;
    // The edit field whose signals are linked, and rows the widget is about
    // to insert by itself.
    QPointer<QLineEdit> m_linkedEditField;
    int m_widgetRowsFirst = -1;
    int m_widgetRowsLast = -1;
};

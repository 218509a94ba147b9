#pragma once

#include "UI/CKyUIBaseView.h"
#include "UI/CKyUISignal.h"

#include <QtCore/QSize>
#include <QtCore/QStringList>
#include <QtGui/QIcon>

class QValidator;

// A drop-down list with its own model of items (icon, text, user data). The
// model is the authority: every query answers from it, never from the widget,
// and the signals come from the program's calls, not from the user's choice.
class COMMONUI_EXPORT CKyUIComboBox : public CKyUIBaseView
{
public:
    // Accepted by setInsertPolicy, which has no effect.
    enum InsertPolicy : int {
        NoInsert,
        InsertAtTop,
        InsertAtCurrent,
        InsertAtBottom,
        InsertAfterCurrent,
        InsertBeforeCurrent,
        InsertAlphabetically,
    };

    CKyUIComboBox();
    ~CKyUIComboBox() override;

    void setEditable(bool editable);
    bool isEditable() const;

    // Without an icon the item reaches the model only, not the widget's list.
    void addItem(const QString& text, const QVariant& data = QVariant());
    void addItem(const QIcon& icon, const QString& text, const QVariant& data = QVariant());
    void insertItem(int index, const QString& text, const QVariant& data = QVariant());
    void insertItem(int index, const QIcon& icon, const QString& text, const QVariant& data = QVariant());
    void insertItems(int index, const QStringList& texts);
    // Neither adjusts the current index and text.
    void removeItem(int index);
    void clear();

    int count() const;
    QString itemText(int index) const;
    // The user data whatever the role.
    QVariant itemData(int index, int role = Qt::UserRole) const;
    void setItemData(int index, const QVariant& value, int role = Qt::UserRole);
    // Accepted and ignored.
    void setItemText(int index, const QString& text);
    // Exact and case-sensitive whatever the flags.
    int findText(const QString& text,
                 Qt::MatchFlags flags = static_cast<Qt::MatchFlags>(Qt::MatchExactly |
                                                                    Qt::MatchCaseSensitive)) const;
    // Compares the user data only; role and flags are not used.
    int findData(const QVariant& value, int role = Qt::UserRole,
                 Qt::MatchFlags flags = static_cast<Qt::MatchFlags>(Qt::MatchExactly |
                                                                    Qt::MatchCaseSensitive)) const;

    // Emits currentIndexChanged then currentStringChanged when the index changes.
    void setCurrentIndex(int index);
    int currentIndex() const;
    // Changes the current text only; the index stays.
    void setCurrentText(const QString& text);
    QString currentText() const;
    void setEditText(const QString& text);
    void clearEditText();

    // Accepted and ignored.
    void setHideEmptyText(bool hide);
    void setIconSize(QSize size);
    void setMaxVisibleItems(int count);
    void setInsertPolicy(InsertPolicy policy);
    void setValidator(const QValidator* validator);

    CKyUISignal<void(int)>& activated();
    CKyUISignal<void(int)>& currentIndexChanged();
    CKyUISignal<void(const QString&)>& currentStringChanged();
    CKyUISignal<void(const QString&)>& editTextChanged();
    CKyUISignal<void()>& editingFinished();
};

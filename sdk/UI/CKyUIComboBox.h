#pragma once

#include "UI/CKyUIBaseView.h"
#include "UI/CKyUISignal.h"

#include <QtCore/QSize>
#include <QtCore/QStringList>
#include <QtGui/QIcon>

class QValidator;

/// A drop-down list whose own model of items is the authority: the user's
/// choice changes neither currentIndex() nor any signal (see
/// \ref behaviours_controls "behaviours"). Each item has an icon, a text and
/// user data; every query answers from the model, never from the widget, and
/// the signals come from the program's calls.
///
/// A choice the user makes in the drop-down changes neither currentIndex()
/// nor currentText() and emits nothing; activated(), editTextChanged() and
/// editingFinished() are never emitted. The widget is a fixed 100 by 25
/// pixels; the theme draws its arrow.
///
/// \image html choices.png "Combo boxes, one editable, among the other choices"
class COMMONUI_EXPORT CKyUIComboBox : public CKyUIBaseView
{
public:
    /// Accepted by setInsertPolicy, which has no effect.
    enum InsertPolicy : int {
        NoInsert,             ///< Accepted, no effect.
        InsertAtTop,          ///< Accepted, no effect.
        InsertAtCurrent,      ///< Accepted, no effect.
        InsertAtBottom,       ///< Accepted, no effect.
        InsertAfterCurrent,   ///< Accepted, no effect.
        InsertBeforeCurrent,  ///< Accepted, no effect.
        InsertAlphabetically, ///< Accepted, no effect.
    };

    /// An empty, non-editable combo box: count() 0, currentIndex() -1,
    /// currentText() empty.
    CKyUIComboBox();
    ~CKyUIComboBox() override;

    /// Stores the flag and lets the user type into the field.
    void setEditable(bool editable);
    /// The stored flag.
    bool isEditable() const;

    /// Without an icon the item reaches the model only, not the widget's list:
    /// count(), itemText() and findText() see it, the drop-down does not, and
    /// the model's and the widget's indices differ from then on. Give an icon
    /// (a null QIcon will do) to show the item.
    void addItem(const QString& text, const QVariant& data = QVariant());
    /// Appends an item to the model and to the widget's list.
    void addItem(const QIcon& icon, const QString& text, const QVariant& data = QVariant());
    /// Inserts an item at @p index, which must lie between 0 and count().
    void insertItem(int index, const QString& text, const QVariant& data = QVariant());
    /// Inserts an item at @p index, which must lie between 0 and count().
    void insertItem(int index, const QIcon& icon, const QString& text, const QVariant& data = QVariant());
    /// Inserts the texts at @p index, @p index + 1, ..., in list order.
    void insertItems(int index, const QStringList& texts);
    /// Removes the item at @p index, which must lie between 0 and count() - 1.
    /// Neither this nor clear() adjusts the current index and text.
    void removeItem(int index);
    /// Empties the model and the widget; the current index and text stay.
    void clear();

    /// The number of items in the model.
    int count() const;
    /// The item's text; empty for an index out of range.
    QString itemText(int index) const;
    /// The user data whatever the role; invalid for an index out of range.
    QVariant itemData(int index, int role = Qt::UserRole) const;
    /// Replaces the item's user data; the role is not used, an index out of
    /// range is ignored.
    void setItemData(int index, const QVariant& value, int role = Qt::UserRole);
    /// Accepted and ignored.
    void setItemText(int index, const QString& text);
    /// Exact and case-sensitive whatever the flags; -1 when absent.
    int findText(const QString& text,
                 Qt::MatchFlags flags = static_cast<Qt::MatchFlags>(Qt::MatchExactly |
                                                                    Qt::MatchCaseSensitive)) const;
    /// Compares the user data only; role and flags are not used; -1 when absent.
    int findData(const QVariant& value, int role = Qt::UserRole,
                 Qt::MatchFlags flags = static_cast<Qt::MatchFlags>(Qt::MatchExactly |
                                                                    Qt::MatchCaseSensitive)) const;

    /// Emits currentIndexChanged then currentStringChanged when the index changes.
    /// An index out of range is ignored; the same index again emits nothing
    /// but still selects the item in the widget.
    void setCurrentIndex(int index);
    /// The index last set by the program; -1 at first.
    int currentIndex() const;
    /// Changes the current text only; the index stays. A new text is shown
    /// (in an editable box) and emits currentStringChanged once.
    void setCurrentText(const QString& text);
    /// The text last set by the program (or the current item's text).
    QString currentText() const;
    /// Stores the text as the current text and puts it in the edit field; no
    /// signal.
    void setEditText(const QString& text);
    /// Empties the stored current text; the widget is not touched, no signal.
    void clearEditText();

    /// Accepted and ignored.
    void setHideEmptyText(bool hide);
    /// Accepted and ignored.
    void setIconSize(QSize size);
    /// Accepted and ignored.
    void setMaxVisibleItems(int count);
    /// Accepted and ignored.
    void setInsertPolicy(InsertPolicy policy);
    /// Accepted and ignored.
    void setValidator(const QValidator* validator);

    /// Offered for connection; never emitted.
    CKyUISignal<void(int)>& activated();
    /// Emitted by setCurrentIndex() with the new index, before
    /// currentStringChanged().
    CKyUISignal<void(int)>& currentIndexChanged();
    /// Emitted by setCurrentIndex() (the new item's text) and by
    /// setCurrentText() (the new text).
    CKyUISignal<void(const QString&)>& currentStringChanged();
    /// Offered for connection; never emitted.
    CKyUISignal<void(const QString&)>& editTextChanged();
    /// Offered for connection; never emitted.
    CKyUISignal<void()>& editingFinished();
};

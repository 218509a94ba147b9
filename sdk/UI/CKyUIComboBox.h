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
/// Under setInteractive(true) the box follows its user, and the model and the
/// widget hold the same items (switching on shows every item of the model,
/// also those added without an icon). A choice by mouse, keyboard or wheel
/// stores the new index and text and emits currentIndexChanged, then
/// currentStringChanged (also reachable as currentTextChanged), then
/// activated; the index also follows the widget when the program's items move
/// it (the first item added to an empty box becomes current). In an editable
/// box, typing stores the text and emits editTextChanged; Return and leaving
/// the field emit editingFinished, and an item that Return inserts (see
/// setInsertPolicy) joins the model with no user data. setItemText,
/// setHideEmptyText, setIconSize, setMaxVisibleItems, setInsertPolicy and
/// setValidator take effect; they are kept while the box is inert and applied
/// when it is switched on.
///
/// \image html choices.png "Combo boxes, one editable, among the other choices"
class COMMONUI_EXPORT CKyUIComboBox : public CKyUIBaseView
{
public:
    /// Where Return in an interactive, editable box puts a text that is not
    /// yet an item; no effect while the box is inert.
    enum InsertPolicy : int {
        NoInsert,             ///< Not inserted.
        InsertAtTop,          ///< As the first item.
        InsertAtCurrent,      ///< Replaces the current item's text.
        InsertAtBottom,       ///< As the last item (the widget's default).
        InsertAfterCurrent,   ///< After the current item.
        InsertBeforeCurrent,  ///< Before the current item.
        InsertAlphabetically, ///< In alphabetical order.
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
    /// Ignored while the box is inert. Interactive: renames the item in the
    /// model and the widget (an index out of range is ignored); renaming the
    /// current item emits currentStringChanged.
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
    /// The index last set by the program (or, interactive, chosen by the
    /// user); -1 at first.
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

    /// Interactive only: items with an empty text are left out of the
    /// drop-down.
    void setHideEmptyText(bool hide);
    /// Interactive only: the size of the items' icons.
    void setIconSize(QSize size);
    /// Interactive only: how many items the drop-down shows before it
    /// scrolls.
    void setMaxVisibleItems(int count);
    /// Interactive only: where Return puts a new text (see InsertPolicy).
    void setInsertPolicy(InsertPolicy policy);
    /// Interactive only: checks what the user types into an editable box.
    /// The validator stays the caller's.
    void setValidator(const QValidator* validator);

    /// Emitted when the user chooses an item of an interactive box, after
    /// currentStringChanged(); never otherwise.
    CKyUISignal<void(int)>& activated();
    /// Emitted by setCurrentIndex() with the new index, before
    /// currentStringChanged().
    CKyUISignal<void(int)>& currentIndexChanged();
    /// Emitted by setCurrentIndex() (the new item's text) and by
    /// setCurrentText() (the new text), and after currentIndexChanged() when
    /// an interactive box's index changes.
    CKyUISignal<void(const QString&)>& currentStringChanged();
    /// The same signal as currentStringChanged(), under the toolkit's name.
    CKyUISignal<void(const QString&)>& currentTextChanged();
    /// Emitted with the text as the user types into an interactive, editable
    /// box; never otherwise.
    CKyUISignal<void(const QString&)>& editTextChanged();
    /// Emitted on Return and when the edit field of an interactive, editable
    /// box loses the focus; never otherwise.
    CKyUISignal<void()>& editingFinished();
};

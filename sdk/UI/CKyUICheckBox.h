#pragma once

#include "UI/CKyUIBaseView.h"
#include "UI/CKyUISignal.h"

/// A two-state check box driven from the program's side: its state and its
/// signals follow setChecked(), not the user's clicks on the widget (see
/// \ref behaviours_controls "behaviours").
///
/// A user's click changes what the widget shows, but not isChecked(), and no
/// signal fires. Read the state your program set, or offer a push button for
/// actions. The box is 25 pixels high; the theme draws its indicator.
///
/// Under setInteractive(true) the box follows its user: a click (or the space
/// key) stores the new state and emits stateChanged (1 or 0), toggled, then
/// clicked, once each; the emissions stop if a slot deletes the box. Switching
/// on first shows the state the program set.
///
/// \image html choices.png "Check boxes, radio buttons, combo boxes, sliders and the list box"
class COMMONUI_EXPORT CKyUICheckBox : public CKyUIBaseView
{
public:
    /// An unchecked box without text, created with its widget.
    CKyUICheckBox();
    ~CKyUICheckBox() override;

    /// Stores the text and shows it beside the box.
    void setText(const QString& text);
    /// Emits stateChanged (1 or 0) then toggled, only when the state changes.
    /// With the signals blocked the state is still stored and shown.
    void setChecked(bool checked);
    /// The state last set by the program; a click on the widget counts only
    /// while the box is interactive.
    bool isChecked() const;
    /// The text's size in points. Kept, and applied only while the box is
    /// interactive (a size set again replaces the earlier one).
    void setTextSize(float size);
    /// An icon beside the text, loaded from a resource path such as
    /// ":/plugin/icons/unit.png" (or a file). Kept, and shown only while the
    /// box is interactive.
    void setResourceIcon(const QString& name);

    /// Emitted by setChecked() with 1 (checked) or 0, before toggled().
    CKyUISignal<void(int)>& stateChanged();
    /// Emitted by setChecked() with the new state, after stateChanged().
    CKyUISignal<void(bool)>& toggled();
    /// Emitted, after toggled(), when the user clicks an interactive box;
    /// never otherwise.
    CKyUISignal<void(bool)>& clicked();
};

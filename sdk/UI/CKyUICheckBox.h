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
    /// The state last set by the program; a click on the widget does not count.
    bool isChecked() const;
    /// Accepted and ignored.
    void setTextSize(float size);
    /// Accepted and ignored.
    void setResourceIcon(const QString& name);

    /// Emitted by setChecked() with 1 (checked) or 0, before toggled().
    CKyUISignal<void(int)>& stateChanged();
    /// Emitted by setChecked() with the new state, after stateChanged().
    CKyUISignal<void(bool)>& toggled();
    /// Offered for connection; never emitted.
    CKyUISignal<void(bool)>& clicked();
};

#pragma once

#include "UI/CKyUIBaseView.h"
#include "UI/CKyUISignal.h"

/// A radio button driven from the program's side: its stored state and its
/// signals follow setChecked(), not the user's clicks (see
/// \ref behaviours_controls "behaviours"). Buttons placed in the same group box
/// exclude each other on screen.
///
/// Checking one button unchecks the others on screen, but their isChecked()
/// stays as the program last set it; a user's click changes only what the
/// widgets show. Add buttons to a group box through a CKyUIRadioGroup.
///
/// Under setInteractive(true) the button follows its widget: a click, or a
/// sibling's exclusion, stores the new state and emits toggled; a click then
/// emits released and clicked (the toolkit's order). Switching on first shows
/// the state the program set.
///
/// \image html choices.png "Radio buttons in group boxes, among the other choices"
class COMMONUI_EXPORT CKyUIRadioButton : public CKyUIBaseView
{
public:
    /// An unchecked button without text, created with its widget.
    CKyUIRadioButton();
    ~CKyUIRadioButton() override;

    /// Stores the text and shows it.
    void setText(const QString& text);
    /// The stored text itself, so a later setText shows through it.
    const QString& text() const;
    /// Always reaches the widget; emits toggled only when the state changes.
    void setChecked(bool checked);
    /// The state last set by the program, or, while the button is
    /// interactive, shown by its widget.
    bool isChecked() const;

    /// Emitted when the user lets go of an interactive button; never
    /// otherwise.
    CKyUISignal<void()>& released();
    /// Emitted, after released(), when the user clicks an interactive button;
    /// never otherwise.
    CKyUISignal<void()>& clicked();
    /// Emitted by setChecked() with the new state when it changes, and by a
    /// change on screen while the button is interactive.
    CKyUISignal<void(bool)>& toggled();
};

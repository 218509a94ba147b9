#pragma once

#include "UI/CKyUIBaseView.h"
#include "UI/CKyUISignal.h"

// A radio button driven from the program's side: its stored state and its
// signals follow setChecked(), not the user's clicks. Buttons placed in the
// same group box exclude each other on screen.
class COMMONUI_EXPORT CKyUIRadioButton : public CKyUIBaseView
{
public:
    CKyUIRadioButton();
    ~CKyUIRadioButton() override;

    void setText(const QString& text);
    // The stored text itself, so a later setText shows through it.
    const QString& text() const;
    // Always reaches the widget; emits toggled only when the state changes.
    void setChecked(bool checked);
    bool isChecked() const;

    CKyUISignal<void()>& released();
    CKyUISignal<void()>& clicked();
    CKyUISignal<void(bool)>& toggled();
};

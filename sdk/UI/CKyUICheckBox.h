#pragma once

#include "UI/CKyUIBaseView.h"
#include "UI/CKyUISignal.h"

// A two-state check box driven from the program's side: its state and its
// signals follow setChecked(), not the user's clicks on the widget.
class COMMONUI_EXPORT CKyUICheckBox : public CKyUIBaseView
{
public:
    CKyUICheckBox();
    ~CKyUICheckBox() override;

    void setText(const QString& text);
    // Emits stateChanged (1 or 0) then toggled, only when the state changes.
    void setChecked(bool checked);
    // The state last set by the program; a click on the widget does not count.
    bool isChecked() const;
    // Accepted and ignored.
    void setTextSize(float size);
    void setResourceIcon(const QString& name);

    CKyUISignal<void(int)>& stateChanged();
    CKyUISignal<void(bool)>& toggled();
    // Offered for connection; never emitted.
    CKyUISignal<void(bool)>& clicked();
};

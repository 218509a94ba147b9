#pragma once

#include "UI/CKyUISignal.h"
#include "UI/Impl/CKyUIBaseViewImpl.h"

class CKyUICheckBoxImpl : public CKyUIBaseViewImpl
{
public:
    explicit CKyUICheckBoxImpl(CKyUIObject* owner);
    ~CKyUICheckBoxImpl() override;

    QString GetFrontendClassName() override;
    void CreateFrontendControl() override;

    void SetText(const QString& text);
    const QString& Text() const { return m_text; }
    void SetChecked(bool checked);
    bool IsChecked() const { return m_checked; }

    // What a toggle of the widget would mean to the model. Deliberately left
    // unconnected: a user's click changes only what the widget shows.
    void OnSwitchChanged(bool checked);

    void SetTextImpl(const QString& text);
    void SetCheckedImpl(bool checked);

    CKyUISignal<void(int)> stateChanged;
    CKyUISignal<void(bool)> toggled;
    CKyUISignal<void(bool)> clicked;

private:
    void EmitState(bool checked);

    bool m_checked = false;
    QString m_text;
};

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
    QVariant RememberedValue() const override;
    bool RestoreRememberedValue(const QVariant& value) override;
    // Kept always, shown only while the box follows its user.
    void SetTextSize(float size);
    void SetResourceIcon(const QString& name);

    void SetInteractiveImpl(bool interactive) override;

    // What a toggle of the widget would mean to the model. Deliberately left
    // unconnected: a user's click changes only what the widget shows.
    void OnSwitchChanged(bool checked);
    // A click of the user on a box that follows its user.
    void OnClicked(bool checked);

    void SetTextImpl(const QString& text);
    void SetCheckedImpl(bool checked);
    void SetTextSizeImpl(float size);
    void SetResourceIconImpl(const QString& name);

    CKyUISignal<void(int)> stateChanged;
    CKyUISignal<void(bool)> toggled;
    CKyUISignal<void(bool)> clicked;

private:
    void EmitState(bool checked);

    bool m_checked = false;
    QString m_text;
    float m_textSize = 0; // not set
    QString m_resourceIcon;
};

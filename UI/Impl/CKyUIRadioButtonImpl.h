#pragma once

#include "UI/CKyUISignal.h"
#include "UI/Impl/CKyUIBaseViewImpl.h"

class CKyUIRadioGroupImpl;

class CKyUIRadioButtonImpl : public CKyUIBaseViewImpl
{
public:
    explicit CKyUIRadioButtonImpl(CKyUIObject* owner);
    ~CKyUIRadioButtonImpl() override;

    QString GetFrontendClassName() override;
    void CreateFrontendControl() override;

    void SetText(const QString& text);
    const QString& Text() const { return m_text; }
    void SetChecked(bool checked);
    bool IsChecked() const { return m_checked; }

    // Reactions to the widget's clicks and toggles, and the link to a group.
    // Nothing connects or calls them: the model follows the program only.
    void OnClicked();
    void OnToggled(bool checked);
    void SetContainer(CKyUIRadioGroupImpl* container);
    CKyUIRadioGroupImpl* Container() const { return m_container; }

    // A toggle of the widget while the button follows its user: the stored
    // state follows it, unlike OnToggled, which also reports a release.
    void OnUserToggled(bool checked);
    void SetInteractiveImpl(bool interactive) override;
    // Makes the widget show the stored state, which a click made while the
    // button ignored its user may have left behind.
    void ShowStoredState();

    void SetTextImpl(const QString& text);
    void SetCheckedImpl(bool checked);

    CKyUISignal<void()> released;
    CKyUISignal<void()> clicked;
    CKyUISignal<void(bool)> toggled;

private:
    bool m_checked = false;
    QString m_text;
    CKyUIRadioGroupImpl* m_container = nullptr;
};

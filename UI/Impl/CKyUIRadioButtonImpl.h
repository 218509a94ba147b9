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

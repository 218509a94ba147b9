#pragma once

#include "UI/CKyUISignal.h"
#include "UI/Impl/CKyUIBaseViewImpl.h"

#include <QtCore/QList>
#include <QtCore/QPointer>

class CKyUIRadioButton;
class QButtonGroup;

class CKyUIRadioGroupImpl : public CKyUIBaseViewImpl
{
public:
    explicit CKyUIRadioGroupImpl(CKyUIObject* owner);
    ~CKyUIRadioGroupImpl() override;

    QString GetFrontendClassName() override;
    void CreateFrontendControl() override;

    void SetTitle(const QString& title);
    const QString& Title() const { return m_title; }
    void AddRadioButton(CKyUIRadioButton* button);
    // Not owned: the object tree owns the buttons.
    const QList<CKyUIRadioButton*>& Buttons() const { return m_buttons; }

    // The first checked button that still belongs to the group, or -1.
    int CurrentIndex() const;

    // What a change of the current button would mean, and per-button hooks.
    // Nothing in the library calls them.
    void OnCurrentIndexChanged(int index);
    void SetText(CKyUIRadioButton* button, const QString& text);
    void SetCurrent(CKyUIRadioButton* button);

    // A button of an interactive group became checked on screen.
    void OnButtonChecked(CKyUIRadioButton* checked);
    QVariant RememberedValue() const override;
    bool RestoreRememberedValue(const QVariant& value) override;
    void SetInteractiveImpl(bool interactive) override;

    void SetTitleImpl(const QString& title);
    void AddRadioButtonImpl(CKyUIRadioButton* button);
    void SetTextImpl(int index, const QString& text);
    void SetCurrentImpl(int index);
    void LinkButtonImpl(CKyUIRadioButton* button);

    CKyUISignal<void(int)> currentIndexChanged;

private:
    // A deleted button stays listed; asking the tree is the safe test.
    bool Holds(CKyUIRadioButton* button) const;

    QList<CKyUIRadioButton*> m_buttons;
    QString m_title;
    // The group's toolkit object; no button is ever added to it.
    QPointer<QButtonGroup> m_group;
};

#include "UI/Impl/CKyUIRadioGroupImpl.h"

#include "UI/CKyUIGroupBox.h"
#include "UI/CKyUIRadioButton.h"
#include "UI/Impl/KySettingsStore.h"

CKyUIRadioGroupImpl::CKyUIRadioGroupImpl(CKyUIObject* owner)
    : CKyUIBaseViewImpl(owner)
    , currentIndexChanged(owner)
{}

QString CKyUIRadioGroupImpl::GetFrontendClassName()
{
    return QStringLiteral("QButtonGroup");
}

void CKyUIRadioGroupImpl::SetTitle(const QString& title)
{
    if (m_title == title)
        return;
    m_title = title;
    SetTitleImpl(m_title);
}

void CKyUIRadioGroupImpl::AddRadioButton(CKyUIRadioButton* button)
{
    if (!button)
        return;
    button->setParent(owner());
    // A button listed before keeps the link it has.
    const bool linked = owner()->isInteractive() && m_buttons.contains(button);
    m_buttons.append(button);
    AddRadioButtonImpl(button);
    if (!owner()->isInteractive())
        return;
    SetInteractiveTree(button, true);
    if (!linked)
        LinkButtonImpl(button);
}

int CKyUIRadioGroupImpl::CurrentIndex() const
{
    for (int i = 0; i < m_buttons.size(); ++i) {
        if (Holds(m_buttons.at(i)) && m_buttons.at(i)->isChecked())
            return i;
    }
    return -1;
}

bool CKyUIRadioGroupImpl::Holds(CKyUIRadioButton* button) const
{
    return owner()->children().contains(button);
}

void CKyUIRadioGroupImpl::OnButtonChecked(CKyUIRadioButton* checked)
{
    if (!Holds(checked))
        return;
    const Lifetime lifetime = GetLifetime();
    const QList<CKyUIRadioButton*> buttons = m_buttons;
    for (CKyUIRadioButton* button : buttons) {
        // A slot may delete a button, or the group with all of them.
        if (!lifetime.Alive())
            return;
        if (Holds(button))
            button->setChecked(button == checked);
    }
    if (lifetime.Alive())
        currentIndexChanged.Emit(CurrentIndex());
}

void CKyUIRadioGroupImpl::OnCurrentIndexChanged(int index)
{
    const QList<CKyUIRadioButton*> buttons = m_buttons;
    for (int i = 0; i < buttons.size(); ++i)
        buttons.at(i)->setChecked(i == index);
}

void CKyUIRadioGroupImpl::SetText(CKyUIRadioButton* button, const QString& text)
{
    const int index = m_buttons.indexOf(button);
    if (index >= 0)
        SetTextImpl(index, text);
}

void CKyUIRadioGroupImpl::SetCurrent(CKyUIRadioButton* button)
{
    const int index = m_buttons.indexOf(button);
    if (index >= 0)
        SetCurrentImpl(index);
}

void CKyUIRadioGroupImpl::SetTitleImpl(const QString& title)
{
    // Shown only by an interactive group, as the title of its group box.
    if (!owner()->isInteractive())
        return;
    if (auto* box = dynamic_cast<CKyUIGroupBox*>(owner()->parent()))
        box->setTitle(title);
}

void CKyUIRadioGroupImpl::SetTextImpl(int, const QString&) {}

void CKyUIRadioGroupImpl::SetCurrentImpl(int) {}

QVariant CKyUIRadioGroupImpl::RememberedValue() const
{
    const int index = CurrentIndex();
    return index < 0 ? QVariant() : QVariant(index);
}

bool CKyUIRadioGroupImpl::RestoreRememberedValue(const QVariant& value)
{
    int index = -1;
    if (!KySettingsStore::ReadInt(value, &index, 0, m_buttons.size() - 1) || !Holds(m_buttons.at(index)))
        return false;
    // As a program does it: the chosen button checked, every other unchecked.
    const Lifetime lifetime = GetLifetime();
    const QList<CKyUIRadioButton*> buttons = m_buttons;
    for (int i = 0; i < buttons.size() && lifetime.Alive(); ++i) {
        if (Holds(buttons.at(i)))
            buttons.at(i)->setChecked(i == index);
    }
    return true;
}

#include "UI/Impl/CKyUIRadioButtonImpl.h"

#include <QtWidgets/QRadioButton>

namespace
{
QRadioButton* RadioButtonOf(const CKyUIObject* owner)
{
    return qobject_cast<QRadioButton*>(owner->getHandle());
}
} // namespace

void CKyUIRadioButtonImpl::CreateFrontendControl()
{
    auto* button = new QRadioButton;
    button->setStyleSheet(QStringLiteral("QRadioButton { }"));
    owner()->setHandle(button);
}

void CKyUIRadioButtonImpl::SetTextImpl(const QString& text)
{
    if (QRadioButton* button = RadioButtonOf(owner()))
        button->setText(text);
}

void CKyUIRadioButtonImpl::SetCheckedImpl(bool checked)
{
    if (QRadioButton* button = RadioButtonOf(owner()))
        button->setChecked(checked);
}

void CKyUIRadioButtonImpl::ShowStoredState()
{
    QRadioButton* button = RadioButtonOf(owner());
    if (!button || button->isChecked() == m_checked)
        return;
    // The toolkit refuses to uncheck the checked button of its exclusive set.
    const bool exclusive = button->autoExclusive();
    button->setAutoExclusive(exclusive && m_checked);
    button->setChecked(m_checked);
    button->setAutoExclusive(exclusive);
}

void CKyUIRadioButtonImpl::SetInteractiveImpl(bool interactive)
{
    CKyUIBaseViewImpl::SetInteractiveImpl(interactive);
    QRadioButton* button = RadioButtonOf(owner());
    if (!interactive || !button)
        return;
    ShowStoredState();
    // The toolkit's order on a click: toggled, released, clicked.
    LinkUserInput(QObject::connect(button, &QAbstractButton::toggled, button,
                                   [this](bool checked) { OnUserToggled(checked); }));
    LinkUserInput(QObject::connect(button, &QAbstractButton::released, button, [this] { released.Emit(); }));
    LinkUserInput(QObject::connect(button, &QAbstractButton::clicked, button, [this] { OnClicked(); }));
}

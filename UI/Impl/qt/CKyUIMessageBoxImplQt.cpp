#include "UI/Impl/CKyUIMessageBoxImpl.h"

#include "UI/Impl/qt/KyToolkitDialog.h"

#include <QtWidgets/QMessageBox>

namespace
{
const struct
{
    CKyUIMessageBox::StandardButton ours;
    QMessageBox::StandardButton toolkit;
} kButtons[] = {
    {CKyUIMessageBox::Ok, QMessageBox::Ok},           {CKyUIMessageBox::Cancel, QMessageBox::Cancel},
    {CKyUIMessageBox::Yes, QMessageBox::Yes},         {CKyUIMessageBox::No, QMessageBox::No},
    {CKyUIMessageBox::Save, QMessageBox::Save},       {CKyUIMessageBox::Discard, QMessageBox::Discard},
    {CKyUIMessageBox::Apply, QMessageBox::Apply},     {CKyUIMessageBox::Close, QMessageBox::Close},
    {CKyUIMessageBox::Retry, QMessageBox::Retry},     {CKyUIMessageBox::Ignore, QMessageBox::Ignore},
    {CKyUIMessageBox::Abort, QMessageBox::Abort},     {CKyUIMessageBox::YesToAll, QMessageBox::YesToAll},
    {CKyUIMessageBox::NoToAll, QMessageBox::NoToAll},
};

QMessageBox::StandardButtons ToToolkit(CKyUIMessageBox::StandardButtons buttons)
{
    QMessageBox::StandardButtons toolkit = QMessageBox::NoButton;
    for (const auto& each : kButtons) {
        if (buttons & each.ours)
            toolkit |= each.toolkit;
    }
    return toolkit;
}

CKyUIMessageBox::StandardButton FromToolkit(QMessageBox::StandardButton button)
{
    for (const auto& each : kButtons) {
        if (each.toolkit == button)
            return each.ours;
    }
    return CKyUIMessageBox::NoButton;
}

QMessageBox* BoxOf(const CKyUIObject* owner)
{
    return qobject_cast<QMessageBox*>(owner->getHandle());
}
} // namespace

void CKyUIMessageBoxImpl::CreateFrontendControl()
{
    m_parentWindow = KyToolkitDialog::WindowOf(m_parent);
    m_parent = nullptr;
    auto* box = new QMessageBox(nullptr);
    KyToolkitDialog::ApplyTheme(box);
    box->setStandardButtons(ToToolkit(m_buttons));
    owner()->setHandle(box);
}

void CKyUIMessageBoxImpl::DestroyFrontendControlImpl()
{
    QMessageBox* box = BoxOf(owner());
    owner()->setHandle(nullptr);
    KyToolkitDialog::Release(box);
}

void CKyUIMessageBoxImpl::SetIconImpl(CKyUIMessageBox::Icon icon)
{
    static const QMessageBox::Icon kIcons[] = {QMessageBox::NoIcon, QMessageBox::Information,
                                               QMessageBox::Warning, QMessageBox::Question,
                                               QMessageBox::Critical};
    QMessageBox* box = BoxOf(owner());
    if (box && icon >= 0 && icon < int(sizeof kIcons / sizeof kIcons[0]))
        box->setIcon(kIcons[icon]);
}

void CKyUIMessageBoxImpl::SetWindowTitleImpl(const QString& title)
{
    if (QMessageBox* box = BoxOf(owner()))
        box->setWindowTitle(title);
}

void CKyUIMessageBoxImpl::SetTextImpl(const QString& text)
{
    if (QMessageBox* box = BoxOf(owner()))
        box->setText(text);
}

void CKyUIMessageBoxImpl::SetInformativeTextImpl(const QString& text)
{
    if (QMessageBox* box = BoxOf(owner()))
        box->setInformativeText(text);
}

void CKyUIMessageBoxImpl::SetStandardButtonsImpl(CKyUIMessageBox::StandardButtons buttons)
{
    if (QMessageBox* box = BoxOf(owner()))
        box->setStandardButtons(ToToolkit(buttons));
}

void CKyUIMessageBoxImpl::SetDefaultButtonImpl(CKyUIMessageBox::StandardButton button)
{
    QMessageBox* box = BoxOf(owner());
    if (!box)
        return;
    // Only one of ours: a combination of buttons maps to no single toolkit button.
    const QMessageBox::StandardButton toolkit = QMessageBox::StandardButton(int(ToToolkit(button)));
    if (box->button(toolkit))
        box->setDefaultButton(toolkit);
}

CKyUIMessageBox::StandardButton CKyUIMessageBoxImpl::ExecImpl()
{
    QMessageBox* box = BoxOf(owner());
    if (!box)
        return CKyUIMessageBox::NoButton;
    KyToolkitDialog::PlaceOver(box, m_parentWindow);
    const Lifetime lifetime = GetLifetime();
    KyToolkitDialog::RunModal(box);
    // The box goes with its object: a run ended by that deletion pressed nothing.
    if (!lifetime.Alive())
        return CKyUIMessageBox::NoButton;
    QAbstractButton* clicked = box->clickedButton();
    return clicked ? FromToolkit(box->standardButton(clicked)) : CKyUIMessageBox::NoButton;
}

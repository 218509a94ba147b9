#include "UI/CKyUIMessageBox.h"

#include "UI/Impl/CKyUIMessageBoxImpl.h"

namespace
{
CKyUIMessageBox::StandardButton Run(CKyUIBaseView* parent, CKyUIMessageBox::Icon icon, const QString& title,
                                    const QString& text, CKyUIMessageBox::StandardButtons buttons,
                                    CKyUIMessageBox::StandardButton defaultButton)
{
    CKyUIMessageBox box(parent);
    box.setIcon(icon);
    box.setWindowTitle(title);
    box.setText(text);
    box.setStandardButtons(buttons);
    box.setDefaultButton(defaultButton);
    return box.exec();
}
} // namespace

CKyUIMessageBox::CKyUIMessageBox(CKyUIBaseView* parent)
{
    createImpl<CKyUIMessageBoxImpl>(this, parent);
}

CKyUIMessageBox::~CKyUIMessageBox() = default;

void CKyUIMessageBox::setIcon(Icon icon)
{
    implAs<CKyUIMessageBoxImpl>()->SetIcon(icon);
}

CKyUIMessageBox::Icon CKyUIMessageBox::icon() const
{
    return implAs<CKyUIMessageBoxImpl>()->GetIcon();
}

void CKyUIMessageBox::setWindowTitle(const QString& title)
{
    implAs<CKyUIMessageBoxImpl>()->SetWindowTitle(title);
}

QString CKyUIMessageBox::windowTitle() const
{
    return implAs<CKyUIMessageBoxImpl>()->WindowTitle();
}

void CKyUIMessageBox::setText(const QString& text)
{
    implAs<CKyUIMessageBoxImpl>()->SetText(text);
}

QString CKyUIMessageBox::text() const
{
    return implAs<CKyUIMessageBoxImpl>()->Text();
}

void CKyUIMessageBox::setInformativeText(const QString& text)
{
    implAs<CKyUIMessageBoxImpl>()->SetInformativeText(text);
}

QString CKyUIMessageBox::informativeText() const
{
    return implAs<CKyUIMessageBoxImpl>()->InformativeText();
}

void CKyUIMessageBox::setStandardButtons(StandardButtons buttons)
{
    implAs<CKyUIMessageBoxImpl>()->SetStandardButtons(buttons);
}

CKyUIMessageBox::StandardButtons CKyUIMessageBox::standardButtons() const
{
    return implAs<CKyUIMessageBoxImpl>()->StandardButtons();
}

void CKyUIMessageBox::setDefaultButton(StandardButton button)
{
    implAs<CKyUIMessageBoxImpl>()->SetDefaultButton(button);
}

CKyUIMessageBox::StandardButton CKyUIMessageBox::defaultButton() const
{
    return implAs<CKyUIMessageBoxImpl>()->DefaultButton();
}

CKyUIMessageBox::StandardButton CKyUIMessageBox::exec()
{
    return implAs<CKyUIMessageBoxImpl>()->Exec();
}

CKyUIMessageBox::StandardButton CKyUIMessageBox::clickedButton() const
{
    return implAs<CKyUIMessageBoxImpl>()->ClickedButton();
}

CKyUIMessageBox::StandardButton CKyUIMessageBox::information(CKyUIBaseView* parent, const QString& title,
                                                             const QString& text, StandardButtons buttons,
                                                             StandardButton defaultButton)
{
    return Run(parent, Information, title, text, buttons, defaultButton);
}

CKyUIMessageBox::StandardButton CKyUIMessageBox::warning(CKyUIBaseView* parent, const QString& title,
                                                         const QString& text, StandardButtons buttons,
                                                         StandardButton defaultButton)
{
    return Run(parent, Warning, title, text, buttons, defaultButton);
}

CKyUIMessageBox::StandardButton CKyUIMessageBox::question(CKyUIBaseView* parent, const QString& title,
                                                          const QString& text, StandardButtons buttons,
                                                          StandardButton defaultButton)
{
    return Run(parent, Question, title, text, buttons, defaultButton);
}

CKyUIMessageBox::StandardButton CKyUIMessageBox::critical(CKyUIBaseView* parent, const QString& title,
                                                          const QString& text, StandardButtons buttons,
                                                          StandardButton defaultButton)
{
    return Run(parent, Critical, title, text, buttons, defaultButton);
}

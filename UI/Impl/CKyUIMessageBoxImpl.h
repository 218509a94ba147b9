#pragma once

#include "UI/CKyUIMessageBox.h"
#include "UI/Impl/CKyUIObjectImpl.h"

#include <QtCore/QPointer>

class QWidget;

// Drives one QMessageBox without a toolkit parent; the parent view's window
// only places it.
class CKyUIMessageBoxImpl : public CKyUIObjectImpl
{
public:
    CKyUIMessageBoxImpl(CKyUIObject* owner, CKyUIBaseView* parent);
    ~CKyUIMessageBoxImpl() override;

    QString GetFrontendClassName() override;
    void CreateFrontendControl() override;

    void SetIcon(CKyUIMessageBox::Icon icon);
    CKyUIMessageBox::Icon GetIcon() const { return m_icon; }
    void SetWindowTitle(const QString& title);
    const QString& WindowTitle() const { return m_windowTitle; }
    void SetText(const QString& text);
    const QString& Text() const { return m_text; }
    void SetInformativeText(const QString& text);
    const QString& InformativeText() const { return m_informativeText; }
    void SetStandardButtons(CKyUIMessageBox::StandardButtons buttons);
    CKyUIMessageBox::StandardButtons StandardButtons() const { return m_buttons; }
    void SetDefaultButton(CKyUIMessageBox::StandardButton button);
    CKyUIMessageBox::StandardButton DefaultButton() const { return m_defaultButton; }
    // Tells the host around the run; NoButton when the box went during it.
    CKyUIMessageBox::StandardButton Exec();
    CKyUIMessageBox::StandardButton ClickedButton() const { return m_clicked; }

    // Toolkit steps; each does nothing unless the handle is a QMessageBox.
    void SetIconImpl(CKyUIMessageBox::Icon icon);
    void SetWindowTitleImpl(const QString& title);
    void SetTextImpl(const QString& text);
    void SetInformativeTextImpl(const QString& text);
    void SetStandardButtonsImpl(CKyUIMessageBox::StandardButtons buttons);
    void SetDefaultButtonImpl(CKyUIMessageBox::StandardButton button);
    CKyUIMessageBox::StandardButton ExecImpl();
    // Ends a run still under way and lets the box go.
    void DestroyFrontendControlImpl();

private:
    CKyUIBaseView* m_parent; // only until the box is created
    QPointer<QWidget> m_parentWindow;
    CKyUIMessageBox::Icon m_icon = CKyUIMessageBox::NoIcon;
    QString m_windowTitle;
    QString m_text;
    QString m_informativeText;
    CKyUIMessageBox::StandardButtons m_buttons = CKyUIMessageBox::Ok;
    CKyUIMessageBox::StandardButton m_defaultButton = CKyUIMessageBox::NoButton;
    CKyUIMessageBox::StandardButton m_clicked = CKyUIMessageBox::NoButton;
};

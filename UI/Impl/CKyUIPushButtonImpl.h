#pragma once

#include "UI/CKyUISignal.h"
#include "UI/Impl/CKyUIBaseViewImpl.h"

#include <QtGui/QIcon>

class CKyUIPushButton;
class CKyUIPushButtonFrontend;

// Drives a CKyUIPushButtonFrontend. Text and icon are recorded here; alignment
// and boldness live only in the widget's style sheet.
class CKyUIPushButtonImpl : public CKyUIBaseViewImpl
{
public:
    explicit CKyUIPushButtonImpl(CKyUIPushButton* owner);
    ~CKyUIPushButtonImpl() override;

    QString GetFrontendClassName() override;
    void CreateFrontendControl() override;

    void SetText(const QString& text);
    const QString& Text() const { return m_text; }
    void SetIcon(const QIcon& icon);
    const QIcon& Icon() const { return m_icon; }
    // Loads only while the owner follows its user; otherwise the path waits
    // for that, unless an icon is set meanwhile.
    void SetResourceIcon(const QString& path);

    // Driven by the toolkit's clicked(): the name is kept for what it always
    // was, the end of a press.
    void OnPressed();

    // Toolkit steps; each does nothing unless the handle is the frontend.
    void SetTextImpl(const QString& text);
    void SetIconImpl(const QIcon& icon);
    void SetTextAlignmentImpl(int alignment);
    void SetBoldTextImpl(bool bold);
    void SetToolTipImpl(const QString& toolTip);
    void SetCheckableImpl(bool checkable);
    void SetResourceIconImpl(const QString& path);
    // The state a click left behind, for a checkable button; else true.
    bool ClickedStateImpl() const;
    void SetInteractiveImpl(bool interactive) override;
    // Cuts the widget's own connections to its slots, so that a click
    // delivered before its deferred deletion reaches nobody.
    void DisconnectFrontendImpl();

private:
    CKyUIPushButtonFrontend* GetFrontend() const;

    QString m_text;
    QIcon m_icon;
    QString m_pendingResourceIcon;

public:
    CKyUISignal<void(bool)> clicked;
    // Emitted only while the owner follows its user.
    CKyUISignal<void()> pressed;
    CKyUISignal<void()> released;

private:
    CKyUIPushButton* const m_button;
};

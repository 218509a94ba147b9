#pragma once

#include "UI/CKyUISignal.h"
#include "UI/Impl/CKyUIBaseViewImpl.h"

class CKyUITextViewFrontend;

class CKyUITextViewImpl : public CKyUIBaseViewImpl
{
public:
    explicit CKyUITextViewImpl(CKyUIObject* owner);
    ~CKyUITextViewImpl() override;

    QString GetFrontendClassName() override;
    void CreateFrontendControl() override;

    void SetText(const QString& text);
    void SetHtmlText(const QString& text);
    void AddText(const QString& text);
    void AddHtmlText(const QString& text);
    void Clear();
    const QString& GetContent() const { return m_content; }
    void SetMultiline(bool multiline);
    void SetPlaceholderText(const QString& text);
    const QString& PlaceholderText() const { return m_placeholderText; }
    void SetAdjustHeightToContent(bool adjust) { m_adjustHeightToContent = adjust; }
    bool GetAdjustHeightToContent() const { return m_adjustHeightToContent; }

    // Called by the frontend.
    void OnEditTextChanged(const QString& text);
    void OnFocusIn();
    void OnFocusOut();
    void OnEditingFinished();

    void SetTextImpl(const QString& text);
    void SetHtmlImpl(const QString& html);
    void SetInteractiveImpl(bool interactive) override;
    void AddTextImpl(const QString& text);
    void SetReadOnly(bool readOnly);
    void SetPlaceholderTextImpl(const QString& text);
    // The widget outlives this object until the event loop deletes it, and
    // keeps its pointer to us: its content and focus changes are cut off
    // from it here.
    void DisconnectFrontendImpl();

    CKyUISignal<void()> textChanged;
    CKyUISignal<void()> focusInEventSignal;
    CKyUISignal<void()> focusOutEventSignal;

private:
    QString m_content;
    QString m_placeholderText;
    // The HTML that setHtmlText() showed as plain text, rendered when the owner
    // comes to follow its user; forgotten at any other change of the content.
    QString m_pendingHtml;
    // Set while the switch renders that HTML: the content follows quietly.
    bool m_quiet = false;
    // Off until a client asks: the widget keeps its own height.
    bool m_adjustHeightToContent = false;
};

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
    // Off until a client asks: the widget keeps its own height.
    bool m_adjustHeightToContent = false;
};

#pragma once

#include "UI/CKyUIBaseView.h"
#include "UI/CKyUISignal.h"

// The multi-line text area. Appended plain text is made safe for rich-text
// display; appended HTML is shown formatted. Tab moves the focus on.
class COMMONUI_EXPORT CKyUITextView : public CKyUIBaseView
{
public:
    CKyUITextView();
    ~CKyUITextView() override;

    // Replaces the text as plain text, keeping the character format in use.
    void setText(const QString& text);
    // Replaces the text too, also as plain text unless it is empty.
    void setHtmlText(const QString& text);
    // Appends a paragraph, encoded so that its markup characters show as such.
    void addText(const QString& text);
    // Appends a paragraph that the widget interprets as HTML.
    void addHtmlText(const QString& text);
    void clear();
    // The document's plain text after every change of the widget.
    QString getContent() const;

    void setReadOnly(bool readOnly);
    // A text view is always multi-line.
    void setMultiline(bool multiline);
    void setPlaceholderText(const QString& text);
    QString placeholderText() const;
    // Takes effect at the next change of the content.
    void setAdjustHeightToContent(const bool& adjust);
    bool getAdjustHeightToContent() const;

    CKyUISignal<void()>& textChanged();
    // Emitted before the widget handles the focus change.
    CKyUISignal<void()>& focusInEventSignal();
    CKyUISignal<void()>& focusOutEventSignal();
};

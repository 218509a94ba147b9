#pragma once

#include "UI/CKyUIBaseView.h"
#include "UI/CKyUISignal.h"

/// The multi-line text area, which reads HTML from addHtmlText() only (see
/// \ref behaviours_controls "behaviours"). Appended plain text is made safe for
/// rich-text display; appended HTML is shown formatted. Tab moves the focus on.
///
/// The content is kept as plain text: after every change of the widget it is
/// the document's plain text. Every change of the widget's content, typed or
/// set, emits textChanged(). Pasted or dropped content arrives as plain text.
///
/// \image html buttons-and-text.png "A text view with appended HTML, among buttons and labels"
class COMMONUI_EXPORT CKyUITextView : public CKyUIBaseView
{
public:
    /// An empty text view, created with its widget.
    CKyUITextView();
    ~CKyUITextView() override;

    /// Replaces the text as plain text, keeping the character format in use.
    /// Emits textChanged() for the widget's change and then once more.
    void setText(const QString& text);
    /// Replaces the text too, also as plain text unless it is empty: markup
    /// shows literally. Only addHtmlText() is interpreted as HTML.
    /// Interactive (see setInteractive()): the text is rendered as HTML. A
    /// text given before the view became interactive is rendered then, if
    /// nothing changed the content in between.
    void setHtmlText(const QString& text);
    /// Appends a paragraph, encoded so that its markup characters show as such.
    void addText(const QString& text);
    /// Appends a paragraph that the widget interprets as HTML.
    void addHtmlText(const QString& text);
    /// Empties the text.
    void clear();
    /// The document's plain text after every change of the widget.
    QString getContent() const;

    /// Makes the text read-only for the user, or editable.
    void setReadOnly(bool readOnly);
    /// A text view is always multi-line.
    void setMultiline(bool multiline);
    /// Stores the placeholder and shows it; an unchanged value does nothing.
    void setPlaceholderText(const QString& text);
    /// The stored placeholder.
    QString placeholderText() const;
    /// Takes effect at the next change of the content: then the widget's fixed
    /// height follows its document (25 pixels when empty) and the vertical
    /// scroll bar goes. Turning it off leaves the last height as it is.
    void setAdjustHeightToContent(const bool& adjust);
    /// The stored flag.
    bool getAdjustHeightToContent() const;

    /// Emitted at every change of the widget's content, typed or set.
    CKyUISignal<void()>& textChanged();
    /// Emitted before the widget handles the focus change.
    CKyUISignal<void()>& focusInEventSignal();
    /// Emitted before the widget handles the focus change.
    CKyUISignal<void()>& focusOutEventSignal();
};

#pragma once

#include "UI/CKyUIObject.h"

#include <QtCore/QString>

class CKyUIBaseView;

/// A modal message with an icon and the buttons the caller chooses; exec()
/// returns the button pressed.
///
/// Like a dialog it is no view: it stands over the window of the view it is
/// given, but it is not that view's child, so deleting the view meanwhile does
/// no harm. It wears the theme of the library's dialogs. While it runs the
/// host is told that a modal run starts and, however it ends, that it ended,
/// as for CKyUIDialog.
///
/// For the usual cases one line is enough:
/// \code
/// if (CKyUIMessageBox::question(view, "Delete hole", "Delete the hole and its thread?") ==
///     CKyUIMessageBox::Yes)
///     deleteHole();
/// \endcode
///
/// The user's Escape (or the window's close button) presses the button that
/// cancels: Cancel if there is one, else No, else the only button; with none
/// of these the window stays open.
///
/// \image html choosers-and-trees.png "The message box is opened from the gallery's Choosers and trees page"
class COMMONUI_EXPORT CKyUIMessageBox : public CKyUIObject
{
public:
    /// The picture beside the text.
    enum Icon {
        NoIcon,      ///< no picture
        Information, ///< an "i": something the user should know
        Warning,     ///< an exclamation mark: something may go wrong
        Question,    ///< a question mark: the user decides
        Critical     ///< a stop sign: something went wrong
    };

    /// The buttons a box may show; combine them with `|` for
    /// setStandardButtons(). Each is shown with the toolkit's text for it.
    enum StandardButton {
        NoButton = 0x0,   ///< none: the run ended without a button
        Ok = 0x1,         ///< "OK"
        Cancel = 0x2,     ///< "Cancel"
        Yes = 0x4,        ///< "Yes"
        No = 0x8,         ///< "No"
        Save = 0x10,      ///< "Save"
        Discard = 0x20,   ///< "Discard"
        Apply = 0x40,     ///< "Apply"
        Close = 0x80,     ///< "Close"
        Retry = 0x100,    ///< "Retry"
        Ignore = 0x200,   ///< "Ignore"
        Abort = 0x400,    ///< "Abort"
        YesToAll = 0x800, ///< "Yes to All"
        NoToAll = 0x1000  ///< "No to All"
    };
    /// Several StandardButton values combined with `|`.
    using StandardButtons = int;

    /// An empty box with OK and no icon, standing over @p parent's window
    /// (null: over nothing in particular).
    explicit CKyUIMessageBox(CKyUIBaseView* parent = nullptr);
    /// Deleted while it runs (from a slot during the run), it closes: exec()
    /// then returns NoButton.
    ~CKyUIMessageBox() override;

    /// Sets the picture beside the text.
    void setIcon(Icon icon);
    /// The picture last set; NoIcon unless set.
    Icon icon() const;
    /// Sets the window's title.
    void setWindowTitle(const QString& title);
    /// The title last set.
    QString windowTitle() const;
    /// Sets the message.
    void setText(const QString& text);
    /// The message last set.
    QString text() const;
    /// Sets a second, smaller text under the message.
    void setInformativeText(const QString& text);
    /// The informative text last set.
    QString informativeText() const;
    /// Shows exactly these buttons, in the toolkit's order for the platform.
    void setStandardButtons(StandardButtons buttons);
    /// The buttons last set; Ok unless set.
    StandardButtons standardButtons() const;
    /// The button that Return presses; NoButton leaves the choice to the
    /// toolkit. A button the box does not show is ignored.
    void setDefaultButton(StandardButton button);
    /// The default button last set.
    StandardButton defaultButton() const;

    /// Runs the box modally and returns the button pressed, NoButton when the
    /// box was deleted during the run. The host is told that a modal run
    /// starts and ends.
    StandardButton exec();
    /// The button pressed in the last run; NoButton before the first.
    StandardButton clickedButton() const;

    /// An Information box with @p buttons; returns the button pressed.
    static StandardButton information(CKyUIBaseView* parent, const QString& title, const QString& text,
                                      StandardButtons buttons = Ok, StandardButton defaultButton = NoButton);
    /// A Warning box with @p buttons; returns the button pressed.
    static StandardButton warning(CKyUIBaseView* parent, const QString& title, const QString& text,
                                  StandardButtons buttons = Ok, StandardButton defaultButton = NoButton);
    /// A Question box, with Yes and No unless told otherwise; returns the
    /// button pressed.
    static StandardButton question(CKyUIBaseView* parent, const QString& title, const QString& text,
                                   StandardButtons buttons = Yes | No,
                                   StandardButton defaultButton = NoButton);
    /// A Critical box with @p buttons; returns the button pressed.
    static StandardButton critical(CKyUIBaseView* parent, const QString& title, const QString& text,
                                   StandardButtons buttons = Ok, StandardButton defaultButton = NoButton);
};

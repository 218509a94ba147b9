#pragma once

#include "UI/CKyUIObject.h"

#include <QtGui/QPalette>

class CKyUIShowEvent;
class CKyUIHideEvent;
class CKyUIPaintEvent;
class CKyUIResizeEvent;
class CKyUIFocusEvent;

/// Base of every visible element, whose size operations only record the size
/// and whose isVisible() is false until setVisible(true) (see
/// \ref behaviours_views "behaviours"). Controls, containers, both box layouts
/// and the dialog button box are views; dialogs, actions, menus and timers are
/// not.
///
/// Width and height are a record kept by the view, not a query of the widget:
/// resize() and friends only change the record, and size limits reach the
/// widget through the minimum and maximum operations. Likewise isVisible(),
/// isEnabled() and hasFocus() answer from flags the view keeps.
///
/// **Lifetime.** A view added to another view with addView() or insertView()
/// becomes its child and is deleted with it; removeView() gives it back to the
/// caller. When a view is destroyed its toolkit widget is scheduled for
/// deletion on the next pass of the event loop, so it may still deliver
/// events until control returns there.
class COMMONUI_EXPORT CKyUIBaseView : public CKyUIObject
{
public:
    /// The base part only; the concrete class creates its implementation and
    /// its widget.
    CKyUIBaseView();
    /// Schedules the widget for deletion (if the handle is a widget), then
    /// deletes the implementation and the child views.
    ~CKyUIBaseView() override;

    /// Makes @p view a child of this view and places its widget in this
    /// view's layout with the given stretch (truncated toward zero by the
    /// layouts). A view is added once: a view that already has a parent is
    /// ignored; to move it, remove it first.
    void addView(CKyUIBaseView* view, float stretch = 0.0f);
    /// Like addView() at position @p index, but it also takes a view that
    /// belongs to another parent, moving it here.
    void insertView(CKyUIBaseView* view, int index, float stretch = 0.0f);
    /// Gives ownership of the view back to the caller. Does nothing for a view
    /// whose parent is not this view. What happens to its widget depends on
    /// the container (a horizontal layout leaves it in the row).
    void removeView(CKyUIBaseView* view);

    /// Stores the flag and enables or disables the widget.
    void setEnabled(bool enabled);
    /// The same as setEnabled(!disabled).
    void setDisabled(bool disabled);
    /// The stored flag; true for a new view.
    bool isEnabled() const;

    /// Stores the flag and shows or hides the widget.
    void setVisible(bool visible);
    /// The stored flag: false until setVisible(true), whatever the widget's
    /// own state.
    bool isVisible() const;

    /// Gives the widget the keyboard focus.
    void setFocus();
    /// Does nothing. Interactive (see setInteractive()): gives the widget the
    /// keyboard focus for the reason, a `Qt::FocusReason` value (0 to 8;
    /// other numbers do nothing).
    void setFocus(int reason);
    /// The stored focus flag, which the view never changes: always false.
    bool hasFocus() const;
    /// Sets the widget's focus policy; the number is the toolkit's
    /// `Qt::FocusPolicy` value.
    void setFocusPolicy(int policy);
    /// Puts @p second after @p first in the tab order (both by their widgets).
    void setTabOrder(CKyUIObject* first, CKyUIObject* second);

    /// The recorded width; 0 for a new view.
    int width() const;
    /// The recorded height; 0 for a new view.
    int height() const;
    /// Records the width only; the widget is not resized. Interactive: the
    /// widget is resized to it, keeping its height.
    void setWidth(int width);
    /// Records the height only; the widget is not resized. Interactive: the
    /// widget is resized to it, keeping its width.
    void setHeight(int height);
    /// Records width and height only: the widget keeps its geometry. Use the
    /// minimum and maximum operations to constrain the widget. Interactive:
    /// the widget is resized too (a layout may resize it again).
    void resize(int width, int height);
    /// Records the size as both the current and the preferable size; the
    /// widget is not resized. Interactive: the widget is resized to it and
    /// layouts give it no less (a side of 0 or less is left to the widget).
    /// An interactive view takes the recorded sizes when it is switched on.
    void setPreferableSize(int width, int height);
    /// Sets the widget's minimum width.
    void setMinimumWidth(int width);
    /// Sets the widget's minimum height.
    void setMinimumHeight(int height);
    /// Sets the widget's maximum width.
    void setMaximumWidth(int width);
    /// Sets the widget's maximum height.
    void setMaximumHeight(int height);

    /// Asks the widget to repaint; an image view renders itself again.
    void update();

    /// Stores the palette and maps three of its colours onto the widget: the
    /// base colour becomes the background (in the widget's style sheet), the
    /// text colour the text colour, and the alternate-base colour the border
    /// colour. On a disabled view the palette is only stored, and enabling
    /// the view later does not apply it.
    void setPalette(const QPalette& palette);
    /// The palette last given to setPalette(), not the widget's.
    const QPalette& palette() const;
    /// Always 9, the toolkit's `QPalette::Base`.
    int backgroundRole() const;

    /// Writes a solid border of @p width pixels into the widget's style sheet.
    /// Earlier width declarations stay in the sheet ahead of the new one,
    /// which wins.
    void setBorderWidth(float width);
    /// Writes four solid border widths, in pixels, into the widget's style
    /// sheet.
    void setBorderWidth(float left, float top, float right, float bottom);
    /// Writes the border colour (components 0 to 255) into the widget's style
    /// sheet. A `border:` shorthand written earlier is removed with it.
    void setBorderColor(int red, int green, int blue);
    /// Accepted and ignored. Interactive: writes the radius, in pixels, into
    /// the widget's style sheet, replacing an earlier one; a radius given
    /// before is written when the view becomes interactive.
    void setCornerRadius(float radius);
    /// Accepted and ignored.
    void addStyleClass(const QString& name, bool value);
    /// Accepted and ignored.
    void removeStyleClass(const QString& name, bool value);

    /// Keeps this control's value under @p name, inside a dialog that has a
    /// remember key (CKyUIDialog::setRememberKey()): saved when the dialog is
    /// accepted, given back through the control's own setter (its signals fire
    /// as for a program change) before the dialog's next run shows. Text edits,
    /// combo boxes (by text, else by index), check boxes, radio groups and
    /// sliders keep their value; other views ignore it. A stored value the
    /// control cannot take (another type, out of range) is ignored and the
    /// control keeps its default. Names are unique within a dialog; an empty
    /// name stops remembering. See \ref remember.
    void remember(const QString& name);
    /// The name given to remember(), or an empty string.
    QString rememberName() const;
    /// \name Help texts and accessibility
    /// Each text is stored by the view and given to its widget; a view whose
    /// handle is not a widget (a radio group) only stores it. Nothing is set
    /// until a setter is called, and an empty text takes the help away again.
    /// @{

    /// The text shown when the pointer rests on the view.
    void setToolTip(const QString& text);
    /// The tool tip last set; empty unless set.
    QString toolTip() const;
    /// The text a host's status bar shows while the pointer is over the view.
    void setStatusTip(const QString& text);
    /// The status tip last set; empty unless set.
    QString statusTip() const;
    /// The longer help shown in "what's this" mode (Shift+F1, or the help
    /// button of a dialog's title bar).
    void setWhatsThis(const QString& text);
    /// The "what's this" text last set; empty unless set.
    QString whatsThis() const;
    /// The name a screen reader announces, for views whose own text does not
    /// say what they are (a spin box next to its label, an icon button).
    void setAccessibleName(const QString& name);
    /// The accessible name last set; empty unless set.
    QString accessibleName() const;
    /// The longer description a screen reader offers on request.
    void setAccessibleDescription(const QString& description);
    /// The accessible description last set; empty unless set.
    QString accessibleDescription() const;
    /// @}

    /// Event handler for subclasses; does nothing here. The library calls the
    /// handlers only for the dock widget's content.
    virtual void showEvent(CKyUIShowEvent* event);
    /// Event handler for subclasses; does nothing here.
    virtual void hideEvent(CKyUIHideEvent* event);
    /// Event handler for subclasses; does nothing here. An image view calls it
    /// on every size change and update().
    virtual void paintEvent(CKyUIPaintEvent* event);
    /// Event handler for subclasses; does nothing here.
    virtual void resizeEvent(CKyUIResizeEvent* event);
    /// Event handler for subclasses; does nothing here.
    virtual void focusInEvent(CKyUIFocusEvent* event);
    /// Event handler for subclasses; does nothing here.
    virtual void focusOutEvent(CKyUIFocusEvent* event);
};

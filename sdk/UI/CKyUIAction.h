#pragma once

#include "UI/CKyUIObject.h"
#include "UI/CKyUISignal.h"

#include <QtGui/QIcon>

/// A command with a text, an icon and check, enable and visibility flags,
/// reporting triggered(checked), whose setEnabled() changes nothing on screen
/// and whose toolkit action outlives it (see
/// \ref behaviours_controls "behaviours"). Not a view. The getters answer from
/// what was set: a user toggling a checkable action does not change
/// isChecked().
///
/// Set the flags before reading them: isChecked() has no defined value
/// before the first setChecked(). Add actions to a CKyUIMenu, which then owns
/// them.
class COMMONUI_EXPORT CKyUIAction : public CKyUIObject
{
public:
    /// An action without text, created with its toolkit action.
    CKyUIAction();
    /// The toolkit action is no widget and is not released with the action:
    /// it stays behind, and so does its entry in a menu it was added to.
    ~CKyUIAction() override;

    /// Stores the text and shows it in menus.
    void setText(const QString& text);
    /// The stored text.
    QString text() const;
    /// Stores the icon and shows it in menus.
    void setIcon(const QIcon& icon);
    /// Accepted and ignored. Interactive (see setInteractive()): loads the
    /// icon from the resource path (":/...") or file and sets it as setIcon()
    /// does; a path given before is loaded when the action becomes
    /// interactive, unless setIcon() came after it.
    void setResourceIcon(const QString& name);
    /// Kept only: the entry on screen stays as it is. Interactive: enables or
    /// disables the entry; the kept flag is applied when the action becomes
    /// interactive.
    void setEnabled(bool enabled);
    /// Stores the flag and makes the action checkable.
    void setCheckable(bool checkable);
    /// Stores the state and shows it.
    void setChecked(bool checked);
    /// The state last given to setChecked(), whatever the user toggled since.
    bool isChecked() const;
    /// Stores the flag and shows or hides the entry.
    void setVisible(bool visible);

    /// Emitted when the user triggers the action, with its new checked state
    /// (which isChecked() does not take over).
    CKyUISignal<void(bool)>& triggered();
};

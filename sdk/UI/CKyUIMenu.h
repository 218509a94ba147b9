#pragma once

#include "UI/CKyUIObject.h"

class CKyUIAction;
class CKyUIBaseView;

/// A pop-up menu of actions, whose clear() does not delete them (see
/// \ref behaviours_controls "behaviours"). Added actions become the menu's
/// children and are deleted with it; clear() takes them off the menu without
/// deleting them.
class COMMONUI_EXPORT CKyUIMenu : public CKyUIObject
{
public:
    /// An empty menu, created with its toolkit menu.
    CKyUIMenu();
    ~CKyUIMenu() override;

    /// Makes the menu the action's parent, which then owns it, and adds the
    /// action's entry.
    void addAction(CKyUIAction* action);
    /// Adds a separator line.
    void addSeparator();
    /// Takes every entry off the menu. Added actions stay alive, still owned
    /// by the menu, and can be added again.
    void clear();
    /// Opens the menu straight below the view, its right edge on the view's
    /// right edge. Does nothing for a view without a widget.
    void popup(CKyUIBaseView* view);
};

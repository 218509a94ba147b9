#pragma once

#include "UI/CKyUIObject.h"

class CKyUIAction;
class CKyUIBaseView;

// A pop-up menu of actions. Added actions become the menu's children and are
// deleted with it; clear() takes them off the menu without deleting them.
class COMMONUI_EXPORT CKyUIMenu : public CKyUIObject
{
public:
    CKyUIMenu();
    ~CKyUIMenu() override;

    void addAction(CKyUIAction* action);
    void addSeparator();
    void clear();
    // Opens the menu straight below the view, its right edge on the view's
    // right edge.
    void popup(CKyUIBaseView* view);
};

#pragma once

#include "UI/Impl/CKyUIObjectImpl.h"

#include <list>

class CKyUIAction;
class CKyUIBaseView;

// The menu's own list of actions, which it owns. addAction does not fill it:
// added actions belong to the menu through the object tree instead.
class CKyUIMenuImpl : public CKyUIObjectImpl
{
public:
    explicit CKyUIMenuImpl(CKyUIObject* owner);
    ~CKyUIMenuImpl() override;

    QString GetFrontendClassName() override;
    void CreateFrontendControl() override;

    void AddAction(CKyUIAction* action);
    void Clear();
    const std::list<CKyUIAction*>& Actions() const { return m_actions; }

    void AddActionImpl(CKyUIAction* action);
    void AddSeparatorImpl();
    void ClearImpl();
    void PopupImpl(CKyUIBaseView* view);

private:
    void DeleteOwnActions();

    std::list<CKyUIAction*> m_actions;
};

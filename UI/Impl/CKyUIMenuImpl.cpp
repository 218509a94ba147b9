#include "UI/Impl/CKyUIMenuImpl.h"

#include "UI/CKyUIAction.h"

CKyUIMenuImpl::CKyUIMenuImpl(CKyUIObject* owner)
    : CKyUIObjectImpl(owner)
{
}

CKyUIMenuImpl::~CKyUIMenuImpl()
{
    DeleteOwnActions();
}

QString CKyUIMenuImpl::GetFrontendClassName()
{
    return QStringLiteral("QMenu");
}

void CKyUIMenuImpl::AddAction(CKyUIAction* action)
{
    if (!action)
        return;
    action->setParent(owner());
    AddActionImpl(action);
}

void CKyUIMenuImpl::Clear()
{
    // Added actions are not in the own list: they stay alive.
    DeleteOwnActions();
    ClearImpl();
}

void CKyUIMenuImpl::DeleteOwnActions()
{
    std::list<CKyUIAction*> actions;
    actions.swap(m_actions);
    for (CKyUIAction* action : actions) {
        action->setParent(nullptr);
        delete action;
    }
}

#include "UI/Impl/CKyUIObjectImpl.h"

#include "UI/CKyUIObject.h"

CKyUIObjectImpl::CKyUIObjectImpl(CKyUIObject* owner)
    : m_owner(owner)
{}

CKyUIObjectImpl::~CKyUIObjectImpl()
{
    m_lifetime->alive = false;
    UnlinkUserInput();
}

QString CKyUIObjectImpl::GetFrontendClassName()
{
    return QString();
}

void CKyUIObjectImpl::CreateFrontendControl() {}

void CKyUIObjectImpl::SetInteractiveImpl(bool)
{
    UnlinkUserInput();
}

void SetInteractiveTree(CKyUIObject* root, bool interactive)
{
    if (!root)
        return;
    root->setInteractive(interactive);
    // A copy: a slot reached from a switched control may change the tree.
    const QList<CKyUIObject*> children = root->children();
    for (CKyUIObject* child : children)
        SetInteractiveTree(child, interactive);
}

#include "UI/Impl/CKyUIObjectImpl.h"

CKyUIObjectImpl::CKyUIObjectImpl(CKyUIObject* owner)
    : m_owner(owner)
{
}

CKyUIObjectImpl::~CKyUIObjectImpl()
{
    m_lifetime->alive = false;
}

QString CKyUIObjectImpl::GetFrontendClassName()
{
    return QString();
}

void CKyUIObjectImpl::CreateFrontendControl()
{
}

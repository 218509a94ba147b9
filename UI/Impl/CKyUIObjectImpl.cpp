#include "UI/Impl/CKyUIObjectImpl.h"

CKyUIObjectImpl::CKyUIObjectImpl(CKyUIObject* owner)
    : m_owner(owner)
{
}

CKyUIObjectImpl::~CKyUIObjectImpl() = default;

QString CKyUIObjectImpl::GetFrontendClassName()
{
    return QString();
}

void CKyUIObjectImpl::CreateFrontendControl()
{
}

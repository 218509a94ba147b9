#include "UI/Impl/CKyUIObjectImpl.h"

#include "UI/CKyUIObject.h"

#include <QtCore/QObject>

void CKyUIObjectImpl::SetObjectNameImpl(const QString& name)
{
    m_owner->getHandle()->setObjectName(name);
}

bool CKyUIObjectImpl::SetPropertyImpl(const char* name, const QVariant& value)
{
    QObject* handle = m_owner->getHandle();
    if (!handle)
        return false;
    return handle->setProperty(name, value);
}

void CKyUIObjectImpl::UnlinkUserInput()
{
    for (const QMetaObject::Connection& link : m_userInputLinks)
        QObject::disconnect(link);
    m_userInputLinks.clear();
}

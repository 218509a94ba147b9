#include "UI/CKyUISignal.h"

CKyUIEmitScope::CKyUIEmitScope(CKyUIObject* object, CKyUIObject* sender)
    : m_object(object)
{
    if (m_object)
        m_object->setSender(sender);
}

CKyUIEmitScope::~CKyUIEmitScope()
{
    if (m_object)
        m_object->setSender(nullptr);
}

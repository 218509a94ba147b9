#pragma once

#include <QtCore/QString>
#include <QtCore/QVariant>

class CKyUIObject;

// Base of every implementation: drives the toolkit object stored as the
// owner's handle.
class CKyUIObjectImpl
{
public:
    explicit CKyUIObjectImpl(CKyUIObject* owner);
    virtual ~CKyUIObjectImpl();

    CKyUIObjectImpl(const CKyUIObjectImpl&) = delete;
    CKyUIObjectImpl& operator=(const CKyUIObjectImpl&) = delete;

    virtual QString GetFrontendClassName();
    virtual void CreateFrontendControl();
    virtual void SetObjectNameImpl(const QString& name);
    virtual bool SetPropertyImpl(const char* name, const QVariant& value);

    CKyUIObject* owner() const { return m_owner; }

private:
    CKyUIObject* const m_owner;
};

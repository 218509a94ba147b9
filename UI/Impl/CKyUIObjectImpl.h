#pragma once

#include <QtCore/QString>
#include <QtCore/QVariant>

#include <memory>

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

    // Expires when this object goes. An operation that reports through more
    // than one signal takes it first and stops as soon as it has expired: a
    // slot may delete the public object, and this one with it.
    std::weak_ptr<const int> Lifetime() const { return m_lifetime; }

private:
    CKyUIObject* const m_owner;
    const std::shared_ptr<const int> m_lifetime = std::make_shared<const int>(0);
};

#pragma once

#include "commonui_export.h"

#include <QtCore/QList>
#include <QtCore/QString>
#include <QtCore/QVariant>

class QObject;
class CKyUIObjectData;
class CKyUIObjectImpl;

// Root of every public class: a place in the tree of public objects, the one
// toolkit object that does the work (the handle), a name, named properties and
// a switch that silences the object's signals. A parent owns its children and
// deletes them after its own implementation, in the order they were attached.
class COMMONUI_EXPORT CKyUIObject
{
public:
    CKyUIObject();
    virtual ~CKyUIObject();

    CKyUIObject(const CKyUIObject&) = delete;
    CKyUIObject& operator=(const CKyUIObject&) = delete;

    void setParent(CKyUIObject* parent);
    CKyUIObject* parent();
    const CKyUIObject* parent() const;
    QList<CKyUIObject*> children() const;

    QObject* getHandle() const;
    void setHandle(QObject* handle);

    void setObjectName(const QString& name);
    QString objectName() const;

    // Succeeds only for properties the toolkit class declares; dynamic names
    // reach the toolkit object but are neither recorded nor reported.
    bool setProperty(const char* name, const QVariant& value);
    QVariant property(const char* name) const;

    void setSender(CKyUIObject* sender);
    CKyUIObject* sender() const;

    void blockSignals(bool block);
    bool signalsBlocked() const;

    CKyUIObjectImpl* impl() const;

protected:
    // Takes ownership of the implementation; used by the concrete classes'
    // constructors.
    void setImpl(CKyUIObjectImpl* impl);

    // The implementation as the concrete class's own type, which the concrete
    // class knows it created.
    template <class Impl>
    Impl* implAs() const
    {
        return static_cast<Impl*>(impl());
    }

private:
    CKyUIObjectImpl* m_impl;
    CKyUIObjectData* m_data;
};

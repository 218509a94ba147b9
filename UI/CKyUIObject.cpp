#include "UI/CKyUIObject.h"

#include "UI/Impl/CKyUIObjectData.h"
#include "UI/Impl/CKyUIObjectImpl.h"

namespace
{
bool g_defaultInteractive = false;
} // namespace

CKyUIObject::CKyUIObject()
    : m_impl(nullptr)
    , m_data(new CKyUIObjectData)
{
    m_data->interactive = g_defaultInteractive;
}

CKyUIObject::~CKyUIObject()
{
    setParent(nullptr);
    delete m_impl;
    m_impl = nullptr;
    // Each child detaches itself from m_data->children while it is deleted,
    // so walk a copy.
    const QList<CKyUIObject*> children = m_data->children;
    for (CKyUIObject* child : children)
        delete child;
    delete m_data;
}

void CKyUIObject::setParent(CKyUIObject* parent)
{
    // A cycle would make two objects delete each other.
    for (const CKyUIObject* ancestor = parent; ancestor; ancestor = ancestor->m_data->parent) {
        if (ancestor == this)
            return;
    }
    if (m_data->parent)
        m_data->parent->m_data->children.removeAll(this);
    m_data->parent = parent;
    if (parent && !parent->m_data->children.contains(this))
        parent->m_data->children.append(this);
}

CKyUIObject* CKyUIObject::parent()
{
    return m_data->parent;
}

const CKyUIObject* CKyUIObject::parent() const
{
    return m_data->parent;
}

QList<CKyUIObject*> CKyUIObject::children() const
{
    return m_data->children;
}

QObject* CKyUIObject::getHandle() const
{
    return m_data->handle;
}

void CKyUIObject::setHandle(QObject* handle)
{
    m_data->handle = handle;
}

void CKyUIObject::setObjectName(const QString& name)
{
    m_data->objectName = name;
    if (m_impl && m_data->handle)
        m_impl->SetObjectNameImpl(name);
}

QString CKyUIObject::objectName() const
{
    return m_data->objectName;
}

bool CKyUIObject::setProperty(const char* name, const QVariant& value)
{
    if (!m_impl || !name || !m_impl->SetPropertyImpl(name, value))
        return false;
    m_data->properties[name] = value;
    return true;
}

QVariant CKyUIObject::property(const char* name) const
{
    if (!name)
        return QVariant();
    const auto found = m_data->properties.find(name);
    return found == m_data->properties.end() ? QVariant() : found->second;
}

void CKyUIObject::setSender(CKyUIObject* sender)
{
    m_data->sender = sender;
}

CKyUIObject* CKyUIObject::sender() const
{
    return m_data->sender;
}

void CKyUIObject::blockSignals(bool block)
{
    m_data->signalsBlocked = block;
}

bool CKyUIObject::signalsBlocked() const
{
    return m_data->signalsBlocked;
}

const bool* CKyUIObject::signalsBlockedFlag() const
{
    return &m_data->signalsBlocked;
}

void CKyUIObject::setInteractive(bool interactive)
{
    m_data->interactive = interactive;
    if (m_impl)
        m_impl->SetInteractiveImpl(interactive);
}

bool CKyUIObject::isInteractive() const
{
    return m_data->interactive;
}

void CKyUIObject::setDefaultInteractive(bool interactive)
{
    g_defaultInteractive = interactive;
}

bool CKyUIObject::defaultInteractive()
{
    return g_defaultInteractive;
}

void CKyUIObject::startInteractive()
{
    // Off is where every implementation starts: nothing to undo.
    if (m_impl && m_data->interactive)
        m_impl->SetInteractiveImpl(true);
}

CKyUIObjectImpl* CKyUIObject::impl() const
{
    return m_impl;
}

void CKyUIObject::setImpl(CKyUIObjectImpl* impl)
{
    m_impl = impl;
}

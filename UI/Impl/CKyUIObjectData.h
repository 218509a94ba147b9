#pragma once

#include <QtCore/QList>
#include <QtCore/QString>
#include <QtCore/QVariant>

#include <map>
#include <string>

class QObject;
class CKyUIObject;

// The state of a public object; the public object itself holds only pointers.
class CKyUIObjectData
{
public:
    QObject* handle = nullptr; // not owned
    QString objectName;
    bool signalsBlocked = false;
    CKyUIObject* sender = nullptr; // meaningful only while an emit scope is active
    CKyUIObject* parent = nullptr; // not owned
    QList<CKyUIObject*> children;  // owned, in attachment order; each at most once
    std::map<std::string, QVariant> properties;
};

#pragma once

#include <QtCore/QList>
#include <QtCore/QObject>
#include <QtCore/QPointer>
#include <QtCore/QString>
#include <QtCore/QVariant>

#include <map>
#include <string>

class CKyUIObject;

// The state of a public object; the public object itself holds only pointers.
class CKyUIObjectData
{
public:
    // Not owned. Tracked: the toolkit may delete the object while this one
    // lives (a removed view's widget goes with its former container), and the
    // handle then reads null instead of dangling.
    QPointer<QObject> handle;
    QString objectName;
    bool signalsBlocked = false;
    bool interactive = false;      // follows its user; see CKyUIObject::setInteractive
    CKyUIObject* sender = nullptr; // meaningful only while an emit scope is active
    CKyUIObject* parent = nullptr; // not owned
    QList<CKyUIObject*> children;  // owned, in attachment order; each at most once
    std::map<std::string, QVariant> properties;
};

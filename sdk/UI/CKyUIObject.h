#pragma once

#include "commonui_export.h"

#include <QtCore/QList>
#include <QtCore/QString>
#include <QtCore/QVariant>

class QObject;
class CKyUIObjectData;
class CKyUIObjectImpl;
template <class Sig>
class CKyUISignal;

/// Root of every public class: a place in the tree of public objects, the one
/// toolkit object that does the work (the handle), a name, named properties and
/// a switch that drops, not queues, the object's signals (see
/// \ref behaviours_signals "behaviours").
///
/// Every public class (views, dialogs, actions, menus, timers, network
/// managers, replies and web sockets) derives from it. A public object holds
/// only a pointer to its implementation, which its constructor creates and its
/// destructor deletes; the implementation drives the toolkit object.
///
/// **Ownership.** A parent owns its children: deleting a parent deletes, in
/// this order, its own implementation (and with it its signals), then each
/// child in the order the children were attached. An object without a parent
/// belongs to whoever created it. Deleting a child first takes it off its
/// parent's list, so the parent never deletes it twice.
///
/// The toolkit object is not deleted here: a view releases its widget with
/// the toolkit's deferred deletion (see CKyUIBaseView), and other classes say
/// in their own documentation what becomes of theirs.
///
/// All operations run on the user-interface thread.
class COMMONUI_EXPORT CKyUIObject
{
public:
    /// An object without implementation, parent or handle; concrete classes
    /// create their implementation in their own constructor.
    CKyUIObject();
    /// Detaches from the parent, deletes the implementation (its signals die
    /// with it), then deletes the children in the order they were attached.
    virtual ~CKyUIObject();

    CKyUIObject(const CKyUIObject&) = delete;
    CKyUIObject& operator=(const CKyUIObject&) = delete;

    /// Moves the object under @p parent, which then owns it; null detaches it
    /// and gives ownership back to the caller. The object is taken off its old
    /// parent's list and appended to the new one's (setting the same parent
    /// again moves it to the end of the list).
    void setParent(CKyUIObject* parent);
    /// The parent, or null.
    CKyUIObject* parent();
    /// The parent, or null.
    const CKyUIObject* parent() const;
    /// A copy of the children, in the order they were attached.
    QList<CKyUIObject*> children() const;

    /// The toolkit object behind this public object (a widget for views);
    /// null when there is none.
    QObject* getHandle() const;
    /// Replaces the handle; the previous one is neither deleted nor reparented.
    void setHandle(QObject* handle);

    /// Stores the name and gives it to the toolkit object. Requires an
    /// implementation and a handle.
    void setObjectName(const QString& name);
    /// The stored name (not read back from the toolkit).
    QString objectName() const;

    /// Sets a property on the toolkit object. Succeeds only for properties the
    /// toolkit class declares; dynamic names reach the toolkit object but are
    /// neither recorded nor reported: the call returns false and property()
    /// stays invalid.
    bool setProperty(const char* name, const QVariant& value);
    /// The value last set through setProperty(), or an invalid QVariant; the
    /// toolkit object is not asked.
    QVariant property(const char* name) const;

    /// Records the sender of the signal now being handled (see CKyUIEmitScope).
    void setSender(CKyUIObject* sender);
    /// The sender recorded by an active CKyUIEmitScope. The library's own
    /// emissions do not set it.
    CKyUIObject* sender() const;

    /// Silences (true) or releases (false) every signal this object owns. It
    /// takes effect at the very next emission, also one made from inside a
    /// slot; connections survive, and emissions made while blocked are dropped,
    /// not queued. State the controls keep still follows the toolkit while
    /// blocked.
    void blockSignals(bool block);
    /// Whether the object's signals are blocked.
    bool signalsBlocked() const;

    /// Makes the object follow its user (true) or only the program (false).
    ///
    /// Off, the library is driven from the program's side only: several
    /// controls deliberately ignore what their user does (a check box click is
    /// not reported, a list box draws no items, a dialog closed with Escape
    /// reports nothing; see the behaviours guide). On, every such path does
    /// what a toolkit developer expects: user input reaches the stored state
    /// and the signals, and the operations that are otherwise inert take
    /// effect. Switching off again restores the inert behaviour from the next
    /// user action on.
    ///
    /// On a dialog the value reaches its whole tree: every view in it when
    /// exec() starts, and every view added to it later, so one call per dialog
    /// is enough. A view added to an interactive container becomes interactive
    /// too, with its own children.
    void setInteractive(bool interactive);
    /// Whether the object follows its user; false unless set (see
    /// setDefaultInteractive()).
    bool isInteractive() const;
    /// The value that objects created from now on start with; false unless
    /// set. It is process-wide: meant for a host, or for a plug-in that has
    /// the process to itself. Plug-ins that share a host set the switch per
    /// dialog instead.
    static void setDefaultInteractive(bool interactive);
    /// The value new objects start with.
    static bool defaultInteractive();

    /// The implementation object; for the library's own use.
    CKyUIObjectImpl* impl() const;

protected:
    /// Takes ownership of the implementation; used by the concrete classes'
    /// constructors.
    void setImpl(CKyUIObjectImpl* impl);

    /// Creates the concrete class's implementation with @p self (this object,
    /// as its own class) as owner, takes ownership of it and lets it create its
    /// toolkit object; then an object that starts interactive is made so.
    template <class Impl, class Self, class... Args> Impl* createImpl(Self* self, Args&&... args)
    {
        auto* created = new Impl(self, static_cast<Args&&>(args)...);
        setImpl(created);
        created->CreateFrontendControl();
        startInteractive();
        return created;
    }

    /// The implementation as the concrete class's own type, which the concrete
    /// class knows it created.
    template <class Impl> Impl* implAs() const { return static_cast<Impl*>(impl()); }

private:
    // A signal reads its owner's blocking through this on every emission,
    // without a call into the library.
    template <class Sig>
    friend class CKyUISignal;
    const bool* signalsBlockedFlag() const;

    void startInteractive();

    CKyUIObjectImpl* m_impl;
    CKyUIObjectData* m_data;
};

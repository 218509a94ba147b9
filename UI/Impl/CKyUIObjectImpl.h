#pragma once

#include "UI/slimsig/detail/holder_ref"

#include <QtCore/QMetaObject>
#include <QtCore/QString>
#include <QtCore/QVariant>

#include <memory>
#include <utility>
#include <vector>

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

    // Makes the toolkit object follow its user, or only the program. The base
    // drops every user-input link; an override calls it first, then, when
    // switched on, links what its user does (LinkUserInput) and applies what
    // the inert path only stored.
    virtual void SetInteractiveImpl(bool interactive);

    CKyUIObject* owner() const { return m_owner; }

    // Whether this implementation still exists, asked after calling out to
    // client slots: a slot may delete the public object, and this one with it.
    // Cheap to copy and safe to keep after the implementation is gone. Kept
    // and copied on the user-interface thread only, so its count is a plain
    // counter: every report takes a copy.
    class Lifetime
    {
    public:
        bool Alive() const { return m_state->alive; }

    private:
        friend class CKyUIObjectImpl;
        struct State
        {
            bool alive = true;
            int reporting = 0;
        };
        explicit Lifetime(slimsig::holder_ref<State> state)
            : m_state(std::move(state))
        {}
        slimsig::holder_ref<State> m_state;
    };

    Lifetime GetLifetime() const { return Lifetime(m_lifetime); }

    // Runs the emissions in order and stops as soon as one of their slots has
    // deleted this object; answers whether it survived them all. Meanwhile it
    // counts as a report under way (see IsReporting).
    template <typename... Emissions> bool EmitInOrder(Emissions&&... emissions) const
    {
        const Reporting reporting(m_lifetime);
        const Lifetime& lifetime = reporting.lifetime;
        return ((std::forward<Emissions>(emissions)(), lifetime.Alive()) && ...);
    }

    // True while EmitInOrder runs on this object. Asked by a destructor, it
    // tells that one of the slots called is what deletes the object.
    bool IsReporting() const { return m_lifetime->reporting > 0; }

protected:
    // Keeps a toolkit connection that exists only while the owner follows its
    // user. Dropped when the switch goes off and when this object goes: the
    // widget may outlive it until its deferred deletion.
    void LinkUserInput(const QMetaObject::Connection& link) { m_userInputLinks.push_back(link); }

private:
    void UnlinkUserInput();

    struct Reporting
    {
        explicit Reporting(const slimsig::holder_ref<Lifetime::State>& state)
            : lifetime(state)
        {
            ++state->reporting;
        }
        ~Reporting() { --lifetime.m_state->reporting; }
        const Lifetime lifetime;
    };

    CKyUIObject* const m_owner;
    const slimsig::holder_ref<Lifetime::State> m_lifetime = slimsig::make_holder<Lifetime::State>();
    std::vector<QMetaObject::Connection> m_userInputLinks;
};

// Sets the switch on an object and on every object below it in the public
// tree, parents before their children.
void SetInteractiveTree(CKyUIObject* root, bool interactive);

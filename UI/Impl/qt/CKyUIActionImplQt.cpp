#include "UI/Impl/CKyUIActionImpl.h"

#include "UI/CKyUIObject.h"

#include <QtCore/QtGlobal>
#if QT_VERSION >= QT_VERSION_CHECK(6, 0, 0)
#include <QtGui/QAction>
#else
#include <QtWidgets/QAction>
#endif

CKyUIActionImpl::~CKyUIActionImpl()
{
    // The toolkit action is not deleted with its public object and may still
    // be triggered from a menu.
    QObject::disconnect(m_triggeredConnection);
}

void CKyUIActionImpl::CreateFrontendControl()
{
    auto* action = new QAction(nullptr);
    owner()->setHandle(action);
    m_triggeredConnection =
        QObject::connect(action, &QAction::triggered, [this](bool checked) { onTriggered(checked); });
}

void CKyUIActionImpl::SetTextImpl(const QString& text)
{
    if (auto* action = qobject_cast<QAction*>(owner()->getHandle()))
        action->setText(text);
}

void CKyUIActionImpl::SetIconImpl(const QIcon& icon)
{
    if (auto* action = qobject_cast<QAction*>(owner()->getHandle()))
        action->setIcon(icon);
}

void CKyUIActionImpl::SetEnabledImpl(bool enabled)
{
    // Off, the toolkit action is deliberately left enabled.
    if (!owner()->isInteractive())
        return;
    if (auto* action = qobject_cast<QAction*>(owner()->getHandle()))
        action->setEnabled(enabled);
}

void CKyUIActionImpl::SetResourceIconImpl(const QString& name)
{
    SetIcon(QIcon(name));
}

void CKyUIActionImpl::SetInteractiveImpl(bool interactive)
{
    CKyUIObjectImpl::SetInteractiveImpl(interactive);
    if (!interactive)
        return;
    SetEnabledImpl(m_enabled);
    if (!m_pendingResourceIcon.isEmpty())
        SetResourceIconImpl(m_pendingResourceIcon);
}

void CKyUIActionImpl::SetCheckableImpl(bool checkable)
{
    if (auto* action = qobject_cast<QAction*>(owner()->getHandle()))
        action->setCheckable(checkable);
}

void CKyUIActionImpl::SetCheckedImpl(bool checked)
{
    if (auto* action = qobject_cast<QAction*>(owner()->getHandle()))
        action->setChecked(checked);
}

void CKyUIActionImpl::SetVisibleImpl(bool visible)
{
    if (auto* action = qobject_cast<QAction*>(owner()->getHandle()))
        action->setVisible(visible);
}

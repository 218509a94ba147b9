#include "UI/Impl/CKyUIMenuImpl.h"

#include "UI/CKyUIAction.h"
#include "UI/CKyUIBaseView.h"
#include "UI/Impl/CKyUIBaseViewImpl.h"

#include <QtCore/QtGlobal>
#if QT_VERSION >= QT_VERSION_CHECK(6, 0, 0)
#include <QtGui/QAction>
#else
#include <QtWidgets/QAction>
#endif
#include <QtWidgets/QMenu>

namespace
{
QMenu* MenuOf(const CKyUIObject* object)
{
    return qobject_cast<QMenu*>(object->getHandle());
}
} // namespace

void CKyUIMenuImpl::CreateFrontendControl()
{
    auto* menu = new QMenu(nullptr);
    menu->setStyleSheet(QStringLiteral("QMenu { }"));
    owner()->setHandle(menu);
}

void CKyUIMenuImpl::AddActionImpl(CKyUIAction* action)
{
    QMenu* menu = MenuOf(owner());
    auto* toolkitAction = qobject_cast<QAction*>(action->getHandle());
    if (menu && toolkitAction)
        menu->addAction(toolkitAction);
}

void CKyUIMenuImpl::AddSeparatorImpl()
{
    if (QMenu* menu = MenuOf(owner()))
        menu->addSeparator();
}

void CKyUIMenuImpl::ClearImpl()
{
    // Deletes only the actions the menu owns on the toolkit side (separators);
    // added actions have no toolkit parent.
    if (QMenu* menu = MenuOf(owner()))
        menu->clear();
}

void CKyUIMenuImpl::PopupImpl(CKyUIBaseView* view)
{
    QWidget* widget = CKyUIBaseViewImpl::WidgetOf(view);
    QMenu* menu = MenuOf(owner());
    if (!widget || !menu)
        return;
    // May reach out to the left of the view.
    const QRect geometry = widget->geometry();
    const QPoint below(geometry.width() - menu->sizeHint().width(), geometry.height());
    menu->popup(widget->mapToGlobal(below), nullptr);
}

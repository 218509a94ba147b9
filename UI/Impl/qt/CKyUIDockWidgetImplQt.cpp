#include "UI/Impl/CKyUIDockWidgetImpl.h"

#include "UI/CKyUIObject.h"

#include <QtWidgets/QDockWidget>

void CKyUIDockWidgetImpl::RaiseImpl()
{
    if (auto* dock = qobject_cast<QDockWidget*>(owner()->getHandle()))
        dock->raise();
}

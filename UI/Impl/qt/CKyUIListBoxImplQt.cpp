#include "UI/Impl/CKyUIListBoxImpl.h"

#include "UI/CKyUIObject.h"

#include <QtWidgets/QListWidget>

void CKyUIListBoxImpl::CreateFrontendControl()
{
    auto* list = new QListWidget(nullptr);
    list->setStyleSheet(QStringLiteral("QListWidget { }"));
    owner()->setHandle(list);
}

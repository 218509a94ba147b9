#include "UI/Impl/CKyUIRadioGroupImpl.h"

#include "UI/CKyUIRadioButton.h"

#include <QtWidgets/QBoxLayout>
#include <QtWidgets/QButtonGroup>
#include <QtWidgets/QGroupBox>

CKyUIRadioGroupImpl::~CKyUIRadioGroupImpl()
{
    // No toolkit parent and no widget, so the view's release passes it by.
    delete m_group.data();
}

void CKyUIRadioGroupImpl::CreateFrontendControl()
{
    m_group = new QButtonGroup;
    owner()->setHandle(m_group);
}

void CKyUIRadioGroupImpl::AddRadioButtonImpl(CKyUIRadioButton* button)
{
    // The buttons go into the layout of the group box holding the group;
    // sharing that parent widget is what makes them exclude each other.
    CKyUIObject* container = owner()->parent();
    auto* box = qobject_cast<QGroupBox*>(container ? container->getHandle() : nullptr);
    auto* layout = qobject_cast<QBoxLayout*>(box ? box->layout() : nullptr);
    QWidget* widget = WidgetOf(button);
    if (!layout || !widget)
        return;
    widget->setSizePolicy(QSizePolicy::MinimumExpanding, QSizePolicy::MinimumExpanding);
    layout->addWidget(widget, 0, Qt::Alignment());
}

#include "UI/Impl/CKyUIRadioGroupImpl.h"

#include "UI/CKyUIRadioButton.h"
#include "UI/Impl/CKyUIRadioButtonImpl.h"

#include <QtWidgets/QAbstractButton>
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

void CKyUIRadioGroupImpl::LinkButtonImpl(CKyUIRadioButton* button)
{
    auto* widget = qobject_cast<QAbstractButton*>(button->getHandle());
    if (!widget)
        return;
    LinkUserInput(QObject::connect(widget, &QAbstractButton::toggled, widget, [this, button](bool checked) {
        if (checked)
            OnButtonChecked(button);
    }));
}

void CKyUIRadioGroupImpl::SetInteractiveImpl(bool interactive)
{
    CKyUIBaseViewImpl::SetInteractiveImpl(interactive);
    if (!interactive)
        return;
    if (!m_title.isEmpty())
        SetTitleImpl(m_title);
    // Every widget shows its stored state before any of them is heard.
    const QList<CKyUIRadioButton*> buttons = m_buttons;
    for (CKyUIRadioButton* button : buttons) {
        if (Holds(button))
            static_cast<CKyUIRadioButtonImpl*>(button->impl())->ShowStoredState();
    }
    // One link a button, also when it was added twice.
    for (int i = 0; i < buttons.size(); ++i) {
        if (Holds(buttons.at(i)) && buttons.indexOf(buttons.at(i)) == i)
            LinkButtonImpl(buttons.at(i));
    }
}

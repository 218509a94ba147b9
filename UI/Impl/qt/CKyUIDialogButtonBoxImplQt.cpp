#include "UI/Impl/CKyUIDialogButtonBoxImpl.h"

#include "UI/CKyUIDialog.h"
#include "UI/CKyUIDialogButtonBox.h"
#include "UI/CKyUIPushButton.h"
#include "UI/CKyUIVerticalLayout.h"

#include <QtWidgets/QDialog>
#include <QtWidgets/QDialogButtonBox>
#include <QtWidgets/QPushButton>

namespace
{
// A wrapper without a widget of its own: the push button its constructor
// made, with that button's connections, goes.
CKyUIPushButton* NewWrapper()
{
    auto* wrapper = new CKyUIPushButton;
    delete wrapper->getHandle();
    wrapper->setHandle(nullptr);
    return wrapper;
}
} // namespace

QDialogButtonBox* CKyUIDialogButtonBoxImpl::GetButtonBox() const
{
    return qobject_cast<QDialogButtonBox*>(owner()->getHandle());
}

void CKyUIDialogButtonBoxImpl::CreateButtonBoxImpl(CKyUIDialog* dialog)
{
    QWidget* dialogWidget = dialog ? qobject_cast<QDialog*>(dialog->getHandle()) : nullptr;
    auto* box = new QDialogButtonBox(dialogWidget);
    box->setMinimumHeight(30);
    box->setStandardButtons(QDialogButtonBox::Ok | QDialogButtonBox::Cancel | QDialogButtonBox::Help);
    owner()->setHandle(box);

    // Last in the root layout, after whatever the client placed there.
    if (CKyUIVerticalLayout* root = dialog ? dialog->GetLayout() : nullptr)
        root->addView(m_box, 0.0f);

    m_okButton = NewWrapper();
    m_toolkitAccepted = QObject::connect(box, &QDialogButtonBox::accepted, [this]() { OnResult(1); });
    m_okButton->setHandle(box->button(QDialogButtonBox::Ok));

    m_cancelButton = NewWrapper();
    m_toolkitRejected = QObject::connect(box, &QDialogButtonBox::rejected, [this]() { OnResult(0); });
    m_cancelButton->setHandle(box->button(QDialogButtonBox::Cancel));

    m_helpButton = NewWrapper();
    m_toolkitClicked = QObject::connect(box, &QDialogButtonBox::clicked, [this]() { OnClicked(); });
    m_helpButton->setHandle(box->button(QDialogButtonBox::Help));
}

void CKyUIDialogButtonBoxImpl::DisconnectButtonBoxImpl()
{
    QObject::disconnect(m_toolkitAccepted);
    QObject::disconnect(m_toolkitRejected);
    QObject::disconnect(m_toolkitClicked);
}

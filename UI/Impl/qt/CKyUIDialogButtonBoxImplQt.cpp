#include "UI/Impl/CKyUIDialogButtonBoxImpl.h"

#include "UI/CKyUIDialog.h"
#include "UI/CKyUIDialogButtonBox.h"
#include "UI/CKyUIPushButton.h"
#include "UI/CKyUIVerticalLayout.h"

#include <QtWidgets/QDialog>
#include <QtWidgets/QDialogButtonBox>
#include <QtWidgets/QPushButton>

#include <utility>

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

void CKyUIDialogButtonBoxImpl::SetInteractiveImpl(bool interactive)
{
    CKyUIBaseViewImpl::SetInteractiveImpl(interactive);
    QDialogButtonBox* box = GetButtonBox();
    if (box && interactive) {
        // After the box's own connection on clicked, which stays quiet now.
        LinkUserInput(QObject::connect(box, &QDialogButtonBox::clicked, box,
                                       [this](QAbstractButton* button) { OnButtonClicked(button); }));
        LinkUserInput(
            QObject::connect(box, &QDialogButtonBox::helpRequested, box, [this]() { helpRequest.Emit(); }));
    }
    SetStandardButtonsImpl(
        interactive ? m_chosenButtons
                    : int(QDialogButtonBox::Ok | QDialogButtonBox::Cancel | QDialogButtonBox::Help));
    // They are no children of the box: the tree does not reach them.
    for (CKyUIPushButton* wrapper : {m_okButton, m_cancelButton, m_helpButton}) {
        if (wrapper)
            wrapper->setInteractive(interactive);
    }
}

void CKyUIDialogButtonBoxImpl::SetStandardButtonsImpl(int buttons)
{
    QDialogButtonBox* box = GetButtonBox();
    const QDialogButtonBox::StandardButtons wanted{QFlag(buttons)};
    if (!box || box->standardButtons() == wanted)
        return;
    // The toolkit deletes every button it had and makes the chosen ones anew.
    box->setStandardButtons(wanted);
    const std::pair<CKyUIPushButton*, QDialogButtonBox::StandardButton> wrappers[] = {
        {m_okButton, QDialogButtonBox::Ok},
        {m_cancelButton, QDialogButtonBox::Cancel},
        {m_helpButton, QDialogButtonBox::Help}};
    for (const auto& wrapper : wrappers) {
        if (!wrapper.first)
            continue;
        wrapper.first->setHandle(box->button(wrapper.second));
        // Its links, if any, went with the old button.
        if (wrapper.first->isInteractive())
            wrapper.first->setInteractive(true);
    }
}

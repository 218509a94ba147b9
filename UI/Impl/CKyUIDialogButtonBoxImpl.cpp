#include "UI/Impl/CKyUIDialogButtonBoxImpl.h"

#include "UI/CKyUIDialogButtonBox.h"
#include "UI/CKyUIPushButton.h"

CKyUIDialogButtonBoxImpl::CKyUIDialogButtonBoxImpl(CKyUIDialogButtonBox* owner, CKyUIDialog* dialog)
    : CKyUIBaseViewImpl(owner)
    , m_box(owner)
    , m_chosenButtons(CKyUIDialogButtonBox::Ok | CKyUIDialogButtonBox::Cancel | CKyUIDialogButtonBox::Help)
    , accepted(owner)
    , clicked(owner)
    , helpRequest(owner)
    , rejected(owner)
{
    CreateButtonBoxImpl(dialog);
}

CKyUIDialogButtonBoxImpl::~CKyUIDialogButtonBoxImpl()
{
    DisconnectButtonBoxImpl();
    // The wrappers' handles are the toolkit box's own buttons: forget them
    // first so that the wrappers do not release them.
    for (CKyUIPushButton* wrapper : {m_okButton, m_cancelButton, m_helpButton}) {
        if (wrapper)
            wrapper->setHandle(nullptr);
    }
    delete m_okButton;
    delete m_cancelButton;
    delete m_helpButton;
}

CKyUIPushButton* CKyUIDialogButtonBoxImpl::Button(int which) const
{
    switch (which) {
    case CKyUIDialogButtonBox::Ok:
        return m_okButton;
    case CKyUIDialogButtonBox::Cancel:
        return m_cancelButton;
    case CKyUIDialogButtonBox::Help:
        return m_helpButton;
    default:
        return nullptr;
    }
}

CKyUIPushButton* CKyUIDialogButtonBoxImpl::ShownButton(int which) const
{
    CKyUIPushButton* wrapper = Button(which);
    if (wrapper && owner()->isInteractive() && !(m_chosenButtons & which))
        return nullptr;
    return wrapper;
}

void CKyUIDialogButtonBoxImpl::SetStandardButtons(int buttons)
{
    m_chosenButtons =
        buttons & (CKyUIDialogButtonBox::Ok | CKyUIDialogButtonBox::Cancel | CKyUIDialogButtonBox::Help);
    if (owner()->isInteractive())
        SetStandardButtonsImpl(m_chosenButtons);
}

bool CKyUIDialogButtonBoxImpl::RelaysDialogResult() const
{
    return !(owner()->isInteractive() && IsReporting());
}

void CKyUIDialogButtonBoxImpl::OnResult(int code)
{
    CKyUISignal<void()>& report = code == 1 ? accepted : rejected;
    // Counted as a report: see RelaysDialogResult.
    EmitInOrder([&report] { report.Emit(); });
}

void CKyUIDialogButtonBoxImpl::OnClicked()
{
    if (owner()->isInteractive())
        return;
    clicked.Emit(m_helpButton);
}

void CKyUIDialogButtonBoxImpl::OnButtonClicked(const QObject* button)
{
    for (CKyUIPushButton* wrapper : {m_okButton, m_cancelButton, m_helpButton}) {
        if (wrapper && button && wrapper->getHandle() == button)
            return clicked.Emit(wrapper);
    }
}

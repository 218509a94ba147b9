#include "UI/CKyUIDialogButtonBox.h"

#include "UI/CKyUIDialog.h"
#include "UI/CKyUIPushButton.h"
#include "UI/Impl/CKyUIDialogButtonBoxImpl.h"

CKyUIDialogButtonBox::CKyUIDialogButtonBox(CKyUIDialog* dialog)
{
    auto* impl = createImpl<CKyUIDialogButtonBoxImpl>(this, dialog);
    if (!dialog)
        return;
    // Owned by the dialog, although its widget sits in the root layout.
    setParent(dialog);

    // None of these is ever disconnected. The two on the dialog may outlive
    // the box, so they ask its lifetime first.
    const CKyUIObjectImpl::Lifetime lifetime = impl->GetLifetime();
    dialog->accepted().connect([impl, lifetime]() {
        if (lifetime.Alive() && impl->RelaysDialogResult())
            impl->Button(Ok)->clicked().Emit(true);
    });
    dialog->rejected().connect([impl, lifetime]() {
        if (lifetime.Alive() && impl->RelaysDialogResult())
            impl->Button(Cancel)->clicked().Emit(true);
    });
    impl->Button(Ok)->clicked().connect([impl](bool) { impl->OnResult(1); });
    impl->Button(Cancel)->clicked().connect([impl](bool) { impl->OnResult(0); });
}

CKyUIDialogButtonBox::~CKyUIDialogButtonBox() = default;

void CKyUIDialogButtonBox::setStandardButtons(StandardButtons buttons)
{
    implAs<CKyUIDialogButtonBoxImpl>()->SetStandardButtons(int(buttons));
}

CKyUIPushButton* CKyUIDialogButtonBox::button(StandardButton which) const
{
    return implAs<CKyUIDialogButtonBoxImpl>()->ShownButton(which);
}

CKyUISignal<void()>& CKyUIDialogButtonBox::accepted()
{
    return implAs<CKyUIDialogButtonBoxImpl>()->accepted;
}

CKyUISignal<void(CKyUIPushButton*)>& CKyUIDialogButtonBox::clicked()
{
    return implAs<CKyUIDialogButtonBoxImpl>()->clicked;
}

CKyUISignal<void()>& CKyUIDialogButtonBox::helpRequest()
{
    return implAs<CKyUIDialogButtonBoxImpl>()->helpRequest;
}

CKyUISignal<void()>& CKyUIDialogButtonBox::rejected()
{
    return implAs<CKyUIDialogButtonBoxImpl>()->rejected;
}

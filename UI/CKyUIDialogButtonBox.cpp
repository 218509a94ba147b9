#include "UI/CKyUIDialogButtonBox.h"

#include "UI/CKyUIDialog.h"
#include "UI/CKyUIPushButton.h"
#include "UI/Impl/CKyUIDialogButtonBoxImpl.h"

CKyUIDialogButtonBox::CKyUIDialogButtonBox(CKyUIDialog* dialog)
{
    auto* impl = new CKyUIDialogButtonBoxImpl(this, dialog);
    setImpl(impl);
    if (!dialog)
        return;
    // Owned by the dialog, although its widget sits in the root layout.
    setParent(dialog);

    // None of these is ever disconnected. The two on the dialog may outlive
    // the box, so they ask its lifetime first.
    const CKyUIObjectImpl::Lifetime lifetime = impl->GetLifetime();
    dialog->accepted().connect([impl, lifetime]() {
        if (lifetime.Alive())
            impl->Button(Ok)->clicked().Emit(true);
    });
    dialog->rejected().connect([impl, lifetime]() {
        if (lifetime.Alive())
            impl->Button(Cancel)->clicked().Emit(true);
    });
    impl->Button(Ok)->clicked().connect([impl](bool) { impl->accepted.Emit(); });
    impl->Button(Cancel)->clicked().connect([impl](bool) { impl->rejected.Emit(); });
}

CKyUIDialogButtonBox::~CKyUIDialogButtonBox() = default;

void CKyUIDialogButtonBox::setStandardButtons(StandardButtons) {}

CKyUIPushButton* CKyUIDialogButtonBox::button(StandardButton which) const
{
    return implAs<CKyUIDialogButtonBoxImpl>()->Button(which);
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

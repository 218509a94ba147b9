#include "UI/Impl/qt/CKyUIPushButtonFrontend.h"

#include "UI/Impl/CKyUIPushButtonImpl.h"

CKyUIPushButtonFrontend::CKyUIPushButtonFrontend(QWidget* parent)
    : QPushButton(parent)
{
    connect(this, SIGNAL(pressed()), this, SLOT(OnPressed()));
    connect(this, SIGNAL(released()), this, SLOT(OnReleased()));
    connect(this, SIGNAL(clicked()), this, SLOT(OnClicked()));
    setAutoDefault(true);
}

CKyUIPushButtonFrontend::~CKyUIPushButtonFrontend() = default;

void CKyUIPushButtonFrontend::OnPressed() {}

void CKyUIPushButtonFrontend::OnReleased() {}

void CKyUIPushButtonFrontend::OnClicked()
{
    if (impl)
        impl->OnPressed();
}

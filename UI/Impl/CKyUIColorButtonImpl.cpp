#include "UI/Impl/CKyUIColorButtonImpl.h"

#include "UI/Impl/KyModalRun.h"

CKyUIColorButtonImpl::CKyUIColorButtonImpl(CKyUIObject* owner)
    : CKyUIBaseViewImpl(owner)
    , colorChanged(owner)
{}

QString CKyUIColorButtonImpl::GetFrontendClassName()
{
    return QStringLiteral("QPushButton");
}

void CKyUIColorButtonImpl::SetColor(const QColor& color)
{
    if (!color.isValid() || color == m_color)
        return;
    m_color = color;
    SetColorImpl(color);
    colorChanged.Emit(color);
}

void CKyUIColorButtonImpl::OnClicked()
{
    const Lifetime lifetime = GetLifetime();
    QColor chosen;
    bool accepted;
    {
        const KyModalRun::Scope run;
        accepted = ChooseColorImpl(chosen);
    }
    if (accepted && lifetime.Alive())
        SetColor(chosen);
}

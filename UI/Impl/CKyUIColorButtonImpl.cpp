#include "UI/Impl/CKyUIColorButtonImpl.h"

#include "UI/Impl/KyModalRun.h"
#include "UI/Impl/KySettingsStore.h"

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

QVariant CKyUIColorButtonImpl::RememberedValue() const
{
    return m_color.name(QColor::HexArgb);
}

bool CKyUIColorButtonImpl::RestoreRememberedValue(const QVariant& value)
{
    QString name;
    if (!KySettingsStore::ReadString(value, &name) || !QColor(name).isValid())
        return false;
    SetColor(QColor(name));
    return true;
}

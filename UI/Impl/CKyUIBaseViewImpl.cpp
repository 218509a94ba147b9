#include "UI/Impl/CKyUIBaseViewImpl.h"

#include "UI/CKyUIObject.h"
#include "UI/Impl/qt/KyBaseViewImpl.h"

CKyUIBaseViewImpl::CKyUIBaseViewImpl(CKyUIObject* owner)
    : CKyUIObjectImpl(owner)
{}

CKyUIBaseViewImpl::~CKyUIBaseViewImpl() = default;

QString CKyUIBaseViewImpl::GetFrontendClassName()
{
    return QString();
}

void CKyUIBaseViewImpl::CreateFrontendControl()
{
    const QString className = GetFrontendClassName();
    if (!className.isEmpty())
        owner()->setHandle(KyBaseViewImpl::CreateFrontendControl(className, owner()));
}

QVariant CKyUIBaseViewImpl::RememberedValue() const
{
    return QVariant();
}

bool CKyUIBaseViewImpl::RestoreRememberedValue(const QVariant&)
{
    return false;
}

void CKyUIBaseViewImpl::AddViewImpl(CKyUIBaseView*, float) {}

void CKyUIBaseViewImpl::InsertViewImpl(CKyUIBaseView*, int, float) {}

void CKyUIBaseViewImpl::RemoveViewImpl(CKyUIBaseView*) {}

void CKyUIBaseViewImpl::SetEnabled(bool enabled)
{
    m_enabled = enabled;
    SetEnabledImpl(enabled);
}

void CKyUIBaseViewImpl::OnSizeChanged(int width, int height)
{
    m_width = width;
    m_height = height;
}

void CKyUIBaseViewImpl::AddStyleClassImpl(const QString&, bool) {}

void CKyUIBaseViewImpl::RemoveStyleClassImpl(const QString&, bool) {}

void CKyUIBaseViewImpl::SetVisible(bool visible)
{
    m_visible = visible;
    SetVisibleImpl(visible);
}

void CKyUIBaseViewImpl::SetWidth(int width)
{
    m_width = width;
    if (owner()->isInteractive())
        ResizeImpl(width, -1);
}

void CKyUIBaseViewImpl::SetHeight(int height)
{
    m_height = height;
    if (owner()->isInteractive())
        ResizeImpl(-1, height);
}

void CKyUIBaseViewImpl::Resize(int width, int height)
{
    m_width = width;
    m_height = height;
    if (owner()->isInteractive())
        ResizeImpl(width, height);
}

void CKyUIBaseViewImpl::SetPreferableSize(int width, int height)
{
    m_width = width;
    m_height = height;
    m_preferableWidth = width;
    m_preferableHeight = height;
    SetPreferrableSizeImpl(width, height);
}

void CKyUIBaseViewImpl::SetCornerRadius(float radius)
{
    m_cornerRadius = radius;
    m_cornerRadiusGiven = true;
    SetCornerRadiusImpl(radius);
}

void CKyUIBaseViewImpl::SetFocus(int reason)
{
    // Qt::FocusReason runs from 0 to 8; other numbers are no reason at all.
    if (owner()->isInteractive() && reason >= 0 && reason <= 8)
        SetFocusReasonImpl(reason);
}

void CKyUIBaseViewImpl::SetPalette(const QPalette& palette)
{
    m_palette = palette;
    // A disabled view keeps the palette for later but shows nothing of it;
    // enabling the view does not apply it either.
    if (!m_enabled)
        return;
    if (palette.isBrushSet(QPalette::Current, QPalette::Base)) {
        const QColor color = palette.color(QPalette::Current, QPalette::Base);
        SetBackgroundColorImpl(color.red(), color.green(), color.blue());
    }
    if (palette.isBrushSet(QPalette::Current, QPalette::Text)) {
        const QColor color = palette.color(QPalette::Current, QPalette::Text);
        SetTextColorImpl(color.red(), color.green(), color.blue());
    }
    // The alternate base colour of a palette is the border colour of a view.
    if (palette.isBrushSet(QPalette::Current, QPalette::AlternateBase)) {
        const QColor color = palette.color(QPalette::Current, QPalette::AlternateBase);
        SetBorderColorImpl(color.red(), color.green(), color.blue());
    }
}

void CKyUIBaseViewImpl::SetHelpText(HelpText kind, const QString& text)
{
    if (static_cast<size_t>(kind) >= static_cast<size_t>(HelpText::Count) || GetHelpText(kind) == text)
        return;
    RecordHelpText(kind, text);
    OnHelpTextSet(kind, text);
    SetHelpTextImpl(kind, text);
}

void CKyUIBaseViewImpl::RecordHelpText(HelpText kind, const QString& text)
{
    const auto index = static_cast<size_t>(kind);
    if (index >= static_cast<size_t>(HelpText::Count) || (!m_helpTexts && text.isEmpty()))
        return;
    if (!m_helpTexts)
        m_helpTexts = std::make_unique<std::array<QString, static_cast<int>(HelpText::Count)>>();
    (*m_helpTexts)[index] = text;
}

void CKyUIBaseViewImpl::OnHelpTextSet(HelpText, const QString&) {}

QString CKyUIBaseViewImpl::GetHelpText(HelpText kind) const
{
    const auto index = static_cast<size_t>(kind);
    return m_helpTexts && index < m_helpTexts->size() ? (*m_helpTexts)[index] : QString();
}

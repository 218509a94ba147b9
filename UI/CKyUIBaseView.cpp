#include "UI/CKyUIBaseView.h"

#include "UI/Impl/CKyUIBaseViewImpl.h"
#include "UI/Impl/qt/KyBaseViewImpl.h"

#include <utility>

namespace
{

const QPalette& EmptyPalette()
{
    static const QPalette palette;
    return palette;
}

// A view that merely wraps a toolkit widget has no implementation: its
// operations do nothing and its getters answer a fallback.
template <typename Op, typename... Args> void Forward(CKyUIBaseViewImpl* impl, Op op, Args&&... args)
{
    if (impl)
        (impl->*op)(std::forward<Args>(args)...);
}

template <typename Op, typename Fallback>
auto Ask(const CKyUIBaseViewImpl* impl, Op op, Fallback&& fallback) -> decltype((impl->*op)())
{
    return impl ? (impl->*op)() : fallback;
}

} // namespace

CKyUIBaseView::CKyUIBaseView() = default;

CKyUIBaseView::~CKyUIBaseView()
{
    if (QObject* handle = getHandle()) {
        const QString className = impl() ? impl()->GetFrontendClassName() : QString();
        KyBaseViewImpl::ReleaseFrontendControl(className, handle);
    }
}

void CKyUIBaseView::addView(CKyUIBaseView* view, float stretch)
{
    if (!view || view == this || view->parent())
        return;
    view->setParent(this);
    if (view->parent() != this)
        return;
    // Lets a view that merely wraps a toolkit widget take children.
    if (!impl() && getHandle())
        setImpl(new CKyUIBaseViewImpl(this));
    Forward(implAs<CKyUIBaseViewImpl>(), &CKyUIBaseViewImpl::AddViewImpl, view, stretch);
    if (isInteractive())
        SetInteractiveTree(view, true);
}

void CKyUIBaseView::insertView(CKyUIBaseView* view, int index, float stretch)
{
    if (!view || view == this)
        return;
    view->setParent(this);
    if (view->parent() != this)
        return;
    if (!impl() && getHandle())
        setImpl(new CKyUIBaseViewImpl(this));
    Forward(implAs<CKyUIBaseViewImpl>(), &CKyUIBaseViewImpl::InsertViewImpl, view, index, stretch);
    if (isInteractive())
        SetInteractiveTree(view, true);
}

void CKyUIBaseView::removeView(CKyUIBaseView* view)
{
    if (!view || view->parent() != this)
        return;
    view->setParent(nullptr);
    Forward(implAs<CKyUIBaseViewImpl>(), &CKyUIBaseViewImpl::RemoveViewImpl, view);
}

void CKyUIBaseView::setEnabled(bool enabled)
{
    Forward(implAs<CKyUIBaseViewImpl>(), &CKyUIBaseViewImpl::SetEnabled, enabled);
}

void CKyUIBaseView::setDisabled(bool disabled)
{
    Forward(implAs<CKyUIBaseViewImpl>(), &CKyUIBaseViewImpl::SetEnabled, !disabled);
}

bool CKyUIBaseView::isEnabled() const
{
    return Ask(implAs<CKyUIBaseViewImpl>(), &CKyUIBaseViewImpl::IsEnabled, false);
}

void CKyUIBaseView::setVisible(bool visible)
{
    Forward(implAs<CKyUIBaseViewImpl>(), &CKyUIBaseViewImpl::SetVisible, visible);
}

bool CKyUIBaseView::isVisible() const
{
    return Ask(implAs<CKyUIBaseViewImpl>(), &CKyUIBaseViewImpl::IsVisible, false);
}

void CKyUIBaseView::setFocus()
{
    Forward(implAs<CKyUIBaseViewImpl>(), &CKyUIBaseViewImpl::SetFocusImpl);
}

void CKyUIBaseView::setFocus(int reason)
{
    Forward(implAs<CKyUIBaseViewImpl>(), &CKyUIBaseViewImpl::SetFocus, reason);
}

bool CKyUIBaseView::hasFocus() const
{
    return Ask(implAs<CKyUIBaseViewImpl>(), &CKyUIBaseViewImpl::HasFocus, false);
}

void CKyUIBaseView::setFocusPolicy(int policy)
{
    Forward(implAs<CKyUIBaseViewImpl>(), &CKyUIBaseViewImpl::SetFocusPolicyImpl, policy);
}

void CKyUIBaseView::setTabOrder(CKyUIObject* first, CKyUIObject* second)
{
    Forward(implAs<CKyUIBaseViewImpl>(), &CKyUIBaseViewImpl::SetTabOrderImpl, first, second);
}

int CKyUIBaseView::width() const
{
    return Ask(implAs<CKyUIBaseViewImpl>(), &CKyUIBaseViewImpl::Width, -1);
}

int CKyUIBaseView::height() const
{
    return Ask(implAs<CKyUIBaseViewImpl>(), &CKyUIBaseViewImpl::Height, -1);
}

void CKyUIBaseView::setWidth(int width)
{
    Forward(implAs<CKyUIBaseViewImpl>(), &CKyUIBaseViewImpl::SetWidth, width);
}

void CKyUIBaseView::setHeight(int height)
{
    Forward(implAs<CKyUIBaseViewImpl>(), &CKyUIBaseViewImpl::SetHeight, height);
}

void CKyUIBaseView::resize(int width, int height)
{
    Forward(implAs<CKyUIBaseViewImpl>(), &CKyUIBaseViewImpl::Resize, width, height);
}

void CKyUIBaseView::setPreferableSize(int width, int height)
{
    Forward(implAs<CKyUIBaseViewImpl>(), &CKyUIBaseViewImpl::SetPreferableSize, width, height);
}

void CKyUIBaseView::setMinimumWidth(int width)
{
    Forward(implAs<CKyUIBaseViewImpl>(), &CKyUIBaseViewImpl::SetMinimumWidthImpl, width);
}

void CKyUIBaseView::setMinimumHeight(int height)
{
    Forward(implAs<CKyUIBaseViewImpl>(), &CKyUIBaseViewImpl::SetMinimumHeightImpl, height);
}

void CKyUIBaseView::setMaximumWidth(int width)
{
    Forward(implAs<CKyUIBaseViewImpl>(), &CKyUIBaseViewImpl::SetMaximumWidthImpl, width);
}

void CKyUIBaseView::setMaximumHeight(int height)
{
    Forward(implAs<CKyUIBaseViewImpl>(), &CKyUIBaseViewImpl::SetMaximumHeightImpl, height);
}

void CKyUIBaseView::update()
{
    Forward(implAs<CKyUIBaseViewImpl>(), &CKyUIBaseViewImpl::UpdateImpl);
}

void CKyUIBaseView::setPalette(const QPalette& palette)
{
    Forward(implAs<CKyUIBaseViewImpl>(), &CKyUIBaseViewImpl::SetPalette, palette);
}

const QPalette& CKyUIBaseView::palette() const
{
    return Ask(implAs<CKyUIBaseViewImpl>(), &CKyUIBaseViewImpl::Palette, EmptyPalette());
}

int CKyUIBaseView::backgroundRole() const
{
    return QPalette::Base;
}

void CKyUIBaseView::setBorderWidth(float width)
{
    using Uniform = void (CKyUIBaseViewImpl::*)(float);
    Forward(implAs<CKyUIBaseViewImpl>(), Uniform(&CKyUIBaseViewImpl::SetBorderWidthImpl), width);
}

void CKyUIBaseView::setBorderWidth(float left, float top, float right, float bottom)
{
    using PerSide = void (CKyUIBaseViewImpl::*)(float, float, float, float);
    Forward(implAs<CKyUIBaseViewImpl>(), PerSide(&CKyUIBaseViewImpl::SetBorderWidthImpl), left, top, right,
            bottom);
}

void CKyUIBaseView::setBorderColor(int red, int green, int blue)
{
    Forward(implAs<CKyUIBaseViewImpl>(), &CKyUIBaseViewImpl::SetBorderColorImpl, red, green, blue);
}

void CKyUIBaseView::setCornerRadius(float radius)
{
    Forward(implAs<CKyUIBaseViewImpl>(), &CKyUIBaseViewImpl::SetCornerRadius, radius);
}

void CKyUIBaseView::addStyleClass(const QString& name, bool value)
{
    Forward(implAs<CKyUIBaseViewImpl>(), &CKyUIBaseViewImpl::AddStyleClassImpl, name, value);
}

void CKyUIBaseView::removeStyleClass(const QString& name, bool value)
{
    Forward(implAs<CKyUIBaseViewImpl>(), &CKyUIBaseViewImpl::RemoveStyleClassImpl, name, value);
}

namespace
{
using HelpText = CKyUIBaseViewImpl::HelpText;

void SetHelp(CKyUIBaseViewImpl* impl, HelpText kind, const QString& text)
{
    if (impl)
        impl->SetHelpText(kind, text);
}

QString Help(const CKyUIBaseViewImpl* impl, HelpText kind)
{
    return impl ? impl->GetHelpText(kind) : QString();
}
} // namespace

void CKyUIBaseView::setToolTip(const QString& text)
{
    SetHelp(implAs<CKyUIBaseViewImpl>(), HelpText::ToolTip, text);
}

QString CKyUIBaseView::toolTip() const
{
    return Help(implAs<CKyUIBaseViewImpl>(), HelpText::ToolTip);
}

void CKyUIBaseView::setStatusTip(const QString& text)
{
    SetHelp(implAs<CKyUIBaseViewImpl>(), HelpText::StatusTip, text);
}

QString CKyUIBaseView::statusTip() const
{
    return Help(implAs<CKyUIBaseViewImpl>(), HelpText::StatusTip);
}

void CKyUIBaseView::setWhatsThis(const QString& text)
{
    SetHelp(implAs<CKyUIBaseViewImpl>(), HelpText::WhatsThis, text);
}

QString CKyUIBaseView::whatsThis() const
{
    return Help(implAs<CKyUIBaseViewImpl>(), HelpText::WhatsThis);
}

void CKyUIBaseView::setAccessibleName(const QString& name)
{
    SetHelp(implAs<CKyUIBaseViewImpl>(), HelpText::AccessibleName, name);
}

QString CKyUIBaseView::accessibleName() const
{
    return Help(implAs<CKyUIBaseViewImpl>(), HelpText::AccessibleName);
}

void CKyUIBaseView::setAccessibleDescription(const QString& description)
{
    SetHelp(implAs<CKyUIBaseViewImpl>(), HelpText::AccessibleDescription, description);
}

QString CKyUIBaseView::accessibleDescription() const
{
    return Help(implAs<CKyUIBaseViewImpl>(), HelpText::AccessibleDescription);
}

void CKyUIBaseView::showEvent(CKyUIShowEvent*) {}

void CKyUIBaseView::hideEvent(CKyUIHideEvent*) {}

void CKyUIBaseView::paintEvent(CKyUIPaintEvent*) {}

void CKyUIBaseView::resizeEvent(CKyUIResizeEvent*) {}

void CKyUIBaseView::focusInEvent(CKyUIFocusEvent*) {}

void CKyUIBaseView::focusOutEvent(CKyUIFocusEvent*) {}

void CKyUIBaseView::remember(const QString& name)
{
    Forward(implAs<CKyUIBaseViewImpl>(), &CKyUIBaseViewImpl::SetRememberName, name);
}

QString CKyUIBaseView::rememberName() const
{
    const CKyUIBaseViewImpl* viewImpl = implAs<CKyUIBaseViewImpl>();
    return viewImpl ? viewImpl->RememberName() : QString();
}

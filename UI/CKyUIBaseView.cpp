#include "UI/CKyUIBaseView.h"

#include "UI/Impl/CKyUIBaseViewImpl.h"
#include "UI/Impl/KyBaseViewImpl.h"

namespace
{
const QPalette& EmptyPalette()
{
    static const QPalette palette;
    return palette;
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
    if (impl())
        implAs<CKyUIBaseViewImpl>()->AddViewImpl(view, stretch);
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
    if (impl())
        implAs<CKyUIBaseViewImpl>()->InsertViewImpl(view, index, stretch);
}

void CKyUIBaseView::removeView(CKyUIBaseView* view)
{
    if (!view || view->parent() != this)
        return;
    view->setParent(nullptr);
    if (impl())
        implAs<CKyUIBaseViewImpl>()->RemoveViewImpl(view);
}

void CKyUIBaseView::setEnabled(bool enabled)
{
    if (impl())
        implAs<CKyUIBaseViewImpl>()->SetEnabled(enabled);
}

void CKyUIBaseView::setDisabled(bool disabled)
{
    if (impl())
        implAs<CKyUIBaseViewImpl>()->SetEnabled(!disabled);
}

bool CKyUIBaseView::isEnabled() const
{
    return impl() ? implAs<CKyUIBaseViewImpl>()->IsEnabled() : false;
}

void CKyUIBaseView::setVisible(bool visible)
{
    if (impl())
        implAs<CKyUIBaseViewImpl>()->SetVisible(visible);
}

bool CKyUIBaseView::isVisible() const
{
    return impl() ? implAs<CKyUIBaseViewImpl>()->IsVisible() : false;
}

void CKyUIBaseView::setFocus()
{
    if (impl())
        implAs<CKyUIBaseViewImpl>()->SetFocusImpl();
}

void CKyUIBaseView::setFocus(int)
{
}

bool CKyUIBaseView::hasFocus() const
{
    return impl() ? implAs<CKyUIBaseViewImpl>()->HasFocus() : false;
}

void CKyUIBaseView::setFocusPolicy(int policy)
{
    if (impl())
        implAs<CKyUIBaseViewImpl>()->SetFocusPolicyImpl(policy);
}

void CKyUIBaseView::setTabOrder(CKyUIObject* first, CKyUIObject* second)
{
    if (impl())
        implAs<CKyUIBaseViewImpl>()->SetTabOrderImpl(first, second);
}

int CKyUIBaseView::width() const
{
    return impl() ? implAs<CKyUIBaseViewImpl>()->Width() : -1;
}

int CKyUIBaseView::height() const
{
    return impl() ? implAs<CKyUIBaseViewImpl>()->Height() : -1;
}

void CKyUIBaseView::setWidth(int width)
{
    if (impl())
        implAs<CKyUIBaseViewImpl>()->SetWidth(width);
}

void CKyUIBaseView::setHeight(int height)
{
    if (impl())
        implAs<CKyUIBaseViewImpl>()->SetHeight(height);
}

void CKyUIBaseView::resize(int width, int height)
{
    if (!impl())
        return;
    implAs<CKyUIBaseViewImpl>()->SetWidth(width);
    implAs<CKyUIBaseViewImpl>()->SetHeight(height);
}

void CKyUIBaseView::setPreferableSize(int width, int height)
{
    if (impl())
        implAs<CKyUIBaseViewImpl>()->SetPreferableSize(width, height);
}

void CKyUIBaseView::setMinimumWidth(int width)
{
    if (impl())
        implAs<CKyUIBaseViewImpl>()->SetMinimumWidthImpl(width);
}

void CKyUIBaseView::setMinimumHeight(int height)
{
    if (impl())
        implAs<CKyUIBaseViewImpl>()->SetMinimumHeightImpl(height);
}

void CKyUIBaseView::setMaximumWidth(int width)
{
    if (impl())
        implAs<CKyUIBaseViewImpl>()->SetMaximumWidthImpl(width);
}

void CKyUIBaseView::setMaximumHeight(int height)
{
    if (impl())
        implAs<CKyUIBaseViewImpl>()->SetMaximumHeightImpl(height);
}

void CKyUIBaseView::update()
{
    if (impl())
        implAs<CKyUIBaseViewImpl>()->UpdateImpl();
}

void CKyUIBaseView::setPalette(const QPalette& palette)
{
    if (impl())
        implAs<CKyUIBaseViewImpl>()->SetPalette(palette);
}

const QPalette& CKyUIBaseView::palette() const
{
    return impl() ? implAs<CKyUIBaseViewImpl>()->Palette() : EmptyPalette();
}

int CKyUIBaseView::backgroundRole() const
{
    return QPalette::Base;
}

void CKyUIBaseView::setBorderWidth(float width)
{
    if (impl())
        implAs<CKyUIBaseViewImpl>()->SetBorderWidthImpl(width);
}

void CKyUIBaseView::setBorderWidth(float left, float top, float right, float bottom)
{
    if (impl())
        implAs<CKyUIBaseViewImpl>()->SetBorderWidthImpl(left, top, right, bottom);
}

void CKyUIBaseView::setBorderColor(int red, int green, int blue)
{
    if (impl())
        implAs<CKyUIBaseViewImpl>()->SetBorderColorImpl(red, green, blue);
}

void CKyUIBaseView::setCornerRadius(float radius)
{
    if (impl())
        implAs<CKyUIBaseViewImpl>()->SetCornerRadiusImpl(radius);
}

void CKyUIBaseView::addStyleClass(const QString& name, bool value)
{
    if (impl())
        implAs<CKyUIBaseViewImpl>()->AddStyleClassImpl(name, value);
}

void CKyUIBaseView::removeStyleClass(const QString& name, bool value)
{
    if (impl())
        implAs<CKyUIBaseViewImpl>()->RemoveStyleClassImpl(name, value);
}

void CKyUIBaseView::showEvent(CKyUIShowEvent*)
{
}

void CKyUIBaseView::hideEvent(CKyUIHideEvent*)
{
}

void CKyUIBaseView::paintEvent(CKyUIPaintEvent*)
{
}

void CKyUIBaseView::resizeEvent(CKyUIResizeEvent*)
{
}

void CKyUIBaseView::focusInEvent(CKyUIFocusEvent*)
{
}

void CKyUIBaseView::focusOutEvent(CKyUIFocusEvent*)
{
}

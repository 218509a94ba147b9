#include "UI/Impl/CKyUIGroupBoxImpl.h"

#include "UI/Impl/qt/CKyUIGroupBoxFrontend.h"
#include "UI/Impl/qt/KyBoxPlacement.h"

#include <QtWidgets/QBoxLayout>
#include <QtWidgets/QHBoxLayout>
#include <QtWidgets/QVBoxLayout>

namespace
{
CKyUIGroupBoxFrontend* FrontendOf(const CKyUIObject* owner)
{
    return qobject_cast<CKyUIGroupBoxFrontend*>(owner->getHandle());
}

QBoxLayout* LayoutOf(const CKyUIObject* owner)
{
    CKyUIGroupBoxFrontend* frontend = FrontendOf(owner);
    return frontend ? qobject_cast<QBoxLayout*>(frontend->layout()) : nullptr;
}
} // namespace

void CKyUIGroupBoxImpl::CreateFrontendControl()
{
    auto* frontend = new CKyUIGroupBoxFrontend;
    frontend->impl = this;
    owner()->setHandle(frontend);
    // An empty rule, so that the dialog's theme governs the box.
    frontend->setStyleSheet(QStringLiteral("QGroupBox { }"));
    if (IsVertical())
        new QVBoxLayout(frontend);
    else
        new QHBoxLayout(frontend);
}

void CKyUIGroupBoxImpl::AddViewImpl(CKyUIBaseView* view, float stretch)
{
    KyBoxPlacement::Add(LayoutOf(owner()), view, stretch, IsVertical(), QSizePolicy::Minimum);
}

void CKyUIGroupBoxImpl::InsertViewImpl(CKyUIBaseView* view, int index, float stretch)
{
    KyBoxPlacement::Insert(LayoutOf(owner()), view, index, stretch, QSizePolicy::Minimum);
}

void CKyUIGroupBoxImpl::SetTitleImpl(const QString& title)
{
    if (CKyUIGroupBoxFrontend* frontend = FrontendOf(owner()))
        frontend->setTitle(title);
}

void CKyUIGroupBoxImpl::UseMarginImpl(bool use)
{
    const int margin = use ? 5 : 0;
    SetContentsMarginsImpl(margin, margin, margin, margin);
}

void CKyUIGroupBoxImpl::SetContentsMarginsImpl(int left, int top, int right, int bottom)
{
    if (QBoxLayout* layout = LayoutOf(owner()))
        layout->setContentsMargins(left, top, right, bottom);
}

void CKyUIGroupBoxImpl::SetSpacingImpl(int spacing)
{
    if (QBoxLayout* layout = LayoutOf(owner()))
        layout->setSpacing(spacing);
}

void CKyUIGroupBoxImpl::SetCollapsedImpl(bool)
{
    // Collapsing is bookkeeping only: the box keeps showing its children.
}

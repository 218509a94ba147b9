#include "UI/Impl/CKyUIBoxLayoutImpl.h"

#include "UI/CKyUIBaseView.h"
#include "UI/Impl/qt/KyBoxPlacement.h"

#include <QtWidgets/QGroupBox>
#include <QtWidgets/QHBoxLayout>
#include <QtWidgets/QVBoxLayout>

void CKyUIBoxLayoutImpl::CreateFrontendControl()
{
    auto* box = new QGroupBox;
    // The two sheets differ by one blank; both are kept as they are.
    box->setStyleSheet(m_direction == Direction::Horizontal
                           ? QStringLiteral("QGroupBox{ border: none; padding: 0px; }")
                           : QStringLiteral("QGroupBox { border: none; padding: 0px; }"));
    owner()->setHandle(box);
    QBoxLayout* layout = m_direction == Direction::Horizontal ? static_cast<QBoxLayout*>(new QHBoxLayout(box))
                                                              : new QVBoxLayout(box);
    layout->setContentsMargins(0, 0, 0, 0);
}

QBoxLayout* CKyUIBoxLayoutImpl::GetBoxLayout() const
{
    auto* box = qobject_cast<QGroupBox*>(owner()->getHandle());
    return box ? qobject_cast<QBoxLayout*>(box->layout()) : nullptr;
}

namespace
{
// A row leaves its children their preferred height, a column its minimum.
QSizePolicy::Policy ChildVerticalPolicy(CKyUIBoxLayoutImpl::Direction direction)
{
    return direction == CKyUIBoxLayoutImpl::Direction::Horizontal ? QSizePolicy::Preferred
                                                                  : QSizePolicy::Minimum;
}
} // namespace

void CKyUIBoxLayoutImpl::AddViewImpl(CKyUIBaseView* view, float stretch)
{
    KyBoxPlacement::Add(GetBoxLayout(), view, stretch, m_direction == Direction::Vertical,
                        ChildVerticalPolicy(m_direction));
}

void CKyUIBoxLayoutImpl::InsertViewImpl(CKyUIBaseView* view, int index, float stretch)
{
    KyBoxPlacement::Insert(GetBoxLayout(), view, index, stretch, ChildVerticalPolicy(m_direction));
}

void CKyUIBoxLayoutImpl::RemoveWidgetImpl(CKyUIBaseView* view)
{
    // A null widget would match every spacer and nested layout.
    QBoxLayout* layout = GetBoxLayout();
    QWidget* widget = WidgetOf(view);
    if (layout && widget)
        layout->removeWidget(widget);
}

void CKyUIBoxLayoutImpl::UseMarginImpl(bool use)
{
    const int margin = use ? 5 : 0;
    SetContentsMarginsImpl(margin, margin, margin, margin);
}

void CKyUIBoxLayoutImpl::SetContentsMarginsImpl(int left, int top, int right, int bottom)
{
    if (QBoxLayout* layout = GetBoxLayout())
        layout->setContentsMargins(left, top, right, bottom);
}

void CKyUIBoxLayoutImpl::SetSpacingImpl(int spacing)
{
    if (QBoxLayout* layout = GetBoxLayout())
        layout->setSpacing(spacing);
}

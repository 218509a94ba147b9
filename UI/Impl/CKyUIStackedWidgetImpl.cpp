#include "UI/Impl/CKyUIStackedWidgetImpl.h"

CKyUIStackedWidgetImpl::CKyUIStackedWidgetImpl(CKyUIObject* owner)
    : CKyUIBaseViewImpl(owner)
    , currentChanged(owner)
    , tabCloseRequested(owner)
    , tabBarClicked(owner)
    , tabBarDoubleClicked(owner)
{}

CKyUIStackedWidgetImpl::~CKyUIStackedWidgetImpl() = default;

QString CKyUIStackedWidgetImpl::GetFrontendClassName()
{
    return QStringLiteral("QTabWidget");
}

void CKyUIStackedWidgetImpl::AddTab(CKyUIBaseView* view, const QString& title)
{
    m_pages.append(view);
    m_titles.append(title);
    AddTabImpl(view, title);
}

int CKyUIStackedWidgetImpl::IndexOf(CKyUIBaseView* view) const
{
    // A stranger gets the count, not -1, so that setCurrentIndex ignores it;
    // under the switch -1, which it ignores as well.
    const int index = m_pages.indexOf(view);
    return index < 0 && !owner()->isInteractive() ? m_pages.size() : index;
}

void CKyUIStackedWidgetImpl::SetTabText(int index, const QString& text)
{
    if (!IsIndex(index))
        return;
    m_titles[index] = text;
    SetTabTextImpl(index, text);
}

void CKyUIStackedWidgetImpl::SetCurrentIndex(int index)
{
    if (!IsIndex(index))
        return;
    // The toolkit is told even when the index is unchanged.
    SetCurrentIndexImpl(index);
    if (index == m_currentIndex)
        return;
    m_currentIndex = index;
    currentChanged.Emit(index);
}

void CKyUIStackedWidgetImpl::OnTabClickedActivated(int index)
{
    if (index == m_currentIndex)
        return;
    m_currentIndex = index;
    EmitInOrder([&] { tabBarClicked.Emit(index); }, [&] { currentChanged.Emit(index); });
}

void CKyUIStackedWidgetImpl::OnPageActivated(int index)
{
    if (index == m_currentIndex)
        return;
    m_currentIndex = index;
    currentChanged.Emit(index);
}

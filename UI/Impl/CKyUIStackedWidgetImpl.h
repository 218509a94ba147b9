#pragma once

#include "UI/CKyUISignal.h"
#include "UI/Impl/CKyUIBaseViewImpl.h"

#include <QtCore/QList>
#include <QtCore/QString>

// The stacked widget's pages (not owned: they are the view's children),
// titles and current index. No toolkit signal reaches the handlers below,
// unless the widget follows its user.
class CKyUIStackedWidgetImpl : public CKyUIBaseViewImpl
{
public:
    explicit CKyUIStackedWidgetImpl(CKyUIObject* owner);
    ~CKyUIStackedWidgetImpl() override;

    QString GetFrontendClassName() override;
    void CreateFrontendControl() override;
    // Switched on: the toolkit shows the stored current page, and the tab
    // bar's clicks, double clicks, close requests and page changes report.
    void SetInteractiveImpl(bool interactive) override;

    void AddTab(CKyUIBaseView* view, const QString& title);
    int IndexOf(CKyUIBaseView* view) const;
    void SetTabText(int index, const QString& text);
    int CurrentIndex() const { return m_currentIndex; }
    void SetCurrentIndex(int index);
    const QList<QString>& Titles() const { return m_titles; }

    void AddTabImpl(CKyUIBaseView* view, const QString& title);
    void SetTabTextImpl(int index, const QString& text);
    void SetCurrentIndexImpl(int index);

    // Reactions to the tab bar and the pages; nothing connects them.
    void OnTabClickedActivated(int index);
    void OnPageActivated(int index);

    CKyUISignal<void(int)> currentChanged;
    CKyUISignal<void(int)> tabCloseRequested;
    CKyUISignal<void(int)> tabBarClicked;
    CKyUISignal<void(int)> tabBarDoubleClicked;

private:
    bool IsIndex(int index) const { return index >= 0 && index < m_titles.size(); }

    int m_currentIndex = 0;
    QList<CKyUIBaseView*> m_pages;
    QList<QString> m_titles;
};

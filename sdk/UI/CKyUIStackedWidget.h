#pragma once

#include "UI/CKyUIBaseView.h"
#include "UI/CKyUISignal.h"

// Shows one of several pages at a time, each under a titled tab. The library
// keeps the pages, titles and current index; they follow the program's calls
// only, not the user's clicks on the tabs.
class COMMONUI_EXPORT CKyUIStackedWidget : public CKyUIBaseView
{
public:
    CKyUIStackedWidget();
    ~CKyUIStackedWidget() override;

    // Makes the page a child of this view; the current index stays.
    void addTab(CKyUIBaseView* view, const QString& title);
    // The page's position, or the number of pages for a view that is none.
    int indexOf(CKyUIBaseView* view) const;
    void setTabText(int index, const QString& text);

    int currentIndex() const;
    void setCurrentIndex(int index);
    void setCurrentWidget(CKyUIBaseView* view);

    CKyUISignal<void(int)>& currentChanged();
    // Never emitted by the library.
    CKyUISignal<void(int)>& tabCloseRequested();
    CKyUISignal<void(int)>& tabBarClicked();
    // Never emitted by the library.
    CKyUISignal<void(int)>& tabBarDoubleClicked();
};

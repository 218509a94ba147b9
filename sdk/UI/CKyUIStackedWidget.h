#pragma once

#include "UI/CKyUIBaseView.h"
#include "UI/CKyUISignal.h"

/// Shows one of several pages at a time, each under a titled tab; a click on a
/// tab changes neither currentIndex() nor any signal (see
/// \ref behaviours_containers "behaviours"). The library keeps the pages,
/// titles and current index; they follow the program's calls only, not the
/// user's clicks on the tabs.
///
/// A user's click on a tab shows that page, but currentIndex() stays and no
/// signal fires. Pages can only be added.
///
/// **Interactive** (setInteractive()): the user's choice of a page updates
/// currentIndex() and emits currentChanged(); a press on the tab bar emits
/// tabBarClicked() first, a double click tabBarDoubleClicked(), and a tab's
/// close button tabCloseRequested() (the tabs get close buttons with
/// setProperty("tabsClosable", true)). indexOf() answers -1 for a view that is
/// no page.
///
/// \image html choices.png "The gallery's pages are tabs of a stacked widget"
class COMMONUI_EXPORT CKyUIStackedWidget : public CKyUIBaseView
{
public:
    /// A widget without pages; currentIndex() is 0.
    CKyUIStackedWidget();
    ~CKyUIStackedWidget() override;

    /// Makes the page a child of this view; the current index stays.
    void addTab(CKyUIBaseView* view, const QString& title);
    /// The page's position, or the number of pages for a view that is none
    /// (-1 when the widget is interactive).
    int indexOf(CKyUIBaseView* view) const;
    /// Changes a tab's title; an index out of range is ignored.
    void setTabText(int index, const QString& text);

    /// The index last set by the program; 0 at first, also without pages.
    int currentIndex() const;
    /// Shows the page and, when the index changes, emits currentChanged(). An
    /// index out of range is ignored.
    void setCurrentIndex(int index);
    /// setCurrentIndex(indexOf(view)); a view that is no page is ignored.
    void setCurrentWidget(CKyUIBaseView* view);

    /// Emitted by setCurrentIndex() with the new index, and, when the widget
    /// is interactive, when the user picks another page.
    CKyUISignal<void(int)>& currentChanged();
    /// Never emitted by the library, unless the widget is interactive.
    CKyUISignal<void(int)>& tabCloseRequested();
    /// Offered for connection; the library does not emit it, unless the
    /// widget is interactive (-1 for a press outside the tabs).
    CKyUISignal<void(int)>& tabBarClicked();
    /// Never emitted by the library, unless the widget is interactive.
    CKyUISignal<void(int)>& tabBarDoubleClicked();
};

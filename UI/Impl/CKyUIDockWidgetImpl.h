#pragma once

#include "UI/Impl/CKyUIBaseViewImpl.h"

#include <QtCore/QPointer>

#include <optional>

// The dock widget's bookkeeping: its title, area and the view it holds (not
// owned). Without a toolkit widget the toolkit steps have nothing to act on,
// except RaiseImpl for a handle a host has set. Under the switch it makes a
// QDockWidget that holds the view's widget under the title.
class CKyUIDockWidgetImpl : public CKyUIBaseViewImpl
{
public:
    explicit CKyUIDockWidgetImpl(CKyUIObject* owner);
    ~CKyUIDockWidgetImpl() override;

    QString GetFrontendClassName() override;
    void CreateFrontendControl() override;
    // Switched on: makes the toolkit dock when there is no handle yet and
    // hands it the view and the title. Switched off, the dock stays where a
    // host may have placed it, but no longer follows.
    void SetInteractiveImpl(bool interactive) override;

    void SetArea(int area);
    int Area() const { return m_area; }
    void SetWidget(CKyUIBaseView* view);
    CKyUIBaseView* Widget() const { return m_widget; }
    void SetTitle(const QString& title);
    const QString& Title() const { return m_title; }

    void SetAreaImpl(int area);
    void SetWidgetImpl(CKyUIBaseView* view);
    void SetTitleImpl(const QString& title);
    void RaiseImpl();

private:
    // Gives the placed widget back to its view before the dock goes, which
    // would delete it with itself.
    void ReleaseDockImpl();

    QString m_title;
    CKyUIBaseView* m_widget = nullptr;
    // Tells whether the view still exists, when it has an implementation.
    std::optional<Lifetime> m_widgetLifetime;
    int m_area = 0;
    // The view's widget while it sits in the dock.
    QPointer<QWidget> m_placed;
};

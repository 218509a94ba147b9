#pragma once

#include "UI/Impl/CKyUIBaseViewImpl.h"

// The dock widget's bookkeeping: its title and the view it holds (not owned).
// Without a toolkit widget the toolkit steps have nothing to act on, except
// RaiseImpl for a handle a host has set.
class CKyUIDockWidgetImpl : public CKyUIBaseViewImpl
{
public:
    explicit CKyUIDockWidgetImpl(CKyUIObject* owner);
    ~CKyUIDockWidgetImpl() override;

    QString GetFrontendClassName() override;
    void CreateFrontendControl() override;

    void SetArea(int area);
    void SetWidget(CKyUIBaseView* view);
    CKyUIBaseView* Widget() const { return m_widget; }
    void SetTitle(const QString& title);
    const QString& Title() const { return m_title; }

    void SetAreaImpl(int area);
    void SetWidgetImpl(CKyUIBaseView* view);
    void SetTitleImpl(const QString& title);
    void RaiseImpl();

private:
    QString m_title;
    CKyUIBaseView* m_widget = nullptr;
};

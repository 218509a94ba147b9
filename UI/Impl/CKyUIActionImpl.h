#pragma once

#include "UI/CKyUISignal.h"
#include "UI/Impl/CKyUIObjectImpl.h"

#include <QtCore/QMetaObject>
#include <QtGui/QIcon>

// The action's stored text, icon and flags. The flags start at the toolkit's
// own defaults.
class CKyUIActionImpl : public CKyUIObjectImpl
{
public:
    explicit CKyUIActionImpl(CKyUIObject* owner);
    ~CKyUIActionImpl() override;

    QString GetFrontendClassName() override;
    void CreateFrontendControl() override;

    void SetText(const QString& text);
    const QString& Text() const { return m_text; }
    void SetIcon(const QIcon& icon);
    const QIcon& Icon() const { return m_icon; }
    void SetResourceIcon(const QString& name);
    void SetEnabled(bool enabled);
    bool IsEnabled() const { return m_enabled; }
    void SetCheckable(bool checkable);
    bool IsCheckable() const { return m_checkable; }
    void SetChecked(bool checked);
    bool IsChecked() const { return m_checked; }
    void SetVisible(bool visible);
    bool IsVisible() const { return m_visible; }

    void SetTextImpl(const QString& text);
    void SetIconImpl(const QIcon& icon);
    void SetEnabledImpl(bool enabled);
    void SetCheckableImpl(bool checkable);
    void SetCheckedImpl(bool checked);
    void SetVisibleImpl(bool visible);
    void SetResourceIconImpl(const QString& name);
    void SetInteractiveImpl(bool interactive) override;

    void onTriggered(bool checked);

    CKyUISignal<void(bool)> triggered;

private:
    QString m_text;
    QIcon m_icon;
    // Loaded once the owner follows its user, unless an icon is set first.
    QString m_pendingResourceIcon;
    bool m_enabled = true;
    bool m_checkable = false;
    bool m_checked = false;
    bool m_visible = true;
    QMetaObject::Connection m_triggeredConnection;
};

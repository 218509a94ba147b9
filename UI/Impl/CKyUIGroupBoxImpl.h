#pragma once

#include "UI/CKyUIGroupBox.h"
#include "UI/CKyUISignal.h"
#include "UI/Impl/CKyUIBaseViewImpl.h"

#include <QtCore/QList>
#include <QtCore/QPointer>

class CKyUIGroupBoxImpl : public CKyUIBaseViewImpl
{
public:
    CKyUIGroupBoxImpl(CKyUIObject* owner, CKyUIGroupBox::Orientation orientation);
    ~CKyUIGroupBoxImpl() override;

    QString GetFrontendClassName() override;
    void CreateFrontendControl() override;
    void AddViewImpl(CKyUIBaseView* view, float stretch) override;
    void InsertViewImpl(CKyUIBaseView* view, int index, float stretch) override;
    // Switched on: collapsing hides the content, and a title gets room above
    // it. Switched off: the content shows again and the title loses its room.
    void SetInteractiveImpl(bool interactive) override;

    void SetTitle(const QString& title);
    const QString& Title() const { return m_title; }
    CKyUIGroupBox::Orientation GetOrientation() const { return m_orientation; }
    void UseMargin(bool use);
    void SetContentsMargins(int left, int top, int right, int bottom);
    void SetSpacing(int spacing);
    void SetCollapsed(bool collapsed);
    bool IsCollapsed() const { return m_collapsed; }

    // For a collapse coming from the toolkit side; nothing connects it.
    void OnCollapsedStateChanged(bool collapsed);

    void SetTitleImpl(const QString& title);
    void UseMarginImpl(bool use);
    void SetContentsMarginsImpl(int left, int top, int right, int bottom);
    void SetSpacingImpl(int spacing);
    void SetCollapsedImpl(bool collapsed);
    // Hides the widgets in the box's layout, remembering them, or shows again
    // those it hid.
    void ShowContentImpl(bool show);
    // The theme leaves the title no room: the children cover it.
    void GiveTitleRoomImpl(bool room);

    CKyUISignal<void(bool)> onCollapsedStateChanged;

private:
    bool IsVertical() const { return m_orientation == CKyUIGroupBox::Vertical; }
    void UpdateParent();

    QString m_title;
    const CKyUIGroupBox::Orientation m_orientation;
    bool m_collapsed = false;
    QList<QPointer<QWidget>> m_hiddenContent;
};

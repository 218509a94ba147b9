#pragma once

#include "UI/CKyUISignal.h"
#include "UI/Impl/CKyUIBaseViewImpl.h"

#include <QtCore/QByteArray>
#include <QtCore/QList>
#include <QtCore/QMetaObject>

// The splitter's settings as given. The sizes live in the widget once it has
// views (the user drags them, resizing shares them anew); the sizes given are
// kept for views still to come.
class CKyUISplitterImpl : public CKyUIBaseViewImpl
{
public:
    CKyUISplitterImpl(CKyUIObject* owner, Qt::Orientation orientation);
    ~CKyUISplitterImpl() override;

    QString GetFrontendClassName() override;
    void CreateFrontendControl() override;
    void AddViewImpl(CKyUIBaseView* view, float stretch) override;
    void InsertViewImpl(CKyUIBaseView* view, int index, float stretch) override;
    void RemoveViewImpl(CKyUIBaseView* view) override;

    Qt::Orientation Orientation() const { return m_orientation; }
    void SetSizes(const QList<int>& sizes);
    QList<int> Sizes() const;
    // A splitter keeps the sizes of its views.
    QVariant RememberedValue() const override;
    bool RestoreRememberedValue(const QVariant& value) override;
    void SetChildrenCollapsible(bool collapsible);
    bool ChildrenCollapsible() const { return m_childrenCollapsible; }

    void SetSizesImpl(const QList<int>& sizes);
    // Empty while the widget has no views.
    QList<int> SizesImpl() const;
    QByteArray SaveStateImpl() const;
    bool RestoreStateImpl(const QByteArray& state);
    void SetChildrenCollapsibleImpl(bool collapsible);

    void OnSplitterMoved(int position, int index);

    CKyUISignal<void(int, int)> splitterMoved;

private:
    const Qt::Orientation m_orientation;
    QList<int> m_sizes;
    bool m_childrenCollapsible = true;
    QMetaObject::Connection m_movedConnection;
};

#pragma once

#include "UI/Impl/CKyUIBaseViewImpl.h"

// A line across or upright; its direction is fixed at creation.
class CKyUISeparatorImpl : public CKyUIBaseViewImpl
{
public:
    CKyUISeparatorImpl(CKyUIObject* owner, Qt::Orientation orientation);

    QString GetFrontendClassName() override;
    void CreateFrontendControl() override;

    Qt::Orientation Orientation() const { return m_orientation; }

private:
    const Qt::Orientation m_orientation;
};

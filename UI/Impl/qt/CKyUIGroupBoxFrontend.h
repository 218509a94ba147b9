#pragma once

#include "UI/Impl/CKyUIFrontendBase.h"

#include <QtWidgets/QGroupBox>

class CKyUIGroupBoxImpl;

// The group box's widget: the toolkit's frame with a thin black outline
// painted over it, just inside the right and bottom edges.
class CKyUIGroupBoxFrontend : public QGroupBox, public CKyUIFrontendBase<CKyUIGroupBoxImpl>
{
    Q_OBJECT

public:
    CKyUIGroupBoxFrontend();
    ~CKyUIGroupBoxFrontend() override;

protected:
    void paintEvent(QPaintEvent* event) override;
};

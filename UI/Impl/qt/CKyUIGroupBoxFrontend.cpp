#include "UI/Impl/qt/CKyUIGroupBoxFrontend.h"

#include <QtGui/QPainter>

CKyUIGroupBoxFrontend::CKyUIGroupBoxFrontend()
    : QGroupBox(nullptr)
{}

CKyUIGroupBoxFrontend::~CKyUIGroupBoxFrontend() = default;

void CKyUIGroupBoxFrontend::paintEvent(QPaintEvent* event)
{
    QGroupBox::paintEvent(event);
    QPainter painter(this);
    painter.setPen(Qt::black);
    painter.drawRect(QRect(QPoint(0, 0), QPoint(width() - 2, height() - 2)));
}

#include "UI/Impl/qt/CKyUITextEditFrontend.h"

#include <QtGui/QKeyEvent>

CKyUITextEditFrontend::CKyUITextEditFrontend()
    : QLineEdit(nullptr)
{}

void CKyUITextEditFrontend::keyPressEvent(QKeyEvent* event)
{
    if (event->key() == Qt::Key_Return || event->key() == Qt::Key_Enter) {
        event->accept();
        Q_EMIT returnPressed();
        return;
    }
    QLineEdit::keyPressEvent(event);
}

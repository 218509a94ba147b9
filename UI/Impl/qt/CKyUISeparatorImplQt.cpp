#include "UI/Impl/CKyUISeparatorImpl.h"

#include "UI/CKyUIObject.h"
#include "UI/Impl/qt/KyControlSheet.h"

#include <QtWidgets/QFrame>

void CKyUISeparatorImpl::CreateFrontendControl()
{
    auto* line = new QFrame;
    const bool across = m_orientation == Qt::Horizontal;
    line->setFrameShape(across ? QFrame::HLine : QFrame::VLine);
    KyControlSheet::Apply(line, QStringLiteral("separator"));
    // One pixel thick whatever the layout offers; as long as the layout likes.
    if (across) {
        line->setFixedHeight(1);
        line->setSizePolicy(QSizePolicy::Expanding, QSizePolicy::Fixed);
    } else {
        line->setFixedWidth(1);
        line->setSizePolicy(QSizePolicy::Fixed, QSizePolicy::Expanding);
    }
    owner()->setHandle(line);
}

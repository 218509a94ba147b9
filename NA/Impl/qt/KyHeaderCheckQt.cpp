#include "NA/Impl/KyHeaderCheck.h"

#include <QtCore/QtGlobal>

void KyHeaderCheck::WarnImpl(const QByteArray& message)
{
    qWarning("%s", message.constData());
}

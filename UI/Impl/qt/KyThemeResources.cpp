#include "UI/Impl/qt/KyThemeResources.h"

#include <QtCore/QFile>
#include <QtCore/QIODevice>
#include <QtCore/QTextStream>

bool KyThemeResources::Read(const QString& path, QString& text)
{
    QFile file(path);
    if (!file.open(QIODevice::ReadOnly))
        return false;
    QTextStream stream(&file);
    text = stream.readAll();
    file.close();
    return true;
}

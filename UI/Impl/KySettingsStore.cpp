#include "UI/Impl/KySettingsStore.h"

#include <QtCore/QStringList>

namespace
{
KySettingsStore::Choice g_pluginChoice;
QString g_hostFile;

// The type a value has, the same way on every toolkit version.
int TypeOf(const QVariant& value)
{
    return value.userType();
}
} // namespace

namespace KySettingsStore
{
void SetApplication(const QString& organization, const QString& application)
{
    g_pluginChoice = Choice{QString(), organization, application};
}

void SetFile(const QString& path)
{
    g_pluginChoice = Choice{path, QString(), QString()};
}

void SetHostFile(const QString& path)
{
    g_hostFile = path;
}

const QString& HostFile()
{
    return g_hostFile;
}

Choice Chosen()
{
    if (!g_hostFile.isEmpty())
        return Choice{g_hostFile, QString(), QString()};
    return g_pluginChoice;
}

bool ReadBool(const QVariant& value, bool* out)
{
    // An INI file gives text back; other stores keep the type.
    if (TypeOf(value) == QMetaType::Bool) {
        *out = value.toBool();
        return true;
    }
    if (TypeOf(value) != QMetaType::QString)
        return false;
    const QString text = value.toString();
    if (text != QLatin1String("true") && text != QLatin1String("false"))
        return false;
    *out = text == QLatin1String("true");
    return true;
}

bool ReadInt(const QVariant& value, int* out, int minimum, int maximum)
{
    bool ok = false;
    qlonglong number = 0;
    switch (TypeOf(value)) {
    case QMetaType::Int:
    case QMetaType::LongLong:
    case QMetaType::UInt:
    case QMetaType::ULongLong:
        number = value.toLongLong(&ok);
        break;
    case QMetaType::QString:
        number = value.toString().toLongLong(&ok);
        break;
    default:
        break;
    }
    if (!ok || number < minimum || number > maximum)
        return false;
    *out = static_cast<int>(number);
    return true;
}

bool ReadString(const QVariant& value, QString* out)
{
    if (TypeOf(value) != QMetaType::QString)
        return false;
    *out = value.toString();
    return true;
}

bool ReadStringList(const QVariant& value, QStringList* out)
{
    if (TypeOf(value) != QMetaType::QStringList)
        return false;
    *out = value.toStringList();
    return true;
}

bool ReadNumber(const QVariant& value, double* out, double minimum, double maximum)
{
    bool ok = false;
    double number = 0;
    switch (TypeOf(value)) {
    case QMetaType::Int:
    case QMetaType::LongLong:
    case QMetaType::UInt:
    case QMetaType::ULongLong:
    case QMetaType::Double:
        number = value.toDouble(&ok);
        break;
    case QMetaType::QString:
        number = value.toString().toDouble(&ok);
        break;
    default:
        break;
    }
    // NaN fails both comparisons and so is refused with the rest.
    if (!ok || !(number >= minimum && number <= maximum))
        return false;
    *out = number;
    return true;
}

QVariant NumberValue(double number)
{
    return QString::number(number, 'g', 17);
}

bool ReadIntList(const QVariant& value, QList<int>* out, int minimum, int maximum)
{
    QStringList texts;
    QString one;
    if (ReadString(value, &one))
        texts << one;
    else if (!ReadStringList(value, &texts))
        return false;
    QList<int> numbers;
    for (const QString& text : texts) {
        int number = 0;
        if (!ReadInt(text, &number, minimum, maximum))
            return false;
        numbers << number;
    }
    *out = numbers;
    return true;
}

QVariant IntListValue(const QList<int>& numbers)
{
    QStringList texts;
    for (int number : numbers)
        texts << QString::number(number);
    return texts;
}
} // namespace KySettingsStore

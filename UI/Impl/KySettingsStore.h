#pragma once

#include <climits>

#include <QtCore/QString>
#include <QtCore/QStringList>
#include <QtCore/QVariant>
#include <QtCore/QVariantMap>

// The store of dialogs that remember: which one is chosen, and the reading and
// writing of one dialog's entries. Every entry of a dialog lives below its
// remember key.
namespace KySettingsStore
{
// Who named the store decides which one is used: the host's file, else the
// plug-in's file or application, else the default.
struct Choice
{
    QString file; // an INI file when not empty
    QString organization;
    QString application;
};

void SetApplication(const QString& organization, const QString& application);
void SetFile(const QString& path);
void SetHostFile(const QString& path);
const QString& HostFile();
Choice Chosen();

// The values below a stored entry, read strictly: anything else (another
// type, text that is no number, out of the given range) answers false and
// leaves the output alone. A foreign or damaged file may hold any of them.
bool ReadBool(const QVariant& value, bool* out);
bool ReadInt(const QVariant& value, int* out, int minimum = INT_MIN, int maximum = INT_MAX);
bool ReadString(const QVariant& value, QString* out);
bool ReadStringList(const QVariant& value, QStringList* out);
// Whole numbers within the range, as an INI file gives a list of them back:
// texts, or one text for a list of one. IntListValue() is the form to keep.
// A number, or text that is one, within the range. NumberValue() is the form
// to keep: text, exact for every double.
bool ReadNumber(const QVariant& value, double* out, double minimum, double maximum);
QVariant NumberValue(double number);
bool ReadIntList(const QVariant& value, QList<int>* out, int minimum, int maximum);
QVariant IntListValue(const QList<int>& numbers);

// Toolkit steps.
QString LocationImpl();
// Every entry below the group, by its key relative to the group.
QVariantMap ReadImpl(const QString& group);
// Writes the entries below the group in one go; an invalid value removes
// its entry.
void WriteImpl(const QString& group, const QVariantMap& entries);
void RemoveImpl(const QString& group);
} // namespace KySettingsStore

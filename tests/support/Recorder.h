#pragma once

#include <QtCore/QString>
#include <QtCore/QStringList>

#include <initializer_list>
#include <type_traits>

// Writes down the emissions of the signals it listens to, in the order they
// happen, one line each: the name it was given, then ":" and the arguments
// separated by "," when there are any ("clicked:true", "finished",
// "progress:10,20"). Every test records through it.
class Recorder
{
public:
    Recorder() = default;
    // Its slots refer to it: it stays where it is.
    Recorder(const Recorder&) = delete;
    Recorder& operator=(const Recorder&) = delete;

    template <class Signal> Recorder& on(Signal& signal, const QString& name)
    {
        signal.connect([this, name](const auto&... args) { add(name, args...); });
        return *this;
    }

    template <class... Args> void add(const QString& name, const Args&... args)
    {
        QStringList values;
        (void)std::initializer_list<int>{(values << Text(args), 0)...};
        lines << (values.isEmpty() ? name : name + QLatin1Char(':') + values.join(QLatin1Char(',')));
    }

    bool has(const QString& line) const { return lines.contains(line); }
    // How many emissions of `name`, and the arguments of its last one.
    int count(const QString& name) const { return Of(name).size(); }
    QString last(const QString& name) const
    {
        const QStringList of = Of(name);
        return of.isEmpty() ? QString() : of.last().mid(name.size() + 1);
    }
    // Takes the lines written so far.
    QStringList take()
    {
        QStringList taken;
        taken.swap(lines);
        return taken;
    }

    // Arguments as they are written: pointers by address.
    static QString Text(const QString& value) { return value; }
    static QString Text(const char* value) { return QString::fromUtf8(value); }
    static QString Text(bool value) { return value ? QStringLiteral("true") : QStringLiteral("false"); }
    static QString Text(const void* value) { return QString::number(reinterpret_cast<quintptr>(value), 16); }
    template <class T, class = std::enable_if_t<std::is_arithmetic<T>::value || std::is_enum<T>::value>>
    static QString Text(T value)
    {
        return QString::number(static_cast<long long>(value));
    }

    QStringList lines;

private:
    QStringList Of(const QString& name) const
    {
        QStringList of;
        for (const QString& line : lines) {
            if (line == name || line.startsWith(name + QLatin1Char(':')))
                of << line;
        }
        return of;
    }
};

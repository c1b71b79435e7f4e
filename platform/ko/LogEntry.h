#ifndef KO_LOGENTRY_H
#define KO_LOGENTRY_H

#include "PlatformExport.h"

#include <QCoreApplication>
#include <QList>
#include <QString>

namespace ko {

/// Four characters packed into a number, the first in the most significant byte.
class KO_PLATFORM_EXPORT FourChars
{
public:
    FourChars(const char (&text)[5])
        : m_value(quint32(quint8(text[0])) << 24 | quint32(quint8(text[1])) << 16 |
                  quint32(quint8(text[2])) << 8 | quint32(quint8(text[3])))
    {
    }
    explicit FourChars(quint32 value)
        : m_value(value)
    {
    }

    quint32 value() const { return m_value; }
    QString toString() const;

    friend bool operator==(FourChars a, FourChars b) { return a.m_value == b.m_value; }
    friend bool operator!=(FourChars a, FourChars b) { return !(a == b); }
    friend bool operator<(FourChars a, FourChars b) { return a.m_value < b.m_value; }

private:
    quint32 m_value;
};

/// Categories of audit log entries, each the number of its four characters.
enum ELogCategory : quint32 {
    LogCategoryDevices = 0x44657669 ///< "Devi"
};

class LogCategory
{
public:
    LogCategory(ELogCategory category)
        : m_category(category)
    {
    }
    FourChars code() const { return FourChars(quint32(m_category)); }

    friend bool operator==(LogCategory a, LogCategory b) { return a.m_category == b.m_category; }
    friend bool operator!=(LogCategory a, LogCategory b) { return !(a == b); }

private:
    ELogCategory m_category;
};

/// One value of an entry: a four-character key, a name, and a text form in which it is stored.
class KO_PLATFORM_EXPORT LogValue
{
public:
    LogValue(FourChars key, const QString& name);
    virtual ~LogValue();

    FourChars key() const { return m_key; }
    QString name() const { return m_name; }

    virtual QString toString() const = 0;
    virtual void fromString(const QString& text) = 0;

private:
    FourChars m_key;
    QString m_name;
};

/// A log value of one type; QString is the one there is.
template <class T>
class TLogValue;

template <>
class TLogValue<QString> : public LogValue
{
public:
    TLogValue(FourChars key, const QString& name, const QString& value)
        : LogValue(key, name)
        , m_value(value)
    {
    }

    QString value() const { return m_value; }
    QString toString() const override { return m_value; }
    void fromString(const QString& text) override { m_value = text; }

private:
    QString m_value;
};

/// One record of the audit log.
///
/// Derived classes hold their values as members and append() them in their constructor, in the order
/// in which the description's %1, %2, ... take them.
class KO_PLATFORM_EXPORT LogEntry
{
    Q_DECLARE_TR_FUNCTIONS(LogEntry)

public:
    virtual ~LogEntry();

    virtual FourChars typeCode() const = 0;
    virtual LogCategory category() const = 0;

    /// Translated text with place markers %1, %2, ... for the values.
    virtual QString description() const = 0;
    virtual QString title() const = 0;

    /// The values in their order; owned by the entry.
    const QList<LogValue*>& values() const { return m_values; }

    /// The description with the values filled in, as plain text. A marker inside a value stays text.
    QString text() const;

protected:
    LogEntry() = default;
    void append(LogValue& value);

private:
    Q_DISABLE_COPY(LogEntry)
    QList<LogValue*> m_values;
};

} // namespace ko

#endif

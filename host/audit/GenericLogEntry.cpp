#include "audit/GenericLogEntry.h"

#include <QStringList>

namespace ko {

GenericLogEntry::GenericLogEntry(FourChars code, const Values& values)
    : m_code(code)
{
    const auto add = [this](FourChars key, const QString& text) {
        m_owned.push_back(std::make_unique<TLogValue<QString>>(key, key.toString(), text));
        append(*m_owned.back());
    };
    QStringList texts;
    for (const auto& value : values)
        texts.append(QString::fromLatin1("%1: %2").arg(value.first.toString(), value.second));
    add("Text", texts.join(QLatin1String(", "))); // the description's only marker
    for (const auto& value : values)
        add(value.first, value.second);
}

LogCategory GenericLogEntry::category() const
{
    return ELogCategory(m_code.value());
}

QString GenericLogEntry::description() const
{
    return title() + QLatin1String(" (%1)");
}

QString GenericLogEntry::title() const
{
    return LogEntry::tr("Entry of unknown kind \"%1\"").arg(m_code.toString());
}

} // namespace ko

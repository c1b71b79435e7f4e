#include "ko/GlobalNetworkProxy.h"

namespace ko {

namespace {

QStringList cleaned(const QStringList& patterns)
{
    QStringList result;
    for (const QString& pattern : patterns) {
        const QString trimmed = pattern.trimmed();
        if (!trimmed.isEmpty())
            result.append(trimmed);
    }
    return result;
}

/// Matches in time linear in text times pattern, whatever the pattern: only the last asterisk is retried.
bool wildcardMatch(const QString& pattern, const QString& text)
{
    int p = 0;
    int t = 0;
    int star = -1;
    int resume = 0;
    while (t < text.size()) {
        if (p < pattern.size() && pattern.at(p) == QLatin1Char('*')) {
            star = p++;
            resume = t;
        } else if (p < pattern.size() && pattern.at(p) == text.at(t)) {
            ++p;
            ++t;
        } else if (star >= 0) {
            p = star + 1;
            t = ++resume;
        } else {
            return false;
        }
    }
    while (p < pattern.size() && pattern.at(p) == QLatin1Char('*'))
        ++p;
    return p == pattern.size();
}

bool matches(const QString& pattern, const QString& address)
{
    const QString folded = pattern.toLower();
    return wildcardMatch(folded, address) ||
           (folded.startsWith(QLatin1String("*.")) && wildcardMatch(folded.mid(2), address));
}

} // namespace

GlobalNetworkProxy::GlobalNetworkProxy(QObject* parent)
    : QObject(parent)
{
}

QString GlobalNetworkProxy::exceptionsAssembled(QChar separator) const
{
    return m_exceptions.join(QString(separator));
}

void GlobalNetworkProxy::setExceptions(const QString& list, QChar separator)
{
    replaceExceptions(cleaned(list.split(separator)));
}

void GlobalNetworkProxy::addException(const QString& pattern)
{
    const QStringList added = cleaned(QStringList(pattern));
    if (!added.isEmpty() && !m_exceptions.contains(added.first()))
        replaceExceptions(m_exceptions + added);
}

void GlobalNetworkProxy::removeException(const QString& pattern)
{
    QStringList remaining = m_exceptions;
    remaining.removeAll(pattern);
    replaceExceptions(remaining);
}

bool GlobalNetworkProxy::isAffectedFromExceptions(const QString& address) const
{
    const QString folded = address.trimmed().toLower();
    if (folded.isEmpty())
        return false;
    for (const QString& pattern : m_exceptions) {
        if (matches(pattern, folded))
            return true;
    }
    return false;
}

void GlobalNetworkProxy::assign(const NetworkProxy& other, const QStringList& exceptions)
{
    const QStringList patterns = cleaned(exceptions);
    NetworkProxy& settings = *this;
    if (settings == other && patterns == m_exceptions)
        return;
    settings = other;
    m_exceptions = patterns;
    emit globalProxyDataChanged();
}

void GlobalNetworkProxy::changed()
{
    emit globalProxyDataChanged();
}

void GlobalNetworkProxy::replaceExceptions(const QStringList& exceptions)
{
    if (exceptions == m_exceptions)
        return;
    m_exceptions = exceptions;
    changed();
}

} // namespace ko

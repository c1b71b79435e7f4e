#include "sharing/SitePresence.h"

#include "model/Cause.h"
#include "sharing/SiteConnection.h"

#include <QJsonArray>
#include <QJsonDocument>
#include <QJsonObject>

#include <utility>

namespace ko {

namespace {

const int lookInterval = 5000; // ms; nobody tells when a desk is cut off

} // namespace

void SitePresence::setOpen(const QStringList& written, bool isAnyOpen)
{
    const std::lock_guard<std::mutex> lock(m_mutex);
    m_open = {written, isAnyOpen};
}

SitePresence::Open SitePresence::open()
{
    const std::lock_guard<std::mutex> lock(m_mutex);
    return m_open;
}

void SitePresence::connected()
{
    m_told.clear();
    m_isMissing = false;
    m_hasFailed = false;
    m_mustLook = true;
}

std::optional<QVector<NodeEditor>> SitePresence::look(SiteConnection& connection)
{
    const bool isTime = !m_looked.isValid() || m_looked.hasExpired(lookInterval);
    if (m_isMissing || (m_hasFailed && !isTime))
        return std::nullopt;
    const Open now = open();
    const bool mustTell = now.written != m_told;
    if (!mustTell && !now.isAnyOpen)
        return changedTo({});
    if (!mustTell && !m_mustLook && !isTime)
        return std::nullopt;
    m_looked.start();
    SharingFailure failure = mustTell ? tell(connection, now) : SharingFailure();
    QVector<NodeEditor> others;
    if (!failure && now.isAnyOpen)
        failure = ask(connection, &others);
    m_hasFailed = bool(failure);
    m_isMissing = failure && failure.kind != SharingFailure::Away;
    if (failure)
        return std::nullopt;
    m_mustLook = false;
    return changedTo(others);
}

SharingFailure SitePresence::tell(SiteConnection& connection, const Open& open)
{
    const QJsonObject given = {{QStringLiteral("user"), Cause::currentUser()},
                               {QStringLiteral("station"), Cause::currentStation()},
                               {QStringLiteral("nodes"), QJsonArray::fromStringList(open.written)}};
    QByteArray nothing;
    SharingFailure failure = connection.value(
        "SELECT ko.edit($1)", {QJsonDocument(given).toJson(QJsonDocument::Compact).toStdString()}, &nothing);
    if (!failure)
        m_told = open.written;
    return failure;
}

SharingFailure SitePresence::ask(SiteConnection& connection, QVector<NodeEditor>* others)
{
    QByteArray text;
    if (SharingFailure failure = connection.value("SELECT ko.editors()", {}, &text))
        return failure;
    const QJsonArray rows = QJsonDocument::fromJson(text).array();
    for (const QJsonValue& value : rows) {
        const QJsonArray row = value.toArray();
        others->append({row.at(0).toString(), row.at(1).toString(), row.at(2).toString()});
    }
    return SharingFailure();
}

std::optional<QVector<NodeEditor>> SitePresence::changedTo(const QVector<NodeEditor>& others)
{
    if (others == m_others)
        return std::nullopt;
    m_others = others;
    return others;
}

} // namespace ko

#include "sharing/SiteKeyTable.h"

#include "sharing/SiteConnection.h"

#include <QJsonArray>
#include <QJsonDocument>
#include <QJsonObject>

namespace ko {

namespace SiteKeyTable {

namespace {

const QLatin1String salt("salt");
const QLatin1String operations("operations");
const QLatin1String memory("memory");
const QLatin1String sealed("sealed");
const QLatin1String formerKey("former");
const QLatin1String nameOfKey("name");

/// A number that is none, or is negative, becomes one that is refused later.
quint64 numberOf(const QJsonValue& value)
{
    const double number = value.toDouble(-1);
    return number >= 1 && number < 1e15 ? quint64(number) : ~quint64(0);
}

} // namespace

std::optional<SiteKeyRecord> decode(const QByteArray& json)
{
    const QJsonObject object = QJsonDocument::fromJson(json).object();
    if (!object[QLatin1String("revision")].isDouble())
        return std::nullopt;
    SiteKeyRecord record;
    record.revision = object[QLatin1String("revision")].toInt();
    record.mayMake = object[QLatin1String("may_make")].toBool();
    record.mayChange = object[QLatin1String("may_change")].toBool();
    if (!record.hasKey())
        return record;
    record.name = object[nameOfKey].toString();
    record.envelope = {{numberOf(object[operations]), numberOf(object[memory])},
                       object[salt].toString(),
                       object[sealed].toString()};
    const QJsonArray former = object[formerKey].toArray();
    for (const QJsonValue& key : former)
        record.former.append(key.toString());
    return record.name.isEmpty() ? std::nullopt : std::make_optional(record);
}

QByteArray encode(const QString& name, const KeyEnvelope& envelope, const QString& former)
{
    QJsonObject object{{nameOfKey, name},
                       {salt, envelope.salt},
                       {operations, double(envelope.cost.operations)},
                       {memory, double(envelope.cost.memory)},
                       {sealed, envelope.sealed}};
    if (!former.isEmpty())
        object[formerKey] = former;
    return QJsonDocument(object).toJson(QJsonDocument::Compact);
}

SharingFailure fetch(SiteConnection& connection, SiteKeyRecord* record)
{
    QByteArray text;
    SharingFailure failure = connection.value("SELECT ko.key()", {}, &text);
    if (failure.kind == SharingFailure::NoSite) {
        *record = SiteKeyRecord();
        record->hasTables = false;
        return SharingFailure();
    }
    if (failure)
        return failure;
    const std::optional<SiteKeyRecord> found = decode(text);
    if (!found)
        return {SharingFailure::Refused, QString::fromLatin1("what the site has as its key is none")};
    *record = *found;
    return SharingFailure();
}

SharingFailure put(SiteConnection& connection, int revision, const QByteArray& key, bool* isTaken)
{
    QByteArray text;
    SharingFailure failure = revision == 0
                                 ? connection.value("SELECT ko.make_key($1)", {key.toStdString()}, &text)
                                 : connection.value("SELECT ko.change_key($1, $2)",
                                                    {std::to_string(revision), key.toStdString()}, &text);
    *isTaken = !failure && text == "t";
    return failure;
}

} // namespace SiteKeyTable

} // namespace ko

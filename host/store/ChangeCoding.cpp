#include "store/ChangeCoding.h"

#include "store/JsonText.h"
#include "store/PropertyCoding.h"

#include <QJsonArray>
#include <QJsonDocument>
#include <QJsonObject>

namespace ko {

namespace ChangeCoding {

namespace {

constexpr char Name[] = "name";
constexpr char Type[] = "type";
constexpr char Place[] = "place";
constexpr char Properties[] = "properties";
constexpr char Destination[] = "to";

/// Of an object that begins with it, or goes on.
void appendKey(QString* json, const char* key)
{
    json->append(QLatin1Char(json->isEmpty() ? '{' : ','));
    JsonText::appendText(json, QLatin1String(key));
    json->append(QLatin1Char(':'));
}

QJsonObject objectOf(const QString& text)
{
    return QJsonDocument::fromJson(text.toUtf8()).object();
}

} // namespace

QString text(const std::optional<NodeValues>& values, const NodeChange& change, const QString& properties)
{
    if (!values)
        return QString();
    QString json;
    json.reserve(64 * (1 + values->properties.count()) + int(properties.size()));
    appendKey(&json, Name);
    JsonText::appendText(&json, values->name);
    appendKey(&json, Properties);
    if (properties.isEmpty())
        PropertyCoding::appendJson(&json, values->properties);
    else
        json.append(properties);
    if (!change.isUpdated()) {
        appendKey(&json, Type);
        JsonText::appendNumber(&json, qint64(change.type));
        appendKey(&json, Place);
        JsonText::appendNumber(&json, change.place);
    }
    json.append(QLatin1Char('}'));
    return json;
}

std::optional<NodeValues> nodeValues(const QString& text, NodeChange* change)
{
    if (text.isNull())
        return std::nullopt;
    const QJsonObject object = objectOf(text);
    NodeValues values;
    values.name = object.value(QLatin1String(Name)).toString();
    values.properties = PropertyCoding::listFromJson(object.value(QLatin1String(Properties)).toObject());
    const QJsonValue type = object.value(QLatin1String(Type));
    if (type.isDouble())
        change->type = ENodeType(type.toInt());
    change->place = qMax(change->place, qint64(object.value(QLatin1String(Place)).toDouble()));
    return values;
}

QString text(const RelationChange& change)
{
    return JsonText::compact(
        QJsonDocument(QJsonObject{{QLatin1String(Destination), change.relation.destination},
                                  {QLatin1String(Type), int(change.relation.type)},
                                  {QLatin1String(Place), double(change.place)}}));
}

RelationChange relationChange(const NodeID& source, const QString& before, const QString& after)
{
    const QJsonObject object = objectOf(before.isNull() ? after : before);
    RelationChange change;
    change.relation = {source, object.value(QLatin1String(Destination)).toString(),
                       ENodeRelationType(object.value(QLatin1String(Type)).toInt())};
    change.isAdded = before.isNull();
    change.place = qint64(object.value(QLatin1String(Place)).toDouble());
    return change;
}

QString text(const Environments::List& list)
{
    QJsonArray array;
    for (const auto& environment : list)
        array.append(QJsonArray{environment.first, environment.second});
    return JsonText::compact(QJsonDocument(array));
}

Environments::List environments(const QString& text)
{
    Environments::List list;
    const QJsonArray array = QJsonDocument::fromJson(text.toUtf8()).array();
    for (const QJsonValue& entry : array)
        list.append({entry.toArray().at(0).toString(), entry.toArray().at(1).toString()});
    return list;
}

} // namespace ChangeCoding

} // namespace ko

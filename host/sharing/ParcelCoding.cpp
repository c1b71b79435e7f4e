#include "sharing/ParcelCoding.h"

#include "store/JsonText.h"

#include <QJsonArray>
#include <QJsonDocument>
#include <QJsonObject>

#include <cmath>

namespace ko {

namespace ParcelCoding {

namespace {

const char nodeKind = 'N';
const char relationKind = 'R';
const char settingKind = 'S';
const char environmentsKind = 'E';

/// Thrown and caught here: where a reader finds something else than it should.
struct Unreadable
{
    const char* where;
};

void require(bool isSo, const char* where)
{
    if (!isSo)
        throw Unreadable{where};
}

void appendMember(QString* json, const char* key)
{
    const QChar last = json->at(json->size() - 1);
    if (last != QLatin1Char('{'))
        json->append(QLatin1Char(','));
    JsonText::appendText(json, QLatin1String(key));
    json->append(QLatin1Char(':'));
}

void appendText(QString* json, const char* key, const QString& text)
{
    appendMember(json, key);
    JsonText::appendText(json, text);
}

void appendNumber(QString* json, const char* key, qint64 number)
{
    appendMember(json, key);
    json->append(QString::number(number));
}

/// Settings are plain texts; of all else the text is JSON already.
void appendSide(QString* json, const char* key, const SharedLine& line, const QString& side)
{
    appendMember(json, key);
    if (side.isNull())
        json->append(QLatin1String("null"));
    else if (line.kind == settingKind)
        JsonText::appendText(json, side);
    else
        json->append(side);
}

void append(QString* json, const SharedLine& line)
{
    json->append(QLatin1Char('{'));
    appendNumber(json, "line", line.line);
    appendText(json, "kind", QString(QLatin1Char(line.kind)));
    appendText(json, "id", line.id);
    appendSide(json, "before", line, line.before);
    appendSide(json, "after", line, line.after);
    json->append(QLatin1Char('}'));
}

void append(QString* json, const SharedParcel& parcel)
{
    json->append(QLatin1Char('{'));
    appendNumber(json, "version", Version);
    appendMember(json, "set");
    json->append(QLatin1Char('{'));
    appendText(json, "id", parcel.cause.id);
    appendText(json, "user", parcel.cause.user);
    appendText(json, "station", parcel.cause.station);
    appendNumber(json, "time", parcel.cause.time);
    appendText(json, "purpose", Purposes::word(parcel.cause.purpose));
    appendText(json, "subject", parcel.cause.subject);
    json->append(QLatin1Char('}'));
    appendMember(json, "lines");
    json->append(QLatin1Char('['));
    for (const SharedLine& line : parcel.lines) {
        if (&line != parcel.lines.constData())
            json->append(QLatin1Char(','));
        append(json, line);
    }
    json->append(QLatin1String("]}"));
}

/// A backslash that is escaped is none that escapes.
QByteArray withoutNul(QByteArray json)
{
    for (int i = 0; i + 1 < json.size(); ++i) {
        if (json.at(i) != '\\')
            continue;
        if (json.mid(i + 1, 5) == "u0000")
            json.replace(i + 2, 4, "fffd");
        ++i;
    }
    return json;
}

QJsonValue member(const QJsonObject& object, const char* key)
{
    return object.value(QLatin1String(key));
}

QString textOf(const QJsonObject& object, const char* key)
{
    const QJsonValue value = member(object, key);
    require(value.isString(), key);
    return value.toString();
}

qint64 integer(const QJsonValue& value, const char* where)
{
    const double number = value.toDouble(-1);
    require(value.isDouble() && std::abs(number) < 9e15 && std::floor(number) == number, where);
    return qint64(number);
}

qint64 numberOf(const QJsonObject& object, const char* key)
{
    return integer(member(object, key), key);
}

void checkProperties(const QJsonObject& properties);

/// [type, value]; see PropertyCoding.
void checkValue(const QJsonValue& value)
{
    const QJsonArray pair = value.toArray();
    require(pair.size() == 2, "property");
    const qint64 type = integer(pair.at(0), "type of a property");
    const QJsonValue content = pair.at(1);
    if (type == 0)
        require(content.isString(), "text");
    else if (type == 1 || type == 2)
        require(qint64(int(integer(content, "integer"))) == integer(content, "integer"), "integer");
    else if (type == 3)
        require(content.isDouble() || content.isString(), "float");
    else
        require(type == 4 && content.isObject(), "set");
    if (type == 4)
        checkProperties(content.toObject());
}

void checkProperties(const QJsonObject& properties)
{
    for (auto it = properties.begin(); it != properties.end(); ++it)
        checkValue(it.value());
}

void checkNode(const QJsonObject& node, bool isWhole)
{
    textOf(node, "name");
    require(member(node, "properties").isObject(), "properties");
    checkProperties(member(node, "properties").toObject());
    if (isWhole) {
        numberOf(node, "type");
        require(numberOf(node, "place") >= 0, "place");
    }
}

void checkRelation(const QJsonObject& relation)
{
    textOf(relation, "to");
    numberOf(relation, "type");
    require(numberOf(relation, "place") >= 0, "place");
}

void checkEnvironments(const QJsonArray& list)
{
    for (const QJsonValue& entry : list)
        require(entry.toArray().size() == 2 && entry.toArray().at(0).isString() &&
                    entry.toArray().at(1).isString(),
                "environment");
}

QString nonNull(const QString& text)
{
    return text.isNull() ? QString::fromLatin1("") : text;
}

/// The text of a side as the table of changes has it, which is what it is read from again.
QString sideOf(const QJsonValue& value, char kind, bool isWhole)
{
    if (value.isNull())
        return QString();
    if (kind == settingKind) {
        require(value.isString(), "setting");
        return nonNull(value.toString());
    }
    if (kind == environmentsKind) {
        require(value.isArray(), "environments");
        checkEnvironments(value.toArray());
        return JsonText::compact(QJsonDocument(value.toArray()));
    }
    require(value.isObject(), "side");
    if (kind == nodeKind)
        checkNode(value.toObject(), isWhole);
    else
        checkRelation(value.toObject());
    return JsonText::compact(QJsonDocument(value.toObject()));
}

SharedLine lineOf(const QJsonObject& object)
{
    SharedLine line;
    line.line = member(object, "line").isNull() ? 0 : numberOf(object, "line");
    const QString kind = textOf(object, "kind");
    require(kind.size() == 1 && QLatin1String("NRSE").contains(kind), "kind");
    line.kind = kind.at(0).toLatin1();
    line.id = textOf(object, "id");
    const QJsonValue before = member(object, "before");
    const QJsonValue after = member(object, "after");
    require(!before.isUndefined() && !after.isUndefined(), "side");
    require(!before.isNull() || !after.isNull(), "sides");
    require(line.kind != relationKind || before.isNull() || after.isNull(), "relation");
    require(line.kind != environmentsKind || !after.isNull(), "environments");
    const bool isWhole = before.isNull() || after.isNull();
    line.before = sideOf(before, line.kind, isWhole);
    line.after = sideOf(after, line.kind, isWhole);
    line.isDone = member(object, "done").toBool();
    return line;
}

SharedParcel parcelOf(const QJsonObject& object)
{
    require(numberOf(object, "version") == Version, "version");
    SharedParcel parcel;
    parcel.number = member(object, "number").isUndefined() ? 0 : numberOf(object, "number");
    parcel.id = member(object, "id").toString();
    const QJsonObject set = member(object, "set").toObject();
    parcel.cause.id = textOf(set, "id");
    parcel.cause.user = textOf(set, "user");
    parcel.cause.station = textOf(set, "station");
    parcel.cause.time = numberOf(set, "time");
    parcel.cause.purpose = Purposes::fromWord(textOf(set, "purpose"));
    parcel.cause.subject = textOf(set, "subject");
    require(member(object, "lines").isArray(), "lines");
    const QJsonArray lines = member(object, "lines").toArray();
    for (const QJsonValue& line : lines)
        parcel.lines.append(lineOf(line.toObject()));
    return parcel;
}

} // namespace

QByteArray encode(const QVector<SharedParcel>& parcels)
{
    QString json = QString::fromLatin1("[");
    for (const SharedParcel& parcel : parcels) {
        if (&parcel != parcels.constData())
            json.append(QLatin1Char(','));
        append(&json, parcel);
    }
    json.append(QLatin1Char(']'));
    return withoutNul(json.toUtf8());
}

std::optional<SharedParcel> decode(const QByteArray& json, QString* error)
{
    const QJsonDocument document = QJsonDocument::fromJson(json);
    try {
        require(document.isObject(), "parcel");
        return parcelOf(document.object());
    } catch (const Unreadable& unreadable) {
        *error = QString::fromLatin1("a parcel that cannot be read: %1").arg(QLatin1String(unreadable.where));
        return std::nullopt;
    }
}

} // namespace ParcelCoding

} // namespace ko

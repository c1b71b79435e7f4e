#include "sharing/ParcelCoding.h"

#include "store/ChangeLog.h"
#include "store/JsonText.h"

namespace ko {

namespace ParcelCoding {

namespace {

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
    else if (line.kind == ChangeLog::SettingKind)
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

} // namespace ParcelCoding

} // namespace ko

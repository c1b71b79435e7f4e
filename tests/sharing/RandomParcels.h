#ifndef TESTS_SHARING_RANDOMPARCELS_H
#define TESTS_SHARING_RANDOMPARCELS_H

#include "model/SharedParcel.h"

#include <QJsonArray>
#include <QJsonDocument>
#include <QJsonObject>
#include <QSet>
#include <QVector>

#include <random>

namespace testsupport {

/// Parcels about a few nodes, relations and settings, of desks that know nothing of each other: any line may
/// find anything.
class RandomParcels
{
public:
    explicit RandomParcels(unsigned seed)
        : m_random(seed)
    {
    }

    ko::SharedParcel next()
    {
        ko::SharedParcel parcel;
        parcel.cause.id = QString::number(below(1000));
        parcel.cause.user = word();
        parcel.cause.station = word();
        parcel.cause.time = 1700000000000LL + below(1000000);
        parcel.cause.purpose = ko::Purpose(below(int(ko::Purpose::Unknown)));
        parcel.cause.subject = word();
        QSet<QString> things;
        for (int count = 1 + below(5); count > 0; --count) {
            const ko::SharedLine line = randomLine();
            const QString thing = line.kind + line.id + linkOf(line);
            if (!things.contains(thing))
                parcel.lines.append(line);
            things.insert(thing);
        }
        return parcel;
    }

    int below(int limit) { return int(m_random() % unsigned(limit)); }

    QString word()
    {
        static const QStringList words = {
            "",     "Gate", "\"quoted\" \\ {}", "\xC3\xA4\xE2\x82\xAC", "line\nline\t", "u0000", "\\u0000",
            "null", "[1]"};
        return words.at(below(int(words.size())));
    }

private:
    static QString text(const QJsonObject& object)
    {
        return QString::fromUtf8(QJsonDocument(object).toJson(QJsonDocument::Compact));
    }

    QString node() { return QStringLiteral("n%1").arg(below(6)); }

    static QString linkOf(const ko::SharedLine& line)
    {
        if (line.kind != 'R')
            return QString();
        const QString side = line.before.isNull() ? line.after : line.before;
        const QJsonObject link = QJsonDocument::fromJson(side.toUtf8()).object();
        return link["to"].toString() + QString::number(link["type"].toInt());
    }

    QJsonArray value()
    {
        switch (below(5)) {
        case 0:
            return {0, word()};
        case 1:
            return {1, below(2)};
        case 2:
            return {2, below(2) ? below(5) : -2147483647};
        case 3:
            return {3, below(2) ? QJsonValue(0.5) : QJsonValue("nan")};
        default:
            return {4, QJsonObject{{word(), QJsonArray{0, word()}}}};
        }
    }

    QString values(bool isWhole)
    {
        QJsonObject properties;
        for (int count = below(4); count > 0; --count)
            properties[QStringLiteral("key%1").arg(below(4))] = value();
        QJsonObject side{{"name", word()}, {"properties", properties}};
        if (isWhole) {
            side["type"] = below(3);
            side["place"] = below(20);
        }
        return text(side);
    }

    ko::SharedLine randomLine()
    {
        ko::SharedLine line;
        line.line = 1 + below(1000000);
        const int kind = below(10);
        const int way = below(3);
        if (kind < 5) {
            line.kind = 'N';
            line.id = node();
            line.before = way == 0 ? QString() : values(way == 1);
            line.after = way == 1 ? QString() : values(way == 0);
        } else if (kind < 8) {
            line.kind = 'R';
            line.id = node();
            const QString side = text({{"to", node()}, {"type", below(2)}, {"place", below(8)}});
            (way == 0 ? line.before : line.after) = side;
        } else if (kind == 8) {
            line.kind = 'S';
            line.id = QStringLiteral("setting%1").arg(below(3));
            line.before = way == 0 ? QString() : notNull(word());
            line.after = way == 1 ? QString() : notNull(word());
        } else {
            line.kind = 'E';
            line.before = QStringLiteral("[]");
            QJsonArray list;
            list.append(QJsonArray{word(), word()}); // compilers differ in what an array in braces is
            line.after = QString::fromUtf8(QJsonDocument(list).toJson(QJsonDocument::Compact));
        }
        return line;
    }

    static QString notNull(const QString& text) { return text.isNull() ? QString::fromLatin1("") : text; }

    std::mt19937 m_random;
};

} // namespace testsupport

#endif

#ifndef TESTS_SHARING_SITEMODEL_H
#define TESTS_SHARING_SITEMODEL_H

#include "sharing/ParcelCoding.h"

#include <QCryptographicHash>
#include <QJsonArray>
#include <QJsonDocument>
#include <QJsonObject>
#include <QUuid>
#include <QVector>

#include <map>
#include <set>
#include <tuple>

namespace testsupport {

/// What a site does, told once more in another language: line by line, without a look at its statements.
class SiteModel
{
public:
    QString id = QUuid::createUuid().toString(QUuid::WithoutBraces);
    QVector<ko::SharedParcel> parcels;

    qint64 submit(const QVector<ko::SharedParcel>& given)
    {
        for (ko::SharedParcel parcel : given) {
            QVector<ko::SharedLine> fresh;
            for (ko::SharedLine line : std::as_const(parcel.lines)) {
                line.isDone = false;
                if (m_known.insert({parcel.cause.id, line.line}).second)
                    fresh.append(line);
            }
            if (fresh.isEmpty())
                continue;
            parcel.number = parcels.size() + 1;
            parcel.id = QUuid::createUuid().toString(QUuid::WithoutBraces);
            parcel.lines = fresh;
            apply(&parcel);
            parcel.link = linkOf(parcel);
            parcels.append(parcel);
        }
        return parcels.size();
    }

    QVector<ko::SharedParcel> after(qint64 number, int most) const
    {
        QVector<ko::SharedParcel> found = parcels.mid(int(number), most);
        for (ko::SharedParcel& parcel : found)
            parcel.digest = digestOf(parcel);
        return found;
    }

    /// What no desk ever did; the links after it may be made to fit again.
    void rewrite(int index, bool isLinkedAgain)
    {
        parcels[index].cause.user += QLatin1Char('!');
        for (int i = index; isLinkedAgain && i < parcels.size(); ++i)
            parcels[i].link = linkOf(parcels.at(i));
    }

    ko::KnownParcel agreed(const QVector<ko::KnownParcel>& known) const
    {
        ko::KnownParcel newest;
        for (const ko::KnownParcel& parcel : known) {
            if (parcel.number <= parcels.size() && parcels.at(int(parcel.number) - 1).id == parcel.id)
                newest = parcel.number > newest.number ? parcel : newest;
        }
        if (newest.number > 0)
            newest.link = parcels.at(int(newest.number) - 1).link;
        return newest;
    }

    bool has(const QString& changeSet, qint64 line) const { return m_known.count({changeSet, line}) != 0; }
    const std::set<std::pair<QString, qint64>>& lines() const { return m_known; }

    /// As ko.state() gives it.
    QJsonObject state() const
    {
        std::map<qint64, QJsonValue> nodes;
        for (const auto& [id, node] : m_nodes)
            nodes[node.place] =
                QJsonArray{double(node.place), id, node.type, node.name,
                           node.properties.isEmpty() ? QJsonValue() : QJsonValue(node.properties)};
        std::map<qint64, QJsonValue> relations;
        for (const auto& [link, place] : m_links)
            relations[place] =
                QJsonArray{double(place), std::get<0>(link), std::get<1>(link), std::get<2>(link)};
        return {{"nodes", listOf(nodes)},
                {"relations", listOf(relations)},
                {"settings", m_settings.isEmpty() ? QJsonValue() : QJsonValue(m_settings)},
                {"environments", m_environments}};
    }

private:
    struct Node
    {
        qint64 place = 0;
        int type = 0;
        QString name;
        QJsonObject properties;
    };
    typedef std::tuple<QString, QString, int> Link;

    static QByteArray digestOf(const ko::SharedParcel& parcel)
    {
        QByteArray text =
            ko::ParcelCoding::encode({parcel}) + QByteArray::number(parcel.number) + parcel.id.toUtf8();
        for (const ko::SharedLine& line : parcel.lines)
            text += line.isDone ? '+' : '-';
        return QCryptographicHash::hash(text, QCryptographicHash::Sha256);
    }
    QByteArray linkOf(const ko::SharedParcel& parcel) const
    {
        const QByteArray before = parcel.number > 1 ? parcels.at(int(parcel.number) - 2).link : QByteArray();
        return QCryptographicHash::hash(before + digestOf(parcel), QCryptographicHash::Sha256);
    }
    static QJsonValue listOf(const std::map<qint64, QJsonValue>& values)
    {
        QJsonArray list;
        for (const auto& value : values)
            list.append(value.second);
        return list.isEmpty() ? QJsonValue() : QJsonValue(list);
    }
    static QJsonObject object(const QString& text) { return QJsonDocument::fromJson(text.toUtf8()).object(); }
    static QString text(const QJsonObject& object)
    {
        return QString::fromUtf8(QJsonDocument(object).toJson(QJsonDocument::Compact));
    }
    static QString placed(const QString& side, qint64 place)
    {
        QJsonObject whole = object(side);
        whole["place"] = double(place);
        return text(whole);
    }
    static Link linkOf(const ko::SharedLine& line)
    {
        const QJsonObject side = object(line.before.isNull() ? line.after : line.before);
        return {line.id, side["to"].toString(), side["type"].toInt()};
    }

    /// Removals first, then what comes, then the rest: a parcel has no thing twice.
    void apply(ko::SharedParcel* parcel)
    {
        QVector<ko::SharedLine> consequences;
        const auto each = [parcel](char kind, auto wanted, auto what) {
            for (ko::SharedLine& line : parcel->lines) {
                if (line.kind == kind && wanted(line) && !line.isDone)
                    what(line);
            }
        };
        const auto goes = [](const ko::SharedLine& line) { return line.after.isNull(); };
        const auto comes = [](const ko::SharedLine& line) { return line.before.isNull(); };
        const auto any = [](const ko::SharedLine&) { return true; };
        each('R', goes, [this](ko::SharedLine& line) { removeLink(line); });
        std::map<qint64, ko::SharedLine> cut; // by the place of the relation
        each('N', goes, [this, &cut](ko::SharedLine& line) { cutLinks(line.id, &cut); });
        each('N', goes, [this](ko::SharedLine& line) { removeNode(line); });
        each('N', comes, [this](ko::SharedLine& line) { addNode(line); });
        each(
            'N', [goes](const ko::SharedLine& line) { return !goes(line); },
            [this](ko::SharedLine& line) { updateNode(line); });
        each('R', comes, [this](ko::SharedLine& line) { addLink(line); });
        each('S', any, [this](ko::SharedLine& line) { changeSetting(line); });
        each('E', any, [this](ko::SharedLine& line) { changeEnvironments(line); });
        for (const auto& entry : cut)
            consequences.append(entry.second);
        parcel->lines = consequences + parcel->lines;
    }

    void removeLink(ko::SharedLine& line)
    {
        const auto found = m_links.find(linkOf(line));
        if (found == m_links.end())
            return;
        line.before = placed(line.before, found->second);
        line.isDone = true;
        m_formerLinks[found->first] = found->second;
        m_links.erase(found);
    }

    void cutLinks(const QString& node, std::map<qint64, ko::SharedLine>* cut)
    {
        if (m_nodes.count(node) == 0)
            return;
        for (auto it = m_links.begin(); it != m_links.end();) {
            const auto& [source, destination, type] = it->first;
            if (source != node && destination != node) {
                ++it;
                continue;
            }
            ko::SharedLine line;
            line.kind = 'R';
            line.id = source;
            line.before = text({{"to", destination}, {"type", type}, {"place", double(it->second)}});
            line.isDone = true;
            (*cut)[it->second] = line;
            m_formerLinks[it->first] = it->second;
            it = m_links.erase(it);
        }
    }

    void removeNode(ko::SharedLine& line)
    {
        const auto found = m_nodes.find(line.id);
        if (found == m_nodes.end())
            return;
        const Node& node = found->second;
        line.before = text({{"name", node.name},
                            {"type", node.type},
                            {"place", double(node.place)},
                            {"properties", node.properties}});
        line.isDone = true;
        m_formerNodes[line.id] = node.place;
        m_nodes.erase(found);
    }

    void addNode(ko::SharedLine& line)
    {
        if (m_nodes.count(line.id) != 0)
            return;
        const QJsonObject after = object(line.after);
        const auto former = m_formerNodes.find(line.id);
        const qint64 place = former == m_formerNodes.end() ? ++m_nodePlaces : former->second;
        m_nodes[line.id] = {place, after["type"].toInt(), after["name"].toString(),
                            after["properties"].toObject()};
        line.after = placed(line.after, place);
        line.isDone = true;
    }

    void updateNode(ko::SharedLine& line)
    {
        const auto found = m_nodes.find(line.id);
        if (found == m_nodes.end())
            return;
        Node& node = found->second;
        const QJsonObject wantedBefore = object(line.before);
        const QJsonObject wanted = object(line.after);
        const QString oldName = node.name;
        if (line.before.isNull() || wantedBefore["name"] != wanted["name"])
            node.name = wanted["name"].toString();
        QJsonObject before;
        QJsonObject after;
        QStringList keys =
            wanted["properties"].toObject().keys() + wantedBefore["properties"].toObject().keys();
        keys.removeDuplicates();
        for (const QString& key : keys) {
            const QJsonValue value = wanted["properties"].toObject().value(key);
            if (node.properties.value(key) == value)
                continue;
            if (node.properties.contains(key))
                before[key] = node.properties.value(key);
            if (value.isUndefined()) {
                node.properties.remove(key);
            } else {
                after[key] = value;
                node.properties[key] = value;
            }
        }
        if (oldName == node.name && before.isEmpty() && after.isEmpty())
            return;
        line.before = text({{"name", oldName}, {"properties", before}});
        line.after = text({{"name", node.name}, {"properties", after}});
        line.isDone = true;
    }

    void addLink(ko::SharedLine& line)
    {
        const Link link = linkOf(line);
        if (m_links.count(link) != 0 || m_nodes.count(std::get<0>(link)) == 0 ||
            m_nodes.count(std::get<1>(link)) == 0)
            return;
        const auto former = m_formerLinks.find(link);
        const bool isBack =
            former != m_formerLinks.end() && double(former->second) == object(line.after)["place"].toDouble();
        m_links[link] = isBack ? former->second : ++m_linkPlaces;
        line.after = placed(line.after, m_links[link]);
        line.isDone = true;
    }

    void changeSetting(ko::SharedLine& line)
    {
        const QJsonValue present = m_settings.value(line.id);
        if (line.after.isNull() ? present.isUndefined() : present == QJsonValue(line.after))
            return;
        line.before = present.isUndefined() ? QString() : present.toString();
        line.isDone = true;
        if (line.after.isNull())
            m_settings.remove(line.id);
        else
            m_settings[line.id] = line.after;
    }

    void changeEnvironments(ko::SharedLine& line)
    {
        const QJsonArray list = QJsonDocument::fromJson(line.after.toUtf8()).array();
        if (list == m_environments)
            return;
        line.before = QString::fromUtf8(QJsonDocument(m_environments).toJson(QJsonDocument::Compact));
        line.isDone = true;
        m_environments = list;
    }

    std::map<QString, Node> m_nodes;
    std::map<Link, qint64> m_links;
    QJsonObject m_settings;
    QJsonArray m_environments;
    std::map<QString, qint64> m_formerNodes;
    std::map<Link, qint64> m_formerLinks;
    qint64 m_nodePlaces = 0;
    qint64 m_linkPlaces = 0;
    std::set<std::pair<QString, qint64>> m_known;
};

} // namespace testsupport

#endif
